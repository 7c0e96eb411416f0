#pragma once

#include <QApplication>
#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

#include "app/program.h"
#include "simulator/presets.h"
#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "support/hand.h"
#include "ui_main_screen.h"
#include "widgets/modal.h"

namespace bornika::essai {

/// Device seconds of the fixed clock of `HorlogeFigee`: 5 March 2026, 14:07:09.
inline constexpr std::uint32_t maintenantSimule = 1772719629;

/// Name of a recording that is made at that moment.
inline const QString nomSelonHorloge = QStringLiteral("2026-03-05-14-07-09");

/// The whole program on simulated loggers, off-screen, in a folder of its own.
class BancProgramme : public Operateur {
  public:
    BancProgramme() {
        ReglerMontreur([this](QDialog& dialogue) {
            montres.push_back(QString::fromLatin1(dialogue.metaObject()->className()));
            dialogue.show();
            if (main) main(dialogue);
            dialogue.hide();
        });
    }
    ~BancProgramme() {
        programme.reset();
        ReglerMontreur({});
    }

    MainScreen& ecran() { return programme->ecran; }
    Ui::MainScreen& ui() { return *programme->ecran.ui; }

    void Construire() {
        programme = std::make_unique<Programme>(etabli.systeme,
                                                [this](int etat) { sorties.push_back(etat); });
    }
    /// Makes the program and runs its Load; the list's line is chosen with a real click (-1: none).
    bool Demarrer(int ligne = 0) {
        if (ligne >= 0) main = [ligne](QDialog& dialogue) { ChoisirLigne(dialogue, ligne); };
        Construire();
        const bool demarre = programme->Demarrer();
        // The form is on the screen and active before anybody clicks.
        QCoreApplication::processEvents();
        return demarre;
    }
    /// A real click on a line of the list of loggers.
    static void ChoisirLigne(QDialog& dialogue, int ligne) {
        auto* liste = dialogue.findChild<QListWidget*>(QStringLiteral("Listekrow"));
        if (liste == nullptr || ligne >= liste->count()) return;
        CliquerLigne(*liste, ligne);
    }

    /// Texts of the boxes so far.
    QStringList Boites() const { return etabli.dialogues.TextesDesBoites(); }

    BusSimule bus;
    Etabli etabli{&bus};
    /// Class names of the dialogs shown, in order.
    QStringList montres;
    /// The hand that meets each dialog.
    std::function<void(QDialog&)> main;
    /// Exit statuses of general failures; the process is not left.
    std::vector<int> sorties;
    std::unique_ptr<Programme> programme;
};

}  // namespace bornika::essai
