#pragma once

#include "link/station.h"

namespace bornika {

/// The button "Ecrire": sends the recording set-up of the form to the chosen logger and reads it
/// back. The logger's recording is given up; the operator is asked first.
///
/// Without a card in a logger that needs one, on a cancel and for another sensor than the
/// calibrated one nothing is written and the link stays open: the next opening closes it. A logger
/// that falls silent in one of the five set-up frames ends the operation with the link closed; what
/// was sent before stays in it. The button is enabled again at each end but one: a logger whose
/// card could not be asked for.
void Ecrire(Poste& poste);

}  // namespace bornika
