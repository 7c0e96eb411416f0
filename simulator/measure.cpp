#include "simulator/measure.h"

#include <bit>

namespace bornika::simulateur {

namespace {

constexpr int rangDrapeaux = 6;
constexpr int bitPresence = 0x80;
constexpr int bitPropre = 0x04;

int Parite(int octet) {
    return std::popcount(static_cast<unsigned>(octet & 0xFF)) & 1;
}

void PoserParitePropre(MesureEnFlash& mesure) {
    const int reste = mesure[rangDrapeaux] & ~bitPropre;
    const int propre = Parite(reste) != 0 ? bitPropre : 0;
    mesure[rangDrapeaux] = static_cast<std::uint8_t>(reste | propre);
}

MesureEnFlash Construire(int fraction, std::uint32_t secondes, int points) {
    MesureEnFlash mesure{};
    mesure[0] = static_cast<std::uint8_t>(fraction >> 8);
    mesure[1] = static_cast<std::uint8_t>(fraction);
    for (std::size_t i = 0; i < 4; ++i) {
        mesure[2 + i] = static_cast<std::uint8_t>(secondes >> (24 - 8 * i));
    }
    mesure[rangDrapeaux] = static_cast<std::uint8_t>((points >> 8) & 3);
    mesure[7] = static_cast<std::uint8_t>(points);
    return AvecParite(mesure);
}

}  // namespace

MesureEnFlash MesurePeriodique(std::uint32_t secondes, int points) {
    return Construire(0, secondes, points);
}

MesureEnFlash MesureImpulsion(std::uint32_t secondes, int huitiemes, int points) {
    return Construire((huitiemes & 0xFF) * 256 + 1, secondes, points);
}

MesureEnFlash SansParite(MesureEnFlash mesure) {
    mesure[rangDrapeaux] &= 3;
    return mesure;
}

MesureEnFlash AvecParite(MesureEnFlash mesure) {
    int drapeaux = (mesure[rangDrapeaux] & 3) | bitPresence;
    for (std::size_t i = 0; i < 4; ++i) {
        if (Parite(mesure[2 + i]) != 0) drapeaux |= 0x40 >> i;
    }
    mesure[rangDrapeaux] = static_cast<std::uint8_t>(drapeaux);
    PoserParitePropre(mesure);
    return mesure;
}

MesureEnFlash PariteCassee(MesureEnFlash mesure, int bit) {
    mesure = AvecParite(mesure);
    mesure[rangDrapeaux] = static_cast<std::uint8_t>(mesure[rangDrapeaux] ^ (1 << bit));
    if (bit != 2) PoserParitePropre(mesure);
    return mesure;
}

MesureEnFlash CelluleEffacee() {
    MesureEnFlash mesure;
    mesure.fill(0xFF);
    return mesure;
}

std::vector<MesureEnFlash> GroupeMemeSeconde(std::uint32_t secondes, std::span<const int> points) {
    std::vector<MesureEnFlash> groupe;
    for (const int valeur : points)
        groupe.push_back(MesurePeriodique(secondes, valeur));
    return groupe;
}

}  // namespace bornika::simulateur
