#pragma once

#include "shell/application_state.h"

/// Calibration pairs of the logger and the correction that they make. All of it computes only.
namespace bornika {

/// One pair in points: the true value and what the sensor measured.
struct PointEtalonnage {
    double valeur = 0;
    double mesure = 0;
};

/// Figures of a one-point calibration: a shift, no high point, no slope.
Etalonnage7 EtalonnageUnPoint(const PointEtalonnage& bas);

/// Figures of a two-point calibration. A high pair of zeros, or one measured where the low one was,
/// counts as none: the result is that of the low point alone. A slope of 0 becomes 1.
Etalonnage7 EtalonnageDeuxPoints(const PointEtalonnage& bas, const PointEtalonnage& haut);

}  // namespace bornika
