#pragma once

#include <QString>

namespace bornika {

class MainScreen;

/// Fills the lists and gives every control of the main form its caption in `langue`, and the
/// toolkit's own dialogs theirs. With `init`, at start-up, the list of languages is filled first;
/// choosing `langue` in it then raises its click. A position that a list does not have is silently
/// not chosen, so that the program opens also without a known language.
///
/// No selection survives: period, scale and unit return to their defaults. Labels that show values
/// of the logger take the catalogue's neutral text until the parameters are read again; the
/// computed duration alone stays.
void ChangeTextes(MainScreen& ecran, const QString& langue, bool init);

}  // namespace bornika
