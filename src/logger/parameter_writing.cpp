#include "logger/parameter_writing.h"

#include <array>

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/frames.h"
#include "link/memory_access.h"
#include "logger/context_writing.h"
#include "logger/parameter_reading.h"
#include "logger/set_up_form.h"
#include "logger/set_up_frames.h"
#include "logger/writing_checks.h"
#include "products/firmware_versions.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "widgets/busy_marks.h"

namespace bornika {

namespace {

/// Milliseconds that the logger needs to take over the set-up, and its context before it is read.
constexpr int pauseApresEcriture = 2000;

using Construction = Octets (*)(const MainScreen&);

/// Each is made of the form right before it is sent: a fault in one of them comes behind those that
/// were sent.
constexpr std::array trames = {
    Construction{[](const MainScreen& ecran) { return TrameDemarrage(DemarrageSaisi(ecran)); }},
    Construction{[](const MainScreen& ecran) { return TrameMode(ModeSaisi(ecran)); }},
    Construction{[](const MainScreen& ecran) { return TrameHorloge(HorlogeSaisie(ecran)); }},
    Construction{
        [](const MainScreen& ecran) { return TrameEcritCommentaire(1, CommentaireSaisi(ecran)); }},
    Construction{
        [](const MainScreen& ecran) { return TrameEcritCommentaire(2, CommentaireSaisi(ecran)); }},
};

bool ConfirmerEcriture(MainScreen& ecran) {
    return MontrerBoite(ecran, Icone::Aucune, Boutons::OkAnnuler,
                        ecran.Texte(QStringLiteral("Les anciennes valeurs seront écrasées"))) ==
           Reponse::Ok;
}

/// False when the logger did not answer to one of them: the rest is not sent.
bool EnvoyerTrames(Poste& poste) {
    for (const Construction construire : trames) {
        EchangeDirect(poste, construire(poste.ecran), longueurTrame, longueurReponse);
        if (poste.ecran.etat.TimeOut) return false;
    }
    return true;
}

/// From here on the set-up stands in the logger: a logger that falls silent is told of, but the
/// sequence runs to its end all the same.
void EcrireContexteEtRelire(Poste& poste) {
    Horloge& horloge = poste.ecran.systeme.horloge;
    horloge.Pause(pauseApresEcriture);
    EcrireContexte(poste);
    if (poste.ecran.etat.VersionLogiciel >= version::contexte) ForceContexte(poste);
    poste.lien.FermeUSB();
    horloge.Pause(pauseApresEcriture);
    Lire_Parametres(poste);
}

}  // namespace

void Ecrire(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    BoutonOccupe bouton(*ecran.ui->Ecrire);
    ecran.etat.TimeOut = false;
    poste.lien.OuvreUSB(ecran.etat.UsbID);

    const EtatCarte carte = ControlerCarte(poste);
    if (carte == EtatCarte::SansReponse) {
        poste.lien.FermeUSB();
        bouton.Laisser();  // on purpose
        return;
    }
    if (carte == EtatCarte::Absente || !ConfirmerEcriture(ecran)) return;

    PointeurPendant sablier(ecran, pointeur::sablier);
    if (!ControlerCapteur(poste)) return bouton.Rendre();
    if (!EnvoyerTrames(poste)) {
        bouton.Rendre();
        return poste.lien.FermeUSB();
    }
    EcrireContexteEtRelire(poste);
    sablier.Rendre();
    MontrerTexte(ecran, Icone::Information, ecran.textes.TexteEcritureTerminee);
}

}  // namespace bornika
