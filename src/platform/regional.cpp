#include "platform/regional.h"

namespace bornika {

namespace {

// Every run of one letter as the widest numeric form: months as numbers, years with four digits.
QString EnNombres(const QString& motif) {
    QString resultat;
    for (qsizetype i = 0; i < motif.size();) {
        const QChar lettre = motif[i];
        qsizetype fin = i;
        while (fin < motif.size() && motif[fin] == lettre)
            ++fin;
        const qsizetype longueur = fin - i;
        if (lettre == QLatin1Char('y'))
            resultat += QStringLiteral("yyyy");
        else if (lettre == QLatin1Char('M') && longueur > 2)
            resultat += QStringLiteral("MM");
        else
            resultat += motif.mid(i, longueur);
        i = fin;
    }
    return resultat;
}

}  // namespace

Regional Regional::Pour(const QLocale& locale) {
    // The C locale's "d MMM yyyy" has no numeric form of its own.
    const QString motif = locale.language() == QLocale::C
                              ? QStringLiteral("dd/MM/yyyy")
                              : EnNombres(locale.dateFormat(QLocale::ShortFormat));
    return {locale.decimalPoint(), motif};
}

Regional Regional::DuSysteme() {
    return Pour(QLocale::system());
}

}  // namespace bornika
