#pragma once

#include <QString>
#include <string_view>

#include "platform/regional.h"

namespace bornika {

/// Text of a number through a pattern such as "###0.000", "#.00", "0.0####" or "000".
///
/// The decimal text of 15 significant digits is rounded half away from zero to the pattern's
/// decimal places; a pattern without decimal places rounds half to even. "0" is a digit that is
/// always printed, "#" one that is not. The separator stands whenever the pattern has a point, even
/// with nothing behind it: 1 through "#.##" is "1.". "-" stands in front of a negative number
/// unless only zeros are left. No exponent, no group separator.
QString Format(double valeur, std::string_view motif, const Regional& regional);

/// The number that `Format` with three decimal places and a read back gives.
double ArrondiTroisDecimales(double valeur);

}  // namespace bornika
