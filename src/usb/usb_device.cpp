#include "usb/usb_device.h"

#include <algorithm>

namespace bornika {

namespace {

// How long the way from a logger has to be silent to count as empty, beside the time between two
// polls of it.
constexpr int silenceMs = 50;
constexpr std::size_t placeVidage = 1024;
// So many transfers at most, lest the program hang with a logger that never stops talking.
constexpr int transfertsVidage = 16;

}  // namespace

std::shared_ptr<AppareilUsb> AppareilUsb::Ouvrir(const EnregistreurUsb& enregistreur, int& erreur) {
    libusb_device* const peripherique = enregistreur.peripherique.get();
    OuvertureUsb ouverture = OuvrirPeripherique(peripherique, erreur);
    if (!ouverture) return {};
    const int interface = enregistreur.reglage.Interface;
    // Where the system knows no detaching, there is no driver in the way either.
    libusb_set_auto_detach_kernel_driver(ouverture.get(), 1);
    erreur = libusb_claim_interface(ouverture.get(), interface);
    if (erreur != LIBUSB_SUCCESS) return {};
    const std::shared_ptr<AppareilUsb> appareil(
        new AppareilUsb(enregistreur, std::move(ouverture)));
    // Setting 0 is in force after a claim, and some devices refuse to be told so.
    const int alternatif = enregistreur.acces.alternatif;
    if (alternatif != 0)
        erreur =
            libusb_set_interface_alt_setting(appareil->ouverture_.get(), interface, alternatif);
    return erreur == LIBUSB_SUCCESS ? appareil : nullptr;
}

AppareilUsb::AppareilUsb(const EnregistreurUsb& enregistreur, OuvertureUsb ouverture)
    : peripherique_(enregistreur.peripherique),
      reglage_(enregistreur.reglage),
      points_(enregistreur.acces.points),
      ligne_(enregistreur.ligne),
      ouverture_(std::move(ouverture)) {}

AppareilUsb::~AppareilUsb() {
    libusb_release_interface(ouverture_.get(), reglage_.Interface);
}

int AppareilUsb::Transferer(const PointUsb& point, std::size_t longueur, int delai,
                            int& transferes) {
    transferes = 0;
    const auto transfert = point.interruption ? libusb_interrupt_transfer : libusb_bulk_transfer;
    const int erreur =
        transfert(ouverture_.get(), point.adresse, tampon_.data(), static_cast<int>(longueur),
                  &transferes, static_cast<unsigned>(delai));
    if (erreur == LIBUSB_ERROR_PIPE) libusb_clear_halt(ouverture_.get(), point.adresse);
    if (erreur == LIBUSB_ERROR_NO_DEVICE) perdu_ = true;
    return erreur;
}

void AppareilUsb::Vider() {
    const std::size_t place = PlaceEnPaquets(placeVidage, points_.entree.paquet);
    tampon_.resize(std::max(tampon_.size(), place));
    for (int i = 0; i < transfertsVidage && !perdu_; ++i) {
        int recus = 0;
        const int erreur =
            Transferer(points_.entree, place, silenceMs + points_.entree.intervalle, recus);
        if (erreur == LIBUSB_ERROR_TIMEOUT && recus == 0) break;
    }
    *ligne_ = {false, false};
}

int AppareilUsb::Ecrire(std::span<const std::uint8_t> octets) {
    if (octets.empty()) return LIBUSB_SUCCESS;
    if (ligne_->aVider) Vider();
    tampon_.resize(std::max(tampon_.size(), octets.size()));
    std::copy(octets.begin(), octets.end(), tampon_.begin());
    int envoyes = 0;
    const int erreur = Transferer(points_.sortie, octets.size(), reglage_.Delai, envoyes);
    // Until it is read, the answer is one that nobody waits for.
    ligne_->aVider = envoyes > 0;
    if (static_cast<std::size_t>(envoyes) == octets.size()) return LIBUSB_SUCCESS;
    return erreur != LIBUSB_SUCCESS ? erreur : LIBUSB_ERROR_IO;
}

int AppareilUsb::Lire(std::span<std::uint8_t> octets, int& erreur) {
    erreur = LIBUSB_SUCCESS;
    if (octets.empty()) return 0;
    const std::size_t place = PlaceEnPaquets(octets.size(), points_.entree.paquet);
    tampon_.resize(std::max(tampon_.size(), place));
    int recus = 0;
    erreur = Transferer(points_.entree, place, reglage_.Delai, recus);
    // Not an empty answer but the end of the one before.
    if (erreur == LIBUSB_SUCCESS && recus == 0 && ligne_->finPossible)
        erreur = Transferer(points_.entree, place, reglage_.Delai, recus);
    // A packet larger than the endpoint's own: nothing says which of the bytes are whole.
    if (erreur == LIBUSB_ERROR_OVERFLOW) recus = 0;
    ligne_->finPossible = static_cast<std::size_t>(recus) == place;
    ligne_->aVider = erreur != LIBUSB_SUCCESS || recus == 0;
    const std::size_t rendus = std::min(static_cast<std::size_t>(recus), octets.size());
    std::copy_n(tampon_.begin(), rendus, octets.begin());
    return static_cast<int>(rendus);
}

}  // namespace bornika
