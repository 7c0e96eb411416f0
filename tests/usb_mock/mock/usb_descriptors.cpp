#include "usb_mock/mock/usb_descriptors.h"

namespace bornika::essai {

namespace {

using Octets8 = std::vector<std::uint8_t>;

constexpr std::uint8_t indexSerie = 3;
constexpr std::uint8_t genreInterruption = 3;
constexpr std::uint8_t genreVrac = 2;
// Endpoints of the first interface that carries no frames.
constexpr std::uint8_t premierVoisin = 9;

std::uint8_t Bas(unsigned mot) {
    return static_cast<std::uint8_t>(mot & 0xFF);
}

std::uint8_t Haut(unsigned mot) {
    return static_cast<std::uint8_t>(mot >> 8 & 0xFF);
}

void Joindre(Octets8& cible, const Octets8& suite) {
    cible.insert(cible.end(), suite.begin(), suite.end());
}

Octets8 Appareil(const FicheUsb& f) {
    const std::uint8_t serie = f.serie.empty() && !f.serieIllisible ? 0 : indexSerie;
    return {18,
            1,
            0x00,
            0x02,
            0xFF,
            0,
            0,
            64,
            Bas(f.vendeur),
            Haut(f.vendeur),
            Bas(f.produit),
            Haut(f.produit),
            0x00,
            0x01,
            0,
            0,
            serie,
            1};
}

Octets8 Interface(std::uint8_t numero, std::uint8_t alternatif, std::uint8_t points) {
    return {9, 4, numero, alternatif, points, 0xFF, 0, 0, 0};
}

Octets8 PointAcces(const FicheUsb& f, int adresse) {
    const std::uint8_t genre = f.interruption ? genreInterruption : genreVrac;
    const std::uint8_t intervalle = f.interruption ? 1 : 0;
    return {7,         5, static_cast<std::uint8_t>(adresse), genre, Bas(f.paquet), Haut(f.paquet),
            intervalle};
}

Octets8 Configuration(const FicheUsb& f) {
    Octets8 suite;
    for (std::uint8_t autre = 0; autre < f.interface; ++autre) {
        Joindre(suite, Interface(autre, 0, 2));
        Joindre(suite, PointAcces(f, premierVoisin + autre));
        Joindre(suite, PointAcces(f, versHote | (premierVoisin + autre)));
    }
    for (std::uint8_t vide = 0; vide < f.alternatif; ++vide)
        Joindre(suite, Interface(f.interface, vide, 0));
    Joindre(suite, Interface(f.interface, f.alternatif, 2));
    Joindre(suite, PointAcces(f, f.sortie));
    Joindre(suite, PointAcces(f, f.entree));
    const std::size_t total = 9 + suite.size();
    const auto interfaces = static_cast<std::uint8_t>(f.interface + 1);
    Octets8 tout = {9,
                    2,
                    Bas(static_cast<unsigned>(total)),
                    Haut(static_cast<unsigned>(total)),
                    interfaces,
                    1,
                    0,
                    0x80,
                    50};
    Joindre(tout, suite);
    return tout;
}

}  // namespace

std::vector<std::uint8_t> Descripteurs(const FicheUsb& fiche) {
    Octets8 tout = Appareil(fiche);
    Joindre(tout, Configuration(fiche));
    return tout;
}

std::vector<std::uint8_t> DescripteurTexte(const FicheUsb& fiche, int index) {
    if (index == 0) return {4, 3, 0x09, 0x04};
    if (index != indexSerie || fiche.serie.empty() || fiche.serieIllisible) return {};
    Octets8 texte = {static_cast<std::uint8_t>(2 + 2 * fiche.serie.size()), 3};
    for (const char lettre : fiche.serie)
        Joindre(texte, {static_cast<std::uint8_t>(lettre), 0});
    return texte;
}

}  // namespace bornika::essai
