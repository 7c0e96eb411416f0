#include "platform/format_pattern.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

#include "platform/fault.h"
#include "platform/numbers.h"

namespace bornika {

namespace {

constexpr int chiffresSignificatifs = 15;

// A pattern taken apart: how many digits stand at least and at most on each side of the point.
struct Motif {
    int entiersMin = 0;
    int decimalesMin = 0;
    int decimalesMax = 0;
    bool point = false;

    explicit Motif(std::string_view texte) {
        const auto coupure = texte.find('.');
        point = coupure != std::string_view::npos;
        const auto entiers = texte.substr(0, coupure);
        const auto premierZero = entiers.find('0');
        if (premierZero != std::string_view::npos)
            entiersMin = static_cast<int>(entiers.size() - premierZero);
        if (!point) return;
        const auto decimales = texte.substr(coupure + 1);
        decimalesMax = static_cast<int>(decimales.size());
        const auto dernierZero = decimales.rfind('0');
        if (dernierZero != std::string_view::npos) decimalesMin = static_cast<int>(dernierZero) + 1;
    }
};

// A decimal number: its digits, of which `entiers` stand before the point.
struct Decimal {
    std::string chiffres;
    int entiers = 0;
    bool negatif = false;
};

// The 15 significant digits of a finite number.
Decimal Developper(double valeur) {
    char texte[32];
    const auto fin = std::to_chars(texte, std::end(texte), std::abs(valeur),
                                   std::chars_format::scientific, chiffresSignificatifs - 1);
    // "d.dddddddddddddde±xx"
    Decimal decimal;
    decimal.chiffres.assign(1, texte[0]);
    decimal.chiffres.append(texte + 2, chiffresSignificatifs - 1);
    const char* exposant = texte + chiffresSignificatifs + 2;
    if (*exposant == '+') ++exposant;
    std::from_chars(exposant, fin.ptr, decimal.entiers);
    ++decimal.entiers;
    decimal.negatif = valeur < 0;
    return decimal;
}

// Does the number grow when only its first `gardes` digits are kept?
bool MonteVers(const std::string& chiffres, std::size_t gardes, bool pair) {
    if (chiffres[gardes] != '5' || !pair) return chiffres[gardes] >= '5';
    if (chiffres.find_first_not_of('0', gardes + 1) != std::string::npos) return true;
    return gardes > 0 && (chiffres[gardes - 1] - '0') % 2 == 1;
}

// Rounds to `decimales` places and leaves exactly those; at least no digit before the point.
void Arrondir(Decimal& decimal, int decimales, bool pair) {
    if (decimal.entiers < 0) {
        decimal.chiffres.insert(0, static_cast<std::size_t>(-decimal.entiers), '0');
        decimal.entiers = 0;
    }
    const auto gardes =
        static_cast<std::size_t>(decimal.entiers) + static_cast<std::size_t>(decimales);
    if (gardes >= decimal.chiffres.size()) {
        decimal.chiffres.resize(gardes, '0');
        return;
    }
    const bool monte = MonteVers(decimal.chiffres, gardes, pair);
    decimal.chiffres.resize(gardes);
    if (!monte) return;
    auto chiffre = decimal.chiffres.rbegin();
    for (; chiffre != decimal.chiffres.rend() && *chiffre == '9'; ++chiffre)
        *chiffre = '0';
    if (chiffre != decimal.chiffres.rend()) {
        ++*chiffre;
        return;
    }
    decimal.chiffres.insert(0, 1, '1');
    ++decimal.entiers;
}

QString EcrireDecimal(const Decimal& decimal, const Motif& motif, const Regional& regional) {
    const auto coupure = static_cast<std::size_t>(decimal.entiers);
    std::string entiers = decimal.chiffres.substr(0, coupure);
    std::string decimales = decimal.chiffres.substr(coupure);
    entiers.erase(0, std::min(entiers.find_first_not_of('0'), entiers.size()));
    const auto entiersMin = static_cast<std::size_t>(motif.entiersMin);
    if (entiers.size() < entiersMin) entiers.insert(0, entiersMin - entiers.size(), '0');
    while (static_cast<int>(decimales.size()) > motif.decimalesMin && decimales.back() == '0')
        decimales.pop_back();

    QString texte;
    texte.reserve(static_cast<qsizetype>(entiers.size() + decimales.size()) + 2);
    const bool nul = decimal.chiffres.find_first_not_of('0') == std::string::npos;
    if (decimal.negatif && !nul) texte += QLatin1Char('-');
    texte += QLatin1String(entiers.data(), static_cast<qsizetype>(entiers.size()));
    if (motif.point) texte += regional.separateur;
    texte += QLatin1String(decimales.data(), static_cast<qsizetype>(decimales.size()));
    return texte;
}

// Three places the long way, for numbers near a tie and large ones.
double ArrondiParChiffres(double valeur) {
    Decimal decimal = Developper(valeur);
    Arrondir(decimal, 3, false);
    std::string texte = decimal.negatif ? "-" : "";
    texte.append(decimal.chiffres, 0, static_cast<std::size_t>(decimal.entiers)).append(".");
    texte.append(decimal.chiffres, static_cast<std::size_t>(decimal.entiers));
    double arrondi = 0;
    std::from_chars(texte.data(), texte.data() + texte.size(), arrondi);
    return arrondi + 0.0;
}

}  // namespace

QString Format(double valeur, std::string_view motif, const Regional& regional) {
    // Erased memory can hold what has no digits.
    if (!std::isfinite(valeur)) return TexteGeneral(valeur, regional);
    const Motif places(motif);
    Decimal decimal = Developper(valeur);
    Arrondir(decimal, places.decimalesMax, !places.point);
    return EcrireDecimal(decimal, places, regional);
}

double ArrondiTroisDecimales(double valeur) {
    constexpr double limite = 1E9;
    constexpr double ecartSur = 1E-3;
    if (!std::isfinite(valeur)) LeverFaute(numero_faute::typeIncompatible);
    if (std::abs(valeur) < limite) {
        // Below the limit neither the product nor the cut to 15 digits moves the thousandths by
        // more than half of `ecartSur`: away from ties, plain rounding finds the same thousandth,
        // and the quotient is the double nearest to it, as reading its text gives.
        const double milliemes = valeur * 1000;
        const double bas = std::floor(milliemes);
        const double reste = milliemes - bas;
        if (std::abs(reste - 0.5) > ecartSur) return (reste > 0.5 ? bas + 1 : bas) / 1000 + 0.0;
    }
    return ArrondiParChiffres(valeur);
}

}  // namespace bornika
