#pragma once

#include <QString>

class QObject;
class QWidget;

namespace bornika {

class MainScreen;

/// What differs from form to form where its controls get their captions.
struct RegleCaptions {
    /// Language of the texts.
    QString langue;
    /// Control whose caption stays as it is; null for none.
    const QObject* exclu = nullptr;
    /// An empty text leaves the caption that the control shows.
    bool garderSiVide = false;
};

/// Gives every control of a form the text of its name, for the product of the main form; a fault of
/// one control leaves it as it is and the others go on. The captions of the design are the
/// defaults, so `RetenirCaptions` comes before.
void TraduireFiche(QWidget& fiche, MainScreen& ecran, const RegleCaptions& regle);

/// The same for a form other than the main one, in the language of that: every control, whatever
/// its text.
void TraduireFiche(QWidget& fiche, MainScreen& ecran);

}  // namespace bornika
