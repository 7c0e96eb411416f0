#include "calibration/calibration_exchange.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/frames.h"

namespace bornika {

void EchangeEtalonnage::OuvrirLien() {
    poste_.lien.OuvreUSB(poste_.ecran.etat.UsbID);
}

void EchangeEtalonnage::FermerLien() {
    poste_.lien.FermeUSB();
}

std::optional<Tampon> EchangeEtalonnage::DemanderVersion() {
    return DemanderReponse(CMD_LIT_VERSION, longueurReponseVersion);
}

std::optional<DateEtalonnage> EchangeEtalonnage::DemanderDate() {
    const auto reponse = DemanderReponse(CMD_LIT_DATE_ETALONNAGE, longueurReponse);
    if (!reponse) return std::nullopt;
    return DateDe(*reponse);
}

std::optional<PointEtalonnage> EchangeEtalonnage::DemanderPoint(int selecteur) {
    const auto reponse = DemanderReponse(CMD_LIT_POINT_ETALONNAGE, longueurReponse, selecteur);
    if (!reponse) return std::nullopt;
    return PointDe(*reponse);
}

bool EchangeEtalonnage::DemanderFin() {
    return DemanderReponse(CMD_FIN_ETALONNAGE, longueurReponse).has_value();
}

bool EchangeEtalonnage::EnvoyerTrame(const Octets& trame) {
    EchangeDirect(poste_, trame, longueurTrame, longueurReponse);
    return !poste_.ecran.etat.TimeOut;
}

std::optional<Tampon> EchangeEtalonnage::DemanderReponse(int code, int combien, int extracode) {
    Tampon buffer{};
    if (!Envoi_Entete(poste_, code, buffer, combien, true, extracode)) return std::nullopt;
    return buffer;
}

}  // namespace bornika
