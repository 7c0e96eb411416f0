#include "retrieval/stored_measure.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "platform/fault.h"
#include "simulator/measure.h"
#include "support/case_names.h"
#include "support/fault_number.h"

namespace bornika::essai {

namespace {

using ReponseMesure = std::vector<int>;

ReponseMesure ReponseDe(const simulateur::MesureEnFlash& mesure) {
    ReponseMesure reponse{10, 0};
    reponse.insert(reponse.end(), mesure.begin(), mesure.end());
    return reponse;
}

bool Passe(const ReponseMesure& reponse) {
    bool resultat = false;
    ControleParite(0, reponse, resultat);
    return resultat;
}

std::int32_t Horodatage(std::int32_t avant, std::array<int, 4> octets) {
    DecoderHorodatage(octets, avant);
    return avant;
}

/// 0x65937A5E: bytes with odd and even numbers of bits.
constexpr std::uint32_t instant = 0x65937A5E;

}  // namespace

TEST(Parite, IsOneForAnOddNumberOfSetBits) {
    EXPECT_EQ(Parite(0), 0);
    EXPECT_EQ(Parite(1), 1);
    EXPECT_EQ(Parite(3), 0);
    EXPECT_EQ(Parite(7), 1);
    EXPECT_EQ(Parite(128), 1);
    EXPECT_EQ(Parite(255), 0);
    EXPECT_EQ(Parite(254), 1);
}

TEST(MemeEtat, ComparesZeroWithNonZero) {
    EXPECT_TRUE(MemeEtat(0, 0));
    EXPECT_TRUE(MemeEtat(1, 64));
    EXPECT_FALSE(MemeEtat(0, 64));
    EXPECT_FALSE(MemeEtat(1, 0));
}

TEST(ControleParite, PassesWhenAllFiveBitsMatch) {
    EXPECT_TRUE(Passe(ReponseDe(simulateur::MesurePeriodique(instant, 777))));
}

class BitDeParite : public testing::TestWithParam<int> {};

TEST_P(BitDeParite, OneWrongBitAloneFails) {
    EXPECT_FALSE(Passe(ReponseDe(
        simulateur::PariteCassee(simulateur::MesurePeriodique(instant, 777), GetParam()))));
}

INSTANTIATE_TEST_SUITE_P(EachBit, BitDeParite, testing::Values(6, 5, 4, 3, 2), nomDuCasImprime);

TEST(ControleParite, EachByteOfTheTimeStampIsCovered) {
    for (std::size_t i = 4; i <= 7; ++i) {
        ReponseMesure reponse = ReponseDe(simulateur::MesurePeriodique(instant, 777));
        reponse[i] ^= 16;
        EXPECT_FALSE(Passe(reponse)) << "position " << i;
    }
}

TEST(ControleParite, AMeasureWithoutParityInformationAlwaysPasses) {
    for (int bit : {6, 5, 4, 3, 2}) {
        ReponseMesure reponse =
            ReponseDe(simulateur::PariteCassee(simulateur::MesurePeriodique(instant, 777), bit));
        reponse[8] &= ~128;
        EXPECT_TRUE(Passe(reponse)) << "bit " << bit;
    }
}

TEST(ControleParite, FractionAndLowValueAreNotCovered) {
    for (std::size_t i : {2U, 3U, 9U}) {
        ReponseMesure reponse = ReponseDe(simulateur::MesurePeriodique(instant, 777));
        reponse[i] ^= 1;
        EXPECT_TRUE(Passe(reponse)) << "position " << i;
    }
}

TEST(ControleParite, BeginsAtTheGivenIndex) {
    ReponseMesure decalee{99, 98, 97};
    const ReponseMesure bonne = ReponseDe(simulateur::MesurePeriodique(instant, 777));
    decalee.insert(decalee.end(), bonne.begin(), bonne.end());
    bool resultat = false;
    ControleParite(3, decalee, resultat);
    EXPECT_TRUE(resultat);
    decalee[3 + 5] ^= 1;
    ControleParite(3, decalee, resultat);
    EXPECT_FALSE(resultat);
}

TEST(ControleParite, AnAnswerThatIsTooShortIsASubscriptFault) {
    bool resultat = true;
    const ReponseMesure courte{10, 0, 0};
    EXPECT_EQ(essai::NumeroDeFaute([&] { ControleParite(0, courte, resultat); }),
              numero_faute::indice);
}

TEST(Horodatage, IsReadMostSignificantByteFirst) {
    EXPECT_EQ(Horodatage(0, {0x65, 0x93, 0x7A, 0x5E}), 0x65937A5E);
    EXPECT_EQ(Horodatage(5, {0x7F, 0xFF, 0xFF, 0xFF}), 2147483647);
    EXPECT_EQ(Horodatage(5, {0, 0, 0, 0}), 0);
}

TEST(Horodatage, AnErasedCellKeepsTheTimeAndAddsItsLowerBytes) {
    EXPECT_EQ(Horodatage(1000, {255, 255, 255, 255}), 1000 + 255 * 65536 + 255 * 256 + 255);
    EXPECT_EQ(Horodatage(1000, {128, 0, 0, 1}), 1001);
}

TEST(Horodatage, EachAdditionThatOverflowsIsSkippedAlone) {
    constexpr std::int32_t plein = 2147483647;
    EXPECT_EQ(Horodatage(plein - 300, {255, 255, 1, 4}), plein - 300 + 256 + 4);
    EXPECT_EQ(Horodatage(plein, {255, 255, 255, 255}), plein);
    EXPECT_EQ(Horodatage(plein - 10, {200, 0, 1, 10}), plein);
}

TEST(StoredMeasure, HighByteOfTheFractionCountsEighths) {
    EXPECT_EQ(Fraction(0, 0), 0);
    EXPECT_EQ(Fraction(3, 7), 775);
    EXPECT_EQ(MillisecondesImpulsion(Fraction(0, 7)), 0);
    EXPECT_EQ(MillisecondesImpulsion(Fraction(3, 255)), 375);
    EXPECT_EQ(MillisecondesImpulsion(Fraction(7, 0)), 875);
    EXPECT_EQ(MillisecondesImpulsion(Fraction(255, 255)), 31875);
}

TEST(StoredMeasure, PointsTakeTheirHighBitsFromTheFlags) {
    EXPECT_EQ(ValeurPoints(0xFF, 0xFF), 1023);
    EXPECT_EQ(ValeurPoints(0xFC, 7), 7);
    EXPECT_EQ(ValeurPoints(0x81, 2), 258);
}

TEST(StoredMeasure, IsTakenApartIntoFractionTimeAndPoints) {
    Enregistrement e;
    DecoderEnregistrement(std::array{3, 7, 0x65, 0x53, 0xF1, 0x00, 0xFE, 0x80}, e);
    EXPECT_EQ(e.fraction, 775);
    EXPECT_EQ(e.horodatage, 0x6553F100);
    EXPECT_EQ(e.points, 640);
}

TEST(StoredMeasure, AnErasedCellAddsItsLowerTimeBytesToTheTimeBefore) {
    Enregistrement e{.fraction = 1, .horodatage = 1000, .points = 2};
    DecoderEnregistrement(std::array{255, 255, 255, 255, 255, 255, 255, 255}, e);
    EXPECT_EQ(e.fraction, 65535);
    EXPECT_EQ(e.horodatage, 1000 + 16777215);
    EXPECT_EQ(e.points, 1023);
}

}  // namespace bornika::essai
