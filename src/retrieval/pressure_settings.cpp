#include "retrieval/pressure_settings.h"

#include "platform/fault.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

std::optional<double> CoefficientChoisi(const ListeDeroulante& unites) {
    const int index = unites.Index();
    if (index < 0) return std::nullopt;
    return unites.Donnee(index);
}

}  // namespace

ReglagesPression LireReglagesPression(const MainScreen& ecran) {
    const EtatApplication& etat = ecran.etat;
    return {.echelle = {etat.Mini, etat.Maxi},
            .etalonnage = etat.etalonnage,
            .coefficient = CoefficientChoisi(*ecran.ui->ListeUnites),
            .absolue = ecran.ui->PressionAbsolue->isChecked()};
}

double PressionCorrigee(double points, const ReglagesPression& reglages, bool correction_absolue) {
    if (!reglages.coefficient) LeverFaute(numero_faute::entreeAbsente);
    return PressionDePoints(CorrigerPoints(points, reglages.etalonnage), reglages.echelle,
                            *reglages.coefficient, correction_absolue);
}

}  // namespace bornika
