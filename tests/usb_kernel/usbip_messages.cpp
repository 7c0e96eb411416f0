#include "usb_kernel/usbip_messages.h"

#include <sys/socket.h>

#include <algorithm>

namespace bornika::essai {

namespace {

// Every message begins with 48 bytes, numbers high byte first: code, number, device, direction,
// endpoint, and then what its kind needs.
constexpr std::size_t tailleEntete = 48;
using Entete = std::array<std::uint8_t, tailleEntete>;

constexpr std::uint32_t codeTransfert = 1;
constexpr std::uint32_t codeRetrait = 2;
constexpr std::uint32_t codeTransfertRendu = 3;
constexpr std::uint32_t codeRetraitRendu = 4;
constexpr std::uint32_t sensVersHote = 1;

constexpr std::size_t ouCode = 0;
constexpr std::size_t ouNumero = 4;
constexpr std::size_t ouDirection = 12;
constexpr std::size_t ouPoint = 16;
constexpr std::size_t ouEtat = 20;
constexpr std::size_t ouCible = 20;
constexpr std::size_t ouLongueur = 24;
constexpr std::size_t ouDemande = 40;

// No transfer of the program comes near it.
constexpr std::uint32_t longueurMaximale = 1U << 20;

std::uint32_t Mot(const Entete& entete, std::size_t ou) {
    std::uint32_t mot = 0;
    for (std::size_t i = 0; i < 4; ++i)
        mot = mot << 8 | entete.at(ou + i);
    return mot;
}

void PoserMot(Entete& entete, std::size_t ou, std::uint32_t mot) {
    for (std::size_t i = 4; i-- > 0; mot >>= 8)
        entete.at(ou + i) = static_cast<std::uint8_t>(mot & 0xFF);
}

bool ToutRecevoir(int prise, std::span<std::uint8_t> place) {
    while (!place.empty()) {
        const ssize_t recus = recv(prise, place.data(), place.size(), 0);
        if (recus <= 0) return false;
        place = place.subspan(static_cast<std::size_t>(recus));
    }
    return true;
}

bool ToutEnvoyer(int prise, std::span<const std::uint8_t> octets) {
    while (!octets.empty()) {
        const ssize_t partis = send(prise, octets.data(), octets.size(), MSG_NOSIGNAL);
        if (partis <= 0) return false;
        octets = octets.subspan(static_cast<std::size_t>(partis));
    }
    return true;
}

}  // namespace

std::optional<MessageUsbIp> RecevoirUsbIp(int prise) {
    Entete entete;
    if (!ToutRecevoir(prise, entete)) return std::nullopt;
    MessageUsbIp message;
    message.numero = Mot(entete, ouNumero);
    switch (Mot(entete, ouCode)) {
        case codeRetrait:
            message.retrait = true;
            message.cible = Mot(entete, ouCible);
            return message;
        case codeTransfert:
            message.point = Mot(entete, ouPoint);
            message.entree = Mot(entete, ouDirection) == sensVersHote;
            message.longueur = Mot(entete, ouLongueur);
            break;
        default:
            return std::nullopt;
    }
    if (message.longueur > longueurMaximale) return std::nullopt;
    std::copy_n(entete.begin() + ouDemande, message.demande.size(), message.demande.begin());
    if (!message.entree) {
        message.octets.resize(message.longueur);
        if (!ToutRecevoir(prise, message.octets)) return std::nullopt;
    }
    return message;
}

bool RendreTransfert(int prise, std::uint32_t numero, int etat, std::size_t longueur,
                     std::span<const std::uint8_t> octets) {
    Entete entete{};
    PoserMot(entete, ouCode, codeTransfertRendu);
    PoserMot(entete, ouNumero, numero);
    PoserMot(entete, ouEtat, static_cast<std::uint32_t>(etat));
    PoserMot(entete, ouLongueur, static_cast<std::uint32_t>(longueur));
    std::vector<std::uint8_t> message(entete.begin(), entete.end());
    message.insert(message.end(), octets.begin(), octets.end());
    return ToutEnvoyer(prise, message);
}

bool RendreRetrait(int prise, std::uint32_t numero, int etat) {
    Entete entete{};
    PoserMot(entete, ouCode, codeRetraitRendu);
    PoserMot(entete, ouNumero, numero);
    PoserMot(entete, ouEtat, static_cast<std::uint32_t>(etat));
    return ToutEnvoyer(prise, entete);
}

}  // namespace bornika::essai
