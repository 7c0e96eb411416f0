#include "platform/dates.h"

#include <cmath>
#include <utility>

#include "platform/numbers.h"

namespace bornika {

namespace {

constexpr double jourZero = 25569;  // 1 January 1970
constexpr std::int64_t secondesParJour = 86400;
/// First second of the year 100 and last one of the year 9999: no date goes beyond.
constexpr double premierInstant = -59011459200.0;
constexpr double dernierInstant = 253402300799.0;

const QDate origine(1970, 1, 1);

bool EstPossible(double secondes) {
    return secondes >= premierInstant && secondes <= dernierInstant;
}

QTime Heure(std::int64_t secondeDuJour) {
    return QTime::fromMSecsSinceStartOfDay(static_cast<int>(secondeDuJour) * 1000);
}

struct Champs {
    int annee;
    int mois;
    int jour;
};

/// Calendar fields of a count of days since 1 January 1970.
Champs Calendrier(std::int64_t jours) {
    const std::int64_t z = jours + 719468;  // from 1 March of the year 0
    const std::int64_t ere = (z >= 0 ? z : z - 146096) / 146097;
    const std::int64_t jourEre = z - ere * 146097;
    const std::int64_t anneeEre =
        (jourEre - jourEre / 1460 + jourEre / 36524 - jourEre / 146096) / 365;
    const std::int64_t jourAnnee = jourEre - (365 * anneeEre + anneeEre / 4 - anneeEre / 100);
    const std::int64_t m = (5 * jourAnnee + 2) / 153;
    const int mois = static_cast<int>(m < 10 ? m + 3 : m - 9);
    return {static_cast<int>(anneeEre + ere * 400 + (mois <= 2 ? 1 : 0)), mois,
            static_cast<int>(jourAnnee - (153 * m + 2) / 5 + 1)};
}

struct Decoupe {
    std::int64_t jours;
    std::int64_t secondeDuJour;
    Champs champs;
};

/// Splits a count of seconds, fractions dropped, and takes back the day that the way out added to
/// leap years. Only the division by 4 is tested, as the logger's time base does.
Decoupe Decouper(double secondes) {
    // What no calendar holds is shown as the origin: always some text.
    const double entier = std::floor(secondes);
    const bool possible = EstPossible(entier);
    const auto total = possible ? static_cast<std::int64_t>(entier) : 0;
    std::int64_t jours = total / secondesParJour;
    std::int64_t reste = total % secondesParJour;
    if (reste < 0) {
        reste += secondesParJour;
        --jours;
    }
    Champs champs = Calendrier(jours);
    const bool apresFevrier = champs.mois > 2 || (champs.mois == 2 && champs.jour > 28);
    if (champs.annee % 4 == 0 && apresFevrier) champs = Calendrier(--jours);
    return {jours, reste, champs};
}

/// Writes into a text made long enough beforehand: a download asks for half a million of them.
class Plume {
  public:
    explicit Plume(qsizetype capacite) : texte_(capacite, Qt::Uninitialized), ici_(texte_.data()) {}

    void Signe(QChar c) { *ici_++ = c; }
    void DeuxChiffres(int nombre) {
        Signe(QChar(u'0' + nombre / 10));
        Signe(QChar(u'0' + nombre % 10));
    }
    void Nombre(int nombre, qsizetype chiffres) {
        if (chiffres < 2 && nombre < 10)
            Signe(QChar(u'0' + nombre));
        else
            DeuxChiffres(nombre);
    }
    void Annee(int annee, qsizetype chiffres) {
        if (chiffres >= 4) DeuxChiffres(annee / 100);
        DeuxChiffres(annee % 100);
    }
    void Heure(int heures, int minutes, int secondes) {
        DeuxChiffres(heures);
        Signe(u':');
        DeuxChiffres(minutes);
        Signe(u':');
        DeuxChiffres(secondes);
    }
    QString Texte() {
        texte_.truncate(ici_ - texte_.constData());
        return std::move(texte_);
    }

