#pragma once

#include <array>
#include <cstdint>

#include "link/station.h"

namespace bornika {

/// Reply of a command: the first reply byte (r0) lands at index 1, and index 0 keeps what it held.
using Tampon = std::array<std::uint8_t, 17>;

/// High and low byte of a value rounded half to even, 0 to 65535; fault 6 outside.
std::uint8_t MSB(double x);
std::uint8_t LSB(double x);

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
