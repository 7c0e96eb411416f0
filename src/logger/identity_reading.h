#pragma once

#include "logger/reading_state.h"

namespace bornika {

/// Firmware version, battery and memory size.
Suite LireVersion(LectureParametres& lecture);
/// Serial number, and the three lines of the report that open it.
Suite LireNumeroSerie(LectureParametres& lecture);
/// Date and sensor of the last calibration, "---" for a logger that never had one. Silence goes on.
Suite LireDateEtalonnage(LectureParametres& lecture);

}  // namespace bornika
