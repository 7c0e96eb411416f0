#pragma once

#include <qcustomplot.h>

#include <vector>

#include "chart/model/chart_model.h"
#include "platform/regional.h"

namespace bornika {

/// One point value mark as it lies on the chart, in pixels.
struct Marque {
    QPointF point;
    QRectF zone;
    QString texte;
    QColor couleur;
};

/// Text of a mark: the value in general form, with no more decimal places than what a scale of that
/// height (largest less smallest value) can show.
QString TexteMarque(double valeur, double hauteurEchelle, const Regional& regional);

/// Draws the values of visible points beside them, for the series whose marks are on. From one mark
/// the next point with room for its own follows: no two overlap, and a full view costs no more than
/// the marks that it shows.
class MarquesGraphe : public QCPLayerable {
    Q_OBJECT
  public:
    explicit MarquesGraphe(QCustomPlot* dessin);

    void Lier(const ModeleGraphe& modele) { modele_ = &modele; }
    void FixerRegional(const Regional& regional) { regional_ = regional; }
    const Regional& RegionalPresent() const { return regional_; }
    /// The marks for what the axes show now.
    std::vector<Marque> Placer() const;

  protected:
    void applyDefaultAntialiasingHint(QCPPainter* peintre) const override;
    void draw(QCPPainter* peintre) override;
    QRect clipRect() const override;

  private:
    void PlacerSerie(const QCPGraph& graphe, std::vector<Marque>& marques) const;

    const ModeleGraphe* modele_ = nullptr;
    Regional regional_;
};

}  // namespace bornika
