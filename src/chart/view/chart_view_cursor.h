#pragma once

#include <QRect>
#include <QRegion>

#include "chart/model/chart_model.h"

class QCustomPlot;
class QPainter;

namespace bornika {

/// Draws the cursor: a vertical and a horizontal line through its point. They lie over the buffered
/// picture of the chart, so that a move repaints the strips that they leave and reach, and no curve
/// is drawn again.
class CurseurDessine {
  public:
    explicit CurseurDessine(QCustomPlot& dessin) : dessin_(dessin) {}

    void Peindre(QPainter& peintre, const ModeleGraphe& modele);
    /// The cursor of the model has moved.
    void Bouger(const ModeleGraphe& modele);

  private:
    /// The two lines, one pixel wide. Empty for what lies outside the frame.
    struct Lignes {
        QRect verticale;
        QRect horizontale;
        QRegion Zone() const { return QRegion(verticale).united(horizontale); }
    };
    Lignes Placer(const OutilGraphe& curseur, const SerieGraphe& serie) const;

    QCustomPlot& dessin_;
    /// What stands on the screen.
    QRegion peinte_;
};

}  // namespace bornika
