#pragma once

#include "platform/colour.h"

class QLineEdit;
class QString;

namespace bornika {

/// Writes a value that was read from a curve into its box, in the colour of that curve or line.
void MontrerLecture(QLineEdit& boite, const QString& texte, Couleur couleur);

}  // namespace bornika
