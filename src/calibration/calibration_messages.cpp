#include "calibration/calibration_messages.h"

#include "link/command_table.h"
#include "link/frames.h"
#include "platform/numbers.h"
#include "products/firmware_versions.h"

namespace bornika {

namespace {

double Mot(const Tampon& reponse, std::size_t position) {
    return reponse[position] * 256 + reponse[position + 1];
}

QString Numero(int point) {
    return QStringLiteral(" %1 ").arg(point);
}

/// The bytes of a reply from a position on to the last of a frame.
Octets Reste(const Tampon& reponse, int position) {
    return {reponse.begin() + position, reponse.begin() + longueurTrame};
}

}  // namespace

double VersionEtalonnage(const Tampon& reponse) {
    QString texte;
    for (std::size_t position = 2; position <= 5; ++position)
        texte += QString::number(reponse[position]);
    return ValeurDebut(texte) / 1000;
}

bool EstAncienFirmware(const Tampon& reponse) {
    return reponse[1] == CMD_LIT_VERSION && VersionEtalonnage(reponse) <= version::unPoint;
}

DateEtalonnage DateDe(const Tampon& reponse) {
    const int octet = reponse[6];
    return {Mot(reponse, 2) * 65536 + Mot(reponse, 4), octet / 16, UniteDeOctet(octet)};
}

PointEtalonnage PointDe(const Tampon& reponse) {
    return {Mot(reponse, 2), Mot(reponse, 4)};
}

Octets TramePoint(double points, int point, const Tampon& version) {
    return TrameEcritPointEtalonnage(points, point, Reste(version, 4));
}

Octets TrameDate(std::int32_t date, int echelle, int unite, const Tampon& version) {
    return TrameEcritDateEtalonnage(date, OctetEchelle(echelle, unite), Reste(version, 6));
}

QString SansNumero(QString caption) {
    return caption.remove(Numero(1)).remove(Numero(2)).trimmed();
}

QString AvecNumero(const QString& caption, int point) {
    return caption + QLatin1Char(' ') + Numero(point);
}

}  // namespace bornika
