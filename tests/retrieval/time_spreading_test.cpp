#include "retrieval/time_spreading.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "support/fault_number.h"

namespace bornika::essai {

namespace {

std::vector<int> Groupe(int dernier) {
    std::vector<int> millisecondes;
    for (int i = 0; i <= dernier; ++i)
        millisecondes.push_back(MillisecondesGroupe(i, dernier));
    return millisecondes;
}

}  // namespace

TEST(MillisecondesGroupe, DivideTheSecondEvenly) {
    EXPECT_EQ(Groupe(0), (std::vector<int>{0}));
    EXPECT_EQ(Groupe(1), (std::vector<int>{0, 500}));
    EXPECT_EQ(Groupe(3), (std::vector<int>{0, 250, 500, 750}));
    EXPECT_EQ(Groupe(7), (std::vector<int>{0, 125, 250, 375, 500, 625, 750, 875}));
}

TEST(MillisecondesGroupe, AGroupOfThreeStandsAt333And667) {
    EXPECT_EQ(Groupe(2), (std::vector<int>{0, 333, 667}));
}

TEST(MillisecondesGroupe, TiesRoundToTheEvenNeighbour) {
    EXPECT_EQ(MillisecondesGroupe(1, 15), 62);
    EXPECT_EQ(MillisecondesGroupe(3, 15), 188);
    EXPECT_EQ(MillisecondesGroupe(5, 15), 312);
}

TEST(MillisecondesGroupe, RoundAsThePatternOfThreeDigits) {
    for (int dernier = 0; dernier < 300; ++dernier)
        for (int i = 0; i <= dernier && i < 9; ++i)
            ASSERT_EQ(Format(i * 1000.0 / (dernier + 1), "000", Regional{}).toInt(),
                      MillisecondesGroupe(i, dernier))
                << i << " of " << dernier;
}

TEST(TauxImpulsions, HasFourDecimals) {
    EXPECT_EQ(TauxImpulsions(0.125), 8.0);
    EXPECT_EQ(TauxImpulsions(0.375), 2.6667);
    EXPECT_EQ(TauxImpulsions(3), 0.3333);
    EXPECT_EQ(TauxImpulsions(2), 0.5);
}

TEST(TauxImpulsions, TheWholeTimeSince1970RoundsToZero) {
    EXPECT_EQ(TauxImpulsions(1.7e9), 0.0);
}

TEST(TauxImpulsions, ANegativeIntervalGivesANegativeRate) {
    EXPECT_EQ(TauxImpulsions(-0.5), -2.0);
}

TEST(TauxImpulsions, NoIntervalIsADivisionFault) {
    EXPECT_EQ(essai::NumeroDeFaute([] { TauxImpulsions(0); }), numero_faute::divisionParZero);
}

}  // namespace bornika::essai
