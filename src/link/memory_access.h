#pragma once

#include <span>

#include "link/station.h"

/// The direct commands on the logger's memories. A failed read shows the text "k-Pod Absent"
/// and sets `TimeOut`; none of them clears it.
namespace bornika {

/// Bytes that one read of the flash or of the internal memory brings.
inline constexpr int longueurCellule = 8;

/// Reads or writes the flash at byte `offset` of `page` (16 bits each, any offset). Opens the link
/// and closes it again.
///
/// `lecture` true: gives the 8 bytes at that address, nothing when the logger did not answer.
/// `lecture` false: sends `Valeurs(0..6)` as the first frame, and then always raises fault 9: the
/// second frame is built in the one-byte answer of the first and never leaves. Nothing is given.
Octets Memoire_Flash(Poste& poste, bool lecture, int page, int offset, const Octets& Valeurs = {});

/// Writes one byte into the internal memory at a 16-bit address, waits 50 ms and gives the value
/// that the logger stored, 0 when it did not answer. The caller holds the link open.
int EcritEEpromInterne(Poste& poste, int adresse, int valeur);

/// Writes them one after the other from an address on. A logger that stays silent is sent the rest
/// all the same.
void EcritOctetsInternes(Poste& poste, int adresse, std::span<const int> octets);

/// The 8 bytes of the internal memory from a 16-bit address on, nothing when the logger did not
/// answer. With `ouvrir` the link is opened and closed here, otherwise the caller holds it open. A
/// failed read closes it in either case.
Octets LitEEpromInterne(Poste& poste, int adresse, bool ouvrir);

/// Makes the logger write its context into its internal memory, which takes it a second. The caller
/// holds the link open.
void ForceContexte(Poste& poste);

}  // namespace bornika
