#pragma once

#include <cstdint>
#include <span>

/// One measure as the logger stores it, 8 bytes: fraction (2), time stamp (4), flags (1), low part
/// of the value (1). All of it computes only.
namespace bornika {

/// 1 when the number of set bits of the byte is odd, 0 when it is even.
int Parite(int octet);

/// True when `a` and `b` are both zero or both non-zero.
bool MemeEtat(int a, int b);

/// Checks the parity bits of the measure in a download answer that begins at `index` of `donnees`:
/// `resultat` becomes false when a bit does not match. A measure without parity information passes.
/// The fraction and the low part of the value are not covered.
void ControleParite(int index, std::span<const int> donnees, bool& resultat);

/// Rebuilds the time stamp in `t` from its four bytes, most significant first, in four steps. A
/// step that would leave 32 signed bits is skipped, so that `t` keeps what it had: the cells of an
/// erased memory do that, and only with their first byte.
void DecoderHorodatage(std::span<const int, 4> octets, std::int32_t& t);

/// The fraction field, 0 on a periodic measure.
int Fraction(int haut, int bas);

/// Milliseconds of a pulse event: its high byte counts eighths of a second. 0 to 31875.
int MillisecondesImpulsion(int fraction);

/// Point value, 0 to 1023: the two low bits of the flags are its high part.
int ValeurPoints(int drapeaux, int bas);

/// A stored measure taken apart.
struct Enregistrement {
    int fraction = 0;
    /// Device time, in seconds.
    std::int32_t horodatage = 0;
    /// 0 to 1023.
    int points = 0;
};

/// Takes the 8 bytes of a stored measure apart, parity left aside. An erased cell leaves the time
/// stamp to `DecoderHorodatage`, and with it what `enregistrement` held.
void DecoderEnregistrement(std::span<const int, 8> octets, Enregistrement& enregistrement);

}  // namespace bornika
