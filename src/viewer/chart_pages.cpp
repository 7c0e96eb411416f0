#include "viewer/chart_pages.h"

#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

void Pages_Click(Trace& trace) {
    const bool cochee = trace.ui->Pages->isChecked();
    trace.ui->ChartPageNavigator->setVisible(cochee);
    FixerPages(trace, cochee ? pointsParPage : 0);
}

void TChart1_Zoom(Trace& trace) {
    trace.ui->ChartPageNavigator->hide();
    trace.ui->Pages->setEnabled(false);
}

void TChart1_UndoZoom(Trace& trace) {
    trace.ui->ChartPageNavigator->show();
    trace.ui->Pages->setEnabled(true);
}

void FixerPages(Trace& trace, int points) {
    trace.modele.FixerMaxPointsPerPage(points);
    MontrerPage(trace, 0);
}

void MontrerPage(Trace& trace, int page) {
    trace.modele.FixerPage(page);
    trace.ui->TChart1->RemettreEchelles();
    trace.ui->ChartPageNavigator->Montrer(trace.modele.Page(), trace.modele.NombrePages());
}

}  // namespace bornika
