#include "retrieval/memory_access.h"

#include <array>

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int blanc = 32;

using Trame = std::array<int, 8>;

/// An element of an array, with the fault of a subscript out of range.
template <class Tableau>
auto& Element(Tableau& tableau, std::size_t indice) {
    if (indice >= tableau.size()) LeverFaute(numero_faute::indice);
    return tableau[indice];
}

int OctetHaut(int n) {
    return n >> 8;
}

int OctetBas(int n) {
    return n & 255;
}

/// Sends a frame and reads its answer after a pause that the logger needs.
Octets EchangeApresPause(Poste& poste, const Trame& trame, int combien, int pause) {
    poste.lien.UsbWrite(trame, 8);
    poste.ecran.systeme.horloge.Pause(pause);
    return poste.lien.UsbRead(
        combien, [&poste] { return poste.ecran.Texte(QStringLiteral("k-Pod Absent")); }, true, true,
        QString());
}

Octets LireFlash(Poste& poste, int page, int offset) {
    const Trame trame{CMD_FLASH_LIT,    OctetHaut(page), OctetBas(page), OctetHaut(offset),
                      OctetBas(offset), blanc,           blanc,          blanc};
    Octets lus = EchangeDirect(poste, trame, 8, 8);
    poste.lien.FermeUSB();
    if (poste.ecran.etat.TimeOut) lus.clear();
    return lus;
}

void EcrireFlash(Poste& poste, int page, int offset, const Octets& Valeurs) {
    Trame trame{};
    // The values take the place of the command code too: this is what has always gone out.
    trame[0] = CMD_FLASH_TAMPON;
    for (std::size_t i = 0; i <= 6; ++i)
        trame[i] = Element(Valeurs, i);
    Octets reponse = EchangeDirect(poste, trame, 8, 1);
    if (poste.ecran.etat.TimeOut) {
        poste.lien.FermeUSB();
        return;
    }
    // The second frame is built in the answer, which has one position: the subscript fault of the
    // next one ends the operation, on purpose, before the flash itself is written.
    const Trame seconde{CMD_FLASH_ECRIT,  OctetHaut(page), OctetBas(page), OctetHaut(offset),
                        OctetBas(offset), blanc,           blanc,          blanc};
    for (std::size_t i = 0; i < seconde.size(); ++i)
        Element(reponse, i) = seconde[i];
    EchangeDirect(poste, reponse, 8, 1);
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
    const Trame trame{
        CMD_ECRIT_EEPROM, MSB(adresse), LSB(adresse), valeur, blanc, blanc, blanc, blanc};
    return EchangeApresPause(poste, trame, 4, 50).at(3);
}

Octets LitEEpromInterne(Poste& poste, int adresse, bool ouvrir) {
    if (ouvrir) poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    const Trame trame{CMD_LIT_EEPROM, MSB(adresse), LSB(adresse), blanc,
                      blanc,          blanc,        blanc,        blanc};
    Octets lus = EchangeDirect(poste, trame, 8, 8);
    if (poste.ecran.etat.TimeOut) {
        poste.lien.FermeUSB();
        return {};
    }
    if (ouvrir) poste.lien.FermeUSB();
    return lus;
}

void ForceContexte(Poste& poste) {
    EchangeApresPause(poste, {CMD_FORCE_CONTEXTE, blanc, blanc, blanc, blanc, blanc, blanc, blanc},
                      1, 1000);
}

}  // namespace bornika
