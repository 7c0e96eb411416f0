#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

class QPagedPaintDevice;

namespace bornika {

class VueGraphe;

/// The chart as it stands, in the looks of paper, for what leaves the program. The cursor, which
/// follows the mouse, stays on the screen.

/// Paints it as vectors over the whole page within its margins. The page must have the resolution
/// of the screen.
void PeindreGraphe(const VueGraphe& vue, QPagedPaintDevice& page);

/// A picture of the size that the chart has on the screen, with twice as many pixels each way.
QImage ImageGraphe(const VueGraphe& vue);
QByteArray PngGraphe(const VueGraphe& vue);

/// A PDF document of one page of that size, as vectors.
QByteArray PdfGraphe(const VueGraphe& vue, const QString& titre);

}  // namespace bornika
