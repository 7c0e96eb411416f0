#include "link/multi_usb.h"

#include <algorithm>

#include "platform/fault.h"
#include "shell/main_screen.h"

namespace bornika {

namespace {

constexpr int tentatives = 3;
constexpr std::uint32_t operationEnAttente = 997;
constexpr qsizetype longueurTexteErreur = 128;

}  // namespace

MULTIUSB::MULTIUSB(MainScreen& ecran) : ecran_(ecran) {}

bool MULTIUSB::OuvreUSB(IdentifiantUsb id) {
    FermeUSB();
    WriteHandle = ecran_.systeme.usb.Ouvrir(id);
    ReadHandle = ecran_.systeme.usb.Ouvrir(id);
    return WriteHandle != -1 && ReadHandle != -1;
}

void MULTIUSB::FermeUSB() {
    ecran_.systeme.usb.Annuler(ReadHandle);
    FermerPoignees();
}

void MULTIUSB::FermerPoignees() {
    ecran_.systeme.usb.Fermer(ReadHandle);
    ecran_.systeme.usb.Fermer(WriteHandle);
    WriteHandle = 0;
    ReadHandle = 0;
}

void MULTIUSB::UsbWrite(std::span<const int> trame, int longueur) {
    if (longueur < 0 || static_cast<std::size_t>(longueur) > trame.size())
        LeverFaute(numero_faute::indice);
    tampon_.clear();
    for (const int valeur : trame.first(static_cast<std::size_t>(longueur))) {
        if (valeur < 0 || valeur > 255) LeverFaute(numero_faute::depassement);
        tampon_.push_back(static_cast<std::uint8_t>(valeur));
    }
    int echecs = 0;
    while (echecs < tentatives && !ecran_.systeme.usb.Ecrire(WriteHandle, tampon_))
        ++echecs;
    TraceErreurUSB(QStringLiteral("UsbWrite"));
}

Octets MULTIUSB::UsbRead(int longueur, const QString& message, bool erreur, bool sansEffet,
                         const QString& titre) {
    return UsbRead(
        longueur, [&message] { return message; }, erreur, sansEffet, titre);
}

Octets MULTIUSB::UsbRead(int longueur, const std::function<QString()>& message, bool erreur,
                         bool /*sansEffet*/, const QString& titre) {
    if (longueur < 0) LeverFaute(numero_faute::indice);
    Octets resultat(static_cast<std::size_t>(longueur), 0);
    if (ecran_.etat.TimeOut) return resultat;
    tampon_.assign(resultat.size(), 0);
    const int recus = ecran_.systeme.usb.Lire(ReadHandle, tampon_);
    TraceErreurUSB(QStringLiteral("ReadFile"));
    if (recus > 0) {
        // A short answer counts: what did not come stays 0.
        std::copy(tampon_.begin(), tampon_.end(), resultat.begin());
        ecran_.etat.TimeOut = false;
        return resultat;
    }
    // Lost: closed without a cancel, and the flag only falls once the operator has read the box.
    FermerPoignees();
    if (erreur) ecran_.systeme.dialogues.Boite(Icone::Aucune, Boutons::Ok, titre, message());
    ecran_.etat.TimeOut = true;
    return resultat;
}

void MULTIUSB::TraceErreurUSB(const QString& /*operation*/) {
    const std::uint32_t code = ecran_.systeme.usb.DerniereErreur();
    if (code != 0 && code != operationEnAttente) TexteErreurWin(code);
}

QString MULTIUSB::TexteErreurWin(std::uint32_t code) {
    const QString texte = ecran_.systeme.usb.TexteErreur(code).left(longueurTexteErreur);
    return texte.size() > 2 ? texte.chopped(2) : QString();
}

}  // namespace bornika
