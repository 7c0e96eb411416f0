#include "viewer/viewer_settings.h"

#include "platform/guard.h"
#include "platform/numbers.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

const QString cleCoefImpulsion = QStringLiteral("CoefImpulsion");
const QString cleUniteImpulsion = QStringLiteral("UniteImpulsion");
const QString cleIndexListeTemps = QStringLiteral("IndexListeTemps");

QString ReglageEnregistre(Trace& trace, const QString& cle) {
    return trace.ecran.configuration.LitConfig(cle).value_or(QString());
}

/// Numbers of the configuration have a point whatever the locale.
int IndexEnregistre(Trace& trace) {
    const QString texte = ReglageEnregistre(trace, cleIndexListeTemps);
    return EstNumerique(texte, Regional{}) ? EnEntier32(ValeurDebut(texte)) : -1;
}

}  // namespace

void LireReglagesDebit(Trace& trace) {
    ignorer([&] { trace.ui->CoefImpulsion->setText(ReglageEnregistre(trace, cleCoefImpulsion)); });
    ignorer(
        [&] { trace.ui->UniteImpulsion->setText(ReglageEnregistre(trace, cleUniteImpulsion)); });
    ignorer([&] { trace.ui->ListeTemps->Choisir(IndexEnregistre(trace)); });
}

void ChargerReglagesDebit(Trace& trace) {
    trace.ecran.configuration.RemplitListe(trace.ecran.Langue(), QStringLiteral("ListeTemps"),
                                           *trace.ui->ListeTemps);
    LireReglagesDebit(trace);
}

void CoefImpulsion_Change(Trace& trace) {
    trace.ecran.configuration.EcritConfig(trace.ui->CoefImpulsion->text(), cleCoefImpulsion);
}

void UniteImpulsion_Change(Trace& trace) {
    trace.ecran.configuration.EcritConfig(trace.ui->UniteImpulsion->text(), cleUniteImpulsion);
}

void ListeTemps_Click(Trace& trace) {
    trace.ecran.configuration.EcritConfig(QString::number(trace.ui->ListeTemps->Index()),
                                          cleIndexListeTemps);
}

void Check_advanced_Click(Trace& trace) {
    trace.ui->Frame_advanced->setVisible(trace.ui->Check_advanced->isChecked());
}

void Command_Refresh_Click(Trace& trace) {
    if (!trace.NomFichierCourant.isEmpty()) ChargeCourbes(trace, trace.NomFichierCourant, true);
}

}  // namespace bornika
