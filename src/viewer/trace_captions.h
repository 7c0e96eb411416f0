#pragma once

#include <QString>

namespace bornika {

class Trace;

/// Captions of all controls of the form in the language of the main form. A text that the catalogue
/// has not leaves the caption as designed.
void TraduireControles(Trace& trace);

/// Sets the tool tips of the form: help texts of the catalogue when `actif`, none otherwise.
void AfficheAide(Trace& trace, const QString& langue, bool actif);

}  // namespace bornika
