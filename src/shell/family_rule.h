#pragma once

namespace bornika {

class MainScreen;

/// Shows and hides the controls of the main form that belong to one family of loggers only, by
/// `TypekPod`. The frame of the flow parameters is none of them: it follows its own check box.
void AppliqueFamille(MainScreen& ecran);

}  // namespace bornika
