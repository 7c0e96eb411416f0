#pragma once

#include "logger/reading_state.h"

/// The steps that read the logger's internal memory. A failed read ends the sequence.
namespace bornika {

/// 12 or 24 hours.
Suite LireFormatHeure(LectureParametres& lecture);
/// Pulse weight, pulse unit and flow time base.
Suite LirePoidsImpulsion(LectureParametres& lecture);
Suite LireUniteImpulsion(LectureParametres& lecture);
Suite LireTempsDebit(LectureParametres& lecture);

}  // namespace bornika
