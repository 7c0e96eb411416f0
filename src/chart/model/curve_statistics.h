#pragma once

#include <cstdint>
#include <span>

namespace bornika {

class ModeleGraphe;

/// Smallest and largest value, sum and count of what was taken in so far.
struct StatistiquesCourbes {
    double minimum = 1e19;
    /// Starts at 0, so that curves that stay below 0 have the maximum 0. That is deliberate.
    double maximum = 0;
    double somme = 0;
    std::int64_t nombre = 0;

    void Prendre(std::span<const double> valeurs);
    /// Fault 6 without any value.
    double Moyenne() const;
};

/// Statistics of the visible points, one pass over them. `choisie` is the position of a curve:
/// every curve of its vertical axis is taken in, smoothed ones, those of other files and those
/// switched off in the legend included. A position below 0 takes in all curves of both axes. Fault
/// 9 for a curve that is not there.
StatistiquesCourbes CalculerStatistiques(const ModeleGraphe& modele, int choisie);

}  // namespace bornika
