#pragma once

#include <QString>

#include "platform/text_file.h"

/// The comments beside a recording: a text file of the same name that ends in ".cmt".
namespace bornika {

/// Name of the comment file: the part of the recording's name before its first ".", then ".cmt".
QString NomCommentaires(const QString& nomEnregistrement);

/// Writes the text, its lines closed by CR LF, with one line end behind it. A file that cannot be
/// made or written is a fault (52, 61, 70 or 76) that bears the path.
void EcrireTexteCommentaires(const QString& chemin, const QString& texte, ModeEcriture mode);

/// The whole text of a comment file, line ends as they stand; "" when its first line is empty. An
/// empty file is made if there is none. Fault 70 for one that cannot be read, and the faults of the
/// making.
QString LireTexteCommentaires(const QString& chemin);

}  // namespace bornika
