#pragma once

#include <qcustomplot.h>

#include <vector>

namespace bornika {

/// One line of the legend: a check box if wanted, a piece of the curve's line and its title.
/// Switched off, the box is empty and the title dimmed.
class ElementLegende : public QCPAbstractLegendItem {
    Q_OBJECT
  public:
    ElementLegende(QCPLegend* legende, int serie, bool avecCase);

    int Serie() const { return serie_; }
    /// Takes over what the series is now; true when something to draw has changed.
    bool Regler(const QString& titre, const QColor& couleur, bool actif);
    bool Actif() const { return actif_; }
    QString Titre() const { return titre_; }

    /// Font and colour of the text.
    void Habiller(const QFont& police, const QColor& texte);

  protected:
    void draw(QCPPainter* peintre) override;
    QSize minimumOuterSizeHint() const override;

  private:
    int Cote() const;
    void Peindre(QPainter& peintre, const QRect& zone) const;
    void PeindreCase(QPainter& peintre, const QRect& boite) const;
    QColor CouleurTexte() const;
    const QPixmap& Image(double rapport);

    int serie_;
    bool avecCase_;
    QString titre_;
    QColor couleur_;
    bool actif_ = true;
    /// What was drawn last; making text anew at each redraw of the chart would cost more than the
    /// curves of a zoomed view.
    QPixmap image_;
    mutable QSize tailleVoulue_;
};

/// The lines of a legend in their order. Its grid may have empty places at the end.
std::vector<ElementLegende*> ElementsLegende(const QCPLegend& legende);

/// The series under a point of the chart when it lies on a line of the legend, otherwise -1.
int SerieSousLegende(const QCPLegend& legende, QPointF position);

}  // namespace bornika
