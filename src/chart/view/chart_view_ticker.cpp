#include "chart/view/chart_view_ticker.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace bornika {

namespace {

/// Least room between two labels, in pixels.
constexpr int ecartEtiquettes = 18;

}  // namespace

std::vector<int> ChoisirPoints(const SerieGraphe& serie, const Plage& plage, int nombre) {
    std::vector<int> choisis;
    const std::span<const double> x = serie.X();
    const PointsVisibles points = ChercherVisibles(x, serie.EstTriee(), plage);
    if (points.premier < 0) return choisis;
    const double largeur = plage.max - plage.min;
    const int visibles = points.dernier - points.premier + 1;
    for (int k = 0; k < nombre; ++k) {
        const double part = (k + 0.5) / nombre;
        const int point = serie.EstTriee() ? PlusProche(x, points, plage.min + part * largeur)
                                           : points.premier + static_cast<int>(part * visibles);
        if (choisis.empty() || point > choisis.back()) choisis.push_back(point);
    }
    return choisis;
}

/// The part of a range in which a label of that width stands whole on the chart.
Plage EtiquettesTemps::PlageEtiquetable(const Plage& plage, int largeur) const {
    const double moitie = largeur / 2.0 + 1;
    const Plage entiere{axe_.pixelToCoord(moitie),
                        axe_.pixelToCoord(axe_.parentPlot()->viewport().width() - moitie)};
    return Commune(plage, entiere);
}

void EtiquettesTemps::generate(const QCPRange& range, const QLocale& locale, QChar formatChar,
                               int precision, QVector<double>& ticks, QVector<double>* subTicks,
                               QVector<QString>* tickLabels) {
    if (!modele_.bas.etiquettesTexte) {
        QCPAxisTicker::generate(range, locale, formatChar, precision, ticks, subTicks, tickLabels);
        return;
    }
    ticks.clear();
    if (subTicks) subTicks->clear();
    if (tickLabels) tickLabels->clear();
    if (modele_.NombreSeries() == 0 || modele_.bas.plage.EstVide()) return;

    const SerieGraphe& serie = modele_.Serie(0);
    const Plage plage{range.lower, range.upper};
    const PointsVisibles visibles = ChercherVisibles(serie.X(), serie.EstTriee(), plage);
    if (visibles.premier < 0) return;
    const QFontMetrics mesures(axe_.tickLabelFont());
    const int texteType = mesures.horizontalAdvance(serie.Etiquette(visibles.premier));
    const int nombre =
        std::clamp(axe_.axisRect()->width() / std::max(texteType + ecartEtiquettes, 1), 1, 50);

    double finPrecedente = -INFINITY;
    for (const int point : ChoisirPoints(serie, PlageEtiquetable(plage, texteType), nombre)) {
        const double x = serie.X()[static_cast<std::size_t>(point)];
        const QString texte = serie.Etiquette(point);
        const double moitie = mesures.horizontalAdvance(texte) / 2.0;
        const double pixel = axe_.coordToPixel(x);
        if (pixel - moitie < finPrecedente + ecartEtiquettes / 2.0) continue;
        if (pixel - moitie < 0 || pixel + moitie > axe_.parentPlot()->viewport().width()) continue;
        finPrecedente = pixel + moitie;
        ticks.append(x);
        if (tickLabels) tickLabels->append(texte);
    }
}

}  // namespace bornika
