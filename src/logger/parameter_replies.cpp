#include "logger/parameter_replies.h"

#include "link/command_table.h"

namespace bornika {

namespace {

constexpr std::size_t caracteresParCommande = 7;
/// Last byte of the answer that tells of the card, when one is in.
constexpr int cartePresente = 1;

bool RepondA(const VueReponse& reponse, int commande) {
    return reponse.Octet(0) == commande;
}

}  // namespace

std::optional<VersionLue> VersionLueDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_VERSION)) return std::nullopt;
    return VersionLue{.type = reponse.Octet(1),
                      .haut = reponse.Octet(2),
                      .bas = reponse.Octet(4),
                      .pile = reponse.Mot(5),
                      .codeTaille = reponse.Octet(7)};
}

std::optional<double> NumeroSerieDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_NUMERO_SERIE)) return std::nullopt;
    return reponse.Quatre(3);
}

std::optional<CapteurEtalonne> CapteurEtalonneDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_DATE_ETALONNAGE)) return std::nullopt;
    return CapteurEtalonne{reponse.Quatre(1), EchelleDeOctet(reponse.Octet(5))};
}

PointLu PointLuDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_POINT_ETALONNAGE)) return {PointLu::Issue::AutreEcho, {}, 0};
    const double valeur = reponse.Mot(1);
    const double mesure = reponse.Mot(3);
    return {PointLu::Issue::Point, {valeur, mesure}, reponse.Octet(5)};
}

std::optional<ProchaineMesureLue> ProchaineMesureDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_PROCHAINE_MESURE)) return std::nullopt;
    return ProchaineMesureLue{reponse.Quatre(1), reponse.Mot(5), reponse.Octet(7)};
}

std::optional<double> DemarrageDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_DEMARRAGE)) return std::nullopt;
    return reponse.Quatre(1);
}

std::optional<HorlogeLue> HorlogeLueDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_DATE_COURANTE)) return std::nullopt;
    return HorlogeLue{reponse.Quatre(1), reponse.Mot(5), EstCartePresente(reponse)};
}

bool EstCartePresente(const VueReponse& reponse) {
    return reponse.Octet(7) == cartePresente;
}

std::optional<ModeLu> ModeLuDe(const VueReponse& reponse) {
    if (!RepondA(reponse, CMD_LIT_MODE)) return std::nullopt;
    const int echelle = reponse.Octet(6);
    return ModeLu{.mode = ModeDeOctet(reponse.Octet(1)),
                  .seuil1 = reponse.Mot(2),
                  .seuil2 = reponse.Mot(4),
                  .echelle = EchelleDeOctet(echelle),
                  .unite = UniteDeOctet(echelle)};
}

QByteArray MoitieCommentaireDe(const VueReponse& reponse) {
    QByteArray caracteres;
    for (std::size_t rang = 1; rang <= caracteresParCommande; ++rang)
        caracteres.append(static_cast<char>(reponse.Octet(rang)));
    return caracteres;
}

std::optional<PointeurLu> PointeurLuDe(const VueReponse& reponse, int commande) {
    if (!RepondA(reponse, commande)) return std::nullopt;
    return PointeurLu{reponse.Mot(1), reponse.Mot(3), reponse.Octet(5)};
}

}  // namespace bornika
