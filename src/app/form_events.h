#pragma once

namespace bornika {

class MainScreen;

/// The table of events of the recording set-up: which change of which control of the main form runs
/// which rule.
void BrancherFormulaire(MainScreen& ecran);

}  // namespace bornika
