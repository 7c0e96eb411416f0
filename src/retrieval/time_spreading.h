#pragma once

#include "platform/regional.h"

/// Where a measure stands within its second, and how fast pulses come. All of it computes only.
namespace bornika {

/// Milliseconds of the measure at `position` of a group whose last position is `dernier`: the
/// second is divided evenly, and rounded half to even. Three measures stand at 0, 333 and 667.
int MillisecondesGroupe(int position, int dernier);

/// Pulses per second for an interval in seconds, rounded to four decimals. Fault 11 for an interval
/// of 0.
double TauxImpulsions(double intervalle);

}  // namespace bornika
