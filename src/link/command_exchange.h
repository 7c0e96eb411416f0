#pragma once

#include <span>

#include "link/bytes.h"
#include "link/station.h"

namespace bornika {

/// Sends the 8-byte frame `code`, `extracode`, six zeros, and reads `combien` bytes into `buffer`
/// from index 1. The link must be open. False when the logger did not answer: `TimeOut` is then
/// set, the link closed, `buffer` untouched, and the text "k-Pod Absent" was shown if `erreur`.
bool Envoi_Entete(Poste& poste, int code, Tampon& buffer, int combien, bool erreur,
                  int extracode = 0);

/// Reads `combien` bytes of an answer, with the text "k-Pod Absent" shown on silence if `erreur`.
/// Zeros when nothing came: `TimeOut` is then set and the link closed.
Octets LireReponse(Poste& poste, int combien, bool erreur = true);

/// Sends a frame of its own and reads its answer as `LireReponse` does: the shape of every command
/// outside `Envoi_Entete`.
Octets EchangeDirect(Poste& poste, std::span<const int> trame, int longueur, int combien,
                     bool erreur = true);

}  // namespace bornika
