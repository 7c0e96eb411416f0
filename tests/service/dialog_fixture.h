#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "shell/language_switch.h"
#include "support/form_stand.h"
#include "support/plain_text.h"
#include "widgets/modal.h"

namespace bornika::essai {

/// A main form with its texts on which the small dialogs are opened; `main` is the hand that meets
/// them.
struct BancDialogue : BancSimule {
    BancDialogue() {
        ReglerMontreur([this](QDialog& dialogue) {
            ++montres;
            dialogue.show();
            QCoreApplication::processEvents();
            if (main) main(dialogue);
            dialogue.hide();
        });
        ChangeTextes(ecran, QStringLiteral("Français"), true);
        ecran.etat.TypekPod = 1;
        ecran.etat.NomKpod = QStringLiteral("k-Pod");
    }
    ~BancDialogue() { ReglerMontreur({}); }

    /// Chooses a language as the operator does.
    void Parler(const QString& langue) {
        ui.ListeLangues->Choisir(ui.ListeLangues->findText(langue));
        ChangeTextes(ecran, langue, false);
    }

    std::function<void(QDialog&)> main;
    /// How many dialogs were shown.
    int montres = 0;
};

}  // namespace bornika::essai
