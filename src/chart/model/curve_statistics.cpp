#include "chart/model/curve_statistics.h"

#include <array>

#include "chart/model/chart_model.h"
#include "platform/numbers.h"
#include "platform/vector_registers.h"

namespace bornika {

namespace {

/// Values looked at side by side, so that no addition waits for the one before it.
constexpr std::size_t voies = 4;

}  // namespace

void StatistiquesCourbes::Prendre(std::span<const double> valeurs) {
    std::array<double, voies> minima;
    std::array<double, voies> maxima;
    std::array<double, voies> sommes{};
    minima.fill(minimum);
    maxima.fill(maximum);
    const std::size_t entieres = valeurs.size() / voies * voies;
    for (std::size_t i = 0; i < entieres; i += voies) {
        for (std::size_t k = 0; k < voies; ++k) {
            const double valeur = valeurs[i + k];
            sommes[k] += valeur;
            maxima[k] = valeur > maxima[k] ? valeur : maxima[k];
            minima[k] = valeur < minima[k] ? valeur : minima[k];
        }
    }
    const auto prendre = [this](double valeur, double petite, double grande) {
        somme += valeur;
        if (grande > maximum) maximum = grande;
        if (petite < minimum) minimum = petite;
    };
    for (std::size_t k = 0; k < voies; ++k)
        prendre(sommes[k], minima[k], maxima[k]);
    for (const double valeur : valeurs.subspan(entieres))
        prendre(valeur, valeur, valeur);
    nombre += static_cast<std::int64_t>(valeurs.size());
}

double StatistiquesCourbes::Moyenne() const {
    return Diviser(somme, static_cast<double>(nombre));
}

StatistiquesCourbes CalculerStatistiques(const ModeleGraphe& modele, int choisie) {
    // They are asked for in the middle of the painting.
    LibererRegistresVectoriels();
    StatistiquesCourbes statistiques;
    for (int s = 0; s < modele.NombreSeries(); ++s) {
        const SerieGraphe& serie = modele.Serie(s);
        if (choisie >= 0 && serie.axe != modele.Serie(choisie).axe) continue;
        const PointsVisibles points = modele.Visibles(s);
        if (points.premier < 0) continue;
        statistiques.Prendre(
            serie.Y().subspan(static_cast<std::size_t>(points.premier),
                              static_cast<std::size_t>(points.dernier - points.premier + 1)));
    }
    return statistiques;
}

}  // namespace bornika
