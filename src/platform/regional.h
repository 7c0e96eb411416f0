#pragma once

#include <QLocale>
#include <QString>

namespace bornika {

/// What the user's locale gives: taken once at the start, injected in tests.
struct Regional {
    /// Decimal separator, "." or "," nearly everywhere.
    QString separateur = QStringLiteral(".");
    /// Short date pattern of the toolkit with a four-digit year and months as numbers,
    /// "dd/MM/yyyy".
    QString dateCourte = QStringLiteral("dd/MM/yyyy");

    static Regional Pour(const QLocale& locale);
    static Regional DuSysteme();
};

}  // namespace bornika
