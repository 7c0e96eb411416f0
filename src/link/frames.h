#pragma once

#include <QByteArray>
#include <cstdint>
#include <span>

#include "link/multi_usb.h"

/// The frame of every command: pure functions, one for each shape. Numbers go most significant byte
/// first unless told otherwise; words are 0 to 65535 (fault 6 outside), dates are device time.
namespace bornika {

inline constexpr int longueurTrame = 8;
inline constexpr int longueurTrameMesures = 2;
inline constexpr int longueurTrameIdentifie = 12;

/// The general request: code, one argument, zeros.
Octets TrameEntete(int code, int extracode = 0);

Octets TrameEcritDemarrage(std::int32_t date, double periode);
/// `charge` is the fast-charge byte, 1 or 0.
Octets TrameEcritMode(int mode, double seuil1, double seuil2, int echelle, int charge);
Octets TrameEcritNumeroSerie(std::int32_t numero);
Octets TrameEcritDateCourante(std::int32_t date, double periodeTrigger);
/// Two bytes, `premiere` on the first request of a transfer.
Octets TrameLitMesures(bool premiere);
/// Seven characters of a comment: 1 to 7 for `moitie` 1, 8 to 14 for 2, blanks beyond its end.
Octets TrameEcritCommentaire(int moitie, const QByteArray& commentaire);
Octets TrameRaz();
/// The values take the place of the code too: the first byte that goes out is `valeurs[0]`. Fault 9
/// for fewer than seven values.
Octets TrameFlashTampon(std::span<const int> valeurs);
Octets TrameFlashEcrit(double page, double offset);
Octets TrameFlashLit(double page, double offset);
Octets TrameTestDebit(bool marche);
/// `reste` are the bytes 4 to 7, whatever the caller's array held.
Octets TrameEcritPointEtalonnage(double points, int point, std::span<const int> reste);
/// `reste` are the bytes 6 and 7.
Octets TrameEcritDateEtalonnage(std::int32_t date, int echelle, std::span<const int> reste);
Octets TrameLitEeprom(double adresse);
Octets TrameEcritEeprom(double adresse, int valeur);
/// The correction goes low byte first.
Octets TrameEcritCorrection(std::int32_t correction);
Octets TrameLitDetection();
Octets TrameForceContexte();
/// Twelve bytes.
Octets TrameIdentifie();

}  // namespace bornika
