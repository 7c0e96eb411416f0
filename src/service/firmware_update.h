#pragma once

#include "link/station.h"

namespace bornika {

/// `nmuBootLoad`: puts another firmware on the logger. Guards the step, then leaves the transfer to
/// the external tool beside the program and waits for its end with a living window. A firmware that
/// comes from below version 2.098 gets the logger's serial number written back.
///
/// The menu entry is disabled meanwhile: one update at a time. A tool that cannot be started counts
/// as one that has ended. Closing the program ends the waiting, never the tool: it goes on to the
/// end of its transfer. What the operator should know of all this stands in `Infos`, a number that
/// could not be written back above all; no box tells it.
void nmuBootLoad_Click(Poste& poste);

}  // namespace bornika
