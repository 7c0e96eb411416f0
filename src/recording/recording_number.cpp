#include "recording/recording_number.h"

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "platform/code_page.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "recording/decimal_separator.h"
#include "recording/recording_format.h"

namespace bornika {

namespace {

/// Stands for a separator that there is none of: no field holds a line feed.
constexpr char aucun = '\n';
constexpr std::ptrdiff_t chiffresExacts = 15;
constexpr std::ptrdiff_t decimalesAffichees = 5;

constexpr std::array<std::int64_t, chiffresExacts + 1> puissances = [] {
    std::array<std::int64_t, chiffresExacts + 1> table{};
    std::int64_t puissance = 1;
    for (auto& place : table) {
        place = puissance;
        puissance *= 10;
    }
    return table;
}();

/// digits / 10^decimals is the correctly rounded number, as both are exact.
double QuotientDecimal(std::int64_t chiffres, std::ptrdiff_t decimales) {
    if (decimales == 0) return static_cast<double>(chiffres);
    return static_cast<double>(chiffres) /
           static_cast<double>(puissances[static_cast<std::size_t>(decimales)]);
}

double ArrondirCinqDecimales(std::int64_t chiffres, std::ptrdiff_t decimales) {
    const std::int64_t diviseur =
        puissances[static_cast<std::size_t>(decimales - decimalesAffichees)];
    const std::int64_t reste = chiffres % diviseur;
    return QuotientDecimal(chiffres / diviseur + (2 * reste >= diviseur ? 1 : 0),
                           decimalesAffichees);
}

/// The next eight characters as one number, if all are digits: the time stamps of a long recording
/// are its longest numbers. Eight bytes of one word are handled at a time.
bool LireHuitChiffres(const char* place, std::uint64_t& nombre) {
    if constexpr (std::endian::native != std::endian::little) return false;
    std::uint64_t mot = 0;
    std::memcpy(&mot, place, sizeof mot);
    constexpr std::uint64_t hauts = 0xF0F0F0F0F0F0F0F0;
    if (((mot & hauts) | (((mot + 0x0606060606060606) & hauts) >> 4)) != 0x3333333333333333)
        return false;
    mot -= 0x3030303030303030;
    mot = mot * 10 + (mot >> 8);
    constexpr std::uint64_t paires = 0x000000FF000000FF;
    nombre =
        ((mot & paires) * 0x000F424000000064 + ((mot >> 16) & paires) * 0x0000271000000001) >> 32;
    return true;
}

void LireChiffres(const char*& place, const char* fin, std::uint64_t& chiffres) {
    for (; place != fin; ++place) {
        const auto chiffre = static_cast<unsigned char>(*place - '0');
        if (chiffre > 9) return;
        chiffres = chiffres * 10 + chiffre;
    }
}

/// Reads blanks, a minus, at most fifteen digits with at most one separator, blanks, up to the end
/// of the field. False for anything else, which need not be wrong; `place` then stays.
bool LireNombreSimple(const char*& place, const char* fin, char separateur, char autre,
                      NombreLu& nombre) {
    const char* ici = place;
    while (ici != fin && *ici == ' ')
        ++ici;
    const bool negatif = ici != fin && *ici == '-';
    if (negatif) ++ici;
    std::uint64_t sansSigne = 0;
    const char* const debut = ici;
    if (fin - ici >= 8 && LireHuitChiffres(ici, sansSigne)) ici += 8;
    LireChiffres(ici, fin, sansSigne);
    std::ptrdiff_t nombreChiffres = ici - debut;
    std::ptrdiff_t decimales = 0;
    if (ici != fin && (*ici == separateur || *ici == autre)) {
        const char* const debutDecimales = ++ici;
        LireChiffres(ici, fin, sansSigne);
        decimales = ici - debutDecimales;
        nombreChiffres += decimales;
    }
    while (ici != fin && *ici == ' ')
        ++ici;
    if (ici != fin && *ici != finChamp) return false;
    if (nombreChiffres == 0 || nombreChiffres > chiffresExacts) return false;
    // No "-0": the chart would not tell it from 0, but a text would.
    const auto chiffres = static_cast<std::int64_t>(sansSigne);
    const double signe = negatif ? -1 : 1;
    nombre.numerique = true;
    nombre.valeur = signe * QuotientDecimal(chiffres, decimales) + 0.0;
    nombre.arrondie = decimales <= decimalesAffichees
                          ? nombre.valeur
                          : signe * ArrondirCinqDecimales(chiffres, decimales) + 0.0;
    place = ici;
    return true;
}

/// The field as it stands.
QByteArrayView TexteDuChamp(const char*& place, const char* fin) {
    const char* const debut = place;
    while (place != fin && *place != finChamp)
        ++place;
    return {debut, place};
}

}  // namespace

LecteurNombres::LecteurNombres(const Regional& regional)
    : regional_(regional), separateur_(aucun), autre_(aucun) {
    if (regional.separateur == QLatin1String(".")) {
        separateur_ = '.';
        autre_ = ',';
    } else if (regional.separateur == QLatin1String(",")) {
        separateur_ = ',';
        autre_ = '.';
    }
}

NombreLu LecteurNombres::LireLentement(const QString& texte) const {
    NombreLu nombre;
    if (!EstNumerique(texte, regional_)) return nombre;
    // A number that no double can hold is none.
    nombre.numerique = ignorer([&] {
        nombre.valeur = EnDouble(texte, regional_);
        nombre.arrondie = EnDouble(Format(nombre.valeur, "0.0####", regional_), regional_);
    });
    return nombre;
}

NombreLu LecteurNombres::LireTemps(const char*& place, const char* fin) const {
    NombreLu nombre;
    if (LireNombreSimple(place, fin, separateur_, separateur_, nombre)) return nombre;
    const QString texte = Depuis8Bits(TexteDuChamp(place, fin));
    nombre.numerique = ignorer([&] { nombre.valeur = EnDouble(texte, regional_); });
    return nombre;
}

NombreLu LecteurNombres::LireValeur(const char*& place, const char* fin) const {
    NombreLu nombre;
    if (separateur_ != aucun && LireNombreSimple(place, fin, separateur_, autre_, nombre))
        return nombre;
    const QByteArrayView champ = TexteDuChamp(place, fin);
    if (separateur_ == aucun || champ.isEmpty()) return nombre;
    QString texte = TraiteSeparateur(Depuis8Bits(champ), regional_);
    return LireLentement(texte.replace(QLatin1String("--"), QLatin1String("-")));
}

}  // namespace bornika
