#pragma once

namespace bornika {

class MainScreen;

/// Keeps the main form from now on within the height of the screen that it stands on, with room
/// for the bars of the desktop. To be called before the first show; a form without it has no limit.
void TenirDansEcran(MainScreen& ecran);

}  // namespace bornika
