#include "platform/format_pattern.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace bornika {

namespace {

constexpr int chiffresSignificatifs = 15;

struct Motif {
    int entiers = 0;       // digits always printed before the point
    int decimalesMin = 0;  // digits always printed behind it
    int decimales = 0;     // places behind it
    bool separateur = false;
};

Motif Lire(std::string_view texte) {
    Motif motif;
    bool zeroVu = false;
    for (const char c : texte) {
        if (c == '.') {
            motif.separateur = true;
        } else if (!motif.separateur) {
            zeroVu = zeroVu || c == '0';
            if (zeroVu) ++motif.entiers;
        } else {
            ++motif.decimales;
            if (c == '0') motif.decimalesMin = motif.decimales;
        }
    }
    return motif;
}

/// 15 significant decimal digits of a positive number; the point stands behind `avant` of them.
struct Chiffres {
    std::string texte;
    int avant = 0;
};

Chiffres Decomposer(double valeur) {
    char tampon[40];
    const auto fin = std::to_chars(tampon, tampon + sizeof tampon, valeur,
                                   std::chars_format::scientific, chiffresSignificatifs - 1);
    Chiffres chiffres;
    const char* c = tampon;
    for (; *c != 'e'; ++c)
        if (*c != '.') chiffres.texte += *c;
    ++c;
    if (*c == '+') ++c;
    int exposant = 0;
    std::from_chars(c, fin.ptr, exposant);
    chiffres.avant = exposant + 1;
    return chiffres;
}

// Keeps `decimales` places behind the point. What is dropped rounds half away from zero, or half to
// even where no place is kept.
void Arrondir(Chiffres& chiffres, int decimales) {
    const int gardes = chiffres.avant + decimales;
    if (gardes >= static_cast<int>(chiffres.texte.size())) return;
    if (gardes < 0) {
        chiffres.texte.clear();
        chiffres.avant = 0;
        return;
    }
    const auto coupe = static_cast<std::size_t>(gardes);
    const char premier = chiffres.texte[coupe];
    const bool reste = chiffres.texte.find_first_not_of('0', coupe + 1) != std::string::npos;
    const bool impair = coupe > 0 && (chiffres.texte[coupe - 1] - '0') % 2 != 0;
    const bool monter = premier > '5' || (premier == '5' && (reste || decimales > 0 || impair));
    chiffres.texte.resize(coupe);
    if (!monter) return;
    std::size_t i = coupe;
    while (i > 0 && chiffres.texte[i - 1] == '9')
        chiffres.texte[--i] = '0';
    if (i > 0) {
        ++chiffres.texte[i - 1];
    } else {
        chiffres.texte.insert(0, 1, '1');
        ++chiffres.avant;
    }
}

std::string PartieEntiere(const Chiffres& chiffres, int places) {
    std::string entiere;
    for (int i = 0; i < chiffres.avant; ++i)
        entiere += static_cast<std::size_t>(i) < chiffres.texte.size()
                       ? chiffres.texte[static_cast<std::size_t>(i)]
                       : '0';
    entiere.erase(0, std::min(entiere.find_first_not_of('0'), entiere.size()));
    if (static_cast<int>(entiere.size()) < places)
        entiere.insert(0, static_cast<std::size_t>(places) - entiere.size(), '0');
    return entiere;
}

std::string PartieDecimale(const Chiffres& chiffres, const Motif& motif) {
    std::string decimale;
    for (int i = chiffres.avant; i < chiffres.avant + motif.decimales; ++i)
        decimale += i >= 0 && static_cast<std::size_t>(i) < chiffres.texte.size()
                        ? chiffres.texte[static_cast<std::size_t>(i)]
                        : '0';
    while (static_cast<int>(decimale.size()) > motif.decimalesMin && decimale.back() == '0')
        decimale.pop_back();
    return decimale;
}

bool ADesChiffres(const std::string& texte) {
    return texte.find_first_not_of('0') != std::string::npos;
}

}  // namespace

QString Format(double valeur, std::string_view motifTexte, const Regional& regional) {
    const Motif motif = Lire(motifTexte);
    Chiffres chiffres = Decomposer(std::fabs(valeur));
    Arrondir(chiffres, motif.decimales);
    const std::string entiere = PartieEntiere(chiffres, motif.entiers);
    const std::string decimale = PartieDecimale(chiffres, motif);
    QString texte;
    if (valeur < 0 && (ADesChiffres(entiere) || ADesChiffres(decimale))) texte += QLatin1Char('-');
    texte += QString::fromLatin1(entiere.data(), static_cast<qsizetype>(entiere.size()));
    if (motif.separateur) texte += regional.separateur;
    texte += QString::fromLatin1(decimale.data(), static_cast<qsizetype>(decimale.size()));
    return texte;
}

double ArrondiTroisDecimales(double valeur) {
    // Far from a tie the decimal text cannot round otherwise than the number does; near one, and
    // for numbers whose 15 digits do not reach three places, the text decides.
    constexpr double limite = 1e8;
    constexpr double voisinage = 1e-5;
    const double milliemes = std::fabs(valeur) * 1000;
    if (milliemes < limite) {
        const double bas = std::floor(milliemes);
        const double ecart = milliemes - bas - 0.5;
        if (std::fabs(ecart) > voisinage) {
            const double n = ecart > 0 ? bas + 1 : bas;
            return n == 0 ? 0 : std::copysign(n / 1000, valeur);
        }
    }
    const QString texte = Format(valeur, "###0.000", Regional{});
    return texte.toDouble();
}

}  // namespace bornika
