// Smoothing of 450,000 values, with short and long periods, against a copy of the values into a
// vector of their own.

#include <benchmark/benchmark.h>

#include <QElapsedTimer>
#include <cstdlib>

#include "chart/model/smoothing.h"
#include "chart_sample.h"

namespace {

using namespace bornika;
using namespace bornika::banc;

constexpr double pire = 8;
/// A long period may cost that many times a short one.
constexpr double pireLongue = 1.5;
constexpr int courte = 2;

template <class Travail>
double Duree(std::vector<double>& durees, Travail&& travail) {
    QElapsedTimer duree;
    duree.start();
    travail();
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

void Lissage(benchmark::State& etat) {
    const auto periode = static_cast<int>(etat.range(0));
    ModeleGraphe modele;
    Remplir(modele);
    const std::span<const double> valeurs = modele.Serie(0).Y();
    std::vector<double> copie;
    std::vector<double> lissees;
    std::vector<double> copies;
    std::vector<double> courts;
    std::vector<double> durees;
    for (auto _ : etat) {
        Duree(copies, [&] { copie.assign(valeurs.begin(), valeurs.end()); });
        benchmark::DoNotOptimize(copie.data());
        Duree(courts, [&] { Lisser(valeurs, courte, lissees); });
        benchmark::DoNotOptimize(lissees.data());
        etat.SetIterationTime(Duree(durees, [&] { Lisser(valeurs, periode, lissees); }));
        benchmark::DoNotOptimize(lissees.data());
    }
    if (lissees.size() != static_cast<std::size_t>(nombrePoints)) std::abort();
    etat.counters["ms"] = 1000 * Meilleure(durees);
    etat.counters["copy_ms"] = 1000 * Meilleure(copies);
    etat.counters["ratio"] = Meilleure(durees) / Meilleure(copies);
    etat.counters["bar"] = pire;
    etat.counters["to_period_2"] = Meilleure(durees) / Meilleure(courts);
    etat.counters["bar_to_period_2"] = pireLongue;
}
BENCHMARK(Lissage)
    ->Arg(2)
    ->Arg(3)
    ->Arg(10)
    ->Arg(33)
    ->Arg(100)
    ->UseManualTime()
    ->Iterations(201)
    ->Unit(benchmark::kMillisecond);

}  // namespace
