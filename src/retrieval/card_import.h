#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include "link/station.h"

namespace bornika {

class AccesTrace;

/// The button "LireSD": joins the text files that the operator picks on the card into one recording
/// of the program's folder and shows its curve. Nothing in them is looked at: what they hold is
/// what the viewer accepts.
///
/// A logger that is read by cable (version below 2.11) is refused with a box; one whose version is
/// not known passes, so that a card can be read without its logger. A file that cannot be read, or
/// a recording that cannot be written, is a fault, and no part of a recording is left behind.
void LireSD(Poste& poste, AccesTrace& acces);

/// True for what the file dialog holds when it was cancelled: a pattern, "*.txt". So a file whose
/// name has a star is never imported.
bool EstSansChoix(const QString& nom);

/// True when the card's log of starts, which is no recording, is named anywhere in the text of the
/// dialog, in any case of letters.
bool NommeJournalDemarrage(const QString& nom);

/// Paths of the picked files in the order of the dialog. `nom` is one path, or a folder and names
/// separated by NUL.
QStringList FichiersChoisis(const QString& nom);

/// Bare name of a new recording in `dossier`, from that date and time; later by as many seconds as
/// it takes not to touch a recording that is there.
QString NomEnregistrementLibre(const QString& dossier, QDateTime instant);

/// Writes the files one after the other, byte by byte and with nothing between them, into the new
/// file `cible`, which appears when it is whole. Fault 53 or 70 for a source, 61 or 70 for the
/// target; its text begins with the name of the file.
void JoindreFichiers(const QStringList& sources, const QString& cible);

}  // namespace bornika
