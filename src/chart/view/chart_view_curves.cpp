#include "chart/view/chart_view_curves.h"

#include <cmath>

namespace bornika {

namespace {

/// Air above and below the curves, as part of their range.
constexpr double marge = 0.04;

/// A curve in a picture: its pen is wider than one dot, and stroking thousands of points as one
/// line takes tens of times as long as stroking them piece by piece.
class CourbeParMorceaux : public QCPGraph {
  public:
    using QCPGraph::QCPGraph;

  protected:
    void drawLinePlot(QCPPainter* peintre, const QVector<QPointF>& points) const override {
        if (peintre->modes().testFlag(QCPPainter::pmVectorized) || peintre->pen().widthF() == 0) {
            QCPGraph::drawLinePlot(peintre, points);
            return;
        }
        QVector<QLineF> morceaux;
        morceaux.reserve(points.size());
        for (qsizetype i = 1; i < points.size(); ++i)
            if (!qIsNaN(points[i - 1].y()) && !qIsNaN(points[i].y()))
                morceaux.append(QLineF(points[i - 1], points[i]));
        applyDefaultAntialiasingHint(peintre);
        peintre->drawLines(morceaux);
    }
};

}  // namespace

Couleur CouleurCourbe(const ModeleGraphe& modele, int position, const Apparence& apparence) {
    return modele.Serie(position).couleur.value_or(apparence.CouleurSerie(position));
}

void CourbesGraphe::Refaire(const ModeleGraphe& modele) {
    dessin_.clearGraphs();
    courbes_.assign(static_cast<std::size_t>(modele.NombreSeries()), Courbe{});
    for (Courbe& courbe : courbes_) {
        // The plot owns it.
        courbe.graphe = new CourbeParMorceaux(dessin_.xAxis, dessin_.yAxis);
        courbe.graphe->setSelectable(QCP::stNone);
        courbe.graphe->setAntialiased(false);
    }
    revisionSeries_ = modele.RevisionSeries();
}

void CourbesGraphe::Accorder(const ModeleGraphe& modele, const Apparence& apparence) {
    if (revisionSeries_ != modele.RevisionSeries()) Refaire(modele);
    const bool vide = modele.bas.plage.EstVide();
    for (int i = 0; i < modele.NombreSeries(); ++i) {
        const SerieGraphe& serie = modele.Serie(i);
        Courbe& courbe = courbes_[static_cast<std::size_t>(i)];
        courbe.axe = serie.axe;
        courbe.active = serie.active;
        QCPGraph& graphe = *courbe.graphe;
        graphe.setValueAxis(serie.axe == SerieGraphe::Axe::Gauche ? dessin_.yAxis : dessin_.yAxis2);
        // Width 0 is one device pixel on every screen: wider pens cost many times as much.
        graphe.setPen(QPen(apparence.trait(CouleurCourbe(modele, i, apparence)), 0));
        graphe.setVisible(serie.active && !vide);
        if (serie.active) AccorderPoints(courbe, serie);
    }
}

void CourbesGraphe::AccorderPoints(Courbe& courbe, const SerieGraphe& serie) {
    const std::uint64_t revision = serie.Revision();
    if (courbe.revision == revision) return;
    const std::span<const double> x = serie.X();
    const std::span<const double> y = serie.Y();
    const auto nombre = static_cast<int>(std::min(x.size(), y.size()));
    // Each point added raises the revision by one: a like growth of both means points at the end.
    const bool ajout =
        courbe.revision != UINT64_MAX && serie.TypeFonction() == 0 && serie.EstTriee() &&
        nombre >= courbe.nombre &&
        revision - courbe.revision == static_cast<std::uint64_t>(nombre - courbe.nombre);
    const int debut = ajout ? courbe.nombre : 0;
    if (!ajout) courbe.bornee = false;

    QVector<QCPGraphData> points(nombre - debut);
    for (int i = debut; i < nombre; ++i) {
        const double valeur = y[static_cast<std::size_t>(i)];
        points[i - debut] = {x[static_cast<std::size_t>(i)], valeur};
        if (!std::isfinite(valeur)) continue;
        courbe.bas = courbe.bornee ? std::min(courbe.bas, valeur) : valeur;
        courbe.haut = courbe.bornee ? std::max(courbe.haut, valeur) : valeur;
        courbe.bornee = true;
    }
    if (ajout)
        courbe.graphe->data()->add(points, true);
    else
        courbe.graphe->data()->set(points, serie.EstTriee());
    courbe.revision = revision;
    courbe.nombre = nombre;
}

bool CourbesGraphe::Etendue(SerieGraphe::Axe axe, QCPRange& etendue) const {
    bool trouvee = false;
    for (const Courbe& courbe : courbes_) {
        if (courbe.axe != axe || !courbe.active || !courbe.bornee) continue;
        etendue.lower = trouvee ? std::min(etendue.lower, courbe.bas) : courbe.bas;
        etendue.upper = trouvee ? std::max(etendue.upper, courbe.haut) : courbe.haut;
        trouvee = true;
    }
    if (!trouvee) return false;
    const double hauteur = etendue.upper - etendue.lower;
    const double air = hauteur > 0 ? hauteur * marge : std::max(std::abs(etendue.upper) * 0.1, 0.5);
    etendue.lower -= air;
    etendue.upper += air;
    return true;
}

}  // namespace bornika
