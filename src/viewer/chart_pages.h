#pragma once

namespace bornika {

class Trace;

/// Points of a page when the operator asks for pages.
inline constexpr int pointsParPage = 100;
/// Points of a page when `Pages` is still checked at the end of a load, which it never is: the load
/// has just unchecked it.
inline constexpr int pointsParPageChargement = 1000;

/// The check box `Pages`: pages of 100 points with the navigator, or no pages.
void Pages_Click(Trace& trace);

/// The chart was zoomed: a zoomed chart cannot be paged.
void TChart1_Zoom(Trace& trace);
/// The zoom was undone: the navigator comes back, deliberately also when `Pages` is unchecked.
void TChart1_UndoZoom(Trace& trace);

/// Pages of that many points, 0 for none; the first one is shown, and `ChartPageNavigator` tells
/// it.
void FixerPages(Trace& trace, int points);
/// Shows a page, from 0.
void MontrerPage(Trace& trace, int page);

}  // namespace bornika
