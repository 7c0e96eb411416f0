#include "retrieval/stored_measure.h"

#include <bit>
#include <limits>

#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int bitPariteLaMeme = 4;
constexpr int masqueSansPariteLaMeme = 251;
constexpr int bitPariteConnue = 128;

/// True when the result fits.
bool Tenir(std::int64_t valeur, std::int32_t& t) {
    if (valeur > std::numeric_limits<std::int32_t>::max()) return false;
    t = static_cast<std::int32_t>(valeur);
    return true;
}

}  // namespace

int Parite(int octet) {
    return std::popcount(static_cast<unsigned>(octet & 255)) & 1;
}

bool MemeEtat(int a, int b) {
    return (a == 0) == (b == 0);
}

void ControleParite(int index, std::span<const int> donnees, bool& resultat) {
    const auto debut = static_cast<std::size_t>(index);
    if (donnees.size() < debut + 9) LeverFaute(numero_faute::indice);
    const int drapeaux = donnees[debut + 8];
    resultat = true;
    if ((drapeaux & bitPariteConnue) == 0) return;
    int bit = 64;
    for (std::size_t i = debut + 4; i <= debut + 7 && resultat; ++i, bit /= 2)
        resultat = MemeEtat(Parite(donnees[i]), drapeaux & bit);
    if (resultat)
        resultat = MemeEtat(Parite(drapeaux & masqueSansPariteLaMeme), drapeaux & bitPariteLaMeme);
}

void DecoderHorodatage(std::span<const int, 4> octets, std::int32_t& t) {
    Tenir(std::int64_t{octets[0]} * 16777216, t);
    Tenir(std::int64_t{t} + octets[1] * 65536, t);
    Tenir(std::int64_t{t} + octets[2] * 256, t);
    Tenir(std::int64_t{t} + octets[3], t);
}

int Fraction(int haut, int bas) {
    return haut * 256 + bas;
}

int MillisecondesImpulsion(int fraction) {
    return fraction / 256 * 125;
}

int ValeurPoints(int drapeaux, int bas) {
    return (drapeaux & 3) * 256 + bas;
}

void DecoderEnregistrement(std::span<const int, 8> octets, Enregistrement& enregistrement) {
    enregistrement.fraction = Fraction(octets[0], octets[1]);
    DecoderHorodatage(octets.subspan<2, 4>(), enregistrement.horodatage);
    enregistrement.points = ValeurPoints(octets[6], octets[7]);
}

}  // namespace bornika
