#include "link/memory_access.h"

#include "link/command_exchange.h"
#include "link/frames.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int longueurEcho = 4;
constexpr int positionValeur = 3;
// Milliseconds that the logger needs before it answers.
constexpr int pauseEcriture = 50;
constexpr int pauseContexte = 1000;

/// Sends a frame and reads its answer after a pause that the logger needs.
Octets EchangeApresPause(Poste& poste, const Octets& trame, int combien, int pause) {
    poste.lien.UsbWrite(trame, longueurTrame);
    poste.ecran.systeme.horloge.Pause(pause);
    return LireReponse(poste, combien);
}

Octets LireFlash(Poste& poste, int page, int offset) {
    Octets lus = EchangeDirect(poste, TrameFlashLit(page, offset), longueurTrame, longueurCellule);
    poste.lien.FermeUSB();
    if (poste.ecran.etat.TimeOut) lus.clear();
    return lus;
}

void EcrireFlash(Poste& poste, int page, int offset, const Octets& Valeurs) {
    Octets reponse = EchangeDirect(poste, TrameFlashTampon(Valeurs), longueurTrame, 1);
    if (poste.ecran.etat.TimeOut) {
        poste.lien.FermeUSB();
        return;
    }
    // The second frame is built in the answer, which has one position: the subscript fault of the
    // next one ends the operation, on purpose, before the flash itself is written.
    const Octets seconde = TrameFlashEcrit(page, offset);
    for (std::size_t i = 0; i < seconde.size(); ++i) {
        if (i >= reponse.size()) LeverFaute(numero_faute::indice);
        reponse[i] = seconde[i];
    }
    EchangeDirect(poste, reponse, longueurTrame, 1);
    poste.lien.FermeUSB();
}

}  // namespace

Octets Memoire_Flash(Poste& poste, bool lecture, int page, int offset, const Octets& Valeurs) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    if (lecture) return LireFlash(poste, page, offset);
    EcrireFlash(poste, page, offset, Valeurs);
    return {};
}

int EcritEEpromInterne(Poste& poste, int adresse, int valeur) {
    return EchangeApresPause(poste, TrameEcritEeprom(adresse, valeur), longueurEcho, pauseEcriture)
        .at(positionValeur);
}

void EcritOctetsInternes(Poste& poste, int adresse, std::span<const int> octets) {
    for (const int octet : octets)
        EcritEEpromInterne(poste, adresse++, octet);
}

Octets LitEEpromInterne(Poste& poste, int adresse, bool ouvrir) {
    if (ouvrir) poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    Octets lus = EchangeDirect(poste, TrameLitEeprom(adresse), longueurTrame, longueurCellule);
    if (poste.ecran.etat.TimeOut) {
        poste.lien.FermeUSB();
        return {};
    }
    if (ouvrir) poste.lien.FermeUSB();
    return lus;
}

void ForceContexte(Poste& poste) {
    EchangeApresPause(poste, TrameForceContexte(), 1, pauseContexte);
}

}  // namespace bornika
