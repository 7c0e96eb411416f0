#include "calibration/calibration_display.h"

#include "calibration/calibration_form.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "setup/pressure_scale.h"
#include "shell/form_captions.h"
#include "ui_calibration_form.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

// In the scale and the unit of the main form, which may differ from those of the calibration.
QString TextePression(MainScreen& ecran, double points) {
    return Format(Donne_Pression(ecran, points, false, false), "#0.0", ecran.systeme.regional);
}

}  // namespace

void Traduire(Etalonnage& fiche) {
    MainScreen& ecran = fiche.ecran;
    ignorer([&] { fiche.setWindowTitle(ecran.Texte(QStringLiteral("mnuEtalonnage"))); });
    TraduireFiche(fiche, ecran);
}

void FixerUnite(Etalonnage& fiche, const QString& unite) {
    for (const int rang : {0, 1}) {
        fiche.Rangee(rang).Labelpressionreelle->setText(unite);
        fiche.Rangee(rang).Labelpressionlue->setText(unite);
    }
}

void ViderPressions(Etalonnage& fiche) {
    for (const int rang : {0, 1}) {
        fiche.Rangee(rang).ValeurPressionReelle->clear();
        fiche.Rangee(rang).ValeurPressionLue->clear();
    }
}

void MontrerDate(Etalonnage& fiche, const DateEtalonnage& date) {
    const MainScreen& ecran = fiche.ecran;
    if (date.secondes != 0) {
        fiche.ui->ValeurDateEtalonnage->setText(
            EpochVersTexte(date.secondes, ecran.systeme.regional));
        fiche.ui->ValeurCapteurEtalonnage->setText(ecran.ui->ListeEchelles->TexteA(date.echelle));
    }
    FixerUnite(fiche, ecran.ui->ListeUnites->TexteA(date.unite));
}

void MontrerPoint(Etalonnage& fiche, int rang, const PointEtalonnage& point) {
    MainScreen& ecran = fiche.ecran;
    fiche.Rangee(rang).ValeurPressionLue->setText(TextePression(ecran, point.mesure));
    fiche.Rangee(rang).ValeurPressionReelle->setText(TextePression(ecran, point.valeur));
}

void AttendrePoint(Etalonnage& fiche) {
    fiche.ui->SortirEtalonnage->setEnabled(false);
    fiche.ui->EntrerEtalonnage->setEnabled(true);
}

void AttendreFin(Etalonnage& fiche) {
    fiche.ui->EntrerEtalonnage->setEnabled(false);
    fiche.ui->SortirEtalonnage->setEnabled(true);
}

void ChoisirSaisie(Etalonnage& fiche, int rang) {
    fiche.ui->ValeurPressionReelle_0->setEnabled(rang == 0);
    fiche.ui->ValeurPressionReelle_1->setEnabled(rang == 1);
}

void AffichePoints(Etalonnage& fiche, int mode) {
    for (QWidget* controle : fiche.Rangee(1).Controles())
        controle->setVisible(mode == 1);
    for (const int rang : {0, 1}) {
        const RangeePoint rangee = fiche.Rangee(rang);
        for (QLabel* caption : {rangee.Labeltextepressionreelle, rangee.Labeltextepressionlue}) {
            const QString nu = SansNumero(caption->text());
            caption->setText(AvecNumero(nu, rang + 1));
            // Room for the number also while it is not shown: the form keeps its width.
            caption->setMinimumWidth(caption->sizeHint().width());
            if (mode != 1) caption->setText(nu);
        }
    }
}

}  // namespace bornika
