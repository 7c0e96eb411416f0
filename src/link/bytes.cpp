#include "link/bytes.h"

#include "platform/numbers.h"

namespace bornika {

namespace {

/// Value of 16 bits, rounded half to even.
int MotDeValeur(double x) {
    const double arrondi = ArrondiPair(x);
    if (!(arrondi >= 0 && arrondi <= 65535)) LeverFaute(numero_faute::depassement);
    return static_cast<int>(arrondi);
}

}  // namespace

std::uint8_t MSB(double x) {
    return static_cast<std::uint8_t>(MotDeValeur(x) / 256);
}

std::uint8_t LSB(double x) {
    return static_cast<std::uint8_t>(MotDeValeur(x) % 256);
}

Octets EntierVersOctets(std::int32_t valeur) {
    const auto bits = static_cast<std::uint32_t>(valeur);
    Octets octets(4);
    for (unsigned i = 0; i < 4; ++i)
        octets[i] = static_cast<int>(bits >> (8 * i) & 255u);
    return octets;
}

std::int32_t OctetsVersEntier(const Octets& tableau) {
    if (tableau.size() != 4) return 0;
    const double v =
        tableau[3] * 16777216.0 + tableau[2] * 65536.0 + tableau[1] * 256.0 + tableau[0];
    return EnEntier32(v > 2147483647.0 ? -(4294967296.0 - v) : v);
}

}  // namespace bornika
