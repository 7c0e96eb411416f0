#include "platform/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int chiffresSignificatifs = 15;

// The text that to_chars made, with the locale's separator and a capital E.
QString EnTexte(const char* debut, const char* fin, const Regional& regional) {
    QString texte;
    texte.reserve(fin - debut);
    for (const char* c = debut; c != fin; ++c) {
        if (*c == '.')
            texte += regional.separateur;
        else
            texte += QLatin1Char(*c == 'e' ? 'E' : *c);
    }
    return texte;
}

bool EstChiffre(QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/// Takes a number apart, character by character, and keeps it with a point as separator.
class Lecteur {
  public:
    Lecteur(QStringView texte, QStringView separateur) : texte_(texte), separateur_(separateur) {}

    // Sign, digits with at most one separator, then an exponent if it is complete. False without a
    // digit.
    bool LireNombre() {
        if (Est(u'-') || Est(u'+')) {
            if (texte_[position_] == u'-') nombre_ += '-';
            ++position_;
        }
        const int entiers = LireChiffres();
        int decimales = 0;
        if (texte_.sliced(position_).startsWith(separateur_) && !separateur_.isEmpty()) {
            position_ += separateur_.size();
            nombre_ += '.';
            decimales = LireChiffres();
        }
        if (entiers + decimales == 0) return false;
        LireExposant();
        return true;
    }

    void PasserBlancs(bool finsDeLigne) {
        while (position_ < texte_.size() &&
               (finsDeLigne ? texte_[position_].isSpace() : texte_[position_] == u' '))
            ++position_;
    }
    bool EstFin() const { return position_ == texte_.size(); }

    double Valeur() const {
        double valeur = 0;
        const char* debut = nombre_.data();
        const char* fin = debut + nombre_.size();
        const auto [suite, erreur] = std::from_chars(debut, fin, valeur);
        if (erreur == std::errc::result_out_of_range) LeverFaute(numero_faute::depassement);
        return valeur;
    }

  private:
    bool Est(char16_t c) const { return position_ < texte_.size() && texte_[position_] == c; }

    int LireChiffres() {
        int nombre = 0;
        for (; position_ < texte_.size() && EstChiffre(texte_[position_]); ++position_, ++nombre)
            nombre_ += static_cast<char>(texte_[position_].unicode());
        return nombre;
    }

    void LireExposant() {
        if (!Est(u'E') && !Est(u'e')) return;
        const qsizetype retour = position_;
        std::string avant = nombre_;
        ++position_;
        nombre_ += 'e';
        if (Est(u'-') || Est(u'+')) {
            nombre_ += static_cast<char>(texte_[position_].unicode());
            ++position_;
        }
        if (LireChiffres() == 0) {
            position_ = retour;
            nombre_ = std::move(avant);
        }
    }

    QStringView texte_;
    QStringView separateur_;
    qsizetype position_ = 0;
    std::string nombre_;
};

template <class Entier>
Entier Borner(double valeur) {
    const double arrondi = ArrondiPair(valeur);
    if (!(arrondi >= static_cast<double>(std::numeric_limits<Entier>::min()) &&
          arrondi <= static_cast<double>(std::numeric_limits<Entier>::max())))
        LeverFaute(numero_faute::depassement);
    return static_cast<Entier>(arrondi);
}

}  // namespace

QString TexteGeneral(double valeur, const Regional& regional) {
    char tampon[32];
    if (valeur == 0) valeur = 0;  // no "-0"
    const auto fin = std::to_chars(tampon, tampon + sizeof tampon, valeur,
                                   std::chars_format::general, chiffresSignificatifs);
    return EnTexte(tampon, fin.ptr, regional);
}

QString TexteCourt(float valeur, const Regional& regional) {
    char tampon[32];
    const auto fin =
        std::to_chars(tampon, tampon + sizeof tampon, valeur, std::chars_format::general);
    return EnTexte(tampon, fin.ptr, regional);
}

QString TexteBooleen(bool valeur) {
    return valeur ? QStringLiteral("True") : QStringLiteral("False");
}

double ValeurDebut(QStringView texte) {
    Lecteur lecteur(texte, u".");
    lecteur.PasserBlancs(true);
    return lecteur.LireNombre() ? lecteur.Valeur() : 0;
}

bool EstNumerique(QStringView texte, const Regional& regional) {
    Lecteur lecteur(texte, regional.separateur);
    lecteur.PasserBlancs(false);
    if (!lecteur.LireNombre()) return false;
    lecteur.PasserBlancs(false);
    return lecteur.EstFin();
}

double EnDouble(QStringView texte, const Regional& regional) {
    Lecteur lecteur(texte, regional.separateur);
    lecteur.PasserBlancs(true);
    if (!lecteur.LireNombre()) LeverFaute(numero_faute::typeIncompatible);
    lecteur.PasserBlancs(true);
    if (!lecteur.EstFin()) LeverFaute(numero_faute::typeIncompatible);
    return lecteur.Valeur();
}

// The rounding mode of the processor is "to nearest, ties to even" from the start and stays so.
double ArrondiPair(double valeur) {
    return std::nearbyint(valeur);
}

std::int16_t EnEntier16(double valeur) {
    return Borner<std::int16_t>(valeur);
}
std::int32_t EnEntier32(double valeur) {
    return Borner<std::int32_t>(valeur);
}
std::uint8_t EnOctet(double valeur) {
    return Borner<std::uint8_t>(valeur);
}

std::int16_t EnEntier16(QStringView texte, const Regional& regional) {
    return EnEntier16(EnDouble(texte, regional));
}

std::int32_t EnEntier32(QStringView texte, const Regional& regional) {
    return EnEntier32(EnDouble(texte, regional));
}

double Diviser(double dividende, double diviseur) {
    if (diviseur == 0)
        LeverFaute(dividende == 0 ? numero_faute::depassement : numero_faute::divisionParZero);
    return dividende / diviseur;
}

}  // namespace bornika
