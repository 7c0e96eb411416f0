#pragma once

#include <span>
#include <vector>

namespace bornika {

/// Smooths a curve with a triangular kernel of `periode` points (at least 1): a box mean of that
/// many points applied twice, weights (N - |j|) / N² for |j| < N.
///
/// At the ends the same kernel is narrowed so that it stays inside the curve: the end points stay
/// exact, straight lines are kept, nothing is shifted. A period of 1 gives the curve back. Each run
/// of finite values is smoothed by itself; a value that is no finite number stays as it is and
/// spoils none of its neighbours.
void Lisser(std::span<const double> valeurs, int periode, std::vector<double>& lissees);

}  // namespace bornika
