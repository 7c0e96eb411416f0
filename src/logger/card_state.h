#pragma once

namespace bornika {

class MainScreen;

/// Last byte of the answer that tells of the card, when one is in.
inline constexpr int cartePresente = 1;

/// Shows in `SDCardState` whether a card is in: in black, or in red when it is not.
void MontrerCarte(MainScreen& ecran, bool presente);

}  // namespace bornika
