#include "service/pulse_parameters.h"

#include <array>
#include <bit>
#include <cstdint>

#include "platform/fault.h"
#include "retrieval/memory_access.h"

namespace bornika {

namespace {

constexpr int adressePoidsImpulsion = 112;
constexpr int adresseTempsDebit = 125;
constexpr std::size_t octetsSimple = 4;

float LireSimple(Poste& poste, int adresse) {
    const Octets octets = LitEEpromInterne(poste, adresse, true);
    return poste.ecran.etat.TimeOut ? 0.0F : SimpleDepuisOctets(octets);
}

}  // namespace

float SimpleDepuisOctets(const Octets& octets) {
    if (octets.size() < octetsSimple) LeverFaute(numero_faute::indice);
    std::uint32_t bits = 0;
    for (std::size_t i = octetsSimple; i > 0; --i) {
        bits = bits << 8U | static_cast<std::uint32_t>(octets[i - 1]);
    }
    return std::bit_cast<float>(bits);
}

void LitPoidsImpulsion(Poste& poste, float& valeur) {
    valeur = LireSimple(poste, adressePoidsImpulsion);
}

void LitTempsDebit(Poste& poste, float& valeur) {
    valeur = LireSimple(poste, adresseTempsDebit);
}

}  // namespace bornika
