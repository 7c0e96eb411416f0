#pragma once

/// Sampling period, start and end of the recording on the main form.
namespace bornika {

class ListeDeroulante;
class MainScreen;

/// Seconds of the chosen entry, whose number counts eighths; 0 with nothing chosen.
double PeriodeDeListe(const ListeDeroulante& liste);

/// Recomputes `DerniereMesure` and `DureeEnregistrement` from period, start and capacity, and shows
/// `DureeSaisie` for the free period only. With no period chosen the period is 0. Fault 6 when the
/// duration does not fit 32 bits.
void CalculeDuree(MainScreen& ecran);

void ListePeriodeEchantillonage_Click(MainScreen& ecran);
void PeriodeTrigger_Click(MainScreen& ecran);
void DTPicker_Change(MainScreen& ecran);
/// Start now: both pickers take the present time.
void DateDemarrage_Click(MainScreen& ecran);
/// Holds the free period between 1 and 3600 s and stores it. Does nothing while the box is hidden.
void DureeSaisie_Change(MainScreen& ecran);

}  // namespace bornika
