#pragma once

namespace bornika {

class Trace;

/// Statistics of what is visible into the three colour lines and the boxes `Min`, `Max` and `Moy`.
/// `Marques` is cleared by it. With `MinMaxMoy` unchecked the lines are hidden and nothing is
/// computed.
///
/// A fault ends it silently: without visible point, without curve or without the lines of the
/// template, lines and boxes keep what they show.
void CalculeMinMaxMoy(Trace& trace);

/// The check box `MinMaxMoy`: shows or hides the boxes with their labels and the lines.
void MinMaxMoy_Click(Trace& trace);

}  // namespace bornika
