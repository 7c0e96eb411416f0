#pragma once

#include <QString>

namespace bornika {

class Trace;

/// Entry of the main form after a download: `NomDialogue` holds the bare name of a file in the
/// program's folder, which is loaded.
void chart_Init(Trace& trace);

/// Loads one recording, or several of one folder (folder and names separated by NUL), into the
/// chart and finishes the chart. `Reload` keeps the flow settings of the form.
///
/// Nothing happens while a load runs already. Every fault on the way is ignored: the chart shows
/// what was read. A form that is closed meanwhile leaves without finishing the chart.
void ChargeCourbes(Trace& trace, const QString& NomFichier, bool Reload);

/// Caption of the form and `NomFichierCourant`. A list of several files is shown up to its folder.
void FixerFichierCourant(Trace& trace, const QString& nom);

// Kept as the form's interface; nothing in the program calls them.

/// Adds one curve.
void Chart_Add_Serie(Trace& trace);
/// Adds to the first curve the point given as two number texts, without a label, and sets the
/// points of a page. Fault 13 for a text that is no number, 9 without a curve.
void Chart_Add_Point(Trace& trace, const QString& X, const QString& Y, int PointsParPage = 0);
/// Redraws the chart.
void Chart_Refresh(Trace& trace);

}  // namespace bornika
