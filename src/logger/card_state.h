#pragma once

namespace bornika {

class MainScreen;

/// Shows in `SDCardState` whether a card is in: in black, or in red when it is not.
void MontrerCarte(MainScreen& ecran, bool presente);

}  // namespace bornika
