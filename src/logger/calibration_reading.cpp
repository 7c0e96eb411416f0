#include "logger/calibration_reading.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "logger/parameter_replies.h"
#include "logger/parameter_report.h"
#include "platform/format_pattern.h"

namespace bornika {

namespace {

using Issue = PointLu::Issue;

PointLu DemanderPoint(Poste& poste, int selecteur) {
    Tampon buffer{};
    if (!Envoi_Entete(poste, CMD_LIT_POINT_ETALONNAGE, buffer, longueurReponse, false, selecteur)) {
        return {};
    }
    return PointLuDe(buffer);
}

QString QuatreDecimales(const MainScreen& ecran, double valeur) {
    return Format(valeur, "0.0000", ecran.systeme.regional);
}

void AjouterCorrection(MainScreen& ecran) {
    AjouteRapport(ecran, QStringLiteral("mnuEtalonnage"),
                  QuatreDecimales(ecran, ecran.etat.etalonnage.correction_etalonnage));
}

void AjouterDroite(MainScreen& ecran) {
    const Etalonnage7& etalonnage = ecran.etat.etalonnage;
    if (etalonnage.pente_etalonnage == 0) return AjouterCorrection(ecran);
    AjouteRapport(ecran, QStringLiteral("mnuEtalonnage"),
                  QuatreDecimales(ecran, etalonnage.pente_etalonnage) + QStringLiteral(" X + ") +
                      QuatreDecimales(ecran, etalonnage.offset_etalonnage));
}

/// False when the logger is in calibration.
bool RetenirPointUnique(MainScreen& ecran, const PointLu& lu) {
    if (lu.issue == Issue::Point) {
        if (lu.etat == pointBas) return false;
        ecran.etat.etalonnage = EtalonnageUnPoint(lu.point);
    } else if (lu.issue == Issue::Silence) {
        ecran.etat.etalonnage = {};
    }
    AjouterCorrection(ecran);
    return true;
}

/// What the low point leads to.
enum class ApresPointBas { LirePointHaut, Fini, EnCours };

ApresPointBas RetenirPointBas(MainScreen& ecran, const PointLu& lu) {
    Etalonnage7& etalonnage = ecran.etat.etalonnage;
    if (lu.issue == Issue::Silence) {
        etalonnage = {};
        AjouterCorrection(ecran);
        return ApresPointBas::Fini;
    }
    if (lu.issue == Issue::AutreEcho) return ApresPointBas::Fini;
    if (lu.etat == pointBas) return ApresPointBas::EnCours;
    etalonnage.valeur_etalonnage_bas = lu.point.valeur;
    etalonnage.mesure_etalonnage_bas = lu.point.mesure;
    etalonnage.correction_etalonnage = lu.point.valeur - lu.point.mesure;
    etalonnage.pente_etalonnage = 0;
    etalonnage.offset_etalonnage = 0;
    return ApresPointBas::LirePointHaut;
}

/// Without the high point: what the low one has set stays, the rest is cleared.
void OublierPointHaut(Etalonnage7& etalonnage) {
    etalonnage.valeur_etalonnage_haut = 0;
    etalonnage.mesure_etalonnage_haut = 0;
    etalonnage.pente_etalonnage = 0;
    etalonnage.offset_etalonnage = 0;
}

/// False when the logger is in calibration.
bool RetenirPointHaut(MainScreen& ecran, const PointEtalonnage& bas, const PointLu& lu) {
    if (lu.issue == Issue::Silence) OublierPointHaut(ecran.etat.etalonnage);
    if (lu.issue != Issue::Point) return true;  // no line in the report
    if (lu.etat == pointHaut) return false;
    ecran.etat.etalonnage = EtalonnageDeuxPoints(bas, lu.point);
    AjouterDroite(ecran);
    return true;
}

}  // namespace

bool LireEtalonnageCapteur(Poste& poste, bool AncienFirmware) {
    MainScreen& ecran = poste.ecran;
    if (AncienFirmware) return RetenirPointUnique(ecran, DemanderPoint(poste, pointUnique));
    const PointLu bas = DemanderPoint(poste, pointBas);
    switch (RetenirPointBas(ecran, bas)) {
        case ApresPointBas::EnCours:
            return false;
        case ApresPointBas::Fini:
            return true;
        case ApresPointBas::LirePointHaut:
            break;
    }
    return RetenirPointHaut(ecran, bas.point, DemanderPoint(poste, pointHaut));
}

}  // namespace bornika
