#include "platform/numbers.h"

#include <QVarLengthArray>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "platform/fault.h"

namespace bornika {

namespace {

using Ascii = QVarLengthArray<char, 64>;

bool EstChiffre(QChar signe) {
    return signe >= QLatin1Char('0') && signe <= QLatin1Char('9');
}

// What `std::to_chars` wrote, with a capital "E" and the separator of the locale.
QString HabillerNombre(char* debut, char* fin, const Regional& regional) {
    QString texte = QString::fromLatin1(debut, fin - debut);
    texte.replace(QLatin1Char('e'), QLatin1Char('E'));
    if (regional.separateur != QLatin1String("."))
        texte.replace(QLatin1Char('.'), regional.separateur);
    return texte;
}

// Neither infinity nor an undefined value has digits; erased memory can hold both.
QString TexteNonFini(double valeur) {
    if (std::isnan(valeur)) return QStringLiteral("NaN");
    return valeur < 0 ? QStringLiteral("-INF") : QStringLiteral("INF");
}

qsizetype PrendreChiffres(QStringView texte, qsizetype i, Ascii& nombre) {
    for (; i < texte.size() && EstChiffre(texte[i]); ++i)
        nombre.append(static_cast<char>(texte[i].unicode()));
    return i;
}

// Takes the exponent at `i` when digits stand behind its sign; returns where it ends.
qsizetype PrendreExposant(QStringView texte, qsizetype i, Ascii& nombre) {
    if (i >= texte.size() || texte[i].toUpper() != QLatin1Char('E')) return i;
    qsizetype j = i + 1;
    Ascii exposant;
    exposant.append('e');
    if (j < texte.size() && (texte[j] == QLatin1Char('-') || texte[j] == QLatin1Char('+')))
        exposant.append(static_cast<char>(texte[j++].unicode()));
    const qsizetype fin = PrendreChiffres(texte, j, exposant);
    if (fin == j) return i;
    nombre.append(exposant.constData(), exposant.size());
    return fin;
}

// Takes the longest leading number of the text into `nombre`, with a point. Returns where it ends,
// 0 when there is none.
qsizetype PrendreNombre(QStringView texte, QStringView separateur, Ascii& nombre) {
    qsizetype i = 0;
    if (!texte.isEmpty() && (texte[0] == QLatin1Char('-') || texte[0] == QLatin1Char('+'))) {
        if (texte[0] == QLatin1Char('-')) nombre.append('-');
        i = 1;
    }
    const qsizetype debut = i;
    i = PrendreChiffres(texte, i, nombre);
    qsizetype chiffres = i - debut;
    if (!separateur.isEmpty() && texte.sliced(i).startsWith(separateur)) {
        nombre.append('.');
        const qsizetype fraction = i + separateur.size();
        i = PrendreChiffres(texte, fraction, nombre);
        chiffres += i - fraction;
    }
    return chiffres > 0 ? PrendreExposant(texte, i, nombre) : 0;
}

// The value of such a number; 0 when it is too small and infinite when it is too large for a
// double.
double ConvertirAscii(const Ascii& nombre) {
    double valeur = 0;
    const char* debut = nombre.constData();
    const char* fin = debut + nombre.size();
    if (std::from_chars(debut, fin, valeur).ec == std::errc()) return valeur;
    const std::string_view texte(debut, static_cast<std::size_t>(nombre.size()));
    const auto exposant = texte.find('e');
    if (exposant == std::string_view::npos)
        return texte.find_first_of("123456789") > texte.find('.') ? 0 : HUGE_VAL;
    return texte[exposant + 1] == '-' ? 0 : HUGE_VAL;
}

QStringView SansBlancs(QStringView texte) {
    while (texte.startsWith(QLatin1Char(' ')))
        texte = texte.sliced(1);
    while (texte.endsWith(QLatin1Char(' ')))
        texte.chop(1);
    return texte;
}

template <class Entier>
Entier EnEntier(double valeur) {
    const double rond = std::nearbyint(valeur);
    if (!(rond >= std::numeric_limits<Entier>::min() && rond <= std::numeric_limits<Entier>::max()))
        LeverFaute(numero_faute::depassement);
    return static_cast<Entier>(rond);
}

}  // namespace

QString TexteGeneral(double valeur, const Regional& regional) {
    if (!std::isfinite(valeur)) return TexteNonFini(valeur);
    if (valeur == 0) return QStringLiteral("0");
    char texte[32];
    const auto fin = std::to_chars(texte, std::end(texte), valeur, std::chars_format::general, 15);
    return HabillerNombre(texte, fin.ptr, regional);
}

QString TexteCourt(float valeur, const Regional& regional) {
    if (!std::isfinite(valeur)) return TexteNonFini(static_cast<double>(valeur));
    if (valeur == 0) return QStringLiteral("0");
    char texte[64];
    return HabillerNombre(texte, std::to_chars(texte, std::end(texte), valeur).ptr, regional);
}

QString TexteBooleen(bool valeur) {
    return valeur ? QStringLiteral("True") : QStringLiteral("False");
}

double ValeurDebut(QStringView texte) {
    while (!texte.isEmpty() && texte.front().isSpace())
        texte = texte.sliced(1);
    Ascii nombre;
    if (PrendreNombre(texte, u".", nombre) == 0) return 0;
    const double valeur = ConvertirAscii(nombre);
    if (std::isinf(valeur)) LeverFaute(numero_faute::depassement);
    return valeur;
}

bool EstNumerique(QStringView texte, const Regional& regional) {
    texte = SansBlancs(texte);
    Ascii nombre;
    const qsizetype fin = PrendreNombre(texte, regional.separateur, nombre);
    // A number that no variable can hold would only end the program one step later.
    return fin > 0 && fin == texte.size() && std::isfinite(ConvertirAscii(nombre));
}

double EnDouble(QStringView texte, const Regional& regional) {
    texte = texte.trimmed();
    Ascii nombre;
    const qsizetype fin = PrendreNombre(texte, regional.separateur, nombre);
    if (fin == 0 || fin != texte.size()) LeverFaute(numero_faute::typeIncompatible);
    const double valeur = ConvertirAscii(nombre);
    if (std::isinf(valeur)) LeverFaute(numero_faute::depassement);
    return valeur;
}

double ArrondiPair(double valeur) {
    return std::nearbyint(valeur);
}

std::int16_t EnEntier16(double valeur) {
    return EnEntier<std::int16_t>(valeur);
}
std::int32_t EnEntier32(double valeur) {
    return EnEntier<std::int32_t>(valeur);
}
std::uint8_t EnOctet(double valeur) {
    return EnEntier<std::uint8_t>(valeur);
}

std::int16_t EnEntier16(QStringView texte, const Regional& regional) {
    return EnEntier16(EnDouble(texte, regional));
}

std::int32_t EnEntier32(QStringView texte, const Regional& regional) {
    return EnEntier32(EnDouble(texte, regional));
}

float EnSimple(double valeur) {
    if (!(std::fabs(valeur) <= std::numeric_limits<float>::max()))
        LeverFaute(numero_faute::depassement);
    return static_cast<float>(valeur);
}

double Diviser(double dividende, double diviseur) {
    if (diviseur == 0)
        LeverFaute(dividende == 0 ? numero_faute::depassement : numero_faute::divisionParZero);
    return dividende / diviseur;
}

}  // namespace bornika
