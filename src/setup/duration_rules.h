#pragma once

#include <cstdint>

/// Sampling period, start and end of the recording on the main form.
namespace bornika {

class MainScreen;

/// Start of the recording in device time: the date of `DTPicker1` at the time of `DTPicker2`.
std::int32_t DebutEnregistrement(const MainScreen& ecran);

/// Shows in `DerniereMesure` the end of a recording that begins at `debut`, in device time. The
/// number of the chosen period counts as eighths of a second here also at position 0, where it
/// holds seconds. With no period chosen the end is the start.
void MontrerFin(MainScreen& ecran, double debut);

/// Recomputes `DerniereMesure` and `DureeEnregistrement` from period, start and capacity, and shows
/// `DureeSaisie` for the free period only. With no period chosen the period is 0. Fault 6 when the
/// duration does not fit 32 bits.
void CalculeDuree(MainScreen& ecran);

/// A sampling period was chosen: end and duration, the periods on offer after the trigger, the
/// summary.
void ListePeriodeEchantillonage_Click(MainScreen& ecran);
/// The period after the trigger was chosen: the summary.
void PeriodeTrigger_Click(MainScreen& ecran);
/// Date or time of the start changed: end and duration.
void DTPicker_Change(MainScreen& ecran);
/// Start now: both pickers take the present date and time, and the end follows.
void DateDemarrage_Click(MainScreen& ecran);
/// Holds the free period between 1 and 3600 s and stores it. Does nothing while the box is hidden.
void DureeSaisie_Change(MainScreen& ecran);

}  // namespace bornika
