// Redraw of four curves of 450,000 points, whole and zoomed to one hundredth, against a bare plot
// of the drawing library with the same points, size and pens. Both in turn.

#include <benchmark/benchmark.h>
#include <qcustomplot.h>

#include <QApplication>
#include <QElapsedTimer>
#include <cstdlib>
#include <vector>

#include "chart/view/chart_plot.h"
#include "chart_sample.h"

namespace {

using namespace bornika;
using namespace bornika::banc;

void RemplirNu(QCustomPlot& dessin, const ModeleGraphe& modele) {
    dessin.setNotAntialiasedElements(QCP::aePlottables);
    dessin.setPlottingHint(QCP::phFastPolylines);
    dessin.yAxis2->setVisible(true);
    for (int courbe = 0; courbe < nombreCourbes; ++courbe) {
        const SerieGraphe& serie = modele.Serie(courbe);
        const bool droite = serie.axe == SerieGraphe::Axe::Droite;
        QCPGraph* graphe = dessin.addGraph(dessin.xAxis, droite ? dessin.yAxis2 : dessin.yAxis);
        graphe->setPen(QPen(Qt::GlobalColor(Qt::red + courbe), 0));
        QVector<QCPGraphData> points(nombrePoints);
        for (int i = 0; i < nombrePoints; ++i)
            points[i] = {serie.X()[static_cast<std::size_t>(i)],
                         serie.Y()[static_cast<std::size_t>(i)]};
        graphe->data()->set(points, true);
    }
    dessin.legend->setVisible(true);
}

double Redessiner(std::vector<double>& durees, QCustomPlot& dessin) {
    QElapsedTimer duree;
    duree.start();
    dessin.replot(QCustomPlot::rpImmediateRefresh);
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

/// `part` of the time range is shown, from its middle on.
void Redessin(benchmark::State& etat, double part) {
    ModeleGraphe modele;
    Remplir(modele);
    DessinGraphe vue;
    vue.Lier(modele);
    vue.resize(taille);
    vue.show();
    QCustomPlot nu;
    RemplirNu(nu, modele);
    nu.resize(taille);
    nu.show();
    QApplication::processEvents();

    const Plage entiere = modele.PlageEntiere();
    const double largeur = (entiere.max - entiere.min) * part;
    const double depuis = part < 1 ? (entiere.min + entiere.max) / 2 : entiere.min;
    modele.MontrerPlage({depuis, depuis + largeur});
    vue.Repaint();
    QApplication::processEvents();
    if (vue.graphCount() != nombreCourbes) std::abort();
    for (int courbe = 0; courbe < nombreCourbes; ++courbe)
        if (vue.graph(courbe)->data()->size() != nombrePoints) std::abort();
    nu.xAxis->setRange(vue.xAxis->range());
    nu.yAxis->setRange(vue.yAxis->range());
    nu.yAxis2->setRange(vue.yAxis2->range());

    std::vector<double> vues;
    std::vector<double> nus;
    for (auto _ : etat) {
        Redessiner(nus, nu);
        etat.SetIterationTime(Redessiner(vues, vue));
    }
    etat.counters["chart_ms"] = 1000 * Mediane(vues);
    etat.counters["bare_ms"] = 1000 * Mediane(nus);
    etat.counters["ratio"] = Mediane(vues) / Mediane(nus);
    etat.counters["bar"] = 1.2;
}
BENCHMARK_CAPTURE(Redessin, entier, 1.0)
    ->UseManualTime()
    ->Iterations(31)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Redessin, centieme, 0.01)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
