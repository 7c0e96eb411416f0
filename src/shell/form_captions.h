#pragma once

class QWidget;

namespace bornika {

class MainScreen;

/// Gives every control of a form other than the main one the text of its name, in the language of
/// the main form; a fault of one control leaves it as it is and the others go on. The captions of
/// the design are the defaults, so `RetenirCaptions` comes before.
void TraduireFiche(QWidget& fiche, MainScreen& ecran);

}  // namespace bornika
