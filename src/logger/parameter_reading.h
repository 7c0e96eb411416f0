#pragma once

#include "link/station.h"

namespace bornika {

/// The button "Lire": version and type of the chosen logger, its parameters, its clock correction.
/// Without a chosen logger nothing is sent.
void Lire(Poste& poste);

/// Reads everything that the logger knows of its set-up and shows it on the form; rebuilds the
/// report and the calibration figures. After a complete run `TimeOut` is false. A silent logger
/// ends the sequence: what was read up to there stays shown, the rest keeps its old content. A
/// logger in calibration ends it with a box, the link left open.
void Lire_Parametres(Poste& poste);

}  // namespace bornika
