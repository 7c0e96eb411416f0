#pragma once

#include <QByteArray>
#include <cstdint>
#include <span>

#include "link/bytes.h"

/// The frame of every command: pure functions, one for each shape. Numbers go most significant byte
/// first unless told otherwise; words are 0 to 65535 (fault 6 outside), dates are device time.
namespace bornika {

inline constexpr int longueurTrame = 8;
inline constexpr int longueurTrameMesures = 2;
inline constexpr int longueurTrameIdentifie = 12;

/// The general request: code, one argument, zeros.
Octets TrameEntete(int code, int extracode = 0);

/// Start date and sampling period, in the value of its list (eighths of a second, but the free
/// period).
Octets TrameEcritDemarrage(std::int32_t date, double periode);
/// Mode byte (command_table.h), both thresholds in points, scale byte; `charge` is the fast-charge
/// byte, 1 or 0.
Octets TrameEcritMode(int mode, double seuil1, double seuil2, int echelle, int charge);
/// The serial number. A negative one gives negative values, which the link refuses, on purpose: no
/// logger is given such a number.
Octets TrameEcritNumeroSerie(std::int32_t numero);
/// The computer's present date, and the second sampling period, which holds after the trigger.
Octets TrameEcritDateCourante(std::int32_t date, double periodeTrigger);
/// Two bytes, `premiere` on the first request of a transfer.
Octets TrameLitMesures(bool premiere);
/// Seven characters of a comment: 1 to 7 for `moitie` 1, 8 to 14 for 2, blanks beyond its end.
Octets TrameEcritCommentaire(int moitie, const QByteArray& commentaire);
/// Clears the serial number: the logger is inhibited from then on.
Octets TrameRaz();
/// The values take the place of the code too: the first byte that goes out is `valeurs[0]`. Fault 9
/// for fewer than seven values.
Octets TrameFlashTampon(std::span<const int> valeurs);
/// Stores the buffer at a page and an offset of the flash memory.
Octets TrameFlashEcrit(double page, double offset);
/// Reads eight bytes of the flash memory.
Octets TrameFlashLit(double page, double offset);
/// Switches the flow test on or off.
Octets TrameTestDebit(bool marche);
/// Calibration point 1 or 2, in points; `reste` are the bytes 4 to 7, whatever the caller's array
/// held. Fault 9 for fewer than four.
Octets TrameEcritPointEtalonnage(double points, int point, std::span<const int> reste);
/// Date of the calibration and scale byte of the sensor; `reste` are the bytes 6 and 7. Fault 9 for
/// fewer than two.
Octets TrameEcritDateEtalonnage(std::int32_t date, int echelle, std::span<const int> reste);
/// Reads eight bytes of the internal memory.
Octets TrameLitEeprom(double adresse);
/// Writes one byte, 0 to 255, to the internal memory.
Octets TrameEcritEeprom(double adresse, int valeur);
/// The correction goes low byte first.
Octets TrameEcritCorrection(std::int32_t correction);
/// Asks for the detection value of the sensor.
Octets TrameLitDetection();
/// Makes the logger take over what was written to its internal memory.
Octets TrameForceContexte();
/// Asks for version and type; twelve bytes.
Octets TrameIdentifie();

}  // namespace bornika
