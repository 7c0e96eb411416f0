#pragma once

#include <qcustomplot.h>

#include "chart/view/chart_view_zoom.h"

namespace bornika {

class DessinGraphe;

/// What the mouse does on the chart: a rectangle drawn to the right zooms into it, one drawn to the
/// left (or a double click) undoes the zoom, the wheel zooms in time around the pointer, the right
/// button drags the view or, without a drag, asks for the menu, a click on a line of the legend
/// switches its curve.
class GestesGraphe {
  public:
    explicit GestesGraphe(DessinGraphe& vue);

    void Appuyer(const QMouseEvent& evenement);
    void Bouger(const QMouseEvent& evenement);
    void Relacher(const QMouseEvent& evenement);
    void DoubleCliquer(const QMouseEvent& evenement);
    void Rouler(const QWheelEvent& evenement);
    /// A rectangle is being drawn or the view dragged.
    bool EnCours() const { return geste_ != Geste::Aucun; }

  private:
    enum class Geste { Aucun, Bande, Defilement };

    bool EstTirage(QPoint position) const;
    void Tirer(QPoint position);
    void FinirBande(QPoint position);

    DessinGraphe& vue_;
    BandeZoom bande_;
    Geste geste_ = Geste::Aucun;
    QPoint depart_;
    Etendues etenduesDepart_;
    /// The right button was pressed and not dragged yet.
    bool clicDroit_ = false;
};

}  // namespace bornika
