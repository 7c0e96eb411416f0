#pragma once

#include <QString>

#include "recording/decimal_separator.h"

namespace bornika {

struct FicheChargement;

/// Reads one recording file into the chart, letting the user interface run meanwhile.
///
/// `init` clears the chart, the list `Curseur` and the limits first; `Multi` leaves out the
/// smoothing series and the choice of the active ones; `Reload` keeps the flow settings of the form
/// instead of taking those of the file. `Mini` and `Maxi` are widened to the time stamps met.
/// Whatever is wrong with the file is a fault: what was read so far stays in the chart.
void TraceCourbe(FicheChargement& fiche, const QString& NomFichier, bool init, bool Multi,
                 double& Mini, double& Maxi, bool Reload);

}  // namespace bornika
