#include "usb_mock/bare_usb.h"

#include <stdexcept>

namespace bornika::essai {

namespace {

constexpr int unPaquet = 64;

}  // namespace

UsbNu::UsbNu() {
    if (libusb_init(&contexte_) != LIBUSB_SUCCESS)
        throw std::runtime_error("the USB library does not begin");
}

UsbNu::~UsbNu() {
    libusb_exit(contexte_);
}

std::vector<int> UsbNu::Adresses(const FicheUsb& fiche) {
    std::vector<int> adresses;
    libusb_device** liste = nullptr;
    const auto nombre = libusb_get_device_list(contexte_, &liste);
    for (ssize_t i = 0; i < nombre; ++i) {
        libusb_device_descriptor d{};
        libusb_get_device_descriptor(liste[i], &d);
        if (d.idVendor == fiche.vendeur && d.idProduct == fiche.produit)
            adresses.push_back(libusb_get_device_address(liste[i]));
    }
    libusb_free_device_list(liste, 1);
    return adresses;
}

libusb_device_handle* UsbNu::Ouvrir(int adresse) {
    erreur = LIBUSB_ERROR_NO_DEVICE;
    libusb_device_handle* poignee = nullptr;
    libusb_device** liste = nullptr;
    const auto nombre = libusb_get_device_list(contexte_, &liste);
    for (ssize_t i = 0; i < nombre; ++i)
        if (libusb_get_device_address(liste[i]) == adresse)
            erreur = libusb_open(liste[i], &poignee);
    libusb_free_device_list(liste, 1);
    return poignee;
}

UsbNu::Resultat UsbNu::Lire(libusb_device_handle* poignee, int longueur, unsigned delai) {
    Resultat resultat;
    resultat.octets.resize(static_cast<std::size_t>(longueur));
    int recus = 0;
    resultat.erreur = libusb_bulk_transfer(poignee, FicheUsb{}.entree, resultat.octets.data(),
                                           longueur, &recus, delai);
    resultat.octets.resize(static_cast<std::size_t>(recus));
    return resultat;
}

int UsbNu::Ecrire(libusb_device_handle* poignee, std::vector<std::uint8_t> octets) {
    int envoyes = 0;
    return libusb_bulk_transfer(poignee, FicheUsb{}.sortie, octets.data(),
                                static_cast<int>(octets.size()), &envoyes, 1000);
}

UsbNu::Resultat UsbNu::Echanger(libusb_device_handle* poignee,
                                const std::vector<std::uint8_t>& trame) {
    const int refus = Ecrire(poignee, trame);
    if (refus != LIBUSB_SUCCESS) return {refus, {}};
    return Lire(poignee, unPaquet);
}

}  // namespace bornika::essai
