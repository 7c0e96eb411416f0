#pragma once

namespace bornika {

class Trace;

/// The scroll bar `Lissage` was moved: its value becomes the period, in points, of the smoothed
/// curves that are switched on. A hidden one keeps its period until it is shown and the bar moved
/// again. Curves that are no smoothing, as those of a second file, are left alone.
void Lissage_Change(Trace& trace);

}  // namespace bornika
