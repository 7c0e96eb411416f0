#include "logger/calibration_reading.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "logger/calibration_figures.h"
#include "logger/parameter_report.h"
#include "platform/format_pattern.h"

namespace bornika {

namespace {

enum class Issue { Silence, AutreEcho, Point };

struct PointLu {
    Issue reponse = Issue::Silence;
    PointEtalonnage point;
    int etat = 0;
};

PointLu LirePoint(Poste& poste, int selecteur) {
    Tampon buffer{};
    if (!Envoi_Entete(poste, CMD_LIT_POINT_ETALONNAGE, buffer, longueurReponse, false, selecteur)) {
        return {};
    }
    const VueReponse reponse(buffer);
    if (reponse.Octet(0) != CMD_LIT_POINT_ETALONNAGE) return {Issue::AutreEcho, {}, 0};
    const double valeur = reponse.Mot(1);
    const double mesure = reponse.Mot(3);
    return {Issue::Point, {valeur, mesure}, reponse.Octet(5)};
}

QString QuatreDecimales(const MainScreen& ecran, double valeur) {
    return Format(valeur, "0.0000", ecran.systeme.regional);
}

void AjouterCorrection(MainScreen& ecran) {
    AjouteRapport(ecran, QStringLiteral("mnuEtalonnage"),
                  QuatreDecimales(ecran, ecran.etat.etalonnage.correction_etalonnage));
}

bool LireUnPoint(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const PointLu lu = LirePoint(poste, pointUnique);
    if (lu.reponse == Issue::Point) {
        if (lu.etat == pointBas) return false;
        ecran.etat.etalonnage = EtalonnageUnPoint(lu.point);
    } else if (lu.reponse == Issue::Silence) {
        ecran.etat.etalonnage = {};
    }
    AjouterCorrection(ecran);
    return true;
}

/// Without the high point: what the low one has set stays, the rest is cleared.
void OublierPointHaut(Etalonnage7& etalonnage) {
    etalonnage.valeur_etalonnage_haut = 0;
    etalonnage.mesure_etalonnage_haut = 0;
    etalonnage.pente_etalonnage = 0;
    etalonnage.offset_etalonnage = 0;
}

/// True when the high point has to be read; `enCours` when the logger is in calibration.
bool LirePointBas(Poste& poste, PointEtalonnage& bas, bool& enCours) {
    Etalonnage7& etalonnage = poste.ecran.etat.etalonnage;
    const PointLu lu = LirePoint(poste, pointBas);
    if (lu.reponse == Issue::Silence) {
        etalonnage = {};
        AjouterCorrection(poste.ecran);
        return false;
    }
    if (lu.reponse == Issue::AutreEcho) return false;
    enCours = lu.etat == pointBas;
    if (enCours) return false;
    bas = lu.point;
    etalonnage.valeur_etalonnage_bas = bas.valeur;
    etalonnage.mesure_etalonnage_bas = bas.mesure;
    etalonnage.correction_etalonnage = bas.valeur - bas.mesure;
    etalonnage.pente_etalonnage = 0;
    etalonnage.offset_etalonnage = 0;
    return true;
}

bool LireDeuxPoints(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    PointEtalonnage bas;
    bool enCours = false;
    if (!LirePointBas(poste, bas, enCours)) return !enCours;

    const PointLu lu = LirePoint(poste, pointHaut);
    if (lu.reponse == Issue::Silence) OublierPointHaut(ecran.etat.etalonnage);
    if (lu.reponse != Issue::Point) return true;  // no line in the report
    if (lu.etat == pointHaut) return false;
    ecran.etat.etalonnage = EtalonnageDeuxPoints(bas, lu.point);
    const Etalonnage7& etalonnage = ecran.etat.etalonnage;
    if (etalonnage.pente_etalonnage == 0) {
        AjouterCorrection(ecran);
    } else {
        AjouteRapport(ecran, QStringLiteral("mnuEtalonnage"),
                      QuatreDecimales(ecran, etalonnage.pente_etalonnage) +
                          QStringLiteral(" X + ") +
                          QuatreDecimales(ecran, etalonnage.offset_etalonnage));
    }
    return true;
}

}  // namespace

bool LireEtalonnageCapteur(Poste& poste, bool AncienFirmware) {
    return AncienFirmware ? LireUnPoint(poste) : LireDeuxPoints(poste);
}

}  // namespace bornika
