#include "usb/usb_identifier.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <set>

namespace bornika {

namespace {

constexpr IdentifiantUsb premierDeChemin = 0x40000000;
constexpr IdentifiantUsb dernier = std::numeric_limits<IdentifiantUsb>::max();

std::string_view SansBlancs(std::string_view texte) {
    constexpr std::string_view blancs(" \t\r\n\0", 5);
    const auto debut = texte.find_first_not_of(blancs);
    if (debut == std::string_view::npos) return {};
    return texte.substr(debut, texte.find_last_not_of(blancs) - debut + 1);
}

IdentifiantUsb SuivantLibre(IdentifiantUsb id, const std::set<IdentifiantUsb>& pris) {
    while (pris.contains(id))
        id = id == dernier ? premierDeChemin : id + 1;
    return id;
}

}  // namespace

std::optional<IdentifiantUsb> IdentifiantDeSerie(std::string_view serie) {
    const std::string_view chiffres = SansBlancs(serie);
    const char* const fin = chiffres.data() + chiffres.size();
    IdentifiantUsb id = 0;
    const auto lu = std::from_chars(chiffres.data(), fin, id);
    if (lu.ec != std::errc() || lu.ptr != fin || id < 1) return {};
    return id;
}

IdentifiantUsb IdentifiantDeChemin(std::span<const std::uint8_t> chemin) {
    // FNV-1a, folded to the 30 bits that are wanted.
    std::uint32_t empreinte = 2166136261u;
    for (const std::uint8_t pas : chemin)
        empreinte = (empreinte ^ pas) * 16777619u;
    empreinte = (empreinte >> 30) ^ (empreinte & 0x3FFFFFFFu);
    return premierDeChemin | static_cast<IdentifiantUsb>(empreinte);
}

std::vector<IdentifiantUsb> IdentificateurUsb::Attribuer(const std::vector<PresenceUsb>& presents) {
    std::map<const void*, IdentifiantUsb> gardes;
    std::set<IdentifiantUsb> pris;
    const auto donner = [&](const PresenceUsb& present, IdentifiantUsb id) {
        gardes[present.cle] = id;
        pris.insert(id);
    };
    for (const PresenceUsb& present : presents)
        if (const auto deja = attribues_.find(present.cle); deja != attribues_.end())
            donner(present, deja->second);
    for (const PresenceUsb& present : presents) {
        if (gardes.contains(present.cle)) continue;
        const auto numero = IdentifiantDeSerie(present.serie);
        if (numero && !pris.contains(*numero)) donner(present, *numero);
    }
    for (const PresenceUsb& present : presents)
        if (!gardes.contains(present.cle))
            donner(present, SuivantLibre(IdentifiantDeChemin(present.chemin), pris));

    attribues_ = std::move(gardes);
    std::vector<IdentifiantUsb> ids;
    for (const PresenceUsb& present : presents)
        ids.push_back(attribues_.at(present.cle));
    return ids;
}

}  // namespace bornika
