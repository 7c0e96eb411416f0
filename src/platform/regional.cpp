#include "platform/regional.h"

namespace bornika {

namespace {

// Years in four digits and months as numbers; quoted literals stay as they are.
QString PatronChiffre(const QString& patron) {
    QString chiffre;
    bool entreApostrophes = false;
    for (qsizetype i = 0; i < patron.size();) {
        const QChar signe = patron[i];
        qsizetype fin = i + 1;
        while (fin < patron.size() && patron[fin] == signe)
            ++fin;
        qsizetype longueur = fin - i;
        if (signe == QLatin1Char('\'')) {
            if (longueur % 2 == 1) entreApostrophes = !entreApostrophes;
        } else if (!entreApostrophes && signe == QLatin1Char('y')) {
            longueur = 4;
        } else if (!entreApostrophes && signe == QLatin1Char('M')) {
            longueur = qMin<qsizetype>(longueur, 2);
        }
        chiffre += QString(longueur, signe);
        i = fin;
    }
    return chiffre;
}

}  // namespace

Regional Regional::Pour(const QLocale& locale) {
    Regional regional;
    regional.separateur = locale.decimalPoint();
    const QString patron = locale.dateFormat(QLocale::ShortFormat);
    // A machine without a locale has a pattern with the month in English letters: not a short date.
    if (!patron.isEmpty() && patron != QLocale::c().dateFormat(QLocale::ShortFormat))
        regional.dateCourte = PatronChiffre(patron);
    return regional;
}

Regional Regional::DuSysteme() {
    return Pour(QLocale::system());
}

}  // namespace bornika
