#pragma once

#include <QString>

namespace bornika {

class MainScreen;

/// Help texts of the main form as tool tips in `langue`. With `actif`, text boxes, buttons, combo
/// boxes, options, check boxes and date pickers get theirs and other controls are left alone;
/// without it every tool tip is emptied. A later change of language does not repeat it.
void AfficheAide(MainScreen& ecran, const QString& langue, bool actif);

}  // namespace bornika
