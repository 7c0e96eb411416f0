#pragma once

#include <qcustomplot.h>

#include <memory>

#include "viewer/chart_model.h"
#include "viewer/chart_template.h"
#include "viewer/chart_view_zoom.h"

namespace bornika {

class CourbesGraphe;
class GestesGraphe;
class OutilsGraphe;

/// Draws a chart model and lets the operator look around in it. What it shows of the time axis is
/// written back to the model, so that everything that asks for visible points follows.
class VueGraphe : public QCustomPlot {
    Q_OBJECT
  public:
    explicit VueGraphe(QWidget* parent = nullptr);
    ~VueGraphe() override;

    /// The model to draw. It must live longer than the view.
    void Lier(ModeleGraphe& modele);
    void FixerApparence(const Apparence& apparence);
    const Apparence& ApparencePresente() const { return apparence_; }
    /// The colour in which a series is drawn. Fault 9 for a position that is not there.
    Couleur CouleurSerie(int position) const;

    /// Brings everything in step with the model and redraws now. Nothing happens while hidden:
    /// showing the chart does the same.
    void Repaint();

    /// Shows what the model says (the whole range or the present page) with automatic vertical
    /// scales, without animation and without an event.
    void RemettreEchelles();

    // What gestures do.
    bool PeutNaviguer() const;
    bool ZoomPermis() const { return modele_ && modele_->zoomPermis; }
    int Defilement() const { return modele_ ? modele_->defilement : 0; }
    Etendues EtenduesVisibles() const;
    void Montrer(const Etendues& etendues, RefreshPriority priorite = rpRefreshHint);
    /// Zooms into a rectangle given in pixels and raises `Zoom`.
    void ZoomerSur(const QRect& zone);
    /// Shows `facteur` times the present time span, with the time `centre` kept in its place. It
    /// raises `Zoom`, or `AnnulationZoom` when that reaches the whole range.
    void ZoomerAutour(double centre, double facteur);
    /// Back to the whole view; raises `AnnulationZoom` when it was zoomed or scrolled.
    void AnnulerZoom();
    /// Switches a series on or off and redraws.
    void BasculerSerie(int serie);

    AnimationZoom animation;

  Q_SIGNALS:
    void Zoom();
    void AnnulationZoom();
    /// The chart was drawn.
    void Redessin();

  protected:
    void showEvent(QShowEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void updateLayout() override;

  private:
    void Accorder();
    void AccorderTitre();
    void AccorderAxes();
    void AccorderLegende();
    void AccorderPlage();
    void PoserElements();
    Etendues EtenduesEntieres() const;

    ModeleGraphe* modele_ = nullptr;
    Apparence apparence_;
    std::unique_ptr<CourbesGraphe> courbes_;
    std::unique_ptr<OutilsGraphe> outils_;
    std::unique_ptr<GestesGraphe> gestes_;
    QCPTextElement* titre_ = nullptr;
    /// The vertical scales are those of a zoom or a scrolling, not automatic.
    bool echellesFixes_ = false;
    /// Size of the frame at the last layout.
    QSize taillePosee_;
};

}  // namespace bornika
