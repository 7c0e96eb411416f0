#include "logger/writing_checks.h"

#include "link/command_table.h"
#include "logger/card_state.h"
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
    const bool presente = VueReponse(reponse).Octet(7) == cartePresente;
    MontrerCarte(ecran, presente);
    if (presente) return EtatCarte::Presente;
    DireCarteAbsente(ecran);
    return EtatCarte::Absente;
}

std::optional<int> AutreCapteur(const VueReponse& reponse, int choisi, int nombre) {
    if (reponse.Octet(0) != CMD_LIT_DATE_ETALONNAGE) return std::nullopt;
    const bool jamais = reponse.Quatre(1) == 0;
    const int etalonne = EchelleDeOctet(reponse.Octet(5));
    if (jamais || etalonne == choisi || etalonne >= nombre) return std::nullopt;
    return etalonne;
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
