#include "calibration/calibration.h"

#include <optional>

#include "calibration/calibration_display.h"
#include "calibration/calibration_form.h"
#include "calibration/calibration_messages.h"
#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/frames.h"
#include "logger/pressure_scale.h"
#include "platform/dates.h"
#include "platform/numbers.h"
#include "shell/product_box.h"
#include "ui_calibration_form.h"
#include "ui_main_screen.h"
#include "widgets/modal.h"

namespace bornika {

namespace {

void Ouvrir(const Poste& poste) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
}

bool Demander(const Etalonnage& fiche, int code, Tampon& buffer, int combien = longueurReponse,
              int extracode = 0) {
    return Envoi_Entete(fiche.poste, code, buffer, combien, true, extracode);
}

bool DemanderVersion(const Etalonnage& fiche, Tampon& buffer) {
    return Demander(fiche, CMD_LIT_VERSION, buffer, longueurReponseVersion);
}

/// A frame that is more than a code. False when nothing came back.
bool Envoyer(const Etalonnage& fiche, const Octets& trame) {
    EchangeDirect(fiche.poste, trame, longueurTrame, longueurReponse);
    return !fiche.poste.ecran.etat.TimeOut;
}

Reponse Dire(const Etalonnage& fiche, Icone icone, Boutons boutons, const QString& cle) {
    MainScreen& ecran = fiche.poste.ecran;
    return MontrerBoite(ecran, icone, boutons, ecran.Texte(cle));
}

/// The pair of a point, shown in its row; nothing when the logger did not answer.
std::optional<PointEtalonnage> LirePoint(Etalonnage& fiche, int selecteur, int rang) {
    Tampon buffer{};
    if (!Demander(fiche, CMD_LIT_POINT_ETALONNAGE, buffer, longueurReponse, selecteur)) return {};
    const PointEtalonnage point = PointDe(buffer);
    MontrerPoint(fiche, rang, point);
    return point;
}

/// Both pairs, shown and kept. False as soon as one of them was not answered.
bool LirePoints(Etalonnage& fiche, bool ancien) {
    Etalonnage7& etalonnage = fiche.poste.ecran.etat.etalonnage;
    const auto bas = LirePoint(fiche, ancien ? pointUnique : pointBas, 0);
    if (!bas) return false;
    etalonnage.valeur_etalonnage_bas = bas->valeur;
    etalonnage.mesure_etalonnage_bas = bas->mesure;
    // Old firmware has no second point: its row keeps what it shows.
    const auto haut = ancien ? PointEtalonnage() : LirePoint(fiche, pointHaut, 1);
    if (!haut) return false;
    etalonnage.valeur_etalonnage_haut = haut->valeur;
    etalonnage.mesure_etalonnage_haut = haut->mesure;
    return true;
}

/// False as soon as an exchange has failed.
bool LireDonnees(Etalonnage& fiche) {
    Tampon buffer{};
    if (!DemanderVersion(fiche, buffer)) return false;
    const bool ancien = EstAncienFirmware(buffer);
    if (!Demander(fiche, CMD_LIT_DATE_ETALONNAGE, buffer)) return false;
    MontrerDate(fiche, DateDe(buffer));
    if (!LirePoints(fiche, ancien)) return false;
    const Etalonnage7& etalonnage = fiche.poste.ecran.etat.etalonnage;
    const bool unPoint =
        etalonnage.valeur_etalonnage_haut == 0 && etalonnage.mesure_etalonnage_haut == 0;
    AffichePoints(fiche, unPoint ? 0 : 1);
    return true;
}

/// True when both references are numbers; the first that is none becomes "0".
bool ReferencesNumeriques(Etalonnage& fiche) {
    const Regional& regional = fiche.poste.ecran.systeme.regional;
    for (const int rang : {0, 1}) {
        QLineEdit& saisie = *fiche.Rangee(rang).ValeurPressionReelle;
        if (EstNumerique(saisie.text(), regional)) continue;
        saisie.setText(QStringLiteral("0"));
        return false;
    }
    return true;
}

bool EnvoyerPoint(Etalonnage& fiche, const Tampon& version) {
    MainScreen& ecran = fiche.poste.ecran;
    const bool second = fiche.DeuxiemePoint != 0 && !EstAncienFirmware(version);
    const QLineEdit& saisie = *fiche.Rangee(second ? 1 : 0).ValeurPressionReelle;
    double pression = EnDouble(saisie.text(), ecran.systeme.regional);
    const double points = Donne_Points(ecran, pression, false);
    Ouvrir(fiche.poste);
    return Envoyer(fiche, TramePoint(points, second ? pointHaut : pointBas, version));
}

void EnvoyerDate(Etalonnage& fiche, const Tampon& version) {
    const MainScreen& ecran = fiche.poste.ecran;
    const DateOrdinateur maintenant = VersDateOrdinateur(ecran.systeme.horloge.Maintenant());
    Envoyer(fiche, TrameDate(DateVersEpoch(maintenant), ecran.ui->ListeEchelles->Index(),
                             ecran.ui->ListeUnites->Index(), version));
}

/// The whole exchange of a point. Without an answer to the date the point has been sent all the
/// same, and the logger waits for its sensor: that counts as done.
bool PrendrePoint(Etalonnage& fiche) {
    Tampon version{};
    if (!DemanderVersion(fiche, version) || !EnvoyerPoint(fiche, version)) return false;
    EnvoyerDate(fiche, version);
    return true;
}

void GuiderMesure(const Etalonnage& fiche) {
    for (const QString& etape :
         {QStringLiteral(
              "Debrancher le cordon USB,Connecter le k-Pod sur son capteur, attendre que "
              "led verte s'allume, attendre une seconde "),
          QStringLiteral("Déconnecter le k-Pod de son capteur, rebrancher le cordon USB")})
        Dire(fiche, Icone::Information, Boutons::Ok, etape);
}

/// Takes the logger out of calibration and reads what it holds now. False when it stayed silent
/// about the end; a reading that fails behind it leaves the calibration ended all the same.
bool FinirEtalonnage(Etalonnage& fiche) {
    const Poste& poste = fiche.poste;
    Tampon buffer{};
    Ouvrir(poste);
    const bool repondu = Demander(fiche, CMD_FIN_ETALONNAGE, buffer);
    poste.lien.FermeUSB();
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

bool VeutDeuxiemePoint(const Etalonnage& fiche) {
    return Dire(fiche, Icone::Question, Boutons::OuiNon,
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
    FixerUnite(fiche, fiche.poste.ecran.ui->ListeUnites->Texte());
    ViderPressions(fiche);
    LireEtalonnage(fiche);
    AttendrePoint(fiche);
    fiche.ui->Sortir->setEnabled(true);
    ChoisirSaisie(fiche, 0);
    fiche.ui->ValeurPressionReelle_0->selectAll();
}

void LireEtalonnage(Etalonnage& fiche) {
    Ouvrir(fiche.poste);
    LireDonnees(fiche);
    fiche.poste.lien.FermeUSB();
}

void EntrerEtalonnage(Etalonnage& fiche) {
    const Poste& poste = fiche.poste;
    fiche.ui->ValeurCapteurEtalonnage->setText(poste.ecran.ui->ListeEchelles->Texte());
    if (!ReferencesNumeriques(fiche)) return;
    poste.ecran.etat.TimeOut = false;
    Ouvrir(poste);
    const bool pris = PrendrePoint(fiche);
    if (pris) {
        AttendreFin(fiche);
        fiche.ui->Sortir->setEnabled(true);
    }
    poste.lien.FermeUSB();
    if (pris) GuiderMesure(fiche);
}

void SortirEtalonnage(Etalonnage& fiche) {
    const Poste& poste = fiche.poste;
    // For both points: with the flag of an earlier failure standing, the button would stay enabled
    // and do nothing, and the logger would be left in calibration.
    poste.ecran.etat.TimeOut = false;
    if (fiche.DeuxiemePoint != 0) {
        if (!FinirEtalonnage(fiche)) return;
        fiche.DeuxiemePoint = 0;
        ChoisirSaisie(fiche, 0);
        return;
    }
    Tampon version{};
    Ouvrir(poste);
    if (!DemanderVersion(fiche, version)) return poste.lien.FermeUSB();
    if (!EstAncienFirmware(version) && VeutDeuxiemePoint(fiche))
        return PasserAuDeuxiemePoint(fiche);
    FinirEtalonnage(fiche);
}

}  // namespace bornika
