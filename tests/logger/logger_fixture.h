#pragma once

#include <gtest/gtest.h>

#include <string>

#include "link/station.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {

inline std::string Clair(const QString& texte) {
    return texte.toStdString();
}

/// One simulated logger on the bus and a main form as it stands after the start of the program:
/// lists filled, events tied, the logger chosen. Nothing was read from it yet.
class BancEnregistreur {
  public:
    explicit BancEnregistreur(const QString& langue = QStringLiteral("Français"),
                              const EnregistreurSimule::Identite& identite = {});

    /// Sets a decimal separator as a user's locale would.
    void ReglerSeparateur(const QString& separateur) {
        etabli.systeme.regional.separateur = separateur;
    }
    /// Chooses a unit by its text.
    void ChoisirUnite(const QString& texte);
    /// Shows the frames of the advanced options.
    void MontrerOptions();

    BusSimule bus;
    EnregistreurSimule& enregistreur;
    Etabli etabli;
    MainScreen ecran;
    Ui::MainScreen& ui;
    MULTIUSB lien;
    Poste poste;
};

/// A test on that form, in French.
class SurFormulaire : public testing::Test {
  protected:
    BancEnregistreur banc;
    EnregistreurSimule& enregistreur = banc.enregistreur;
    MainScreen& ecran = banc.ecran;
    Ui::MainScreen& ui = banc.ui;
};

/// A logger with something to say at every step of the reading, for golden values.
void PreparerEnregistreur(EnregistreurSimule& enregistreur);

}  // namespace bornika::essai
