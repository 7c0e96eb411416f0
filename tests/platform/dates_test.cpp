#include "platform/dates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>
#include <limits>

#include "platform/fault.h"
#include "support/case_names.h"
#include "support/fault_number.h"
#include "support/plain_text.h"

namespace bornika {
namespace {

using essai::q;

QDateTime Instant(const char* texte) {
    QDateTime instant = QDateTime::fromString(QString::fromLatin1(texte), Qt::ISODate);
    instant.setTimeSpec(Qt::UTC);
    return instant;
}

std::int32_t Vers(const char* texte) {
    return DateVersEpoch(VersDateOrdinateur(Instant(texte)));
}

std::string Retour(double secondes) {
    return EpochVersTexte(secondes, Regional{}).toStdString();
}

/// Plain seconds since 1970, without the logger's rule.
double Brut(const char* texte) {
    return static_cast<double>(Instant(texte).toSecsSinceEpoch());
}

TEST(DateVersEpoch, OriginIsZeroBothWays) {
    EXPECT_EQ(Vers("1970-01-01T00:00:00"), 0);
    EXPECT_EQ(Retour(0), "01/01/1970 00:00:00");
}

struct CasDate {
    const char* date;
    const char* stocke;  // as plain calendar time
    const char* montre;
};

void PrintTo(const CasDate& cas, std::ostream* sortie) {
    *sortie << cas.date;
}

class AnneesBissextiles : public testing::TestWithParam<CasDate> {};

TEST_P(AnneesBissextiles, AreStoredADayLateAfterFebruaryAndShownRight) {
    const CasDate& cas = GetParam();
    EXPECT_EQ(Vers(cas.date), Brut(cas.stocke));
    EXPECT_EQ(Retour(Vers(cas.date)), cas.montre);
    EXPECT_EQ(EpochVersInstant(Vers(cas.date)).toString(q("dd/MM/yyyy HH:mm:ss")).toStdString(),
              cas.montre);
}

INSTANTIATE_TEST_SUITE_P(
    Table, AnneesBissextiles,
    testing::Values(CasDate{"2024-02-28T12:00:00", "2024-02-28T12:00:00", "28/02/2024 12:00:00"},
                    CasDate{"2024-02-29T12:00:00", "2024-03-01T12:00:00", "29/02/2024 12:00:00"},
                    CasDate{"2024-03-01T12:00:00", "2024-03-02T12:00:00", "01/03/2024 12:00:00"},
                    CasDate{"2024-12-30T23:59:59", "2024-12-31T23:59:59", "30/12/2024 23:59:59"},
                    CasDate{"2024-12-31T00:00:01", "2025-01-01T00:00:01", "01/01/2025 00:00:01"},
                    CasDate{"2023-12-31T05:06:07", "2023-12-31T05:06:07", "31/12/2023 05:06:07"},
                    CasDate{"2025-01-01T00:00:00", "2025-01-01T00:00:00", "01/01/2025 00:00:00"},
                    CasDate{"1972-02-29T01:02:03", "1972-03-01T01:02:03", "29/02/1972 01:02:03"},
                    CasDate{"1972-12-31T01:02:03", "1973-01-01T01:02:03", "01/01/1973 01:02:03"},
                    CasDate{"2000-02-28T01:02:03", "2000-02-28T01:02:03", "28/02/2000 01:02:03"},
                    CasDate{"2000-02-29T01:02:03", "2000-03-01T01:02:03", "29/02/2000 01:02:03"},
                    CasDate{"2000-06-15T01:02:03", "2000-06-16T01:02:03", "15/06/2000 01:02:03"}),
    essai::nomDuCasImprime);

TEST(EpochVersTexte, StoredTwentyNinthOfFebruaryIsShownAsTheTwentyEighth) {
    EXPECT_EQ(Retour(Brut("2024-02-29T10:00:00")), "28/02/2024 10:00:00");
}

TEST(EpochVersTexte, CenturyIsNotTestedForTheLeapRule) {
    EXPECT_EQ(Retour(Brut("2100-03-01T00:00:00")), "28/02/2100 00:00:00");
    EXPECT_EQ(Retour(Brut("2100-02-28T00:00:00")), "28/02/2100 00:00:00");
}

TEST(EpochVersTexte, GoesBeyondThirtyTwoBits) {
    EXPECT_EQ(Retour(Brut("2087-09-12T06:00:05")), "12/09/2087 06:00:05");
    EXPECT_EQ(Retour(2147483648.0), "19/01/2038 03:14:08");
}

TEST(EpochVersTexte, FractionsAreDropped) {
    EXPECT_EQ(Retour(59.7), "01/01/1970 00:00:59");
    EXPECT_EQ(Retour(59.9999), "01/01/1970 00:00:59");
    EXPECT_EQ(Retour(86399.5), "01/01/1970 23:59:59");
}

TEST(EpochVersTexte, AlwaysGivesSomeText) {
    EXPECT_EQ(Retour(-1.0), "31/12/1969 23:59:59");
    for (const double s : {-5e10, -6e10, 1e18, -1e18, std::numeric_limits<double>::infinity(),
                           std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(EpochVersTexte(s, Regional{}).isEmpty());
}

TEST(EpochVersTexte, SameCalendarAsTheToolkitForEveryDayOfFourHundredYears) {
    const QDate origine(1970, 1, 1);
    for (int jour = 0; jour < 146097; ++jour) {
        QDate date = origine.addDays(jour);
        if (date.year() % 4 == 0 && (date.month() > 2 || date.day() > 28) && date.month() >= 2)
            date = date.addDays(-1);
        ASSERT_EQ(EpochVersInstant(jour * 86400.0).date(), date);
        ASSERT_EQ(EpochVersTexte(jour * 86400.0, Regional{}),
                  date.toString(q("dd/MM/yyyy")) + q(" 00:00:00"));
    }
}

struct CasMotif {
    const char* motif;
    const char* texte;
};

void PrintTo(const CasMotif& cas, std::ostream* sortie) {
    *sortie << cas.motif;
}

class MotifsDeDate : public testing::TestWithParam<CasMotif> {};

TEST_P(MotifsDeDate, OfTheUsersLocale) {
    const Regional regional{q("."), q(GetParam().motif)};
    EXPECT_EQ(EpochVersTexte(Brut("2027-03-05T04:05:06"), regional).toStdString(),
              GetParam().texte);
    EXPECT_EQ(FormatDateCourt(regional), q(GetParam().motif));
}

INSTANTIATE_TEST_SUITE_P(Motifs, MotifsDeDate,
                         testing::Values(CasMotif{"M/d/yyyy", "3/5/2027 04:05:06"},
                                         CasMotif{"dd/MM/yyyy", "05/03/2027 04:05:06"},
                                         CasMotif{"dd.MM.yyyy", "05.03.2027 04:05:06"},
                                         CasMotif{"yyyy-MM-dd", "2027-03-05 04:05:06"},
                                         CasMotif{"d.M.yy", "5.3.27 04:05:06"},
                                         CasMotif{"d 'de' M 'de' yyyy", "5 de 3 de 2027 04:05:06"},
                                         CasMotif{"yyyy. MM. dd.", "2027. 03. 05. 04:05:06"},
                                         CasMotif{"dd''MM", "05'03 04:05:06"}),
                         essai::nomDuCasImprime);

TEST(DateVersEpoch, TimeGivenApartReplacesHourMinuteAndSecond) {
    const double jour = VersDateOrdinateur(Instant("2023-05-06T07:08:09"));
    const double heure = VersDateOrdinateur(Instant("2001-02-03T21:22:23"));
    EXPECT_EQ(DateVersEpoch(jour, heure), Brut("2023-05-06T21:22:23"));
    EXPECT_EQ(DateVersEpoch(jour, heure - std::floor(heure)), Brut("2023-05-06T21:22:23"));
    EXPECT_EQ(DateVersEpoch(jour, 0.0), Brut("2023-05-06T00:00:00"));
    EXPECT_EQ(DateVersEpoch(jour, -1.0), Brut("2023-05-06T07:08:09"));
}

TEST(DateVersEpoch, DayBelowOneGivesZero) {
    EXPECT_EQ(DateVersEpoch(0.99, 0.5), 0);
    EXPECT_EQ(DateVersEpoch(-5), 0);
}

TEST(DateVersEpoch, OverflowsBehindTheLastSecondOfThirtyTwoBits) {
    EXPECT_EQ(Vers("2038-01-19T03:14:07"), 2147483647);
    EXPECT_EQ(essai::NumeroDeFaute([] { Vers("2038-01-19T03:14:08"); }), numero_faute::depassement);
}

TEST(DateVersEpoch, SameResultsWhateverTheTimeZone) {
    for (const char* zone : {"Europe/Paris", "UTC", "America/New_York"}) {
        setenv("TZ", zone, 1);
        tzset();
        // 2:30 does not exist in Paris on that day.
        EXPECT_EQ(Vers("2027-03-28T02:30:00"), Brut("2027-03-28T02:30:00")) << zone;
        EXPECT_EQ(Retour(Brut("2027-03-28T02:30:00")), "28/03/2027 02:30:00") << zone;
        EXPECT_EQ(Retour(Brut("2027-10-31T02:30:00")), "31/10/2027 02:30:00") << zone;
    }
    unsetenv("TZ");
    tzset();
}

TEST(DateOrdinateur, CountsDaysWithTheTimeAsFraction) {
    EXPECT_EQ(VersDateOrdinateur(Instant("1970-01-01T00:00:00")), 25569.0);
    EXPECT_EQ(VersDateOrdinateur(Instant("1970-01-02T12:00:00")), 25570.5);
    for (const char* texte : {"1970-01-01T00:00:01", "2024-02-29T23:59:59", "2099-07-08T09:10:11"})
        EXPECT_EQ(DepuisDateOrdinateur(VersDateOrdinateur(Instant(texte))), Instant(texte));
}

TEST(DureeVersTexte, DropsSecondsAndEndsWithABlank) {
    EXPECT_EQ(DureeVersTexte(90061, q("jours")), q("1 jours 1 H 1 Mn "));
    EXPECT_EQ(DureeVersTexte(59, q("jours")), q("0 jours 0 H 0 Mn "));
    EXPECT_EQ(DureeVersTexte(2147483647, q("days")), q("24855 days 3 H 14 Mn "));
}

TEST(HeureLocale, IsTwentyFourHoursAndEmptyOutOfRange) {
    EXPECT_EQ(HeureLocale(0, 0, 0), q("00:00:00"));
    EXPECT_EQ(HeureLocale(23, 59, 9), q("23:59:09"));
    EXPECT_EQ(HeureLocale(24, 0, 0), QString());
    EXPECT_EQ(HeureLocale(1, 60, 0), QString());
    EXPECT_EQ(HeureLocale(1, 0, 60), QString());
    EXPECT_EQ(HeureLocale(-1, 0, 0), QString());
}

TEST(SeparateurDecimal, IsTheLocalesWhateverItIs) {
    EXPECT_EQ(SeparateurDecimal(Regional{}), q("."));
    EXPECT_EQ(SeparateurDecimal(Regional{q(","), q("dd/MM/yyyy")}), q(","));
    EXPECT_EQ(SeparateurDecimal(Regional{q("٫"), q("dd/MM/yyyy")}), q("٫"));
}

}  // namespace
}  // namespace bornika
