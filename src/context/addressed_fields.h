#pragma once

#include <array>

/// What the form reads and writes of the logger's internal memory by address.
namespace bornika {

/// 0 for 12 hours, anything else for 24.
inline constexpr int adresseFormatHeure = 116;
/// Unit of the pulse, one character a byte, padded with blanks.
inline constexpr int adresseUniteImpulsion = 117;
inline constexpr int longueurUniteImpulsion = 8;

/// Flow time bases in seconds, in the order of `ListeTemps`.
inline constexpr std::array<float, 4> basesDeTemps = {1, 60, 3600, 86400};

}  // namespace bornika
