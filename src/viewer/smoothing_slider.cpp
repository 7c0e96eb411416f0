#include "viewer/smoothing_slider.h"

#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

constexpr int premiereLissee = 2;
constexpr int secondeLissee = 3;

bool FixerPeriode(ModeleGraphe& modele, int position, int periode) {
    if (position >= modele.NombreSeries()) return false;
    SerieGraphe& serie = modele.Serie(position);
    const bool lissee = serie.TypeFonction() == SerieGraphe::fonctionLissage;
    if (!lissee || !serie.active || serie.Periode() == periode) return false;
    serie.FixerPeriode(periode);
    return true;
}

}  // namespace

void Lissage_Change(Trace& trace) {
    const int periode = trace.ui->Lissage->value();
    const bool premiere = FixerPeriode(trace.modele, premiereLissee, periode);
    const bool seconde = FixerPeriode(trace.modele, secondeLissee, periode);
    if (premiere || seconde) trace.ui->TChart1->Repaint();
}

}  // namespace bornika
