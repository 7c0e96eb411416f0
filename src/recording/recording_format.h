#pragma once

namespace bornika {

/// What ends a field of a recording's line.
inline constexpr char finChamp = ';';

/// Places of the fields in a line of measures, from 0, behind the time in seconds: date text,
/// points of the sensor, pressure; behind the unit of the pressure: pulse count, flow. The header
/// has their titles at the same places.
inline constexpr int champDate = 1;
inline constexpr int champPoints = 2;
inline constexpr int champPression = 3;
inline constexpr int champComptage = 5;
inline constexpr int champDebit = 6;

}  // namespace bornika
