#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/usb_settings.h"

namespace bornika {

/// An endpoint as the descriptor of its interface has it.
struct PointDecrit {
    std::uint8_t adresse = 0;
    std::uint8_t attributs = 0;
    std::uint16_t paquet = 0;
    std::uint8_t intervalle = 0;
};

/// An endpoint that carries frames.
struct PointUsb {
    std::uint8_t adresse = 0;
    /// Interrupt transfers, bulk ones otherwise.
    bool interruption = false;
    /// Largest packet in bytes.
    int paquet = 0;
    /// Time between two polls of an interrupt endpoint in milliseconds, rounded up; 0 for bulk.
    int intervalle = 0;
};

struct PointsUsb {
    PointUsb sortie;
    PointUsb entree;
};

/// Where the frames of a product go on one device: the alternate setting of its interface that
/// carries them, and the endpoints there.
struct AccesUsb {
    int alternatif = 0;
    PointsUsb points;
};

/// The endpoint of each direction that the setting names, else the first one of that direction.
/// Only bulk and interrupt ones count. Nothing when one direction has none. `rapide` is a speed of
/// 480 Mbit/s or more, where polls are counted in microframes.
std::optional<PointsUsb> ChoisirPoints(const std::vector<PointDecrit>& decrits,
                                       const ReglageUsb& reglage, bool rapide);

/// Room for an answer of `longueur` bytes in whole packets, at least one: a device may always fill
/// the packet that it was asked for.
std::size_t PlaceEnPaquets(std::size_t longueur, int paquet);

}  // namespace bornika
