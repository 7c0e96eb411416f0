#include "context/context_values.h"

#include <gtest/gtest.h>

#include <limits>

#include "context/addressed_fields.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

TEST(ValeursDuContexte, TheTimeFormatIsOneForTwentyFourHoursAndReadAsAnythingButZero) {
    EXPECT_EQ(OctetFormatHeure(false), 0);
    EXPECT_EQ(OctetFormatHeure(true), 1);
    EXPECT_FALSE(EstVingtQuatreHeures(0));
    EXPECT_TRUE(EstVingtQuatreHeures(1));
    EXPECT_TRUE(EstVingtQuatreHeures(255));
}

TEST(ValeursDuContexte, AWeightIsTheTypedNumberInSinglePrecision) {
    const Regional virgule{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};
    EXPECT_EQ(PoidsDuTexte(u"2,5", virgule), 2.5F);
    EXPECT_EQ(PoidsDuTexte(u"0.1", Regional{}), 0.1F);
    EXPECT_EQ(PoidsDuTexte(u"2,5", Regional{}), std::nullopt);
    EXPECT_EQ(PoidsDuTexte(u"", Regional{}), std::nullopt);
    EXPECT_EQ(NumeroDeFaute([] { PoidsDuTexte(u"1E39", Regional{}); }), numero_faute::depassement);
}

TEST(ValeursDuContexte, AUnitIsPaddedToEightBytesAndNeverCut) {
    EXPECT_EQ(OctetsDeUnite(QStringLiteral("Gal")),
              (Octets{'G', 'a', 'l', ' ', ' ', ' ', ' ', ' '}));
    EXPECT_EQ(OctetsDeUnite({}), Octets(8, ' '));
    EXPECT_EQ(OctetsDeUnite(QStringLiteral("m³")).front(), 'm');
    EXPECT_EQ(OctetsDeUnite(QStringLiteral("m³"))[1], 0xB3);
    EXPECT_EQ(OctetsDeUnite(QStringLiteral("Kilogallon")).size(), 10U);
}

TEST(ValeursDuContexte, AUnitComesBackWithItsBlanks) {
    EXPECT_EQ(UniteDeOctets(OctetsDeUnite(QStringLiteral("m³"))), QStringLiteral("m³      "));
    EXPECT_EQ(UniteDeOctets({}), QString());
}

TEST(ValeursDuContexte, EachTimeBaseHasItsPosition) {
    for (int position = 0; position < static_cast<int>(basesDeTemps.size()); ++position) {
        const auto base = BaseDePosition(position);
        ASSERT_TRUE(base.has_value()) << position;
        EXPECT_EQ(PositionDeBase(*base), position);
    }
    EXPECT_EQ(BaseDePosition(2), 3600.0F);
}

TEST(ValeursDuContexte, WhatIsNoTimeBaseHasNone) {
    EXPECT_EQ(BaseDePosition(-1), std::nullopt);
    EXPECT_EQ(BaseDePosition(4), std::nullopt);
    EXPECT_EQ(PositionDeBase(0.0F), std::nullopt);
    EXPECT_EQ(PositionDeBase(61.0F), std::nullopt);
    EXPECT_EQ(PositionDeBase(std::numeric_limits<float>::quiet_NaN()), std::nullopt);
}

}  // namespace
}  // namespace bornika::essai
