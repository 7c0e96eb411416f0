#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "simulator/simulated_bus.h"

namespace bornika::essai {

/// Device seconds of 5 March 2026, 14:07:09.
inline constexpr std::uint32_t maintenant = 1772719629;

using ListeOctets = std::vector<std::uint8_t>;

/// Bytes of a list of numbers.
inline ListeOctets Octets8(std::initializer_list<int> valeurs) {
    ListeOctets octets;
    for (const int valeur : valeurs)
        octets.push_back(static_cast<std::uint8_t>(valeur));
    return octets;
}

/// The reply to a frame, without link in between.
inline ListeOctets Reponse(EnregistreurSimule& logger, std::initializer_list<int> trame) {
    return logger.Repondre(Octets8(trame)).Liste();
}

/// The reply to a command without arguments: its code and seven zeros.
inline ListeOctets ReponseA(EnregistreurSimule& logger, int code) {
    return Reponse(logger, {code, 0, 0, 0, 0, 0, 0, 0});
}

/// Bytes of the internal memory, read by the memory command.
inline ListeOctets Memoire(EnregistreurSimule& logger, int ou, int combien) {
    ListeOctets octets;
    while (static_cast<int>(octets.size()) < combien) {
        const int adresse = ou + static_cast<int>(octets.size());
        for (const std::uint8_t octet :
             Reponse(logger, {29, adresse / 256, adresse % 256, 32, 32, 32, 32, 32})) {
            if (static_cast<int>(octets.size()) < combien) octets.push_back(octet);
        }
    }
    return octets;
}

/// Both handles on one logger, and whole exchanges over the interface.
struct Ligne {
    Ligne(BusSimule& qui, IdentifiantUsb id)
        : bus(qui), ecriture(bus.Ouvrir(id)), lecture(bus.Ouvrir(id)) {}
    void Fermer() {
        bus.Fermer(lecture);
        bus.Fermer(ecriture);
    }
    bool Ecrire(std::initializer_list<int> trame) { return bus.Ecrire(ecriture, Octets8(trame)); }
    ListeOctets Lire(int combien) {
        ListeOctets place(static_cast<std::size_t>(combien), 0xEE);
        place.resize(static_cast<std::size_t>(bus.Lire(lecture, place)));
        return place;
    }
    ListeOctets Echange(std::initializer_list<int> trame, int combien) {
        Ecrire(trame);
        return Lire(combien);
    }
    BusSimule& bus;
    PoigneeUsb ecriture;
    PoigneeUsb lecture;
};

}  // namespace bornika::essai
