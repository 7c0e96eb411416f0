#pragma once

#include <cstdint>
#include <vector>

#include "simulator/measure.h"

namespace bornika::simulateur {

/// What was recorded on a water network: pressure in points of a 0 to 16 bar sensor, and a meter.
struct ReseauEau {
    std::uint32_t debut = 0;
    std::uint32_t duree = 3 * 86400;
    int periode = 15;
    /// Same grain, same recording.
    std::uint64_t grain = 20260305;
};

/// The measures of such a recording in the order of their time: one periodic measure each `periode`
/// seconds (pressure that sinks with the demand of the day, a pump, water hammers, noise) and one
/// pulse measure for each turn of the meter, with its eighth of a second. Three days are about
/// 30,000 measures. All carry parity bits.
std::vector<MesureEnFlash> MesuresReseauEau(const ReseauEau& reseau);

/// `nombre` periodic measures, `periode` seconds apart, of a slow and exact saw of points: for
/// tests and benchmarks that want to know each value. The i-th has 200 + i modulo 600 points.
std::vector<MesureEnFlash> MesuresRegulieres(std::uint32_t debut, int nombre, int periode = 1);

}  // namespace bornika::simulateur
