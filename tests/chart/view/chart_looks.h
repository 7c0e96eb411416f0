#pragma once

#include <QImage>
#include <QRect>

#include "chart/model/visible_range.h"
#include "chart/view/chart_view.h"

namespace bornika::essai {

/// What the tests of other rooms do on the plot of a chart and read off it, without the library
/// that it is drawn with.
class RegardGraphe {
  public:
    explicit RegardGraphe(const VueGraphe& vue) : toile_(vue.Toile()) {}

    /// Where mouse and keys go.
    QWidget& Surface() const;
    /// The frame, in pixels of the surface.
    QRect Cadre() const;
    QRect LigneLegende(int serie) const;
    QImage Image() const;

    /// What the time axis shows.
    Plage Temps() const;
    double Pixel(double temps) const;
    double TempsA(double x) const;
    /// On the left axis.
    double ValeurA(double y) const;
    int NombreEtiquettesTemps() const;
    int NombreCourbes() const;
    int PointsDessines(int courbe) const;

    void Montrer(const Plage& temps, const Plage& gauche, const Plage& droite) const;
    void ZoomerSur(const QRect& zone) const;
    void AnnulerZoom() const;
    void Defiler(double temps, double valeurs) const;
    void BasculerSerie(int serie) const;

  private:
    DessinGraphe& toile_;
};

}  // namespace bornika::essai
