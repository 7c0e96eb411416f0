#pragma once

#include "link/station.h"

namespace bornika {

/// Reads the calibration over the open link into the state of the main form and adds its line to
/// the report. A logger of old firmware has one point only. Without an answer to the first point
/// all figures become 0, without one to the second those of the line; a wrong echo keeps the
/// figures. None of them shows a message. Returns false when the logger is in calibration: the
/// reading of the parameters ends there.
bool LireEtalonnageCapteur(Poste& poste, bool AncienFirmware);

}  // namespace bornika
