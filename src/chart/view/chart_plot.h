#pragma once

#include <qcustomplot.h>

#include <memory>
#include <optional>

#include "chart/model/chart_cursor.h"
#include "chart/model/chart_model.h"
#include "chart/model/chart_template.h"
#include "chart/view/chart_view_zoom.h"
#include "platform/regional.h"

namespace bornika {

class CourbesGraphe;
class CurseurDessine;
class GestesGraphe;
class MarquesGraphe;
class OutilsGraphe;

/// The plot: draws a chart model and lets the operator look around in it. What it shows of the time
/// axis is written back to the model, so that everything that asks for visible points follows.
class DessinGraphe : public QCustomPlot {
    Q_OBJECT
  public:
    explicit DessinGraphe(QWidget* parent = nullptr);
    ~DessinGraphe() override;

    /// The model to draw. It must live longer than the plot.
    void Lier(ModeleGraphe& modele);
    void FixerApparence(const Apparence& apparence);
    /// How numbers of scales and marks are written.
    void FixerRegional(const Regional& regional);
    const Apparence& ApparencePresente() const { return apparence_; }
    /// Takes over model and ranges of another plot, with other looks, to be painted elsewhere than
    /// on the screen.
    void Reproduire(const DessinGraphe& autre, const Apparence& apparence);
    /// The colour in which a series is drawn. Fault 9 for a position that is not there.
    Couleur CouleurSerie(int position) const;

    /// Brings everything in step with the model and redraws now. While hidden it raises `Dessin`
    /// alone; showing the chart draws.
    void Repaint();

    /// Where the mouse was last, in the time of the bottom axis and in values of the vertical axis
    /// of a series. Nothing before it came over the chart, without that series, or on an empty
    /// chart.
    std::optional<QPointF> PositionSouris(int serie) const;

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
    /// Moves the view to later times and higher values by parts of what it shows, where scrolling
    /// is allowed, and not beyond the whole view.
    void Defiler(double temps, double valeurs);
    /// The time that a zoom by key keeps in its place: the cursor's when it is to be seen,
    /// otherwise that in the middle.
    double CentreZoom() const;
    /// Takes the cursor one step along its curve and raises `SourisBougee`; the view follows it
    /// where scrolling is allowed. False without a cursor.
    bool AvancerCurseur(PasCurseur pas);
    const MarquesGraphe& Marques() const { return *marques_; }

    AnimationZoom animation;

  Q_SIGNALS:
    void Zoom();
    void AnnulationZoom();
    /// The chart is about to be drawn, with what is visible already in the model. Tools and marks
    /// are laid out after it, so that what it changes on them is part of the same redraw.
    void Dessin();
    /// The chart was drawn.
    void Redessin();
    /// The context menu is asked for, at a place of the chart.
    void MenuDemande(QPoint place);
    /// The mouse moved over the chart, or a key moved the cursor; the cursor tool stands on its
    /// new point.
    void SourisBougee();

  protected:
    void paintEvent(QPaintEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;
    void focusInEvent(QFocusEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void mousePressEvent(QMouseEvent* evenement) override;
    void mouseMoveEvent(QMouseEvent* evenement) override;
    void mouseReleaseEvent(QMouseEvent* evenement) override;
    void mouseDoubleClickEvent(QMouseEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void updateLayout() override;

  private:
    void Accorder();
    void AccorderTitre();
    void AccorderAnnotation();
    void AccorderAxes();
    void AccorderLegende();
    void RangerLegende();
    void AccorderPlage();
    void PoserElements();
    void AnnoncerDessin();
    void AvantDessin();
    void SuivreSouris(QPointF position);
    void MontrerCurseur();
    Etendues EtenduesEntieres() const;

    ModeleGraphe* modele_ = nullptr;
    Apparence apparence_;
    std::unique_ptr<CourbesGraphe> courbes_;
    std::unique_ptr<OutilsGraphe> outils_;
    std::unique_ptr<GestesGraphe> gestes_;
    std::unique_ptr<CurseurDessine> curseur_;
    /// Belongs to the plot.
    MarquesGraphe* marques_ = nullptr;
    QCPTextElement* titre_ = nullptr;
    /// Text of the annotation tool, left above the frame while there is one.
    QCPTextElement* annotation_ = nullptr;
    /// The vertical scales are those of a zoom or a scrolling, not automatic.
    bool echellesFixes_ = false;
    /// Size of the frame at the last layout.
    QSize taillePosee_;
    /// Where the mouse was last, in pixels.
    std::optional<QPointF> souris_;
    bool annonce_ = false;
    /// The keyboard gave it the focus: it is shown where the keys go.
    bool focusClavier_ = false;
};

}  // namespace bornika
