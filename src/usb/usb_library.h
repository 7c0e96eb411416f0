#pragma once

#include <libusb.h>

#include <cstdint>
#include <memory>

namespace bornika {

/// The USB library's resources, given back by themselves.
struct FinContexteUsb {
    void operator()(libusb_context* contexte) const { libusb_exit(contexte); }
};
using ContexteUsb = std::unique_ptr<libusb_context, FinContexteUsb>;

struct FinOuvertureUsb {
    void operator()(libusb_device_handle* ouverture) const { libusb_close(ouverture); }
};
using OuvertureUsb = std::unique_ptr<libusb_device_handle, FinOuvertureUsb>;

/// A reference to a device: as long as one is held, no other device has the same address in memory.
using PeripheriqueUsb = std::shared_ptr<libusb_device>;
PeripheriqueUsb Reference(libusb_device* peripherique);

/// Opens the device. None when that fails; `erreur` then holds the library's number, 0 otherwise.
OuvertureUsb OuvrirPeripherique(libusb_device* peripherique, int& erreur);

/// A number of the library as the system would have it: 0, `EIO`, `ENODEV` and so on.
std::uint32_t NumeroSysteme(int erreur);

}  // namespace bornika
