#include "usb_kernel/usbip_device.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <stdexcept>
#include <utility>

#include "usb_kernel/vhci_port.h"
#include "usb_mock/mock/usb_descriptors.h"

namespace bornika::essai {

namespace {

constexpr std::uint8_t pointAcces = 2;
constexpr std::size_t tailleDescripteurAppareil = 18;

// Requests by their number.
constexpr std::uint8_t lireEtat = 0;
constexpr std::uint8_t leverDrapeau = 1;
constexpr std::uint8_t poserDrapeau = 3;
constexpr std::uint8_t choisirConfiguration = 9;
constexpr std::uint8_t choisirVariante = 11;

constexpr std::uint8_t descripteurAppareil = 1;
constexpr std::uint8_t descripteurConfiguration = 2;

}  // namespace

AppareilUsbIp::AppareilUsbIp(FicheUsb fiche, std::unique_ptr<EnregistreurSimule> enregistreur)
    : appareil_(std::move(fiche), std::move(enregistreur)) {}

AppareilUsbIp::~AppareilUsbIp() {
    Fermer();
}

void AppareilUsbIp::Brancher() {
    Fermer();
    Remettre();
    std::array<int, 2> bouts{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, bouts.data()) != 0)
        throw std::runtime_error("no socket pair");
    prise_ = bouts[0];
    fil_ = std::thread([this] { Servir(); });
    try {
        port_ = BrancherAuControleur(bouts[1]);
    } catch (...) {
        close(bouts[1]);
        Fermer();
        throw;
    }
    // The controller holds the socket by now.
    close(bouts[1]);
}

void AppareilUsbIp::Detacher() {
    DetacherDuControleur(port_);
    AttendrePortLibre(port_);
    port_ = -1;
    Fermer();
}

void AppareilUsbIp::Arracher() {
    shutdown(prise_, SHUT_RDWR);
    AttendrePortLibre(port_);
    port_ = -1;
    Fermer();
}

void AppareilUsbIp::Fermer() {
    if (prise_ >= 0) shutdown(prise_, SHUT_RDWR);
    if (fil_.joinable()) fil_.join();
    if (prise_ >= 0) close(prise_);
    prise_ = -1;
    if (port_ >= 0) AttendrePortLibre(std::exchange(port_, -1));
}

int AppareilUsbIp::Retraits() {
    const std::scoped_lock verrou(verrou_);
    return retraits_;
}

void AppareilUsbIp::Servir() {
    while (const std::optional<MessageUsbIp> message = RecevoirUsbIp(prise_)) {
        const std::scoped_lock verrou(verrou_);
        if (!Traiter(*message)) break;
    }
    shutdown(prise_, SHUT_RDWR);
}

bool AppareilUsbIp::Traiter(const MessageUsbIp& message) {
    return message.retrait ? Retirer(message) : Transferer(message);
}

bool AppareilUsbIp::Transferer(const MessageUsbIp& message) {
    if (message.point == 0) {
        const FinTransfert fin = Controler(message);
        const std::size_t passes = message.entree ? fin.octets.size() : message.octets.size();
        return RendreTransfert(prise_, message.numero, fin.etat, fin.etat == 0 ? passes : 0,
                               fin.octets);
    }
    if (message.entree) {
        appareil_.Demander(message.numero, message.longueur);
        lectures_.push_back(message.numero);
        return RendreLectures();
    }
    bool debranche = false;
    const FinTransfert fin = appareil_.Recevoir(message.octets, debranche);
    // The frame went through before the cable came out.
    const std::size_t passes = fin.etat == 0 ? message.octets.size() : 0;
    return RendreTransfert(prise_, message.numero, fin.etat, passes, {}) && !debranche &&
           RendreLectures();
}

bool AppareilUsbIp::Retirer(const MessageUsbIp& message) {
    FinTransfert fin;
    const bool attendait = appareil_.Reprendre(message.cible, fin);
    std::erase(lectures_, message.cible);
    if (attendait) ++retraits_;
    return RendreRetrait(prise_, message.numero, attendait ? -ECONNRESET : 0);
}

bool AppareilUsbIp::RendreLectures() {
    std::uint64_t numero = 0;
    FinTransfert fin;
    while (appareil_.Servir(numero, fin)) {
        std::erase(lectures_, numero);
        if (!RendreTransfert(prise_, static_cast<std::uint32_t>(numero), fin.etat,
                             fin.octets.size(), fin.octets))
            return false;
    }
    return true;
}

// A device that is plugged in knows nothing of what was on its way when it was pulled out.
void AppareilUsbIp::Remettre() {
    std::uint64_t numero = 0;
    FinTransfert fin;
    for (const std::uint64_t lecture : std::exchange(lectures_, {}))
        appareil_.Reprendre(lecture, fin);
    while (appareil_.PaquetsEnAttente() > 0) {
        appareil_.Demander(0, appareil_.fiche.paquet);
        appareil_.Servir(numero, fin);
    }
}

// What every USB device answers by itself. The device has no other requests: a stall.
FinTransfert AppareilUsbIp::Controler(const MessageUsbIp& message) {
    const std::uint8_t genre = message.demande[0];
    const std::uint8_t quoi = message.demande[3];
    std::vector<std::uint8_t> octets;
    switch (message.demande[1]) {
        case lireDescripteur: {
            if (quoi == descripteurTexte) return appareil_.Controle(message.demande);
            const std::vector<std::uint8_t> tout = Descripteurs(appareil_.fiche);
            const auto configuration = tout.begin() + tailleDescripteurAppareil;
            if (quoi == descripteurAppareil)
                octets.assign(tout.begin(), configuration);
            else if (quoi == descripteurConfiguration)
                octets.assign(configuration, tout.end());
            else
                return {-EPIPE, {}};
            break;
        }
        case lireEtat:
            octets = {0, 0};
            break;
        case leverDrapeau:
            if (genre == pointAcces) appareil_.LeverCalage(message.demande[4]);
            return {};
        case poserDrapeau:
        case choisirConfiguration:
        case choisirVariante:
            return {};
        default:
            return {-EPIPE, {}};
    }
    if ((genre & versHote) == 0) return {-EPIPE, {}};
    if (octets.size() > message.longueur) octets.resize(message.longueur);
    return {0, std::move(octets)};
}

}  // namespace bornika::essai
