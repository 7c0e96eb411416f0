#pragma once

#include "link/station.h"

/// What a logger says of itself on the bench. A logger that does not answer shows "k-Pod Absent"
/// and sets `TimeOut`.
namespace bornika {

/// Has the logger test itself: `Valeurcodetest` shows the code of the test, and `Mesuretest` the
/// measure in points that comes with code 2 alone. Both stay empty without an answer.
void Test_Click(Poste& poste);

/// Shows the raw value of the sensor detection, 0 to 65535, in `ValeurDetectionCapteur`; 0 without
/// an answer.
void LireValeurDetectionCapteur_Click(Poste& poste);

}  // namespace bornika
