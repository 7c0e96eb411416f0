#pragma once

#include <QString>

namespace bornika {

class Trace;

// Export and EnregistrerSelection read the files of the view again, not the chart, which says only
// which span of time goes out: that of all curves as they are visible now, counted together. The
// view stays that of its source, and only the caption names the target.
//
// Every fault is a fault of the caller and names its file: a source that cannot be read or holds a
// line that is none, a target that cannot be written. What was written so far stays. A target that
// is itself one of the sources is replaced whole at the end, so that a fault leaves it as it was.

/// The button `Export`: asks for a file and writes the visible lines into it, three columns each.
void Export(Trace& trace);

/// The button `EnregistrerSelection`: asks for a file, writes the visible lines into it as a
/// recording, and the comments beside it.
void EnregistrerSelection(Trace& trace);

/// The button `Detruire`: deletes the file of the view after a question; the curves stay. Without a
/// file, or with several, a box says so and nothing is deleted. Fault 53 when the file is gone, 70
/// when it may not be deleted.
void Detruire(Trace& trace);

/// The hidden button `Command1`. Nothing fills the name of its file, so that it always ends in the
/// fault of an unreadable file.
void MiseAJourFichier(Trace& trace);

/// Writes a copy "MAJ_" of a recording of the program's folder, with each pressure worked out anew
/// from its points for a sensor of 16 bar. Fault 9 for a line of fewer than 4 fields, 13 for points
/// that are no number.
void MettreAJourFichier(Trace& trace, const QString& nom);

}  // namespace bornika
