#include "usb/usb_scan.h"

#include <algorithm>
#include <array>
#include <span>

namespace bornika {

namespace {

constexpr int portsMaximaux = 7;

// The devices on the bus, each with a reference that ends with the list.
class ListeUsb {
  public:
    explicit ListeUsb(libusb_context* contexte)
        : nombre_(libusb_get_device_list(contexte, &liste_)) {}
    ~ListeUsb() {
        if (liste_ != nullptr) libusb_free_device_list(liste_, 1);
    }
    ListeUsb(const ListeUsb&) = delete;
    ListeUsb& operator=(const ListeUsb&) = delete;

    int Erreur() const { return nombre_ < 0 ? static_cast<int>(nombre_) : 0; }
    std::span<libusb_device* const> Peripheriques() const {
        return {liste_, nombre_ < 0 ? 0 : static_cast<std::size_t>(nombre_)};
    }

  private:
    libusb_device** liste_ = nullptr;
    ssize_t nombre_;
};

CheminUsb CheminDe(libusb_device* peripherique) {
    std::array<std::uint8_t, portsMaximaux> ports{};
    const int nombre = libusb_get_port_numbers(peripherique, ports.data(), portsMaximaux);
    CheminUsb chemin{libusb_get_bus_number(peripherique)};
    if (nombre > 0)
        chemin.insert(chemin.end(), ports.begin(), ports.begin() + nombre);
    else
        chemin.insert(chemin.end(), {0, libusb_get_device_address(peripherique)});
    return chemin;
}

std::vector<PointDecrit> PointsDecrits(const libusb_interface_descriptor& decrit) {
    std::vector<PointDecrit> points;
    for (const auto& point : std::span(decrit.endpoint, decrit.bNumEndpoints))
        points.push_back(
            {point.bEndpointAddress, point.bmAttributes, point.wMaxPacketSize, point.bInterval});
    return points;
}

// Setting 0 is looked at first. None also for a device that the system has not configured: it has
// its reasons, such as a hub that lacks the current for it.
std::optional<AccesUsb> AccesDe(libusb_device* peripherique, const ReglageUsb& reglage) {
    libusb_config_descriptor* configuration = nullptr;
    if (libusb_get_active_config_descriptor(peripherique, &configuration) != LIBUSB_SUCCESS)
        return {};
    const std::unique_ptr<libusb_config_descriptor, decltype(&libusb_free_config_descriptor)> garde(
        configuration, libusb_free_config_descriptor);
    const bool rapide = libusb_get_device_speed(peripherique) >= LIBUSB_SPEED_HIGH;
    for (const auto& interface : std::span(configuration->interface, configuration->bNumInterfaces))
        for (const auto& decrit :
             std::span(interface.altsetting, static_cast<std::size_t>(interface.num_altsetting))) {
            if (decrit.bInterfaceNumber != reglage.Interface) break;
            if (const auto points = ChoisirPoints(PointsDecrits(decrit), reglage, rapide))
                return AccesUsb{decrit.bAlternateSetting, *points};
        }
    return {};
}

// Empty when the device has none or does not tell it.
std::string SerieDe(libusb_device* peripherique, libusb_device_handle* ouverture) {
    libusb_device_descriptor descripteur{};
    libusb_get_device_descriptor(peripherique, &descripteur);
    if (descripteur.iSerialNumber == 0) return {};
    std::array<unsigned char, 256> texte{};
    const int longueur = libusb_get_string_descriptor_ascii(
        ouverture, descripteur.iSerialNumber, texte.data(), static_cast<int>(texte.size()));
    return longueur > 0 ? std::string(texte.begin(), texte.begin() + longueur) : std::string();
}

}  // namespace

RecensementUsb::RecensementUsb(std::vector<ReglageUsb> reglages) : reglages_(std::move(reglages)) {
    std::erase_if(reglages_, [](const ReglageUsb& reglage) { return reglage.Vendeur == 0; });
}

const ReglageUsb* RecensementUsb::ReglageDe(libusb_device* peripherique) const {
    libusb_device_descriptor descripteur{};
    if (libusb_get_device_descriptor(peripherique, &descripteur) != LIBUSB_SUCCESS) return nullptr;
    const auto trouve =
        std::find_if(reglages_.begin(), reglages_.end(), [&](const ReglageUsb& reglage) {
            return reglage.Vendeur == descripteur.idVendor &&
                   reglage.Produit == descripteur.idProduct;
        });
    return trouve == reglages_.end() ? nullptr : &*trouve;
}

void RecensementUsb::Noter(libusb_device* peripherique, const ReglageUsb& reglage,
                           std::map<libusb_device*, Fiche>& presentes) {
    const auto connue = fiches_.find(peripherique);
    if (connue != fiches_.end()) {
        presentes.insert(*connue);
        return;
    }
    const auto acces = AccesDe(peripherique, reglage);
    if (!acces) {
        sansPoints_ = true;
        return;
    }
    int erreur = 0;
    const OuvertureUsb ouverture = OuvrirPeripherique(peripherique, erreur);
    if (erreur == LIBUSB_ERROR_ACCESS) sansDroits_ = true;
    if (!ouverture) return;
    presentes[peripherique] = {
        {0, reglage, *acces, Reference(peripherique), std::make_shared<LigneUsb>()},
        SerieDe(peripherique, ouverture.get()),
        CheminDe(peripherique)};
}

std::vector<EnregistreurUsb> RecensementUsb::Recenser(int& erreur) {
    erreur = 0;
    sansDroits_ = false;
    sansPoints_ = false;
    if (SansReglage()) return {};
    erreur = Commencer();
    if (erreur == LIBUSB_SUCCESS) erreur = Regarder();
    if (erreur != LIBUSB_SUCCESS) return {};
    return Nommer();
}

int RecensementUsb::Commencer() {
    if (contexte_) return LIBUSB_SUCCESS;
    libusb_context* contexte = nullptr;
    const int erreur = libusb_init(&contexte);
    if (erreur == LIBUSB_SUCCESS) contexte_.reset(contexte);
    return erreur;
}

int RecensementUsb::Regarder() {
    const ListeUsb liste(contexte_.get());
    if (liste.Erreur() != LIBUSB_SUCCESS) return liste.Erreur();
    std::map<libusb_device*, Fiche> presentes;
    for (libusb_device* const peripherique : liste.Peripheriques())
        if (const ReglageUsb* const reglage = ReglageDe(peripherique))
            Noter(peripherique, *reglage, presentes);
    fiches_ = std::move(presentes);
    return LIBUSB_SUCCESS;
}

std::vector<EnregistreurUsb> RecensementUsb::Nommer() {
    std::vector<const Fiche*> ordre;
    for (const auto& [peripherique, fiche] : fiches_)
        ordre.push_back(&fiche);
    std::sort(ordre.begin(), ordre.end(),
              [](const Fiche* a, const Fiche* b) { return a->chemin < b->chemin; });
    std::vector<PresenceUsb> presences;
    for (const Fiche* const fiche : ordre)
        presences.push_back({fiche->enregistreur.peripherique.get(), fiche->serie, fiche->chemin});
    const std::vector<IdentifiantUsb> ids = identificateur_.Attribuer(presences);
    std::vector<EnregistreurUsb> presents;
    for (std::size_t i = 0; i < ordre.size(); ++i) {
        presents.push_back(ordre[i]->enregistreur);
        presents.back().id = ids[i];
    }
    return presents;
}

}  // namespace bornika
