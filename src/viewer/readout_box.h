#pragma once

#include "platform/colour.h"

class QLineEdit;
class QString;

namespace bornika {

class Trace;

/// Gives the boxes of values read from the chart the ground that the curves are drawn on: the
/// colours of curves are chosen for it and would be lost on white.
void FixerFondLectures(Trace& trace);

/// Writes a value that was read from a curve into its box, in the colour of that curve or line.
void MontrerLecture(QLineEdit& boite, const QString& texte, Couleur couleur);

}  // namespace bornika
