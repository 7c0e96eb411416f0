#pragma once

#include <QPoint>

namespace bornika {

class Trace;

/// The context menu of the chart, at a place of it. It does not wait: its entries raise their own
/// events.
void MontrerMenuGraphe(Trace& trace, QPoint place);

/// The entries `Agrandir`, `Reduire`, `VueEntiere`, `PointPrecedent` and `PointSuivant`: what the
/// key named beside each does on the chart. They tell the operator which keys there are.
void Agrandir_Click(Trace& trace);
void Reduire_Click(Trace& trace);
void VueEntiere_Click(Trace& trace);
void PointPrecedent_Click(Trace& trace);
void PointSuivant_Click(Trace& trace);

/// The entry `CopierImage`: the chart as a picture into the clipboard.
void CopierImage_Click(Trace& trace);

/// The entries `EnregistrerPng` and `EnregistrerPdf`: ask for a file and write the chart into it,
/// as it stood when the entry was chosen. A file that cannot be written is told in a box; one that
/// was there before then stays as it was.
void EnregistrerPng_Click(Trace& trace);
void EnregistrerPdf_Click(Trace& trace);

}  // namespace bornika
