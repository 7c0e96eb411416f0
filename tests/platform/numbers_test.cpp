#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/fault.h"
#include "support/fault_number.h"
#include "support/regionals.h"

namespace bornika {
namespace {

using essai::point;
using essai::virgule;

const Regional arabe{QStringLiteral("\u066B"), QStringLiteral("dd/MM/yyyy")};

using essai::NumeroDeFaute;

TEST(TexteGeneral, HasUpToFifteenSignificantDigits) {
    EXPECT_EQ(TexteGeneral(16, point), "16");
    EXPECT_EQ(TexteGeneral(0.063, point), "0.063");
    EXPECT_EQ(TexteGeneral(-0.5, point), "-0.5");
    EXPECT_EQ(TexteGeneral(0.1 + 0.2, point), "0.3");
    EXPECT_EQ(TexteGeneral(1.0 / 3, point), "0.333333333333333");
    EXPECT_EQ(TexteGeneral(123456789012345.0, point), "123456789012345");
    EXPECT_EQ(TexteGeneral(150 * 0.0266666, point), "3.99999");
}

TEST(TexteGeneral, TakesTheExponentFormOutsideMinusFourToFourteen) {
    EXPECT_EQ(TexteGeneral(1E15, point), "1E+15");
    EXPECT_EQ(TexteGeneral(1E14, point), "100000000000000");
    EXPECT_EQ(TexteGeneral(0.0001, point), "0.0001");
    EXPECT_EQ(TexteGeneral(0.00001, point), "1E-05");
    EXPECT_EQ(TexteGeneral(-1.5E-7, point), "-1.5E-07");
    EXPECT_EQ(TexteGeneral(2.5E100, point), "2.5E+100");
}

TEST(TexteGeneral, WritesTheSeparatorOfTheLocale) {
    EXPECT_EQ(TexteGeneral(0.063, virgule), "0,063");
    EXPECT_EQ(TexteGeneral(-1.5E-7, virgule), "-1,5E-07");
    EXPECT_EQ(TexteGeneral(1.5, arabe), QStringLiteral("1\u066B5"));
    EXPECT_EQ(TexteGeneral(1500, virgule), "1500");
}

TEST(TexteGeneral, KnowsNoNegativeZeroAndNamesWhatHasNoDigits) {
    EXPECT_EQ(TexteGeneral(-0.0, point), "0");
    EXPECT_EQ(TexteGeneral(std::numeric_limits<double>::quiet_NaN(), point), "NaN");
    EXPECT_EQ(TexteGeneral(std::numeric_limits<double>::infinity(), point), "INF");
}

TEST(TexteCourt, IsTheShortestTextThatReadsBackAsTheSameNumber) {
    EXPECT_EQ(TexteCourt(100, point), "100");
    EXPECT_EQ(TexteCourt(0.1F, point), "0.1");
    EXPECT_EQ(TexteCourt(2.5F, point), "2.5");
    EXPECT_EQ(TexteCourt(1E-5F, point), "1E-05");
    EXPECT_EQ(TexteCourt(0, point), "0");
    for (int k = 1; k < 5000; ++k) {
        const float valeur = static_cast<float>(k) * 0.0173F;
        EXPECT_EQ(static_cast<float>(EnDouble(TexteCourt(valeur, virgule), virgule)), valeur);
    }
}

TEST(TexteCourt, WritesTheSeparatorOfTheLocale) {
    EXPECT_EQ(TexteCourt(0.1F, virgule), "0,1");
    EXPECT_EQ(TexteCourt(-2.5F, arabe), QStringLiteral("-2\u066B5"));
}

TEST(TexteCourt, HasATextForErasedMemory) {
    EXPECT_EQ(TexteCourt(std::numeric_limits<float>::quiet_NaN(), point), "NaN");
}

TEST(TexteBooleen, IsNeverTranslated) {
    EXPECT_EQ(TexteBooleen(true), "True");
    EXPECT_EQ(TexteBooleen(false), "False");
}

TEST(ValeurDebut, ReadsTheLongestLeadingNumber) {
    EXPECT_EQ(ValeurDebut(u"2.112_x"), 2.112);
    EXPECT_EQ(ValeurDebut(u"  12 13"), 12);
    EXPECT_EQ(ValeurDebut(u"-3.5 bar"), -3.5);
    EXPECT_EQ(ValeurDebut(u"+7"), 7);
    EXPECT_EQ(ValeurDebut(u".5"), 0.5);
    EXPECT_EQ(ValeurDebut(u"5."), 5);
    EXPECT_EQ(ValeurDebut(u"1.2.3"), 1.2);
    EXPECT_EQ(ValeurDebut(u"1E3x"), 1000);
    EXPECT_EQ(ValeurDebut(u"1Ex"), 1);
}

TEST(ValeurDebut, IsZeroWhereNoNumberStands) {
    EXPECT_EQ(ValeurDebut(u""), 0);
    EXPECT_EQ(ValeurDebut(u"abc"), 0);
    EXPECT_EQ(ValeurDebut(u"-"), 0);
    EXPECT_EQ(ValeurDebut(u"."), 0);
    EXPECT_EQ(ValeurDebut(u"- 5"), 0);
}

TEST(ValeurDebut, OverflowsWhereNoVariableCanHoldTheNumber) {
    EXPECT_EQ(NumeroDeFaute([] { ValeurDebut(u"1E400 bar"); }), 6);
    EXPECT_EQ(ValeurDebut(u"1E-400"), 0);
}

TEST(ValeurDebut, EndsAtACommaWhateverTheLocale) {
    EXPECT_EQ(ValeurDebut(u"2,5"), 2);
}

TEST(EstNumerique, TakesOuterBlanksOneSignAndOneSeparator) {
    for (const char16_t* texte :
         {u"0", u"0.5 ", u"  12", u"-3", u"+3", u".5", u"5.", u"1E5", u"1e-5", u"-1.5E+3", u"007"})
        EXPECT_TRUE(EstNumerique(texte, point)) << QString::fromUtf16(texte).toStdString();
}

TEST(EstNumerique, RefusesEverythingElse) {
    for (const char16_t* texte : {u"",   u" ",    u"-",   u"+",   u".",   u"1,5",    u"1 000",
                                  u"$5", u"&H10", u"(5)", u"5-",  u"--5", u"- 5",    u"1.2.3",
                                  u"E5", u"1E",   u"1E+", u"abc", u"5x",  u"\u0665", u"1\r\n"})
        EXPECT_FALSE(EstNumerique(texte, point)) << QString::fromUtf16(texte).toStdString();
}

TEST(EstNumerique, KnowsOnlyTheSeparatorOfTheLocale) {
    EXPECT_TRUE(EstNumerique(u"1,5", virgule));
    EXPECT_FALSE(EstNumerique(u"1.5", virgule));
    EXPECT_TRUE(EstNumerique(u"1\u066B5", arabe));
    EXPECT_FALSE(EstNumerique(u"1,,5", virgule));
}

TEST(EstNumerique, RefusesWhatNoVariableCanHold) {
    EXPECT_FALSE(EstNumerique(u"1E400", point));
    EXPECT_FALSE(EstNumerique(QString(400, u'9'), point));
    EXPECT_TRUE(EstNumerique(u"1E-400", point));
    EXPECT_TRUE(EstNumerique(QStringLiteral("0.") + QString(400, u'0') + QLatin1Char('1'), point));
}

TEST(EnDouble, ReadsWithTheSeparatorOfTheLocale) {
    EXPECT_EQ(EnDouble(u"0.063", point), 0.063);
    EXPECT_EQ(EnDouble(u"-12,25", virgule), -12.25);
    EXPECT_EQ(EnDouble(u"+1E+3", point), 1000);
    EXPECT_EQ(EnDouble(u"1E-400", point), 0);
}

TEST(EnDouble, SkipsWhiteSpaceAndLineEndsAtBothEnds) {
    EXPECT_EQ(EnDouble(u"\r\n\t 41.5", point), 41.5);
    EXPECT_EQ(EnDouble(u"41.5 \r\n", point), 41.5);
}

TEST(EnDouble, IsATypeFaultForWhatIsNoNumber) {
    for (const char16_t* texte : {u"", u"  ", u"abc", u"1,5", u"5-", u"1.2.3", u"1 2"})
        EXPECT_EQ(NumeroDeFaute([&] { EnDouble(texte, point); }), 13)
            << QString::fromUtf16(texte).toStdString();
    EXPECT_EQ(NumeroDeFaute([] { EnDouble(u"1E400", point); }), 6);
}

TEST(ArrondiPair, RoundsHalfToEven) {
    EXPECT_EQ(ArrondiPair(2.5), 2);
    EXPECT_EQ(ArrondiPair(3.5), 4);
    EXPECT_EQ(ArrondiPair(-0.5), 0);
    EXPECT_EQ(ArrondiPair(-1.5), -2);
    EXPECT_EQ(ArrondiPair(254.5), 254);
    EXPECT_EQ(ArrondiPair(2.51), 3);
}

TEST(EnEntier16, RoundsHalfToEvenWithinItsRange) {
    EXPECT_EQ(EnEntier16(2.5), 2);
    EXPECT_EQ(EnEntier16(-0.5), 0);
    EXPECT_EQ(EnEntier16(32767.4), 32767);
    EXPECT_EQ(EnEntier16(-32768.5), -32768);
    EXPECT_EQ(EnEntier16(u"1,5", virgule), 2);
}

TEST(EnEntier16, OverflowsOutsideItsRange) {
    EXPECT_EQ(NumeroDeFaute([] { EnEntier16(u"40000", point); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier16(32767.5); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier16(-32769); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier16(std::nan("")); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier16(u"abc", point); }), 13);
}

TEST(EnEntier32, RoundsHalfToEvenWithinItsRange) {
    EXPECT_EQ(EnEntier32(2.5), 2);
    EXPECT_EQ(EnEntier32(3.5), 4);
    EXPECT_EQ(EnEntier32(2147483647.4), 2147483647);
    EXPECT_EQ(EnEntier32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(EnEntier32(u" 7200 ", point), 7200);
}

TEST(EnEntier32, OverflowsOutsideItsRange) {
    EXPECT_EQ(NumeroDeFaute([] { EnEntier32(2147483647.5); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier32(-2147483649.0); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnEntier32(u"1E20", point); }), 6);
}

TEST(EnOctet, OverflowsOutsideItsRange) {
    EXPECT_EQ(EnOctet(0), 0);
    EXPECT_EQ(EnOctet(255.5 - 0.1), 255);
    EXPECT_EQ(EnOctet(254.5), 254);
    EXPECT_EQ(NumeroDeFaute([] { EnOctet(255.5); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnOctet(-1); }), 6);
}

TEST(EnSimple, IsTheNearestSinglePrecisionNumberWithinItsRange) {
    EXPECT_EQ(EnSimple(0.1), 0.1F);
    EXPECT_EQ(EnSimple(-86400), -86400.0F);
    EXPECT_EQ(EnSimple(1E-60), 0.0F);
    EXPECT_EQ(EnSimple(3.4028234663852886E38), std::numeric_limits<float>::max());
    EXPECT_EQ(NumeroDeFaute([] { EnSimple(1E39); }), 6);
    EXPECT_EQ(NumeroDeFaute([] { EnSimple(-1E39); }), 6);
}

TEST(Diviser, FaultsWhereArithmeticWouldGoOn) {
    EXPECT_EQ(Diviser(1, 4), 0.25);
    EXPECT_EQ(NumeroDeFaute([] { Diviser(1, 0); }), 11);
    EXPECT_EQ(NumeroDeFaute([] { Diviser(-1, -0.0); }), 11);
    EXPECT_EQ(NumeroDeFaute([] { Diviser(0, 0); }), 6);
}

}  // namespace
}  // namespace bornika
