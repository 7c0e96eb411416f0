#include "logger/writing_checks.h"

#include "link/command_table.h"
#include "logger/card_state.h"
#include "logger/parameter_replies.h"
#include "products/products.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

void DireCarteAbsente(MainScreen& ecran) {
    MontrerMessage(ecran, Icone::Aucune, QStringLiteral("SD card absent "));
}

void DireAutreCapteur(MainScreen& ecran, int etalonne) {
    const ListeDeroulante& echelles = *ecran.ui->ListeEchelles;
    const QString explication =
        ecran.Texte(QStringLiteral(" Le capteur sélectionné n'est pas le capteur étalonné"));
    MontrerTexte(ecran, Icone::Critique,
                 echelles.Texte() + QStringLiteral(" <> ") + echelles.TexteA(etalonne) +
                     QStringLiteral(" : ") + explication);
}

}  // namespace

EtatCarte ControlerCarte(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    if (!EstFamilleCarte(ecran.etat.TypekPod)) return EtatCarte::Presente;
    Tampon reponse{};
    if (!Envoi_Entete(poste, CMD_LIT_DATE_COURANTE, reponse, longueurReponse, true)) {
        return EtatCarte::SansReponse;
    }
    const bool presente = EstCartePresente(reponse);
    MontrerCarte(ecran, presente);
    if (presente) return EtatCarte::Presente;
    DireCarteAbsente(ecran);
    return EtatCarte::Absente;
}

std::optional<int> AutreCapteur(const VueReponse& reponse, int choisi, int nombre) {
    const auto lu = CapteurEtalonneDe(reponse);
    if (!lu || lu->date == 0 || lu->echelle == choisi || lu->echelle >= nombre) return std::nullopt;
    return lu->echelle;
}

bool ControlerCapteur(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const ListeDeroulante& echelles = *ecran.ui->ListeEchelles;
    Tampon reponse{};
    if (!Envoi_Entete(poste, CMD_LIT_DATE_ETALONNAGE, reponse, longueurReponse, false)) {
        // The failed exchange has closed the link: without this the first frame would not leave.
        ecran.etat.TimeOut = false;
        poste.lien.OuvreUSB(ecran.etat.UsbID);
        return true;
    }
    const auto etalonne = AutreCapteur(reponse, echelles.Index(), echelles.Nombre());
    if (!etalonne) return true;
    DireAutreCapteur(ecran, *etalonne);
    return false;
}

}  // namespace bornika
