#pragma once

#include <QString>
#include <cstdint>

#include "link/bytes.h"
#include "logger/calibration_figures.h"

/// What the calibration form sends and what the replies mean to it. All of it computes only.
namespace bornika {

/// Firmware version out of a reply to the version command: the decimal texts of r1 to r4 joined, in
/// thousandths. The product type stands in front, so that only a logger of type 0 can be old here;
/// the rule of `VersionLogiciel` is another one, and both are kept.
double VersionEtalonnage(const VueReponse& reponse);

/// True for firmware that knows one point only, up to 2.089. A reply with another echo counts as
/// new firmware.
bool EstAncienFirmware(const VueReponse& reponse);

/// When and on which sensor the logger was calibrated.
struct DateEtalonnage {
    /// Device time; 0 for a logger never calibrated.
    double secondes = 0;
    /// List indices of the scale and of the unit, 0 to 15.
    int echelle = 0;
    int unite = 0;
};

/// The date and the point in their replies. The echo is not looked at.
DateEtalonnage DateDe(const VueReponse& reponse);
PointEtalonnage PointDe(const VueReponse& reponse);

/// Put a pair into the figures; what is made of the pairs stays as it was.
void RetenirPaireBasse(Etalonnage7& etalonnage, const PointEtalonnage& bas);
void RetenirPaireHaute(Etalonnage7& etalonnage, const PointEtalonnage& haut);

/// True when the high pair is none.
bool AUnPoint(const Etalonnage7& etalonnage);

/// Request that stores point 1 or 2, reference in points. The bytes behind are left as the reply to
/// the version command has them.
Octets TramePoint(double points, int point, const VueReponse& version);

/// Request that stores the date and the sensor of the calibration, with two bytes of that reply.
Octets TrameDate(std::int32_t date, int echelle, int unite, const VueReponse& version);

/// Caption of a row without the number of its point, and with it.
QString SansNumero(QString caption);
QString AvecNumero(const QString& caption, int point);

}  // namespace bornika
