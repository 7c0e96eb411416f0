#pragma once

#include <QString>

#include "platform/text_file.h"

namespace bornika {

class Trace;

/// Stores `Commentaires` beside the recordings: program's folder, the part of `repertoire` before
/// its first ".", ".cmt". An empty name gives a box and nothing else; a file that cannot be made is
/// a fault.
void EnregistrerCommentaires(Trace& trace, const QString& repertoire);

/// Writes `Commentaires` with one line end behind it into that file. A file that cannot be made or
/// written is a fault, which names it.
void EcrireCommentaires(Trace& trace, const QString& chemin, ModeEcriture mode);

/// Called at the start of each file that is loaded. It reads nothing: comment files are
/// deliberately never read back.
void LitCommentaires(Trace& trace);

/// Puts the comment file of a recording into `Commentaires`, an empty one being made if there is
/// none.
void LireFichierCommentaires(Trace& trace, const QString& repertoire);

}  // namespace bornika
