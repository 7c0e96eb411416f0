#include "viewer/smoothing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bornika {

namespace {

/// Replaces each value by the sum of the `largeur` values from it on; the last `largeur` - 1 places
/// are left without meaning. Every sum is the end of one block of `largeur` values plus the start
/// of the next: additions only, so that a spike leaves no rest behind once the window has passed
/// it, which a running sum would.
void SommerFenetres(std::span<double> valeurs, std::size_t largeur, std::vector<double>& queue) {
    const std::size_t nombre = valeurs.size();
    queue.resize(largeur);
    for (std::size_t debut = 0; debut + largeur <= nombre; debut += largeur) {
        double somme = 0;
        for (std::size_t k = largeur; k-- > 0;)
            queue[k] = somme += valeurs[debut + k];
        valeurs[debut] = queue[0];
        const std::size_t suivant = debut + largeur;
        const std::size_t reste = std::min(largeur, nombre - suivant + 1);
        double tete = 0;
        for (std::size_t k = 1; k < reste; ++k) {
            tete += valeurs[suivant + k - 1];
            valeurs[debut + k] = queue[k] + tete;
        }
    }
}

/// The kernel of `demi` points around `centre`, term by term.
double PoserNoyau(std::span<const double> valeurs, std::size_t centre, std::size_t demi) {
    if (demi == 1) return valeurs[centre];
    double somme = static_cast<double>(demi) * valeurs[centre];
    for (std::size_t j = 1; j < demi; ++j)
        somme += static_cast<double>(demi - j) * (valeurs[centre - j] + valeurs[centre + j]);
    return somme / (static_cast<double>(demi) * static_cast<double>(demi));
}

struct Tampons {
    std::vector<double> sommes;
    std::vector<double> queue;
};

/// One run of finite values.
void LisserSuite(std::span<const double> valeurs, std::size_t periode, std::span<double> lissees,
                 Tampons& tampons) {
    const std::size_t nombre = valeurs.size();
    const std::size_t bord = std::min(periode - 1, (nombre + 1) / 2);
    for (std::size_t i = 0; i < bord; ++i) {
        lissees[i] = PoserNoyau(valeurs, i, i + 1);
        lissees[nombre - 1 - i] = PoserNoyau(valeurs, nombre - 1 - i, i + 1);
    }
    if (nombre < 2 * periode - 1) return;
    tampons.sommes.assign(valeurs.begin(), valeurs.end());
    const std::span<double> sommes(tampons.sommes);
    SommerFenetres(sommes, periode, tampons.queue);
    const std::size_t boites = nombre - periode + 1;
    SommerFenetres(sommes.first(boites), periode, tampons.queue);
    const double poids = static_cast<double>(periode) * static_cast<double>(periode);
    for (std::size_t k = 0; k + periode <= boites; ++k)
        lissees[k + periode - 1] = sommes[k] / poids;
}

}  // namespace

void Lisser(std::span<const double> valeurs, int periode, std::vector<double>& lissees) {
    lissees.assign(valeurs.begin(), valeurs.end());
    if (periode <= 1) return;
    const auto largeur = static_cast<std::size_t>(periode);
    const auto fini = [](double valeur) { return std::isfinite(valeur); };
    Tampons tampons;
    auto debut = std::find_if(valeurs.begin(), valeurs.end(), fini);
    while (debut != valeurs.end()) {
        const auto fin = std::find_if_not(debut, valeurs.end(), fini);
        const auto place = static_cast<std::size_t>(debut - valeurs.begin());
        const auto nombre = static_cast<std::size_t>(fin - debut);
        LisserSuite(valeurs.subspan(place, nombre), largeur,
                    std::span<double>(lissees).subspan(place, nombre), tampons);
        debut = std::find_if(fin, valeurs.end(), fini);
    }
}

}  // namespace bornika
