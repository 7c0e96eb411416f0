#pragma once

namespace bornika {

/// Volts of one step of the battery's reading.
inline constexpr double voltsParPas = 0.0266666;

}  // namespace bornika
