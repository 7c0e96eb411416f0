#pragma once

/// What each entry on the main form recomputes, forces into range, shows and hides. The boxes
/// correct themselves as the user types: nothing is validated at the moment of writing.
#include "setup/duration_rules.h"
#include "setup/threshold_rules.h"

namespace bornika {

class MainScreen;

/// The end of the recording is shown only where the memory is not circular: otherwise it never
/// ends.
void BufferTournant_Click(MainScreen& ecran);
void BufferNonTournant_Click(MainScreen& ecran);
/// Number of measures before the trigger: at most 255, empty when it is no number.
void NbMesures_Change(MainScreen& ecran);
/// Shows and hides the frames of the advanced options.
void Check_advanced_Click(MainScreen& ecran);

}  // namespace bornika
