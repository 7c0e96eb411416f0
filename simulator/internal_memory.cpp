#include "simulator/internal_memory.h"

#include <bit>

namespace bornika::simulateur {

std::uint8_t MemoireInterne::Octet(int ou) const {
    if (ou < 0 || ou >= taille) return 0xFF;
    return octets_[static_cast<std::size_t>(ou)];
}

std::uint16_t MemoireInterne::Mot(int ou) const {
    return static_cast<std::uint16_t>(Octet(ou) | (Octet(ou + 1) << 8));
}

std::uint32_t MemoireInterne::DoubleMot(int ou) const {
    return static_cast<std::uint32_t>(Mot(ou)) | (static_cast<std::uint32_t>(Mot(ou + 2)) << 16);
}

float MemoireInterne::Flottant(int ou) const {
    return std::bit_cast<float>(DoubleMot(ou));
}

std::string MemoireInterne::Texte(int ou, int longueur) const {
    std::string texte;
    for (int i = 0; i < longueur; ++i)
        texte.push_back(static_cast<char>(Octet(ou + i)));
    return texte;
}

void MemoireInterne::EcrireOctet(int ou, int valeur) {
    if (ou < 0 || ou >= taille) return;
    octets_[static_cast<std::size_t>(ou)] = static_cast<std::uint8_t>(valeur);
}

void MemoireInterne::EcrireMot(int ou, int valeur) {
    EcrireOctet(ou, valeur & 0xFF);
    EcrireOctet(ou + 1, (valeur >> 8) & 0xFF);
}

void MemoireInterne::EcrireDoubleMot(int ou, std::uint32_t valeur) {
    EcrireMot(ou, static_cast<int>(valeur & 0xFFFF));
    EcrireMot(ou + 2, static_cast<int>(valeur >> 16));
}

void MemoireInterne::EcrireFlottant(int ou, float valeur) {
    EcrireDoubleMot(ou, std::bit_cast<std::uint32_t>(valeur));
}

void MemoireInterne::EcrireTexte(int ou, int longueur, std::string_view texte) {
    for (int i = 0; i < longueur; ++i) {
        const auto rang = static_cast<std::size_t>(i);
        EcrireOctet(ou + i, rang < texte.size() ? static_cast<std::uint8_t>(texte[rang]) : ' ');
    }
}

}  // namespace bornika::simulateur
