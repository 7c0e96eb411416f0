#include "usb/usb_library.h"

#include <cerrno>

namespace bornika {

PeripheriqueUsb Reference(libusb_device* peripherique) {
    return PeripheriqueUsb(libusb_ref_device(peripherique), libusb_unref_device);
}

OuvertureUsb OuvrirPeripherique(libusb_device* peripherique, int& erreur) {
    libusb_device_handle* ouverture = nullptr;
    erreur = libusb_open(peripherique, &ouverture);
    return OuvertureUsb(erreur == LIBUSB_SUCCESS ? ouverture : nullptr);
}

std::uint32_t NumeroSysteme(int erreur) {
    switch (erreur) {
        case LIBUSB_SUCCESS:
            return 0;
        case LIBUSB_ERROR_INVALID_PARAM:
            return EINVAL;
        case LIBUSB_ERROR_ACCESS:
            return EACCES;
        case LIBUSB_ERROR_NO_DEVICE:
            return ENODEV;
        case LIBUSB_ERROR_NOT_FOUND:
            return ENOENT;
        case LIBUSB_ERROR_BUSY:
            return EBUSY;
        case LIBUSB_ERROR_TIMEOUT:
            return ETIMEDOUT;
        case LIBUSB_ERROR_OVERFLOW:
            return EOVERFLOW;
        case LIBUSB_ERROR_PIPE:
            return EPIPE;
        case LIBUSB_ERROR_INTERRUPTED:
            return EINTR;
        case LIBUSB_ERROR_NO_MEM:
            return ENOMEM;
        case LIBUSB_ERROR_NOT_SUPPORTED:
            return EOPNOTSUPP;
        default:
            return EIO;
    }
}

}  // namespace bornika
