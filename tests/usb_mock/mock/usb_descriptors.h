#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bornika::essai {

/// In the address of an endpoint and in a request: towards the host.
inline constexpr std::uint8_t versHote = 0x80;

/// The standard request for a descriptor, and the kind of those that are texts.
inline constexpr std::uint8_t lireDescripteur = 6;
inline constexpr std::uint8_t descripteurTexte = 3;

/// What a device says of itself when it is plugged in.
struct FicheUsb {
    std::uint16_t vendeur = 0xFEED;
    std::uint16_t produit = 0xB001;
    /// Text of the serial number; "" for a device without one.
    std::string serie = {};
    /// The text is announced, but whoever asks for it gets a stall.
    bool serieIllisible = false;
    /// The interface that carries the frames. Those before it have endpoints of their own.
    std::uint8_t interface = 0;
    /// The alternate setting of that interface that has the endpoints.
    std::uint8_t alternatif = 0;
    std::uint8_t sortie = 0x01;
    std::uint8_t entree = 0x81;
    /// Interrupt endpoints in place of bulk ones.
    bool interruption = false;
    /// Largest packet of both endpoints, in bytes.
    std::uint16_t paquet = 64;
    /// An answer that ends with a full packet is followed by an empty one.
    bool paquetVideFinal = false;
    /// A driver of the system sits on the interface that carries the frames.
    bool pilote = false;
    /// The system has chosen no configuration for the device.
    bool sansConfiguration = false;
};

/// The device descriptor and behind it the one configuration with its interface and endpoints.
std::vector<std::uint8_t> Descripteurs(const FicheUsb& fiche);

/// String descriptor 0 (languages) or 3 (serial number); empty when the device has none there.
std::vector<std::uint8_t> DescripteurTexte(const FicheUsb& fiche, int index);

}  // namespace bornika::essai
