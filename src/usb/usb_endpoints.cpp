#include "usb/usb_endpoints.h"

#include <algorithm>

namespace bornika {

namespace {

constexpr int bitEntree = 0x80;
constexpr int masqueType = 0x03;
constexpr int typeBloc = 2;
constexpr int typeInterruption = 3;
// The bits above tell how many packets fit one microframe.
constexpr int masquePaquet = 0x07FF;
constexpr int microtramesParMs = 8;
constexpr int exposantMaximal = 16;

int IntervalleEnMs(int intervalle, bool rapide) {
    if (!rapide) return std::max(intervalle, 1);
    const int microtrames = 1 << (std::clamp(intervalle, 1, exposantMaximal) - 1);
    return (microtrames + microtramesParMs - 1) / microtramesParMs;
}

bool PorteDesTrames(const PointDecrit& decrit) {
    const int type = decrit.attributs & masqueType;
    return (type == typeBloc || type == typeInterruption) && (decrit.paquet & masquePaquet) != 0;
}

std::optional<PointUsb> Choisir(const std::vector<PointDecrit>& decrits,
                                std::optional<std::uint8_t> voulu, int direction, bool rapide) {
    const auto trouve =
        std::find_if(decrits.begin(), decrits.end(), [&](const PointDecrit& decrit) {
            return PorteDesTrames(decrit) && (decrit.adresse & bitEntree) == direction &&
                   (!voulu || decrit.adresse == *voulu);
        });
    if (trouve == decrits.end()) return {};
    const bool interruption = (trouve->attributs & masqueType) == typeInterruption;
    return PointUsb{trouve->adresse, interruption, trouve->paquet & masquePaquet,
                    interruption ? IntervalleEnMs(trouve->intervalle, rapide) : 0};
}

}  // namespace

std::optional<PointsUsb> ChoisirPoints(const std::vector<PointDecrit>& decrits,
                                       const ReglageUsb& reglage, bool rapide) {
    const auto sortie = Choisir(decrits, reglage.Sortie, 0, rapide);
    const auto entree = Choisir(decrits, reglage.Entree, bitEntree, rapide);
    if (!sortie || !entree) return {};
    return PointsUsb{*sortie, *entree};
}

std::size_t PlaceEnPaquets(std::size_t longueur, int paquet) {
    const auto taille = static_cast<std::size_t>(paquet);
    return std::max<std::size_t>((longueur + taille - 1) / taille, 1) * taille;
}

}  // namespace bornika
