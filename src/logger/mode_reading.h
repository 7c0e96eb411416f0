#pragma once

#include "logger/reading_state.h"

namespace bornika {

/// Reads scale, unit, thresholds and the mode byte, and shows them.
Suite LireMode(LectureParametres& lecture);

}  // namespace bornika
