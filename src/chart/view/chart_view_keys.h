#pragma once

#include <Qt>

namespace bornika {

class DessinGraphe;

/// What a key does on the chart: `+` and `-` zoom in time, `0` shows the whole, the arrows move the
/// view, with Ctrl the cursor goes from point to point of its curve, Home and End put it on the
/// first and the last visible one. False for a key that means nothing here.
bool PresserTouche(DessinGraphe& vue, int touche, Qt::KeyboardModifiers avec = {});

}  // namespace bornika
