#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace bornika::simulateur {

/// Points of one bar on the scale of 16 bar, which the simulated recordings use.
inline constexpr double pointsParBar = 1024.0 / 16.0;

/// One measure as it lies in the flash: fraction (2 bytes), seconds (4), flags, low byte of the
/// points; numbers high byte first.
using MesureEnFlash = std::array<std::uint8_t, 8>;

/// A periodic measure: whole device seconds, 0 to 1023 points, parity bits present.
MesureEnFlash MesurePeriodique(std::uint32_t secondes, int points);

/// A pulse of the meter at `huitiemes` (0 to 7, up to 255 for odd data) eighths after `secondes`.
/// The low byte of the fraction is 1, so that a pulse on the full second is still a pulse.
MesureEnFlash MesureImpulsion(std::uint32_t secondes, int huitiemes, int points);

/// The same measure without parity information.
MesureEnFlash SansParite(MesureEnFlash mesure);

/// The same measure with the right parity bits for its bytes.
MesureEnFlash AvecParite(MesureEnFlash mesure);

/// The same measure with one parity bit wrong and the others right. `bit` is 6, 5, 4 or 3 for the
/// bytes of the time stamp from the high one down, 2 for the flags byte itself.
MesureEnFlash PariteCassee(MesureEnFlash mesure, int bit);

/// A cell that was never written.
MesureEnFlash CelluleEffacee();

/// Periodic measures that share one second.
std::vector<MesureEnFlash> GroupeMemeSeconde(std::uint32_t secondes, std::span<const int> points);

}  // namespace bornika::simulateur
