#include "chart/view/chart_view_marks.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

namespace bornika {

namespace {

/// Part of the height of a scale that is finer than what any screen shows.
constexpr double finesseEchelle = 1e-4;
constexpr int decimalesMaximum = 15;

/// Pixels between a point and its mark, and between two marks.
constexpr double ecartPoint = 5;
constexpr double ecartMarques = 6;
constexpr double bordTexte = 2;
constexpr double cotePoint = 3;
constexpr int voile = 190;

QRectF ZoneMarque(QPointF point, QSizeF taille, const QRectF& cadre) {
    QRectF zone(QPointF(point.x() - taille.width() / 2, point.y() - ecartPoint - taille.height()),
                taille);
    if (zone.top() < cadre.top()) zone.moveTop(point.y() + ecartPoint);
    if (zone.left() < cadre.left()) zone.moveLeft(cadre.left());
    if (zone.right() > cadre.right()) zone.moveRight(cadre.right());
    return zone;
}

const Marque* Genante(const std::vector<Marque>& marques, const QRectF& zone) {
    const QRectF large = zone.adjusted(-ecartMarques, 0, ecartMarques, 0);
    const auto genante = std::find_if(marques.begin(), marques.end(), [&](const Marque& marque) {
        return marque.zone.intersects(large);
    });
    return genante == marques.end() ? nullptr : &*genante;
}

}  // namespace

QString TexteMarque(double valeur, double hauteurEchelle, const Regional& regional) {
    const double decimales = std::ceil(-std::log10(hauteurEchelle * finesseEchelle));
    if (!std::isfinite(decimales) || decimales > decimalesMaximum)
        return TexteGeneral(valeur, regional);
    const double echelle = std::pow(10.0, std::max(decimales, 0.0));
    // Adding 0 makes the 0 of a rounded small negative value one without sign.
    return TexteGeneral(std::round(valeur * echelle) / echelle + 0.0, regional);
}

MarquesGraphe::MarquesGraphe(QCustomPlot* dessin)
    : QCPLayerable(dessin, QStringLiteral("overlay")) {}

void MarquesGraphe::applyDefaultAntialiasingHint(QCPPainter* peintre) const {
    peintre->setAntialiasing(false);
}

QRect MarquesGraphe::clipRect() const {
    return parentPlot()->axisRect()->rect();
}

std::vector<Marque> MarquesGraphe::Placer() const {
    std::vector<Marque> marques;
    if (!modele_) return marques;
    const int nombre = std::min(modele_->NombreSeries(), parentPlot()->graphCount());
    for (int i = 0; i < nombre; ++i) {
        const QCPGraph& graphe = *parentPlot()->graph(i);
        if (modele_->Serie(i).marques && graphe.realVisibility()) PlacerSerie(graphe, marques);
    }
    return marques;
}

void MarquesGraphe::PlacerSerie(const QCPGraph& graphe, std::vector<Marque>& marques) const {
    const QCPAxis& temps = *graphe.keyAxis();
    const QCPAxis& valeurs = *graphe.valueAxis();
    const QRectF cadre = clipRect();
    const QFontMetricsF mesures(temps.tickLabelFont());
    const QCPGraphDataContainer& points = *graphe.data();
    const auto fin = points.findEnd(temps.range().upper, false);
    for (auto point = points.findBegin(temps.range().lower, false); point < fin;) {
        if (!valeurs.range().contains(point->value)) {
            ++point;
            continue;
        }
        const QPointF ou(temps.coordToPixel(point->key), valeurs.coordToPixel(point->value));
        QString texte = TexteMarque(point->value, valeurs.range().size(), regional_);
        const QSizeF taille(mesures.horizontalAdvance(texte) + 2 * bordTexte, mesures.height());
        const QRectF zone = ZoneMarque(ou, taille, cadre);
        const Marque* genante = Genante(marques, zone);
        const double libre = genante ? genante->zone.right() : zone.right();
        if (!genante) marques.push_back({ou, zone, std::move(texte), graphe.pen().color()});
        const double suivant = temps.pixelToCoord(libre + ecartMarques + taille.width() / 2);
        point = std::max(point + 1, points.findBegin(suivant, false));
    }
}

void MarquesGraphe::draw(QCPPainter* peintre) {
    QColor fond = parentPlot()->axisRect()->backgroundBrush().color();
    fond.setAlpha(voile);
    peintre->setFont(parentPlot()->xAxis->tickLabelFont());
    for (const Marque& marque : Placer()) {
        peintre->fillRect(marque.zone, fond);
        QRectF point(0, 0, cotePoint, cotePoint);
        point.moveCenter(marque.point);
        peintre->fillRect(point, marque.couleur);
        peintre->setPen(marque.couleur);
        peintre->drawText(marque.zone, Qt::AlignCenter | Qt::TextDontClip, marque.texte);
    }
}

}  // namespace bornika
