// Statistics of 450,000 visible points as a redraw asks for them, lines and boxes included, against
// a plain loop over the same values; and the same redraw with the statistics switched off.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <random>
#include <vector>

#include "app/viewer_events.h"
#include "chart/model/chart_template.h"
#include "platform/no_loggers.h"
#include "platform/system.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/statistics_display.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

constexpr int nombrePoints = 450'000;
constexpr double pas = 250;
constexpr int appelsArretes = 1000;

/// The viewer form with one curve, all of it in view, and the tools of a chart.
struct Fenetre {
    Fenetre() : trace(Ouvrir()) {
        ModeleGraphe& modele = trace.modele;
        modele.RemplacerOutils(LireGabarit(ressources.filePath("BORNIKA.TEE")).outils);
        std::mt19937 tirage(3);
        std::normal_distribution<double> bruit(0, 0.05);
        SerieGraphe& serie = modele.AjouterSerie();
        serie.Reserver(nombrePoints);
        for (int i = 0; i < nombrePoints; ++i)
            serie.AjouterPoint(pas * i, 4 + std::sin(i / 9000.0) + bruit(tirage),
                               MagasinEtiquettes::vide);
        modele.FixerPlage(0, pas * (nombrePoints - 1));
        trace.ui->Curseur->Ajouter(QStringLiteral("-"));
        trace.ui->Curseur->Choisir(0);
    }
    Trace& Ouvrir() {
        const QString copie = systeme.Chemin(QStringLiteral("config.xml"));
        if (!QFile::copy(ressources.filePath("config.xml"), copie)) std::abort();
        QFile::setPermissions(copie, QFile::ReadOwner | QFile::WriteOwner);
        acces.apresCreation = [](Trace& fiche) { BrancherTrace(fiche); };
        return acces.Fiche();
    }

    const QDir ressources{QStringLiteral(BORNIKA_RESOURCES)};
    QTemporaryDir dossier;
    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{horloge, dialogues, usb, respiration, Regional{}, dossier.path()};
    MainScreen ecran{systeme};
    AccesTrace acces{ecran};
    Trace& trace;
};

/// What no statistics can do without.
void BoucleNue(std::span<const double> valeurs) {
    double minimum = 1e19;
    double maximum = 0;
    double somme = 0;
    for (const double valeur : valeurs) {
        somme += valeur;
        if (valeur > maximum) maximum = valeur;
        if (valeur < minimum) minimum = valeur;
    }
    benchmark::DoNotOptimize(minimum);
    benchmark::DoNotOptimize(maximum);
    benchmark::DoNotOptimize(somme);
}

template <class Travail>
double Mesurer(std::vector<double>& durees, Travail travail) {
    QElapsedTimer duree;
    duree.start();
    travail();
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

void Statistiques(benchmark::State& etat, bool allumees, int appels, double barre) {
    Fenetre fenetre;
    Trace& trace = fenetre.trace;
    trace.ui->MinMaxMoy->setChecked(allumees);
    const std::span<const double> valeurs = trace.modele.Serie(0).Y();

    std::vector<double> calculs;
    std::vector<double> boucles;
    for (auto _ : etat) {
        Mesurer(boucles, [&] { BoucleNue(valeurs); });
        etat.SetIterationTime(Mesurer(calculs, [&] {
            for (int i = 0; i < appels; ++i)
                CalculeMinMaxMoy(trace);
        }));
    }
    if (trace.ui->Moy->text().isEmpty() == allumees) std::abort();
    const double calcul = *std::min_element(calculs.begin(), calculs.end()) / appels;
    const double boucle = *std::min_element(boucles.begin(), boucles.end());
    etat.counters["statistics_us"] = 1e6 * calcul;
    etat.counters["loop_us"] = 1e6 * boucle;
    etat.counters["ratio"] = calcul / boucle;
    etat.counters["bar"] = barre;
}
BENCHMARK_CAPTURE(Statistiques, allumees, true, 1, 2.0)
    ->UseManualTime()
    ->Iterations(101)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Statistiques, arretees, false, appelsArretes, 0.001)
    ->UseManualTime()
    ->Iterations(31)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
