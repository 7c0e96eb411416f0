#pragma once

#include <QtTest>

#include "app/viewer_events.h"
#include "chart/view/chart_looks.h"
#include "platform/fault.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "support/hand.h"
#include "ui_main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika::essai {

/// The viewer on its real forms with the table of events of the program, over fakes of the machine.
struct Visionneuse : Operateur {
    Visionneuse() : ecran(etabli.systeme), acces(ecran) {
        ecran.configuration.RemplitListeLangues(*ecran.ui->ListeLangues, "Français");
        ecran.etat.NomKpod = "k-Pod";
        acces.apresCreation = [](Trace& fiche) { BrancherTrace(fiche); };
    }

    Trace& Fiche() { return acces.Fiche(); }
    Ui::Trace& Ui() { return *Fiche().ui; }
    ModeleGraphe& Modele() { return Fiche().modele; }
    RegardGraphe Regard() { return RegardGraphe(*Ui().TChart1); }

    /// A recording of `lignes` measures, one a second, with a flow of `comptage`.
    void EcrireEnregistrement(const QString& nom, int lignes = 300,
                              const QByteArray& entete = enteteAppareil) const {
        QByteArray contenu = entete + "\r\n";
        for (int i = 0; i < lignes; ++i) {
            const QByteArray seconde = QByteArray::number(1000 + i);
            contenu += seconde + "000;01/01/1970 00:" + seconde + ":000;512;" +
                       QByteArray::number(4 + (i % 50) * 0.01) + ";;" +
                       QByteArray::number(1 + i % 7) + " ;\r\n";
        }
        etabli.Ecrire(nom, contenu);
    }
    /// What `CommandOpen` does when the operator picks that one file of the program's folder.
    void Ouvrir(const QString& nom) {
        etabli.dialogues.AnnoncerOuverture(etabli.Chemin(nom));
        Ui().CommandOpen->click();
    }
    /// The form is on the screen, with that file.
    void Charger(const QString& nom = QStringLiteral("a.txt")) {
        Fiche().show();
        Ouvrir(nom);
    }
    /// What the file dialog gives for several files of the program's folder.
    QString Plusieurs(const QStringList& noms) const {
        return etabli.systeme.dossier + QChar(u'\0') + noms.join(QChar(u'\0'));
    }
    /// What `CommandOpen` does when the operator picks several of them.
    void OuvrirPlusieurs(const QStringList& noms) {
        etabli.dialogues.AnnoncerOuverture(Plusieurs(noms));
        Ui().CommandOpen->click();
    }
    QString Reglage(const QString& cle) {
        return ecran.configuration.LitConfig(cle).value_or("(absent)");
    }

    static inline const QByteArray enteteAppareil =
        "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.";
    static inline const QByteArray enteteCoefficient =
        "Temps;Date Heure;Valeur;Pression;bar;comptage (2.5);m3/MIN";

    Etabli etabli;
    MainScreen ecran;
    AccesTrace acces;
};

}  // namespace bornika::essai
