#pragma once

namespace bornika {

class MainScreen;

/// Writes in plain sentences, in the five summary labels, what the set-up on the form will do.
void Donne_Resume(MainScreen& ecran);

}  // namespace bornika
