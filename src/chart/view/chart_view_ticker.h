#pragma once

#include <qcustomplot.h>

#include "chart/model/chart_model.h"

namespace bornika {

/// Labels of the time axis: the texts of points of the first series, evenly spread over what is
/// visible and never overlapping. Texts are made for the chosen points alone. Without text labels,
/// or without points, the axis shows numbers or nothing.
class EtiquettesTemps : public QCPAxisTicker {
  public:
    EtiquettesTemps(const ModeleGraphe& modele, const QCPAxis& axe) : modele_(modele), axe_(axe) {}

    void generate(const QCPRange& range, const QLocale& locale, QChar formatChar, int precision,
                  QVector<double>& ticks, QVector<double>* subTicks,
                  QVector<QString>* tickLabels) override;

  private:
    Plage PlageEtiquetable(const Plage& plage, int largeur) const;

    const ModeleGraphe& modele_;
    const QCPAxis& axe_;
};

/// Positions of at most `nombre` visible points of a curve, evenly spread over `plage`, in order.
std::vector<int> ChoisirPoints(const SerieGraphe& serie, const Plage& plage, int nombre);

}  // namespace bornika
