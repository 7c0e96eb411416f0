#pragma once

#include <QString>

namespace bornika {

class Trace;

/// The button `Imprimer`: a preview of the chart on paper, from which the operator prints. The
/// title is made anew from the comment. With `MinMaxMoy` checked the annotation of the template
/// carries the statistics as long as the preview stands.
///
/// Fault 9 for a chart of fewer than five tools, as without template: before the preview when the
/// statistics are wanted, after it when not, as the annotation is put away in any case.
void Imprimer_Click(Trace& trace);

/// "curve : Min= 4.00 < Moy.= 4.25 < Max= 4.49" from what the form shows. Without a cursor the
/// curve is the first one.
QString TexteStatistiques(const Trace& trace);

}  // namespace bornika