  private:
    QString texte_;
    QChar* ici_;
};

/// Writes the fields through a pattern made of d, dd, M, MM, yy, yyyy and literals, quoted or not.
void EcrireDate(Plume& plume, QStringView motif, const Champs& champs) {
    bool cite = false;
    for (qsizetype i = 0; i < motif.size();) {
        const QChar c = motif[i];
        qsizetype fin = i + 1;
        while (fin < motif.size() && motif[fin] == c)
            ++fin;
        const qsizetype longueur = fin - i;
        if (c == u'\'') {
            if (longueur % 2) cite = !cite;
            for (qsizetype k = 1; k < longueur; k += 2)
                plume.Signe(c);
        } else if (!cite && c == u'd') {
            plume.Nombre(champs.jour, longueur);
        } else if (!cite && c == u'M') {
            plume.Nombre(champs.mois, longueur);
        } else if (!cite && c == u'y') {
            plume.Annee(champs.annee, longueur);
        } else {
            for (qsizetype k = 0; k < longueur; ++k)
                plume.Signe(c);
        }
        i = fin;
    }
}

}  // namespace

DateOrdinateur VersDateOrdinateur(const QDateTime& instant) {
    return jourZero + static_cast<double>(origine.daysTo(instant.date())) +
           instant.time().msecsSinceStartOfDay() / 86400000.0;
}

QDateTime DepuisDateOrdinateur(DateOrdinateur date) {
    const double secondes = std::round((date - jourZero) * static_cast<double>(secondesParJour));
    const bool possible = EstPossible(secondes);
    return QDateTime(origine, QTime(0, 0), Qt::UTC)
        .addSecs(possible ? static_cast<qint64>(secondes) : 0);
}

std::int32_t DateVersEpoch(DateOrdinateur jour, DateOrdinateur heure) {
    if (!(jour >= 1)) return 0;
    const QDateTime instant = DepuisDateOrdinateur(jour);
    const QTime moment = heure == -1.0 ? instant.time() : DepuisDateOrdinateur(heure).time();
    // Days first, in 1970, then years: a date of a leap year after 28 February is counted one day
    // too late, which is the logger's time base.
    const QDate date = origine.addDays(instant.date().dayOfYear() - 1)
                           .addYears(instant.date().year() - origine.year());
    return EnEntier32(static_cast<double>(origine.daysTo(date) * secondesParJour +
                                          moment.msecsSinceStartOfDay() / 1000));
}

QString EpochVersTexte(double secondes, const Regional& regional) {
    const Decoupe decoupe = Decouper(secondes);
    const auto seconde = static_cast<int>(decoupe.secondeDuJour);
    // No field of a pattern takes more than twice its letters.
    Plume plume(2 * regional.dateCourte.size() + 9);
    EcrireDate(plume, regional.dateCourte, decoupe.champs);
    plume.Signe(u' ');
    plume.Heure(seconde / 3600, seconde / 60 % 60, seconde % 60);
    return plume.Texte();
}

QDateTime EpochVersInstant(double secondes) {
    const Decoupe decoupe = Decouper(secondes);
    return QDateTime(origine.addDays(decoupe.jours), Heure(decoupe.secondeDuJour), Qt::UTC);
}

QString DureeVersTexte(std::int32_t secondes, const QString& jours) {
    const std::int32_t minutes = secondes / 60;
    const std::int32_t heures = minutes / 60;
    return QString::number(heures / 24) + u' ' + jours + u' ' + QString::number(heures % 24) +
           QLatin1String(" H ") + QString::number(minutes % 60) + QLatin1String(" Mn ");
}

QString HeureLocale(int heures, int minutes, int secondes) {
    if (!QTime::isValid(heures, minutes, secondes)) return {};
    Plume plume(8);
    plume.Heure(heures, minutes, secondes);
    return plume.Texte();
}

QString FormatDateCourt(const Regional& regional) {
    return regional.dateCourte;
}

QString SeparateurDecimal(const Regional& regional) {
    return regional.separateur;
}

}  // namespace bornika
