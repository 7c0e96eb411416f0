#include "chart/model/flow.h"

#include <gtest/gtest.h>

namespace bornika {
namespace {

const Regional point{QStringLiteral("."), QStringLiteral("dd/MM/yyyy")};
const Regional virgule{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};

TEST(CalculeDebit, IsCountTimesCoefficientTimesTimeUnit) {
    EXPECT_DOUBLE_EQ(CalculeDebit(0.5, LireFacteurDebit("2.5", 1, 60, point)), 75);
    EXPECT_DOUBLE_EQ(CalculeDebit(2, LireFacteurDebit("10", 3, 86400, point)), 1728000);
}

TEST(CalculeDebit, WithoutNumericCoefficientIsTheRateAsItStands) {
    for (const char* texte : {"abc", "", "2,5", "-"})
        EXPECT_DOUBLE_EQ(CalculeDebit(0.5, LireFacteurDebit(texte, 1, 60, point)), 0.5) << texte;
}

TEST(CalculeDebit, WithoutTimeUnitIsTheRateAsItStands) {
    EXPECT_DOUBLE_EQ(CalculeDebit(0.5, LireFacteurDebit("2.5", -1, 60, point)), 0.5);
}

TEST(CalculeDebit, CoefficientIsReadInTheLocale) {
    EXPECT_DOUBLE_EQ(CalculeDebit(1, LireFacteurDebit("2,5", 0, 1, virgule)), 2.5);
    EXPECT_DOUBLE_EQ(CalculeDebit(1, LireFacteurDebit("2.5", 0, 1, virgule)), 1);
}

TEST(LegendeDebit, IsUnitAndTimeUnit) {
    EXPECT_EQ(LegendeDebit("m3", 2, "Hrs"), "m3/Hrs");
    EXPECT_EQ(LegendeDebit("m3", 0, ""), "m3/");
}

TEST(LegendeDebit, WithoutTimeUnitIsTheUnitAlone) {
    EXPECT_EQ(LegendeDebit("M3/sec.", -1, "Hrs"), "M3/sec.");
}

}  // namespace
}  // namespace bornika
