#pragma once

#include <cstdint>
#include <optional>

namespace bornika {

/// The USB numbers of one product: what to look for and which of its endpoints carry the frames.
struct ReglageUsb {
    /// Time-out of a silent read in milliseconds where none is given, and the largest one.
    static constexpr int delaiParDefaut = 1000;
    static constexpr int delaiMaximal = 60000;

    /// As the device tells them. A product with vendor 0 is not looked for.
    std::uint16_t Vendeur = 0;
    std::uint16_t Produit = 0;
    /// The one of the device's interfaces that carries the frames.
    std::uint8_t Interface = 0;
    /// Endpoint addresses; left out, the first of each direction.
    std::optional<std::uint8_t> Sortie = std::nullopt;
    std::optional<std::uint8_t> Entree = std::nullopt;
    /// In milliseconds, from 1.
    int Delai = delaiParDefaut;
};

}  // namespace bornika
