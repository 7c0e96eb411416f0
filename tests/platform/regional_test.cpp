#include "platform/regional.h"

#include <gtest/gtest.h>

#include <QDate>

namespace bornika {
namespace {

Regional De(const char* nom) {
    return Regional::Pour(QLocale(QString::fromLatin1(nom)));
}

TEST(Regional, WidensYearsToFourDigits) {
    EXPECT_EQ(De("en_US").dateCourte, "M/d/yyyy");
    EXPECT_EQ(De("fr_FR").dateCourte, "dd/MM/yyyy");
    EXPECT_EQ(De("de_DE").dateCourte, "dd.MM.yyyy");
    EXPECT_EQ(De("en_ZA").dateCourte, "yyyy/MM/dd");
}

TEST(Regional, TakesTheDecimalSeparator) {
    EXPECT_EQ(De("en_US").separateur, ".");
    EXPECT_EQ(De("fr_FR").separateur, ",");
    EXPECT_EQ(De("de_DE").separateur, ",");
}

TEST(Regional, KeepsAThirdSeparatorAsItIs) {
    EXPECT_EQ(De("fa_IR").separateur, QStringLiteral("\u066B"));
}

TEST(Regional, GivesAMachineWithoutLocaleADateInNumbers) {
    const Regional regional = Regional::Pour(QLocale::c());
    EXPECT_EQ(regional.dateCourte, "dd/MM/yyyy");
    EXPECT_EQ(regional.separateur, ".");
}

TEST(Regional, KeepsLiteralsOfThePattern) {
    EXPECT_EQ(De("bg_BG").dateCourte, "d.MM.yyyy 'г'.");
}

TEST(Regional, NeverWritesAnAmbiguousDateInAnyLocale) {
    const QDate jour(2031, 3, 5);
    const auto toutes =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(toutes.size(), 100);
    for (const QLocale& locale : toutes) {
        const QString patron = Regional::Pour(locale).dateCourte;
        EXPECT_EQ(patron.count(QLatin1Char('y')), 4) << locale.name().toStdString();
        EXPECT_FALSE(patron.contains(QLatin1String("MMM"))) << locale.name().toStdString();
        EXPECT_EQ(QLocale::c().toDate(QLocale::c().toString(jour, patron), patron), jour)
            << locale.name().toStdString() << ' ' << patron.toStdString();
    }
}

}  // namespace
}  // namespace bornika
