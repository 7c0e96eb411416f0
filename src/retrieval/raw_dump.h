#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "link/station.h"
#include "platform/regional.h"
#include "retrieval/stored_measure.h"

/// The flash memory as it is, cell by cell, whether or not a measure stands there.
namespace bornika {

/// Name of a dump made at `instant`, without extension: "2026-3-5-14-7-9", nothing padded, unlike
/// the name of a recording.
QString NomDeDump(const QDateTime& instant);

/// Line of a cell, 8-bit, without line end: time stamp, date, points, pressure, fraction.
QByteArray LigneDump(const Enregistrement& cellule, double pression, const Regional& regional);

/// Writes every cell of the pages `PageDebut` to `PageFin` (16 bits each) to a ".dmp" file in the
/// program's folder and names it in a box. The parameters are read first: a logger that is silent
/// then ends it, and the button stays disabled.
///
/// A cell that cannot be read repeats what the last good one gave; the first one says "k-Pod
/// Absent" and, `TimeOut` standing, no further one is read. A line that cannot be written ends the
/// dump with a box. Closing the main form ends it without any. Fault when the file cannot be made.
void LectureValeursPage(Poste& poste, int PageDebut, int PageFin);

}  // namespace bornika
