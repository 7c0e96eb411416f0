#pragma once

#include <QString>

#include "calibration/calibration_messages.h"

/// What the calibration form shows, without a word to the logger.
namespace bornika {

class Etalonnage;

/// All captions in the language of the main form.
void Traduire(Etalonnage& fiche);

/// The unit behind all pressures.
void FixerUnite(Etalonnage& fiche, const QString& unite);

/// Empties the pressures of both rows.
void ViderPressions(Etalonnage& fiche);

/// Date and sensor of the last calibration, and its unit. A logger never calibrated keeps the first
/// two as they were, but not the unit.
void MontrerDate(Etalonnage& fiche, const DateEtalonnage& date);

/// The pair of a point, uncorrected, in the scale and the unit chosen on the main form.
void MontrerPoint(Etalonnage& fiche, int rang, const PointEtalonnage& point);

/// Shows both rows, numbered, for `mode` 1 and the first one alone, without number, for 0.
void AffichePoints(Etalonnage& fiche, int mode);

/// The next point can be begun, none can be ended.
void AttendrePoint(Etalonnage& fiche);

/// A point was sent: it can be ended, none can be begun.
void AttendreFin(Etalonnage& fiche);

/// Opens the reference of that row to typing, and closes the other one.
void ChoisirSaisie(Etalonnage& fiche, int rang);

}  // namespace bornika
