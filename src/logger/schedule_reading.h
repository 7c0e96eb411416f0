#pragma once

#include "logger/reading_state.h"

/// When the logger measures: periods, start and clock.
namespace bornika {

/// Next measure, sampling period and number of measures before the trigger. A period that the list
/// does not hold leaves the choice as it is.
Suite LireProchaineMesure(LectureParametres& lecture);
/// Adds the sampling period to the report, whatever the logger answered.
Suite NoterPeriode(LectureParametres& lecture);
/// Start of the recording, kept in `DateDemarrageLue` too, and its end by the period on the form.
Suite LireDemarrage(LectureParametres& lecture);
/// The logger's clock, with the computer's beside it in `DateLectureLocale`; the period after the
/// trigger, and whether a card is in.
Suite LireDateCourante(LectureParametres& lecture);
/// Adds the period after the trigger to the report where it differs from the sampling period.
Suite NoterPeriodeTrigger(LectureParametres& lecture);

}  // namespace bornika
