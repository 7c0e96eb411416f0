#include "calibration/calibration.h"

#include <optional>

#include "calibration/calibration_display.h"
#include "calibration/calibration_exchange.h"
#include "calibration/calibration_form.h"
#include "calibration/calibration_messages.h"
#include "link/command_table.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "setup/pressure_scale.h"
#include "shell/product_box.h"
#include "ui_calibration_form.h"
#include "ui_main_screen.h"
#include "widgets/modal.h"

namespace bornika {

namespace {

Reponse DireEtape(MainScreen& ecran, Icone icone, Boutons boutons, const QString& cle) {
    return MontrerBoite(ecran, icone, boutons, ecran.Texte(cle));
}

/// Both pairs, shown and kept as they come. False as soon as one of them was not answered.
bool LirePoints(Etalonnage& fiche, EchangeEtalonnage& echange, bool ancien) {
    Etalonnage7& etalonnage = fiche.ecran.etat.etalonnage;
    const auto bas = echange.DemanderPoint(ancien ? pointUnique : pointBas);
    if (!bas) return false;
    MontrerPoint(fiche, 0, *bas);
    RetenirPaireBasse(etalonnage, *bas);
    // Old firmware has no second point: its row keeps what it shows.
    const auto haut = ancien ? PointEtalonnage() : echange.DemanderPoint(pointHaut);
    if (!haut) return false;
    if (!ancien) MontrerPoint(fiche, 1, *haut);
    RetenirPaireHaute(etalonnage, *haut);
    return true;
}

/// False as soon as an exchange has failed.
bool LireDonnees(Etalonnage& fiche, EchangeEtalonnage& echange) {
    const auto version = echange.DemanderVersion();
    if (!version) return false;
    const auto date = echange.DemanderDate();
    if (!date) return false;
    MontrerDate(fiche, *date);
    if (!LirePoints(fiche, echange, EstAncienFirmware(*version))) return false;
    AffichePoints(fiche, AUnPoint(fiche.ecran.etat.etalonnage) ? 0 : 1);
    return true;
}

/// True when both references are numbers; the first that is none becomes "0".
bool ReferencesNumeriques(Etalonnage& fiche) {
    const Regional& regional = fiche.ecran.systeme.regional;
    for (const int rang : {0, 1}) {
        QLineEdit& saisie = *fiche.Rangee(rang).ValeurPressionReelle;
        if (EstNumerique(saisie.text(), regional)) continue;
        saisie.setText(QStringLiteral("0"));
        return false;
    }
    return true;
}

/// The reference of a row, in points of the scale chosen on the main form.
double PointsSaisis(const Etalonnage& fiche, int rang) {
    MainScreen& ecran = fiche.ecran;
    const QLineEdit& saisie = *fiche.Rangee(rang).ValeurPressionReelle;
    double pression = EnDouble(saisie.text(), ecran.systeme.regional);
    return Donne_Points(ecran, pression, false);
}

/// The present date, on the sensor and in the unit of the main form.
Octets TrameDateDuJour(const MainScreen& ecran, const VueReponse& version) {
    const DateOrdinateur maintenant = VersDateOrdinateur(ecran.systeme.horloge.Maintenant());
    return TrameDate(DateVersEpoch(maintenant), ecran.ui->ListeEchelles->Index(),
                     ecran.ui->ListeUnites->Index(), version);
}

/// The whole exchange of a point. Without an answer to the date the point has been sent all the
/// same, and the logger waits for its sensor: that counts as done.
bool PrendrePoint(const Etalonnage& fiche, EchangeEtalonnage& echange) {
    const auto version = echange.DemanderVersion();
    if (!version) return false;
    const bool second = fiche.DeuxiemePoint != 0 && !EstAncienFirmware(*version);
    const double points = PointsSaisis(fiche, second ? 1 : 0);
    echange.OuvrirLien();
    if (!echange.EnvoyerTrame(TramePoint(points, second ? pointHaut : pointBas, *version)))
        return false;
    echange.EnvoyerTrame(TrameDateDuJour(fiche.ecran, *version));
    return true;
}

void GuiderMesure(MainScreen& ecran) {
    for (const QString& etape :
         {QStringLiteral(
              "Debrancher le cordon USB,Connecter le k-Pod sur son capteur, attendre que "
              "led verte s'allume, attendre une seconde "),
          QStringLiteral("Déconnecter le k-Pod de son capteur, rebrancher le cordon USB")})
        DireEtape(ecran, Icone::Information, Boutons::Ok, etape);
}

/// Takes the logger out of calibration and reads what it holds now. False when it stayed silent
/// about the end; a reading that fails behind it leaves the calibration ended all the same.
bool FinirEtalonnage(Etalonnage& fiche) {
    EchangeEtalonnage echange(fiche.poste);
    echange.OuvrirLien();
    const bool repondu = echange.DemanderFin();
    echange.FermerLien();
    if (!repondu) return false;
    LireEtalonnage(fiche);
    AttendrePoint(fiche);
    fiche.ui->Sortir->setEnabled(true);
    return true;
}

// The logger stays in calibration and the link open: the next open closes it first.
void PasserAuDeuxiemePoint(Etalonnage& fiche) {
    fiche.DeuxiemePoint = 1;
    AffichePoints(fiche, 1);
    AttendrePoint(fiche);
    ChoisirSaisie(fiche, 1);
    fiche.ui->ValeurPressionReelle_1->setFocus();
    fiche.ui->ValeurPressionReelle_1->selectAll();
}

bool VeutDeuxiemePoint(MainScreen& ecran) {
    return DireEtape(ecran, Icone::Question, Boutons::OuiNon,
                     QStringLiteral("Voulez vous étalonner un 2 ème point  ? ")) == Reponse::Oui;
}

}  // namespace

void MontrerEtalonnage(Poste& poste) {
    Etalonnage fiche(poste, &poste.ecran);
    ChargerEtalonnage(fiche);
    MontrerModal(fiche);
}

void ChargerEtalonnage(Etalonnage& fiche) {
    Traduire(fiche);
    fiche.DeuxiemePoint = 0;
    AffichePoints(fiche, 0);
    FixerUnite(fiche, fiche.ecran.ui->ListeUnites->Texte());
    ViderPressions(fiche);
    LireEtalonnage(fiche);
    AttendrePoint(fiche);
    fiche.ui->Sortir->setEnabled(true);
    ChoisirSaisie(fiche, 0);
    fiche.ui->ValeurPressionReelle_0->selectAll();
}

void LireEtalonnage(Etalonnage& fiche) {
    EchangeEtalonnage echange(fiche.poste);
    echange.OuvrirLien();
    LireDonnees(fiche, echange);
    echange.FermerLien();
}

void EntrerEtalonnage(Etalonnage& fiche) {
    MainScreen& ecran = fiche.ecran;
    fiche.ui->ValeurCapteurEtalonnage->setText(ecran.ui->ListeEchelles->Texte());
    if (!ReferencesNumeriques(fiche)) return;
    ecran.etat.TimeOut = false;
    EchangeEtalonnage echange(fiche.poste);
    echange.OuvrirLien();
    const bool pris = PrendrePoint(fiche, echange);
    if (pris) {
        AttendreFin(fiche);
        fiche.ui->Sortir->setEnabled(true);
    }
    echange.FermerLien();
    if (pris) GuiderMesure(ecran);
}

void SortirEtalonnage(Etalonnage& fiche) {
    // For both points: with the flag of an earlier failure standing, the button would stay enabled
    // and do nothing, and the logger would be left in calibration.
    fiche.ecran.etat.TimeOut = false;
    if (fiche.DeuxiemePoint != 0) {
        if (!FinirEtalonnage(fiche)) return;
        fiche.DeuxiemePoint = 0;
        ChoisirSaisie(fiche, 0);
        return;
    }
    EchangeEtalonnage echange(fiche.poste);
    echange.OuvrirLien();
    const auto version = echange.DemanderVersion();
    if (!version) return echange.FermerLien();
    if (!EstAncienFirmware(*version) && VeutDeuxiemePoint(fiche.ecran))
        return PasserAuDeuxiemePoint(fiche);
    FinirEtalonnage(fiche);
}

}  // namespace bornika
