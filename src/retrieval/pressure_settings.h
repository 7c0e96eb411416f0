#pragma once

#include <optional>

#include "setup/pressure_scale.h"

/// What turns points into pressures, as plain values.
namespace bornika {

/// What the main form says of pressures at one moment. A loop over measures takes it at its start
/// and again whenever the interface ran: in between nobody can have changed it.
struct ReglagesPression {
    EchellePression echelle;
    Etalonnage7 etalonnage;
    /// Of the unit, in ten-thousandths for one base unit; empty while no unit is chosen.
    std::optional<double> coefficient;
    /// The check mark of absolute pressures.
    bool absolue = false;
};

ReglagesPression LireReglagesPression(const MainScreen& ecran);

/// Pressure of `points` in the unit, calibrated. `correction_absolue` takes the difference between
/// absolute and relative pressure off. Fault 381 when no unit is chosen.
double PressionCorrigee(double points, const ReglagesPression& reglages, bool correction_absolue);

}  // namespace bornika
