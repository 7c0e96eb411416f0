#include "app/demo_bus.h"

#include <chrono>

#include "platform/clock.h"
#include "shell/dates.h"
#include "simulator/presets.h"

namespace bornika {

std::unique_ptr<BusSimule> BusDeDemonstration(Horloge& horloge, Allure allure) {
    const auto maintenant =
        static_cast<std::uint32_t>(DateVersEpoch(VersDateOrdinateur(horloge.Maintenant())));
    auto bus = std::make_unique<BusSimule>();
    for (auto& enregistreur : simulateur::FamilleDemo(maintenant))
        bus->Brancher(std::move(enregistreur)).BrancherHorloge([&horloge] {
            return horloge.Maintenant().toSecsSinceEpoch();
        });
    bus->TaireJournaux();
    if (allure == Allure::CelleDuCable) bus->ReglerCadence(simulateur::cadenceDemo);
    return bus;
}

}  // namespace bornika
