#pragma once

#include <cstdint>
#include <optional>

#include "link/station.h"

namespace bornika {

/// Seconds that the logger counts in eight real ones, of its stored tick interval (0: no
/// correction). Nothing for 1 and -1, where the formulas do not hold.
std::optional<double> SecondesPourHuit(std::int32_t ticks);

/// Reads the stored clock correction and shows it in the two boxes `ValeurCorrection`. Every fault
/// is ignored; a failed read leaves both boxes as they were.
void Lire_Correction_Temps(Poste& poste);

}  // namespace bornika
