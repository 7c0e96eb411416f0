#pragma once

#include "link/station.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "support/hand.h"
#include "ui_main_screen.h"

namespace bornika::essai {

/// The main form and its link over whatever carries the bytes, in a folder of their own: what the
/// stands of the rooms have in common.
struct BancFormulaire : Operateur {
    explicit BancFormulaire(InterfaceUsb& usb, const QString& sousDossier = {})
        : etabli(&usb, sousDossier), ecran(etabli.systeme) {}
    BancFormulaire(const BancFormulaire&) = delete;
    BancFormulaire& operator=(const BancFormulaire&) = delete;

    /// What the choice of a logger leaves on the form.
    void Choisir(IdentifiantUsb id, int type) {
        ecran.etat.Connected = true;
        ecran.etat.UsbID = id;
        ecran.etat.TypekPod = type;
        ecran.etat.NomKpod = QStringLiteral("k-Pod");
    }

    Etabli etabli;
    MainScreen ecran;
    Ui::MainScreen& ui = *ecran.ui;
    MULTIUSB lien{ecran};
    Poste poste{ecran, lien};
};

/// The bus stands before the form that is made over it.
struct BusDEssai {
    BusSimule bus;
};

/// That form over a simulated bus, nothing plugged in.
struct BancSimule : BusDEssai, BancFormulaire {
    explicit BancSimule(const QString& sousDossier = {}) : BancFormulaire(bus, sousDossier) {}
};

}  // namespace bornika::essai
