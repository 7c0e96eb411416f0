#pragma once

#include <QString>

#include "link/station.h"
#include "shell/application_state.h"

/// Calibration pairs of the logger and the correction that they make.
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

/// Reads the calibration over the open link into the state of the main form and adds its line to
/// the report. A logger of old firmware has one point only. Without an answer to the first point
/// all figures become 0, without one to the second those of the line; a wrong echo keeps the
/// figures. None of them shows a message. Returns false when the logger is in calibration: the
/// reading of the parameters ends there.
bool LireEtalonnageCapteur(Poste& poste, bool AncienFirmware);

}  // namespace bornika
