// Redraw of four curves of 450,000 points, whole and zoomed to a hundredth, against a bare plot
// with the same data and the same pens. Each pass draws both in turn.

#include <benchmark/benchmark.h>
#include <qcustomplot.h>

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "viewer/chart_model.h"
#include "viewer/chart_view.h"

namespace {

using namespace bornika;

constexpr int courbes = 4;
constexpr int points = 450'000;
constexpr QSize taille(1096, 480);

/// A pressure that wanders with some noise, the same each time.
std::vector<double> Valeurs(int courbe) {
    std::mt19937 hasard(static_cast<unsigned>(courbe) + 1);
    std::normal_distribution<double> bruit(0, 0.05);
    std::vector<double> valeurs(points);
    for (int i = 0; i < points; ++i)
        valeurs[static_cast<std::size_t>(i)] = courbe + std::sin(i / 20'000.0) + bruit(hasard);
    return valeurs;
}

struct Vue {
    Vue() {
        const auto magasin = std::make_shared<MagasinEtiquettes>();
        for (int c = 0; c < courbes; ++c) {
            SerieGraphe& serie = modele.AjouterSerie();
            serie.titre = QStringLiteral("curve %1").arg(c);
            serie.axe = c % 2 ? SerieGraphe::Axe::Droite : SerieGraphe::Axe::Gauche;
            serie.FixerEtiquettes(magasin);
            serie.Reserver(points);
            const std::vector<double> valeurs = Valeurs(c);
            for (int i = 0; i < points; ++i)
                serie.AjouterPoint(i, valeurs[static_cast<std::size_t>(i)],
                                   magasin->Ajouter("05/03/2026 14:07:09:000"));
        }
        modele.bas.etiquettesTexte = true;
        modele.titre = QStringList{QStringLiteral("north network, valve V12")};
        modele.gauche.titre = QStringLiteral("Pression");
        modele.droite.titre = QStringLiteral("m3/Hrs");
        modele.legendeCases = true;
        modele.FixerPlage(0, points - 1);
        vue.Lier(modele);
        vue.resize(taille);
        vue.show();
    }
    ModeleGraphe modele;
    VueGraphe vue;
};

struct Nu {
    Nu() {
        plot.setNotAntialiasedElements(QCP::aePlottables);
        plot.yAxis2->setVisible(true);
        for (int c = 0; c < courbes; ++c) {
            QCPGraph* graphe = plot.addGraph(plot.xAxis, c % 2 ? plot.yAxis2 : plot.yAxis);
            const std::vector<double> valeurs = Valeurs(c);
            QVector<QCPGraphData> donnees(points);
            for (int i = 0; i < points; ++i)
                donnees[i] = {double(i), valeurs[static_cast<std::size_t>(i)]};
            graphe->data()->set(donnees, true);
            graphe->setPen(QPen(Qt::blue, 0));
        }
        plot.rescaleAxes();
        plot.resize(taille);
        plot.show();
    }
    QCustomPlot plot;
};

double Mediane(std::vector<double> durees) {
    const auto milieu = durees.begin() + static_cast<long>(durees.size() / 2);
    std::nth_element(durees.begin(), milieu, durees.end());
    return *milieu;
}

template <class Travail>
double Mesurer(std::vector<double>& durees, Travail&& travail) {
    QElapsedTimer duree;
    duree.start();
    travail();
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

void Redessiner(benchmark::State& etat, double part) {
    Vue vue;
    Nu nu;
    const double milieu = points / 2.0;
    const QCPRange plage(milieu * (1 - part), milieu * (1 + part));
    nu.plot.xAxis->setRange(plage);
    nu.plot.yAxis->setRange(vue.vue.yAxis->range());
    nu.plot.yAxis2->setRange(vue.vue.yAxis2->range());
    vue.modele.MontrerPlage({plage.lower, plage.upper});
    vue.vue.Repaint();
    nu.plot.replot();
    std::vector<double> notre;
    std::vector<double> reference;
    for (auto _ : etat) {
        Mesurer(reference, [&] { nu.plot.replot(QCustomPlot::rpQueuedRefresh); });
        etat.SetIterationTime(Mesurer(notre, [&] { vue.vue.Repaint(); }));
    }
    etat.counters["chart_ms"] = 1000 * Mediane(notre);
    etat.counters["bare_ms"] = 1000 * Mediane(reference);
    etat.counters["ratio"] = Mediane(notre) / Mediane(reference);
    etat.counters["bar"] = 1.2;
}

void RedessinEntier(benchmark::State& etat) {
    Redessiner(etat, 1);
}
BENCHMARK(RedessinEntier)->UseManualTime()->Iterations(60)->Unit(benchmark::kMillisecond);

void RedessinZoome(benchmark::State& etat) {
    Redessiner(etat, 0.01);
}
BENCHMARK(RedessinZoome)->UseManualTime()->Iterations(300)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
