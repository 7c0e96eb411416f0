#include "viewer/readout_box.h"

#include <QLineEdit>

#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

void FixerFondLectures(Trace& trace) {
    const auto& ui = *trace.ui;
    const Apparence& apparence = ui.TChart1->ApparencePresente();
    for (QLineEdit* boite : {ui.date, ui.pression, ui.Min, ui.Moy, ui.Max}) {
        QPalette palette = boite->palette();
        palette.setColor(QPalette::Base, apparence.cadre);
        if (boite == ui.date) palette.setColor(QPalette::Text, apparence.legende);
        boite->setPalette(palette);
    }
}

void MontrerLecture(QLineEdit& boite, const QString& texte, Couleur couleur) {
    boite.setText(texte);
    QPalette palette = boite.palette();
    if (palette.color(QPalette::Text) == VersQColor(couleur)) return;
    palette.setColor(QPalette::Text, VersQColor(couleur));
    boite.setPalette(palette);
}

}  // namespace bornika
