#include "app/demo_bus.h"

#include <chrono>

#include "platform/dates.h"
#include "platform/system.h"
#include "simulator/card_files.h"
#include "simulator/presets.h"

namespace bornika {

namespace {

std::uint32_t TempsPresent(Horloge& horloge) {
    return static_cast<std::uint32_t>(DateVersEpoch(VersDateOrdinateur(horloge.Maintenant())));
}

}  // namespace

std::unique_ptr<BusSimule> BusDeDemonstration(Horloge& horloge, Allure allure) {
    auto bus = std::make_unique<BusSimule>();
    for (auto& enregistreur : simulateur::FamilleDemo(TempsPresent(horloge)))
        bus->Brancher(std::move(enregistreur)).BrancherHorloge([&horloge] {
            return horloge.Maintenant().toSecsSinceEpoch();
        });
    bus->TaireJournaux();
    if (allure == Allure::CelleDuCable) bus->ReglerCadence(simulateur::cadenceDemo);
    return bus;
}

void PoserCarteDeDemonstration(const Systeme& systeme) {
    simulateur::PoserCarte(systeme.Chemin(QStringLiteral("CARD")), TempsPresent(systeme.horloge));
}

}  // namespace bornika
