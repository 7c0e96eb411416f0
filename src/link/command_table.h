#pragma once

#include <cstdint>

#include "platform/numbers.h"

/// The codes of all commands, the bits of the mode byte and the two halves of the scale byte.
namespace bornika {

inline constexpr int CMD_ECRIT_DEMARRAGE = 1;
inline constexpr int CMD_LIT_PROCHAINE_MESURE = 2;
inline constexpr int CMD_ECRIT_MODE = 3;
inline constexpr int CMD_LIT_MODE = 4;
inline constexpr int CMD_ECRIT_NUMERO_SERIE = 5;
inline constexpr int CMD_LIT_NUMERO_SERIE = 6;
inline constexpr int CMD_ECRIT_DATE_COURANTE = 7;
inline constexpr int CMD_LIT_DATE_COURANTE = 8;
inline constexpr int CMD_LIT_VERSION = 9;
inline constexpr int CMD_LIT_MESURES = 10;
inline constexpr int CMD_ECRIT_COMMENTAIRE_1 = 11;
inline constexpr int CMD_ECRIT_COMMENTAIRE_2 = 12;
inline constexpr int CMD_LIT_COMMENTAIRE_1 = 13;
inline constexpr int CMD_LIT_COMMENTAIRE_2 = 14;
inline constexpr int CMD_RAZ = 15;
inline constexpr int CMD_LIT_DEMARRAGE = 17;
inline constexpr int CMD_FLASH_TAMPON = 18;
inline constexpr int CMD_FLASH_ECRIT = 19;
/// Codes 20 and 29 serve two purposes each, told apart by their arguments alone.
inline constexpr int CMD_FLASH_LIT = 20;
inline constexpr int CMD_TEST_DEBIT = 20;
inline constexpr int CMD_POINTEUR_ECRITURE = 21;
inline constexpr int CMD_POINTEUR_LECTURE = 22;
inline constexpr int CMD_ECRIT_POINT_ETALONNAGE = 24;
inline constexpr int CMD_FIN_ETALONNAGE = 25;
inline constexpr int CMD_LIT_POINT_ETALONNAGE = 26;
inline constexpr int CMD_ECRIT_DATE_ETALONNAGE = 27;
inline constexpr int CMD_LIT_DATE_ETALONNAGE = 28;
inline constexpr int CMD_LIT_EEPROM = 29;
inline constexpr int CMD_TEST = 29;
inline constexpr int CMD_ECRIT_EEPROM = 30;
inline constexpr int CMD_ECRIT_CORRECTION = 31;
inline constexpr int CMD_LIT_DETECTION = 32;
inline constexpr int CMD_FORCE_CONTEXTE = 99;
inline constexpr int CMD_IDENTIFIE = 240;

/// Lengths of a reply in bytes: of most commands, and of the one that tells the version.
inline constexpr int longueurReponse = 8;
inline constexpr int longueurReponseVersion = 9;

/// Selectors of a calibration point. Old firmware knows one point only, under a selector of its
/// own.
inline constexpr int pointUnique = 0;
inline constexpr int pointBas = 1;
inline constexpr int pointHaut = 2;

/// Bits of the mode byte. Two thresholds win over one in reading; neither bit means no threshold.
namespace mode {
inline constexpr int unSeuil = 1 << 0;
inline constexpr int deuxSeuils = 1 << 1;
inline constexpr int auDessus = 1 << 2;
inline constexpr int bufferTournant = 1 << 3;
inline constexpr int oneShot = 1 << 4;
inline constexpr int pressionAbsolue = 1 << 7;
}  // namespace mode

/// Index of the scale in the scale byte's high half: rounded half to even, so that a unit index
/// above 8 would give the next scale.
inline int EchelleDeOctet(int octet) {
    return EnEntier32(octet / 16.0);
}

/// Index of the unit in the scale byte's low half.
constexpr int UniteDeOctet(int octet) {
    return octet & 15;
}

/// The scale byte of two list indices, 0 to 15 each.
constexpr int OctetEchelle(int echelle, int unite) {
    return echelle * 16 + unite;
}

}  // namespace bornika
