#include "app/program.h"

#include <QApplication>
#include <cstdlib>

#include "app/device_events.h"
#include "app/fault_exit.h"
#include "app/form_events.h"
#include "app/menu_events.h"
#include "app/start_up.h"
#include "app/viewer_events.h"
#include "app/watchdog.h"
#include "platform/guard.h"
#include "platform/program_folder.h"
#include "shell/screen_fit.h"

namespace bornika {

Programme::Programme(Systeme& systeme, std::function<void(int)> sortir)
    : ecran(systeme),
      lien(ecran),
      poste{ecran, lien},
      trace(ecran),
      activation(ecran),
      suivi(ecran, [this] { activation.Activer(); }) {
    if (!sortir) sortir = [](int etat) { std::_Exit(etat); };
    InstallerTraitementFaute([this, sortir](const FauteExecution& faute) {
        FinirSurFaute(
            faute, ecran.systeme.dialogues, [this] { lien.FermeUSB(); }, sortir);
    });
    Brancher();
}

Programme::~Programme() {
    InstallerTraitementFaute({});
}

void Programme::Brancher() {
    BrancherFormulaire(ecran);
    BrancherMenus(ecran);
    BrancherAppareil(poste, trace);
    trace.apresCreation = [](Trace& fiche) { BrancherTrace(fiche); };
    brancher(&Timeur, &QTimer::timeout, &ecran, [this] { bornika::Timeur(poste, Timeur); });
    brancher(&ecran, &MainScreen::Fermeture, &ecran, [this] {
        lien.FermeUSB();
        // The viewer may stand open beside it: the program ends all the same.
        QCoreApplication::quit();
    });
}

bool Programme::Demarrer() {
    bool charge = false;
    garder([&] {
        Charger(poste);
        charge = true;
    });
    if (!charge) return false;
    ecran.show();
    // The first show is an activation, also where no window manager hands out the focus.
    garder([this] { suivi.FenetreActive(&ecran); });
    return true;
}

int Executer(Systeme& systeme) {
    if (!DossierInscriptible(systeme.dossier)) {
        systeme.dialogues.Boite(
            Icone::Critique, Boutons::Ok, QStringLiteral("BORNIKA"),
            QStringLiteral(
                "The program's folder cannot be written:\n\n%1\n\nSettings and recordings "
                "are kept in it. Copy the whole folder to a place of your own, for example "
                "your home folder, and start the program there.")
                .arg(systeme.dossier));
        return 1;
    }
    Programme programme(systeme);
    TenirDansEcran(programme.ecran);
    return programme.Demarrer() ? QApplication::exec() : 1;
}

}  // namespace bornika
