#include "setup/pressure_scale.h"

#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "setup/recording_summary.h"
#include "shell/main_screen.h"
#include "shell/threshold_labels.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double pasDeLEchelle = 1024;
constexpr double diviseurCoefficient = 10000;
constexpr double ecartAbsolu = 1.024;

double PasDePression(const EchellePression& echelle) {
    return (echelle.maxi - echelle.mini) / pasDeLEchelle;
}

void RemettreSeuils(MainScreen& ecran) {
    ecran.ui->Seuil1->setText(QStringLiteral("0"));
    ecran.ui->Seuil2->setText(QStringLiteral("0"));
}

}  // namespace

double CorrigerPoints(double points, const Etalonnage7& etalonnage) {
    if (etalonnage.valeur_etalonnage_haut == 0 || etalonnage.mesure_etalonnage_haut == 0) {
        return (etalonnage.valeur_etalonnage_bas - etalonnage.mesure_etalonnage_bas) + points;
    }
    return points * etalonnage.pente_etalonnage + etalonnage.offset_etalonnage;
}

double PressionDePoints(double points, const EchellePression& echelle, double coefficient,
                        bool correction_absolue) {
    double pression = PasDePression(echelle) * points + echelle.mini;
    if (correction_absolue) pression -= ecartAbsolu;
    return ArrondiTroisDecimales(coefficient * pression / diviseurCoefficient);
}

double PointsDePression(double& pression, const EchellePression& echelle, double coefficient,
                        bool correction_absolue) {
    pression = Diviser(pression, coefficient / diviseurCoefficient);
    if (correction_absolue) pression += ecartAbsolu;
    if (pression < echelle.mini) {
        pression = echelle.mini;
    } else if (pression > echelle.maxi) {
        pression = echelle.maxi;
    }
    return ArrondiTroisDecimales(Diviser(pression - echelle.mini, PasDePression(echelle)));
}

double LimiteSeuil(double maxi, double coefficient) {
    // Written and read back with the same separator: the user's locale has no part in it.
    const Regional regional;
    return EnDouble(Format(coefficient * maxi / diviseurCoefficient, "###0.0", regional), regional);
}

double CoefficientUnite(const MainScreen& ecran) {
    const ListeDeroulante& unites = *ecran.ui->ListeUnites;
    return unites.Donnee(unites.Index());
}

double Donne_Pression(MainScreen& ecran, double points, bool correction, bool correction_absolue) {
    const EtatApplication& etat = ecran.etat;
    if (correction) points = CorrigerPoints(points, etat.etalonnage);
    return PressionDePoints(points, {etat.Mini, etat.Maxi}, CoefficientUnite(ecran),
                            correction_absolue);
}

double Donne_Points(MainScreen& ecran, double& pression, bool correction_absolue) {
    return PointsDePression(pression, {ecran.etat.Mini, ecran.etat.Maxi}, CoefficientUnite(ecran),
                            correction_absolue);
}

void ListeEchelles_Click(MainScreen& ecran) {
    ecran.ui->PressionAbsolue->setChecked(false);
    RemettreSeuils(ecran);
    ecran.configuration.LitEchelle(ecran.Langue(), ecran.ui->ListeEchelles->Index(),
                                   ecran.etat.Mini, ecran.etat.Maxi);
}

void ListeUnites_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    RemettreSeuils(ecran);
    if (ui->UnSeuil->isChecked()) MontrerTexteSeuil(ecran);
    if (ui->DeuxSeuils->isChecked()) {
        ChercherTexteLimiteBasse(ecran);
        ChercherTexteLimiteHaute(ecran);
        MontrerTextesLimites(ecran);
    }
    Donne_Resume(ecran);
}

}  // namespace bornika
