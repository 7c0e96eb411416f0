#pragma once

#include "platform/regional.h"

namespace bornika::essai {

/// A locale with a decimal point, and one with a decimal comma.
inline const Regional point;
inline const Regional virgule{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};

}  // namespace bornika::essai
