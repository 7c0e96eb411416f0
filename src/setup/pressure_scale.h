#pragma once

#include "shell/application_state.h"

/// Points of the sensor and pressures in the display unit. Whoever converts does it here.
namespace bornika {

class MainScreen;

/// Limits of a sensor scale in its base unit: the pressures of 0 and of 1024 points.
struct EchellePression {
    double mini = 0;
    double maxi = 0;
};

/// Points after the calibration's correction. The shift of the low point counts as soon as one of
/// the two high figures is 0, whatever the slope holds.
double CorrigerPoints(double points, const Etalonnage7& etalonnage);

/// Pressure of `points` in a display unit of `coefficient` ten-thousandths for one base unit,
/// rounded to three decimals. Points outside 0 to 1024 give pressures outside the scale.
/// `correction_absolue` takes the difference between absolute and relative pressure off.
double PressionDePoints(double points, const EchellePression& echelle, double coefficient,
                        bool correction_absolue);

/// Points of a pressure, with three decimals, held within the scale. `pression` is changed: it
/// comes back in base units, absolute if asked for, and clamped. The calibration is not undone:
/// points for a threshold are uncorrected. Fault 11 (or 6) for a coefficient of 0 or an empty
/// scale.
double PointsDePression(double& pression, const EchellePression& echelle, double coefficient,
                        bool correction_absolue);

/// Highest pressure that a threshold box accepts, with one decimal.
double LimiteSeuil(double maxi, double coefficient);

/// Ten-thousandths of the chosen unit for one base unit. Fault 381 when none is chosen.
double CoefficientUnite(const MainScreen& ecran);

/// The two conversions for the scale, the unit and the calibration of the main form.
/// Fault 381 when no unit is chosen.
double Donne_Pression(MainScreen& ecran, double points, bool correction, bool correction_absolue);
double Donne_Points(MainScreen& ecran, double& pression, bool correction_absolue);

/// A scale was chosen: thresholds back to 0, then its limits are read.
void ListeEchelles_Click(MainScreen& ecran);
/// A unit was chosen: thresholds back to 0, their captions with the unit, the summary.
void ListeUnites_Click(MainScreen& ecran);

}  // namespace bornika
