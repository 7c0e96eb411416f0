#pragma once

#include <QPoint>
#include <QPointF>
#include <QWidget>
#include <optional>

#include "chart/model/chart_template.h"
#include "chart/view/zoom_settings.h"
#include "platform/colour.h"

namespace bornika {

class DessinGraphe;
class ModeleGraphe;
struct Regional;

/// The chart as other rooms have it: a control that holds the plot and says what it can do for
/// them. What it is drawn with stays behind it, as the library of that takes long to read.
///
/// The plot fills it and takes mouse, keys and focus.
class VueGraphe : public QWidget {
    Q_OBJECT
  public:
    explicit VueGraphe(QWidget* parent = nullptr);

    /// The model to draw. It must live longer than the view.
    void Lier(ModeleGraphe& modele);
    void FixerApparence(const Apparence& apparence);
    const Apparence& ApparencePresente() const;
    /// How numbers of scales and marks are written.
    void FixerRegional(const Regional& regional);
    /// How zooms move the view, at once until it is told.
    void FixerAnimation(const ReglageAnimation& reglage);
    const ReglageAnimation& AnimationPresente() const;
    /// The colour in which a series is drawn. Fault 9 for a position that is not there.
    Couleur CouleurSerie(int position) const;

    /// Brings everything in step with the model and redraws now. While hidden it raises `Dessin`
    /// alone; showing the chart draws.
    void Repaint();
    /// Shows what the model says (the whole range or the present page) with automatic vertical
    /// scales, without animation and without an event.
    void RemettreEchelles();
    /// Does what that key does on the chart. False for a key that means nothing there.
    bool PresserTouche(int touche, Qt::KeyboardModifiers avec = {});

    /// Where the mouse was last, in the time of the bottom axis and in values of the vertical axis
    /// of a series. Nothing before it came over the chart, without that series, or on an empty
    /// chart.
    std::optional<QPointF> PositionSouris(int serie) const;

    /// The plot, for this room and its tests.
    DessinGraphe& Toile() const { return *toile_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    void Zoom();
    void AnnulationZoom();
    /// The chart is about to be drawn, with what is visible already in the model. What it changes
    /// on tools and marks is part of the same redraw.
    void Dessin();
    /// The chart was drawn.
    void Redessin();
    /// The context menu is asked for, at a place of the chart.
    void MenuDemande(QPoint place);
    /// The mouse moved over the chart, or a key moved the cursor; the cursor tool stands on its
    /// new point.
    void SourisBougee();

  protected:
    void resizeEvent(QResizeEvent* evenement) override;

  private:
    /// Its child.
    DessinGraphe* toile_;
};

}  // namespace bornika
