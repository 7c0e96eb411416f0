#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "simulator/presets.h"
#include "usb/usb_loggers.h"
#include "usb_mock/mock/usb_testbed.h"

namespace bornika::essai {

/// Device seconds of the simulated loggers: 5 March 2026, 14:07:09.
inline constexpr std::uint32_t maintenantUsb = 1772719629;

using Trame = std::vector<std::uint8_t>;

/// The frame that asks for the version.
inline const Trame version = {9, 0, 0, 0, 0, 0, 0, 0};

/// Setting of the product that a `FicheUsb` describes, with a short time-out.
inline ReglageUsb ReglageDe(const FicheUsb& fiche, int delai = 100) {
    ReglageUsb reglage;
    reglage.Vendeur = fiche.vendeur;
    reglage.Produit = fiche.produit;
    reglage.Interface = fiche.interface;
    reglage.Delai = delai;
    return reglage;
}

/// The program's USB interface on mock ports. The first call of `usb` makes it, so that loggers may
/// be plugged in before.
struct BancEnregistreurs : testing::Test {
    int Brancher(const FicheUsb& fiche = {}) {
        return banc->Brancher(fiche, simulateur::KPod2100(maintenantUsb));
    }
    EnregistreursUsb& usb() {
        if (!usb_) usb_ = std::make_unique<EnregistreursUsb>(reglages);
        return *usb_;
    }
    /// A pair of handles on the first logger, as the link takes them.
    void Ouvrir() {
        ASSERT_GT(usb().Compte(), 0);
        Ouvrir(usb().Identifiant(0));
    }
    void Ouvrir(IdentifiantUsb id) {
        ecriture = usb().Ouvrir(id);
        lecture = usb().Ouvrir(id);
        ASSERT_GT(ecriture, 0);
        ASSERT_GT(lecture, 0);
    }
    void Fermer() {
        usb().Fermer(lecture);
        usb().Fermer(ecriture);
    }
    Trame Lire(std::size_t voulus) {
        Trame octets(voulus);
        octets.resize(static_cast<std::size_t>(usb().Lire(lecture, octets)));
        return octets;
    }
    /// What comes back to a frame when `voulus` bytes are asked for.
    Trame Echanger(const Trame& trame, std::size_t voulus) {
        EXPECT_TRUE(usb().Ecrire(ecriture, trame));
        return Lire(voulus);
    }
    /// What the firmware of that port answers to a frame.
    Trame Attendu(int port, const Trame& trame) {
        Trame reponse;
        banc->Regler(port, [&](AppareilMaquette& appareil) {
            reponse = appareil.enregistreur->Repondre(trame).Liste();
        });
        return reponse;
    }

    std::unique_ptr<BancUsb> banc = std::make_unique<BancUsb>();
    std::vector<ReglageUsb> reglages = {ReglageDe({})};
    PoigneeUsb ecriture = 0;
    PoigneeUsb lecture = 0;

  private:
    std::unique_ptr<EnregistreursUsb> usb_;
};

}  // namespace bornika::essai
