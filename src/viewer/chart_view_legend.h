#pragma once

#include <qcustomplot.h>

namespace bornika {

/// One line of the legend: a check box, a piece of the curve's line and its title. Switched off,
/// the box is empty and the title dimmed.
class ElementLegende : public QCPAbstractLegendItem {
    Q_OBJECT
  public:
    ElementLegende(QCPLegend* legende, int serie);

    int Serie() const { return serie_; }
    /// Takes over what the series is now; true when something to draw has changed.
    bool Regler(const QString& titre, const QColor& couleur, bool actif);
    bool Actif() const { return actif_; }
    QString Titre() const { return titre_; }

  protected:
    void draw(QCPPainter* peintre) override;
    QSize minimumOuterSizeHint() const override;

  private:
    int Cote() const;

    int serie_;
    QString titre_;
    QColor couleur_;
    bool actif_ = true;
};

/// The series under a point of the chart when it lies on a line of the legend, otherwise -1.
int SerieSousLegende(const QCPLegend& legende, QPointF position);

}  // namespace bornika
