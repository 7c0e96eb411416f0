#pragma once

#include <cstdint>
#include <optional>

#include "link/station.h"

namespace bornika {

/// Seconds that the logger counts in eight real ones, of its stored tick interval (0: no
/// correction). Nothing for 1 and -1, where the formulas do not hold.
std::optional<double> SecondesPourHuit(std::int32_t ticks);

/// Tick interval to store for a logger that counts `secondes` (not 0) in eight real ones; 0 for 8.
/// Fault 6 when it does not fit, next to 8.
std::int32_t TicksPourSecondes(double secondes);

/// Reads the stored clock correction and shows it in the two boxes `ValeurCorrection`. Every fault
/// is ignored; a failed read leaves both boxes as they were.
void Lire_Correction_Temps(Poste& poste);

/// Shows the tick interval of the seconds in the second box and sends it to the logger. A text that
/// is no number, or 0, is passed over without a word. A logger that does not answer shows "k-Pod
/// Absent" and sets `TimeOut`; the first box shows the new interval all the same.
void CommandCorrection_Click(Poste& poste);

}  // namespace bornika
