#include "viewer/recording_number.h"

#include <array>

#include "platform/code_page.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "viewer/decimal_separator.h"

namespace bornika {

namespace {

constexpr int chiffresExacts = 15;
constexpr int decimalesAffichees = 5;

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
double Quotient(std::int64_t chiffres, int decimales) {
    return static_cast<double>(chiffres) /
           static_cast<double>(puissances[static_cast<std::size_t>(decimales)]);
}

double Arrondir(std::int64_t chiffres, int decimales) {
    const std::int64_t diviseur =
        puissances[static_cast<std::size_t>(decimales - decimalesAffichees)];
    const std::int64_t reste = chiffres % diviseur;
    return Quotient(chiffres / diviseur + (2 * reste >= diviseur ? 1 : 0), decimalesAffichees);
}

/// Reads blanks, sign, at most fifteen digits with at most one separator, blanks. False for
/// anything else, which need not be wrong.
bool LireSimple(QByteArrayView champ, char separateur, char autre, NombreLu& nombre) {
    const char* place = champ.data();
    const char* fin = place + champ.size();
    while (place != fin && *place == ' ')
        ++place;
    const bool negatif = place != fin && *place == '-';
    if (negatif) ++place;
    std::int64_t chiffres = 0;
    int nombreChiffres = 0;
    int avantSeparateur = -1;
    for (; place != fin; ++place) {
        const auto chiffre = static_cast<unsigned char>(*place - '0');
        if (chiffre <= 9) {
            if (++nombreChiffres > chiffresExacts) return false;
            chiffres = chiffres * 10 + chiffre;
        } else if ((*place == separateur || *place == autre) && avantSeparateur < 0) {
            avantSeparateur = nombreChiffres;
        } else {
            break;
        }
    }
    while (place != fin && *place == ' ')
        ++place;
    if (place != fin || nombreChiffres == 0) return false;
    const int decimales = avantSeparateur < 0 ? 0 : nombreChiffres - avantSeparateur;
    const double signe = negatif && chiffres != 0 ? -1 : 1;
    nombre.numerique = true;
    nombre.valeur = signe * Quotient(chiffres, decimales);
    // The sum with 0 turns a negative number that was rounded away into a plain 0.
    nombre.arrondie = decimales <= decimalesAffichees ? nombre.valeur
                                                      : signe * Arrondir(chiffres, decimales) + 0.0;
    return true;
}

}  // namespace

LecteurNombres::LecteurNombres(const Regional& regional) : regional_(regional) {
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
    nombre.numerique = EstNumerique(texte, regional_);
    if (!nombre.numerique) return nombre;
    nombre.valeur = EnDouble(texte, regional_);
    nombre.arrondie = EnDouble(Format(nombre.valeur, "0.0####", regional_), regional_);
    return nombre;
}

NombreLu LecteurNombres::LireTemps(QByteArrayView champ) const {
    NombreLu nombre;
    // A line feed stands for an unknown separator: no field holds one.
    const char separateur = separateur_ ? separateur_ : '\n';
    if (LireSimple(champ, separateur, separateur, nombre)) return nombre;
    nombre.numerique = ignorer([&] { nombre.valeur = EnDouble(Depuis8Bits(champ), regional_); });
    return nombre;
}

NombreLu LecteurNombres::LireValeur(QByteArrayView champ) const {
    NombreLu nombre;
    if (!separateur_ || champ.isEmpty()) return nombre;
    if (LireSimple(champ, separateur_, autre_, nombre)) return nombre;
    QString texte = TraiteSeparateur(Depuis8Bits(champ), regional_);
    return LireLentement(texte.replace(QLatin1String("--"), QLatin1String("-")));
}

}  // namespace bornika
