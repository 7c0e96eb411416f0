#pragma once

namespace bornika {

/// What ends a field of a recording's line.
inline constexpr char finChamp = ';';

/// Places of the fields in a line of measures, from 0: time in seconds, date text, points of the
/// sensor, pressure, unit of the pressure, pulse count, flow.
inline constexpr int champTemps = 0;
inline constexpr int champDate = 1;
inline constexpr int champPoints = 2;
inline constexpr int champPression = 3;
inline constexpr int champUnitePression = 4;
inline constexpr int champComptage = 5;
inline constexpr int champDebit = 6;

}  // namespace bornika
