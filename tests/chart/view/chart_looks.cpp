#include "chart/view/chart_looks.h"

#include "chart/view/chart_plot.h"

namespace bornika::essai {

QWidget& RegardGraphe::Surface() const {
    return toile_;
}

QRect RegardGraphe::Cadre() const {
    return toile_.axisRect()->rect();
}

QRect RegardGraphe::LigneLegende(int serie) const {
    return toile_.legend->item(serie)->rect();
}

QImage RegardGraphe::Image() const {
    return toile_.toPixmap().toImage();
}

Plage RegardGraphe::Temps() const {
    const QCPRange etendue = toile_.xAxis->range();
    return {etendue.lower, etendue.upper};
}

double RegardGraphe::Pixel(double temps) const {
    return toile_.xAxis->coordToPixel(temps);
}

double RegardGraphe::TempsA(double x) const {
    return toile_.xAxis->pixelToCoord(x);
}

double RegardGraphe::ValeurA(double y) const {
    return toile_.yAxis->pixelToCoord(y);
}

int RegardGraphe::NombreEtiquettesTemps() const {
    return static_cast<int>(toile_.xAxis->tickVector().size());
}

int RegardGraphe::NombreCourbes() const {
    return toile_.graphCount();
}

int RegardGraphe::PointsDessines(int courbe) const {
    return toile_.graph(courbe)->dataCount();
}

void RegardGraphe::Montrer(const Plage& temps, const Plage& gauche, const Plage& droite) const {
    toile_.Montrer({{temps.min, temps.max}, {gauche.min, gauche.max}, {droite.min, droite.max}});
}

void RegardGraphe::ZoomerSur(const QRect& zone) const {
    toile_.ZoomerSur(zone);
}

void RegardGraphe::AnnulerZoom() const {
    toile_.AnnulerZoom();
}

void RegardGraphe::Defiler(double temps, double valeurs) const {
    toile_.Defiler(temps, valeurs);
}

void RegardGraphe::BasculerSerie(int serie) const {
    toile_.BasculerSerie(serie);
}

}  // namespace bornika::essai
