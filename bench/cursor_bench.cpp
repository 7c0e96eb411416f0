// What the hand costs on a chart of four curves of 450,000 points: a move of the cursor, from the
// mouse event to the pixels, against a whole redraw, on points in order and out of order; and a
// redraw with point value marks against the same one without.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPaintEvent>
#include <cstdlib>
#include <functional>

#include "chart/view/chart_plot.h"
#include "chart/view/chart_view_marks.h"
#include "chart_sample.h"

namespace {

using namespace bornika;
using namespace bornika::banc;

/// The chart on the screen, and how often it was painted.
struct Fenetre : QObject {
    Fenetre() {
        Remplir(modele);
        vue.Lier(modele);
        vue.resize(taille);
        vue.show();
        vue.installEventFilter(this);
        QApplication::processEvents();
    }
    bool eventFilter(QObject*, QEvent* evenement) override {
        peintures += evenement->type() == QEvent::Paint;
        return false;
    }
    void Survoler(double part) {
        const QRect cadre = vue.axisRect()->rect();
        const QPointF ou(cadre.left() + part * cadre.width(), cadre.center().y());
        QMouseEvent pas(QEvent::MouseMove, ou, vue.mapToGlobal(ou), Qt::NoButton, Qt::NoButton,
                        Qt::NoModifier);
        QCoreApplication::sendEvent(&vue, &pas);
        QApplication::processEvents();
    }

    ModeleGraphe modele;
    DessinGraphe vue;
    int peintures = 0;
};

double Duree(std::vector<double>& durees, const std::function<void()>& geste) {
    QElapsedTimer duree;
    duree.start();
    geste();
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

void Conclure(benchmark::State& etat, const std::vector<double>& mesures,
              const std::vector<double>& references, double barre) {
    etat.counters["ms"] = 1000 * Meilleure(mesures);
    etat.counters["redraw_ms"] = 1000 * Meilleure(references);
    etat.counters["ratio"] = Meilleure(mesures) / Meilleure(references);
    etat.counters["bar"] = barre;
}

void Curseur(benchmark::State& etat, bool enOrdre) {
    Fenetre fenetre;
    if (!enOrdre) fenetre.modele.Serie(0).AjouterPoint(debut, 4, MagasinEtiquettes::vide);
    OutilGraphe outil;
    outil.genre = OutilGraphe::Genre::Curseur;
    outil.serie = 0;
    outil.crayon = 0xFFFFFF;
    outil.suitSouris = true;
    const OutilGraphe& curseur = fenetre.modele.AjouterOutil(outil);
    fenetre.vue.Repaint();
    QApplication::processEvents();

    std::vector<double> redessins;
    std::vector<double> mouvements;
    double part = 0.1;
    for (auto _ : etat) {
        Duree(redessins, [&] { fenetre.vue.replot(QCustomPlot::rpImmediateRefresh); });
        QApplication::processEvents();
        part = part > 0.9 ? 0.1 : part + 0.037;
        const int point = curseur.point;
        const int peintures = fenetre.peintures;
        etat.SetIterationTime(Duree(mouvements, [&] { fenetre.Survoler(part); }));
        if (curseur.point == point || fenetre.peintures == peintures) std::abort();
    }
    Conclure(etat, mouvements, redessins, 0.1);
}
BENCHMARK_CAPTURE(Curseur, ordre, true)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Curseur, desordre, false)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMillisecond);

/// `part` of the time range is shown, with the marks of that many curves.
void Marques(benchmark::State& etat, double part, int courbes) {
    Fenetre fenetre;
    const Plage entiere = fenetre.modele.PlageEntiere();
    fenetre.modele.MontrerPlage({entiere.min, entiere.min + (entiere.max - entiere.min) * part});
    fenetre.vue.Repaint();
    const auto marquer = [&](bool visibles) {
        for (int i = 0; i < courbes; ++i)
            fenetre.modele.Serie(i).marques = visibles;
    };
    const auto redessiner = [&] { fenetre.vue.replot(QCustomPlot::rpImmediateRefresh); };
    marquer(true);
    const std::size_t nombre = fenetre.vue.Marques().Placer().size();
    if (nombre < 10) std::abort();

    std::vector<double> sans;
    std::vector<double> avec;
    for (auto _ : etat) {
        marquer(false);
        Duree(sans, redessiner);
        marquer(true);
        etat.SetIterationTime(Duree(avec, redessiner));
    }
    etat.counters["marks"] = static_cast<double>(nombre);
    Conclure(etat, avec, sans, 2);
}
BENCHMARK_CAPTURE(Marques, entier, 1.0, 1)
    ->UseManualTime()
    ->Iterations(31)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Marques, entier_quatre_courbes, 1.0, 4)
    ->UseManualTime()
    ->Iterations(31)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Marques, centieme, 0.01, 1)
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
