#pragma once

#include <QByteArray>

#include "context/context_fields.h"
#include "link/station.h"

namespace bornika {

/// The text of the dump, 8-bit, with CR LF: one line for each 8 bytes, an empty line, one line for
/// each named field, an empty line. `echelles` are the texts of the list of scales.
QByteArray TexteContexte(const BlocContexte& bloc, const QStringList& echelles,
                         const Regional& regional);

/// Reads the logger's whole context and writes it to a text file that the operator names; the
/// program's folder and "Contexte.txt" are offered.
///
/// A logger that stops answering ends it after the text "k-Pod Absent", without dialog and file;
/// with `TimeOut` set beforehand it ends at once and silently. A file that is there already is
/// replaced whole or not at all: a full disk is told in a box, and any other reason why the file
/// cannot be made is a fault (70).
void DumpContexte(Poste& poste);

}  // namespace bornika
