#include "platform/format_pattern.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

#include "platform/fault.h"
#include "platform/numbers.h"
#include "support/regionals.h"

namespace bornika {
namespace {

using essai::point;
using essai::virgule;

constexpr std::array<double, 18> valeurs = {
    0,         1,     5,          0.5,       0.05,  0.0004, 0.0625,
    2.5,       12.25, -0.5,       -0.04,     -1.25, 1.005,  150 * 0.0266666,
    1234.5678, 62.5,  1000.0 / 3, 2000.0 / 3};

struct Ligne {
    const char* motif;
    std::array<const char*, 18> attendus;
};

constexpr Ligne table[] = {
    {"###0.0",
     {"0.0", "1.0", "5.0", "0.5", "0.1", "0.0", "0.1", "2.5", "12.3", "-0.5", "0.0", "-1.3", "1.0",
      "4.0", "1234.6", "62.5", "333.3", "666.7"}},
    {"###0.000",
     {"0.000", "1.000", "5.000", "0.500", "0.050", "0.000", "0.063", "2.500", "12.250", "-0.500",
      "-0.040", "-1.250", "1.005", "4.000", "1234.568", "62.500", "333.333", "666.667"}},
    {"#0.0",
     {"0.0", "1.0", "5.0", "0.5", "0.1", "0.0", "0.1", "2.5", "12.3", "-0.5", "0.0", "-1.3", "1.0",
      "4.0", "1234.6", "62.5", "333.3", "666.7"}},
    {"#.00",
     {".00", "1.00", "5.00", ".50", ".05", ".00", ".06", "2.50", "12.25", "-.50", "-.04", "-1.25",
      "1.01", "4.00", "1234.57", "62.50", "333.33", "666.67"}},
    {"#.##",
     {".", "1.", "5.", ".5", ".05", ".", ".06", "2.5", "12.25", "-.5", "-.04", "-1.25", "1.01",
      "4.", "1234.57", "62.5", "333.33", "666.67"}},
    {"#.###",
     {".", "1.", "5.", ".5", ".05", ".", ".063", "2.5", "12.25", "-.5", "-.04", "-1.25", "1.005",
      "4.", "1234.568", "62.5", "333.333", "666.667"}},
    {"#.####",
     {".", "1.", "5.", ".5", ".05", ".0004", ".0625", "2.5", "12.25", "-.5", "-.04", "-1.25",
      "1.005", "4.", "1234.5678", "62.5", "333.3333", "666.6667"}},
    {"#.0000",
     {".0000", "1.0000", "5.0000", ".5000", ".0500", ".0004", ".0625", "2.5000", "12.2500",
      "-.5000", "-.0400", "-1.2500", "1.0050", "4.0000", "1234.5678", "62.5000", "333.3333",
      "666.6667"}},
    {"0.00",
     {"0.00", "1.00", "5.00", "0.50", "0.05", "0.00", "0.06", "2.50", "12.25", "-0.50", "-0.04",
      "-1.25", "1.01", "4.00", "1234.57", "62.50", "333.33", "666.67"}},
    {"0.000",
     {"0.000", "1.000", "5.000", "0.500", "0.050", "0.000", "0.063", "2.500", "12.250", "-0.500",
      "-0.040", "-1.250", "1.005", "4.000", "1234.568", "62.500", "333.333", "666.667"}},
    {"0.0000",
     {"0.0000", "1.0000", "5.0000", "0.5000", "0.0500", "0.0004", "0.0625", "2.5000", "12.2500",
      "-0.5000", "-0.0400", "-1.2500", "1.0050", "4.0000", "1234.5678", "62.5000", "333.3333",
      "666.6667"}},
    {"0.0####",
     {"0.0", "1.0", "5.0", "0.5", "0.05", "0.0004", "0.0625", "2.5", "12.25", "-0.5", "-0.04",
      "-1.25", "1.005", "3.99999", "1234.5678", "62.5", "333.33333", "666.66667"}},
    {"0#.0###",
     {"00.0", "01.0", "05.0", "00.5", "00.05", "00.0004", "00.0625", "02.5", "12.25", "-00.5",
      "-00.04", "-01.25", "01.005", "04.0", "1234.5678", "62.5", "333.3333", "666.6667"}},
    {"000",
     {"000", "001", "005", "000", "000", "000", "000", "002", "012", "000", "000", "-001", "001",
      "004", "1235", "062", "333", "667"}},
    {"00",
     {"00", "01", "05", "00", "00", "00", "00", "02", "12", "00", "00", "-01", "01", "04", "1235",
      "62", "333", "667"}},
};

std::string Ecrit(double valeur, const char* motif, const Regional& regional = point) {
    return Format(valeur, motif, regional).toStdString();
}

TEST(Format, WritesTheWholeTableOfPatternsWithAPoint) {
    for (const Ligne& ligne : table)
        for (std::size_t i = 0; i < valeurs.size(); ++i)
            EXPECT_EQ(Ecrit(valeurs[i], ligne.motif), ligne.attendus[i])
                << ligne.motif << " of " << valeurs[i];
}

TEST(Format, WritesTheWholeTableOfPatternsWithAComma) {
    for (const Ligne& ligne : table)
        for (std::size_t i = 0; i < valeurs.size(); ++i) {
            const QString attendu = QString::fromLatin1(ligne.attendus[i]).replace('.', ',');
            EXPECT_EQ(Format(valeurs[i], ligne.motif, virgule), attendu)
                << ligne.motif << " of " << valeurs[i];
        }
}

TEST(Format, WritesAnySeparatorOfALocale) {
    const Regional arabe{QStringLiteral("\u066B"), QStringLiteral("dd/MM/yyyy")};
    EXPECT_EQ(Format(1.5, "0.00", arabe), QStringLiteral("1\u066B50"));
}

TEST(Format, NeverUsesAnExponentNorGroups) {
    EXPECT_EQ(Ecrit(1E+19, "0.00"), "10000000000000000000.00");
    EXPECT_EQ(Ecrit(1234567.0, "###0.0"), "1234567.0");
    EXPECT_EQ(Ecrit(1E-300, "0.0####"), "0.0");
    EXPECT_EQ(Ecrit(1E+300, "000").size(), 301U);
}

TEST(Format, GivesTheRatesThatTheirReadBackTurnsIntoNumbers) {
    EXPECT_EQ(Ecrit(1 / 1.7E9, "0#.0###"), "00.0");
    EXPECT_EQ(Ecrit(8, "0#.0###"), "08.0");
    EXPECT_EQ(Ecrit(1 / 0.375, "0#.0###"), "02.6667");
    EXPECT_EQ(EnDouble(Format(8, "0#.0###", virgule), virgule), 8);
    EXPECT_EQ(EnDouble(Format(1 / 1.7E9, "0#.0###", point), point), 0);
    EXPECT_EQ(TexteGeneral(EnDouble(Format(1 / 0.375, "0#.0###", point), point), point), "2.6667");
}

TEST(Format, WritesTheClockCoefficientWithFourPlaces) {
    EXPECT_EQ(Ecrit(8, "#.0000"), "8.0000");
    EXPECT_EQ(Ecrit(16, "#.0000"), "16.0000");
}

TEST(Format, WritesTheBatteryVoltageWithoutALeadingZero) {
    EXPECT_EQ(Ecrit(150 * 0.0266666, "#.00") + " V.", "4.00 V.");
    EXPECT_EQ(Ecrit(0, "#.00") + " V.", ".00 V.");
}

TEST(Format, RoundsMillisecondsHalfToEven) {
    const auto parts = [](int n) {
        std::string texte;
        for (int i = 0; i <= n; ++i)
            texte += Ecrit(i * 1000.0 / (n + 1), "000") + ' ';
        return texte;
    };
    EXPECT_EQ(parts(2), "000 333 667 ");
    EXPECT_EQ(parts(7), "000 125 250 375 500 625 750 875 ");
    EXPECT_EQ(parts(15), "000 062 125 188 250 312 375 438 500 562 625 688 750 812 875 938 ");
}

TEST(Format, PadsNumbersOfFileNames) {
    EXPECT_EQ(Ecrit(7, "00"), "07");
    EXPECT_EQ(Ecrit(2026, "0000"), "2026");
    EXPECT_EQ(Ecrit(42, "0000"), "0042");
    EXPECT_EQ(Ecrit(123, "00"), "123");
}

TEST(Format, RoundsTheDecimalTextAndNotTheBinaryNumber) {
    // Both lie a hair below their tie as binary numbers.
    EXPECT_EQ(Ecrit(1.005, "0.00"), "1.01");
    EXPECT_EQ(Ecrit(0.1 + 0.2 + 0.0005 - 0.3, "0.000"), "0.001");
    EXPECT_EQ(Ecrit(-1.005, "0.00"), "-1.01");
}

TEST(Format, CarriesThroughNinesIntoANewDigit) {
    EXPECT_EQ(Ecrit(9.996, "0.00"), "10.00");
    EXPECT_EQ(Ecrit(0.9996, "#.000"), "1.000");
    EXPECT_EQ(Ecrit(999.5, "000"), "1000");
    EXPECT_EQ(Ecrit(0.06, "0.0"), "0.1");
}

TEST(Format, WritesNoMinusWhenOnlyZerosAreLeft) {
    EXPECT_EQ(Ecrit(-0.0004, "0.000"), "0.000");
    EXPECT_EQ(Ecrit(-0.0, "0.0"), "0.0");
    EXPECT_EQ(Ecrit(-0.001, "#.##"), ".");
    EXPECT_EQ(Ecrit(-0.0005, "0.000"), "-0.001");
}

TEST(Format, HasATextForWhatHasNoDigits) {
    EXPECT_EQ(Ecrit(std::numeric_limits<double>::quiet_NaN(), "0.0000"), "NaN");
    EXPECT_EQ(Ecrit(-std::numeric_limits<double>::infinity(), "0.0000"), "-INF");
}

// What the rounding has to equal, by its own definition.
double ParLeTexte(double valeur) {
    return EnDouble(Format(valeur, "###0.000", point), point);
}

void ExigerEgal(double valeur) {
    const double rapide = ArrondiTroisDecimales(valeur);
    ASSERT_EQ(rapide, ParLeTexte(valeur)) << valeur;
    ASSERT_FALSE(rapide == 0 && std::signbit(rapide)) << valeur;
}

TEST(ArrondiTroisDecimales, RoundsTiesAwayFromZero) {
    EXPECT_EQ(ArrondiTroisDecimales(0.0625), 0.063);
    EXPECT_EQ(ArrondiTroisDecimales(-0.0625), -0.063);
    EXPECT_EQ(ArrondiTroisDecimales(2.0005), 2.001);
    EXPECT_EQ(ArrondiTroisDecimales(-0.0004), 0);
}

TEST(ArrondiTroisDecimales, EqualsTheTextAndItsReadingAtEveryTieOfSixteenths) {
    for (int k = -200000; k <= 200000; k += 3)
        ExigerEgal(k / 16.0);
    for (int k = -100000; k <= 100000; k += 7)
        ExigerEgal(k * 0.0005);
}

TEST(ArrondiTroisDecimales, EqualsTheTextAndItsReadingBesideTheTies) {
    for (int k = -3000; k <= 3000; ++k) {
        const double tie = k * 0.0005;
        double haut = tie;
        double bas = tie;
        for (int pas = 0; pas < 12; ++pas) {
            haut = std::nextafter(haut, 1E300);
            bas = std::nextafter(bas, -1E300);
            ExigerEgal(haut);
            ExigerEgal(bas);
        }
        for (const double ecart : {1E-15, 1E-12, 1E-9, 9.9E-7, 1.01E-6, 1E-5}) {
            ExigerEgal(tie + ecart);
            ExigerEgal(tie - ecart);
        }
    }
}

TEST(ArrondiTroisDecimales, EqualsTheTextAndItsReadingAtEveryMagnitude) {
    std::mt19937_64 hasard(20260305);
    std::uniform_real_distribution<double> mantisse(-10, 10);
    for (int exposant = -8; exposant <= 17; ++exposant)
        for (int i = 0; i < 4000; ++i)
            ExigerEgal(mantisse(hasard) * std::pow(10.0, exposant));
    for (int k = 0; k < 2000; ++k)
        ExigerEgal(999999990.0 + k / 64.0);
}

TEST(ArrondiTroisDecimales, IsNoNumberWhenTheTextIsNone) {
    EXPECT_THROW(ArrondiTroisDecimales(std::numeric_limits<double>::quiet_NaN()), FauteExecution);
    EXPECT_THROW(ArrondiTroisDecimales(std::numeric_limits<double>::infinity()), FauteExecution);
}

}  // namespace
}  // namespace bornika
