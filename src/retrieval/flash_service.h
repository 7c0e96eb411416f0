#pragma once

#include <QString>
#include <span>

#include "link/station.h"

/// The service controls that read and write eight bytes of the flash memory by hand.
namespace bornika {

/// The bytes in decimal, a blank in front of each.
QString TexteOctets(std::span<const int> octets);

/// The eight values behind the blank that begins such a text; what follows them is left aside.
/// Fault 9 for fewer than eight, 13 for what is no number, 6 beyond 16 bits.
Octets ValeursDuTexte(const QString& texte, const Regional& regional);

/// Reads eight bytes at the address of the boxes `page` and `offset`, and shows them in `resultat`
/// and, as a stored measure, in `ResultatMesure`. Fault 13 for an address that is no number, 6 for
/// one beyond 16 bits; every later fault is ignored. A logger that does not answer shows "k-Pod
/// Absent" and sets `TimeOut`: `resultat` is then empty, and the measure is made of zeros.
void LireLaFlash(Poste& poste);

/// Sends the values of `resultat` to the flash memory at the address of the boxes. The first value
/// goes out in place of the command code, the last one never. As soon as the logger has answered,
/// fault 9 ends the operation, on purpose: the memory itself is not written. Faults of the texts
/// as above.
void EcrireLaFlash(Poste& poste);

}  // namespace bornika
