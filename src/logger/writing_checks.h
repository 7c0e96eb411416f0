#pragma once

#include <optional>

#include "link/command_exchange.h"

/// What is asked of the logger before anything is written to it. The link is open.
namespace bornika {

enum class EtatCarte { Presente, Absente, SansReponse };

/// Asks a logger of the card family for its card and shows the answer in `SDCardState`; a box tells
/// of a missing one. Other products always pass. A silent logger was told of by the exchange.
EtatCarte ControlerCarte(Poste& poste);

/// Index of the sensor that an answer to `CMD_LIT_DATE_ETALONNAGE` tells of, when it is another one
/// than `choisi` and one of the `nombre` that the list knows. Nothing for a logger that was never
/// calibrated and for an answer of another command.
std::optional<int> AutreCapteur(const VueReponse& reponse, int choisi, int nombre);

/// Compares the chosen scale with the calibrated sensor; a box tells of a difference, and the
/// result is then false. A logger that does not know the question passes: the link is opened again
/// for what follows.
bool ControlerCapteur(Poste& poste);

}  // namespace bornika
