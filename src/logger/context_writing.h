#pragma once

#include "link/station.h"

namespace bornika {

/// Writes the time format, the pulse weight, the pulse unit and the flow time base of the form into
/// the logger's internal memory, byte after byte; the caller holds the link open. A weight that is
/// no number and a time base that is not chosen are left as the logger has them. A logger that does
/// not answer is told of once and sets `TimeOut`; the bytes that follow are sent all the same.
void EcrireContexte(Poste& poste);

}  // namespace bornika
