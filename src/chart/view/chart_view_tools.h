#pragma once

#include <qcustomplot.h>

#include <vector>

#include "chart/model/chart_model.h"
#include "chart/model/chart_template.h"

namespace bornika {

/// Draws the tools of the model that lie over the curves: the colour lines.
class OutilsGraphe {
  public:
    explicit OutilsGraphe(QCustomPlot& dessin) : dessin_(dessin) {}

    void Accorder(const ModeleGraphe& modele, const Apparence& apparence);

  private:
    QCPAbstractItem* Faire(OutilGraphe::Genre genre);

    QCustomPlot& dessin_;
    /// What is drawn for each tool, by position; nothing for tools that are never drawn.
    struct Dessine {
        OutilGraphe::Genre genre;
        QCPAbstractItem* element;
    };
    std::vector<Dessine> dessines_;
};

}  // namespace bornika
