#pragma once

#include <QString>

#include "platform/regional.h"

namespace bornika {

/// The text of a number with the separator of the user's locale ("." or ",") in the place of the
/// other one. A locale with any third separator gives the empty text: it reads no number of a
/// recording.
QString TraiteSeparateur(const QString& Valeur, const Regional& regional);

}  // namespace bornika
