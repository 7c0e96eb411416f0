#pragma once

#include <limits>
#include <span>

namespace bornika {

/// A range of the time axis, both ends included. With `min` above `max` it holds nothing: that is
/// the state after a load that met no line.
struct Plage {
    double min = 0;
    double max = 0;

    bool Contient(double x) const { return x >= min && x <= max; }
    bool EstVide() const { return !(min <= max); }
    bool operator==(const Plage&) const = default;
};

inline constexpr Plage plageSansLimite{-std::numeric_limits<double>::infinity(),
                                       std::numeric_limits<double>::infinity()};

/// What two ranges have in common.
Plage Commune(const Plage& une, const Plage& autre);

/// First and last position with x inside the range, -1 and -1 for none. With `trie` the positions
/// are found by halving; otherwise every point is looked at.
struct PointsVisibles {
    int premier = -1;
    int dernier = -1;
};
PointsVisibles ChercherVisibles(std::span<const double> x, bool trie, const Plage& plage);

/// Position of the x nearest to `cible` from the first to the last of `points` (one at least), the
/// first of several that are equally near, where x are in order.
int PlusProche(std::span<const double> x, const PointsVisibles& points, double cible);

/// Smallest and largest of the values; an empty range for none.
Plage Etendue(std::span<const double> x, bool trie);

}  // namespace bornika
