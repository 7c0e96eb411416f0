#pragma once

#include <libusb.h>

#include <cstdint>
#include <vector>

#include "usb_mock/mock/usb_testbed.h"

namespace bornika::essai {

/// The USB library with nothing of the program in between.
class UsbNu {
  public:
    struct Resultat {
        int erreur = 0;
        std::vector<std::uint8_t> octets;
    };

    UsbNu();
    ~UsbNu();
    UsbNu(const UsbNu&) = delete;
    UsbNu& operator=(const UsbNu&) = delete;

    /// Addresses of the devices that `fiche` describes, in the order of the bus.
    std::vector<int> Adresses(const FicheUsb& fiche = {});
    /// A handle on the device of that address; null and `erreur` set when it cannot be had.
    libusb_device_handle* Ouvrir(int adresse);
    Resultat Lire(libusb_device_handle* poignee, int longueur, unsigned delai = 1000);
    int Ecrire(libusb_device_handle* poignee, std::vector<std::uint8_t> octets);
    /// Sends a frame and reads its answer with a buffer of one packet.
    Resultat Echanger(libusb_device_handle* poignee, const std::vector<std::uint8_t>& trame);

    int erreur = 0;

  private:
    libusb_context* contexte_ = nullptr;
};

}  // namespace bornika::essai
