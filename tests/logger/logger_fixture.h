#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/form_stand.h"
#include "support/plain_text.h"

namespace bornika::essai {

/// One simulated logger on the bus and a main form as it stands after the start of the program:
/// lists filled, events tied, the logger chosen. Nothing was read from it yet.
class BancEnregistreur : public BancSimule {
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

    EnregistreurSimule& enregistreur;
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
