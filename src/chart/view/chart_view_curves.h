#pragma once

#include <qcustomplot.h>

#include <vector>

#include "chart/model/chart_model.h"
#include "chart/model/chart_template.h"

namespace bornika {

/// The colour in which a series is drawn: its own, or else that of its position. Fault 9 for a
/// position that is not there.
Couleur CouleurCourbe(const ModeleGraphe& modele, int position, const Apparence& apparence);

/// Keeps one graph of the plot for each series of the model. Points are handed over in bulk, only
/// when they have changed, and only for curves that are switched on; points that a load added are
/// appended.
class CourbesGraphe {
  public:
    explicit CourbesGraphe(QCustomPlot& dessin) : dessin_(dessin) {}

    void Accorder(const ModeleGraphe& modele, const Apparence& apparence);

    /// Range of the values of the switched-on curves of an axis with a little air around it; false
    /// when there is no value.
    bool Etendue(SerieGraphe::Axe axe, QCPRange& etendue) const;

  private:
    struct Courbe {
        QCPGraph* graphe = nullptr;
        SerieGraphe::Axe axe = SerieGraphe::Axe::Gauche;
        bool active = false;
        std::uint64_t revision = UINT64_MAX;
        int nombre = 0;
        bool bornee = false;
        double bas = 0;
        double haut = 0;
    };

    void Refaire(const ModeleGraphe& modele);
    void AccorderPoints(Courbe& courbe, const SerieGraphe& serie);

    QCustomPlot& dessin_;
    std::vector<Courbe> courbes_;
    std::uint64_t revisionSeries_ = UINT64_MAX;
};

}  // namespace bornika
