#include "calibration/calibration_messages.h"

#include "link/command_table.h"
#include "link/frames.h"
#include "platform/numbers.h"
#include "products/firmware_versions.h"

namespace bornika {

namespace {

QString Numero(int point) {
    return QStringLiteral(" %1 ").arg(point);
}

/// The bytes of a reply from a place on, as many as end a frame: each goes one place behind its
/// own.
Octets Reste(const VueReponse& reponse, std::size_t rang) {
    Octets reste;
    for (; rang + 1 < longueurTrame; ++rang)
        reste.push_back(reponse.Octet(rang));
    return reste;
}

}  // namespace

double VersionEtalonnage(const VueReponse& reponse) {
    QString texte;
    for (const std::size_t rang : {1U, 2U, 3U, 4U})
        texte += QString::number(reponse.Octet(rang));
    return ValeurDebut(texte) / 1000;
}

bool EstAncienFirmware(const VueReponse& reponse) {
    return reponse.Octet(0) == CMD_LIT_VERSION && VersionEtalonnage(reponse) <= version::unPoint;
}

DateEtalonnage DateDe(const VueReponse& reponse) {
    const int octet = reponse.Octet(5);
    return {reponse.Quatre(1), octet / 16, UniteDeOctet(octet)};
}

PointEtalonnage PointDe(const VueReponse& reponse) {
    return {static_cast<double>(reponse.Mot(1)), static_cast<double>(reponse.Mot(3))};
}

void RetenirPaireBasse(Etalonnage7& etalonnage, const PointEtalonnage& bas) {
    etalonnage.valeur_etalonnage_bas = bas.valeur;
    etalonnage.mesure_etalonnage_bas = bas.mesure;
}

void RetenirPaireHaute(Etalonnage7& etalonnage, const PointEtalonnage& haut) {
    etalonnage.valeur_etalonnage_haut = haut.valeur;
    etalonnage.mesure_etalonnage_haut = haut.mesure;
}

bool AUnPoint(const Etalonnage7& etalonnage) {
    return etalonnage.valeur_etalonnage_haut == 0 && etalonnage.mesure_etalonnage_haut == 0;
}

Octets TramePoint(double points, int point, const VueReponse& version) {
    return TrameEcritPointEtalonnage(points, point, Reste(version, 3));
}

Octets TrameDate(std::int32_t date, int echelle, int unite, const VueReponse& version) {
    return TrameEcritDateEtalonnage(date, OctetEchelle(echelle, unite), Reste(version, 5));
}

QString SansNumero(QString caption) {
    return caption.remove(Numero(1)).remove(Numero(2)).trimmed();
}

QString AvecNumero(const QString& caption, int point) {
    return caption + QLatin1Char(' ') + Numero(point);
}

}  // namespace bornika
