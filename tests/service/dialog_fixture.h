#pragma once

#include <QDialog>
#include <QTest>
#include <functional>
#include <string>

#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"
#include "widgets/modal.h"

namespace bornika::essai {

/// A main form with its texts on which the small dialogs are opened; `main` is the hand that meets
/// them.
struct BancDialogue {
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
    static void Cliquer(QWidget* bouton) { QTest::mouseClick(bouton, Qt::LeftButton); }

    BusSimule bus;
    Etabli etabli{&bus};
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;
    std::function<void(QDialog&)> main;
    /// How many dialogs were shown.
    int montres = 0;
};

inline std::string Clair(const QString& texte) {
    return texte.toStdString();
}

}  // namespace bornika::essai
