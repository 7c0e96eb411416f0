#include "context/pulse_parameters.h"

#include <array>
#include <bit>
#include <cstdint>

#include "link/memory_access.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int adressePoidsImpulsion = 112;
constexpr int adresseTempsDebit = 125;
constexpr std::size_t octetsSimple = 4;

/// A failed read has brought no byte.
float SimpleLu(const Octets& octets) {
    return octets.empty() ? 0.0F : SimpleDepuisOctets(octets);
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

Octets OctetsDepuisSimple(float valeur) {
    const auto bits = std::bit_cast<std::uint32_t>(valeur);
    Octets octets;
    for (std::size_t i = 0; i < octetsSimple; ++i) {
        octets.push_back(static_cast<int>(bits >> 8U * i & 0xFFU));
    }
    return octets;
}

void LitPoidsImpulsion(Poste& poste, float& valeur) {
    valeur = SimpleLu(LitEEpromInterne(poste, adressePoidsImpulsion, true));
}

void LitTempsDebit(Poste& poste, float& valeur) {
    valeur = SimpleLu(LitEEpromInterne(poste, adresseTempsDebit, true));
}

void EcritPoidsImpulsion(Poste& poste, float valeur) {
    EcritOctetsInternes(poste, adressePoidsImpulsion, OctetsDepuisSimple(valeur));
}

void EcritTempsDebit(Poste& poste, float valeur) {
    EcritOctetsInternes(poste, adresseTempsDebit, OctetsDepuisSimple(valeur));
}

}  // namespace bornika
