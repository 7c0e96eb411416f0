#pragma once

#include <QString>

#include "link/station.h"

/// The identity that a logger is given by hand, and its record of resets.
namespace bornika {

/// What a logger notes of its resets.
struct Resets {
    /// Device time of the last one, in seconds.
    double date = 0;
    int nombre = 0;
};

/// The six bytes of such a record, low bytes first, unlike all other numbers of the logger; what
/// follows them does not count. Fault 9 for fewer.
Resets ResetsDepuisOctets(const Octets& octets);

/// Writes the number of `ValeurNumeroSerie` to the logger. A text that is no number, or a value
/// above 2147483647, is told and nothing is sent. Decimals are rounded half to even. A negative
/// number passes both checks, on purpose, and ends in fault 6: it has no bytes.
/// A logger that does not answer shows "k-Pod Absent" and sets `TimeOut`.
void ProgNumeroSerie_Click(Poste& poste);

/// Asks, then clears the logger's serial number, which inhibits the logger. Failures as above.
void RAZNumeroSerie_Click(Poste& poste);

/// Shows the resets of the logger in `NbReset` and `DateDernierReset`. A logger that does not
/// answer shows "k-Pod Absent" and sets `TimeOut`; fault 9 then ends the operation, on purpose:
/// there is no record to show.
void Command2_Click(Poste& poste);

}  // namespace bornika
