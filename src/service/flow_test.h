#pragma once

#include "link/station.h"

namespace bornika {

/// Switches the logger's flow test on or off; opens and closes the link. What its answer holds does
/// not count. A logger that does not answer shows "k-Pod Absent" and sets `TimeOut`.
void Test_Debit(Poste& poste, bool OnOff);

/// Sends what the menu's check mark says. The mark was inverted by the click and stays so, whether
/// the logger answers or not.
void MnuFlowTest_Click(Poste& poste);

}  // namespace bornika
