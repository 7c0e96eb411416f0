#pragma once

namespace bornika {

class Trace;

/// An entry of `Curseur` was chosen. The marks of all curves go, and `Marques` with them. A curve
/// gets a new white cursor tool that follows the mouse, behind the colour lines; "no cursor" turns
/// the one that stands black and disables `Marques`.
///
/// Without the tools of the template, or without that curve, no cursor is made, silently.
void Curseur_Click(Trace& trace);

/// The check box `Marques`: point value marks of the chosen curve, nothing without a chosen one.
void Marques_Click(Trace& trace);

/// The mouse moved over the chart: value and time under it, or under the cursor, into `pression`
/// and `date`, and the name of the value into `LabelPression`. From the fourth curve on nothing is
/// shown. A fault ends it silently: the boxes keep what they show.
void AfficheCurseur(Trace& trace);

}  // namespace bornika
