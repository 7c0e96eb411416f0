#pragma once

#include <QString>

#include "platform/regional.h"

namespace bornika {

struct FicheChargement;

/// The text of a number with the separator of the user's locale in the place of the other one, "."
/// or
/// ",". A locale with any third separator gives the empty text: it reads no number of a recording.
QString TraiteSeparateur(const QString& Valeur, const Regional& regional);

/// Reads one recording file into the chart, letting the user interface run meanwhile.
///
/// `init` clears the chart, the list `Curseur` and the limits first; `Multi` leaves out the
/// smoothing series and the choice of the active ones; `Reload` keeps the flow settings of the form
/// instead of taking those of the file. `Mini` and `Maxi` are widened to the time stamps met.
/// Whatever is wrong with the file is a fault: what was read so far stays in the chart.
void TraceCourbe(FicheChargement& fiche, const QString& NomFichier, bool init, bool Multi,
                 double& Mini, double& Maxi, bool Reload);

}  // namespace bornika
