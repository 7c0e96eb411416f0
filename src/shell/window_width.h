#pragma once

namespace bornika {

class MainScreen;

/// Gives the main form its width: narrow, or in maintenance mode wide enough for the panel of the
/// service controls. The panel always exists and can be reached, by mouse or by key, in maintenance
/// mode only, as can the menu entry of the GSM settings. Larger fonts make the form wider than its
/// nominal width.
void FixerLargeur(MainScreen& ecran, bool maintenance);

}  // namespace bornika
