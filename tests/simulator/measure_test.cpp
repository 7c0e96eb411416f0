#include "simulator/measure.h"

#include <gtest/gtest.h>

#include <bit>

namespace bornika::simulateur {
namespace {

int Parite(int octet) {
    return std::popcount(static_cast<unsigned>(octet)) % 2;
}

/// The check of the other side: bit by bit, in its own words.
bool PariteJuste(const MesureEnFlash& m) {
    if ((m[6] & 128) == 0) return true;
    return Parite(m[2]) == ((m[6] >> 6) & 1) && Parite(m[3]) == ((m[6] >> 5) & 1) &&
           Parite(m[4]) == ((m[6] >> 4) & 1) && Parite(m[5]) == ((m[6] >> 3) & 1) &&
           Parite(m[6] & 251) == ((m[6] >> 2) & 1);
}

TEST(StoredMeasure, APeriodicMeasureHasNoFractionAndBigEndianSeconds) {
    const MesureEnFlash m = MesurePeriodique(0x65432107, 0x2A5);
    EXPECT_EQ(m[0], 0);
    EXPECT_EQ(m[1], 0);
    EXPECT_EQ(m[2], 0x65);
    EXPECT_EQ(m[3], 0x43);
    EXPECT_EQ(m[4], 0x21);
    EXPECT_EQ(m[5], 0x07);
    EXPECT_EQ((m[6] & 3) * 256 + m[7], 0x2A5);
    EXPECT_EQ(m[6] & 128, 128);
}

TEST(StoredMeasure, APulseHasItsEighthsInTheHighByteAndIsNeverTakenForAPeriodicOne) {
    EXPECT_EQ(MesureImpulsion(1000, 5, 1)[0], 5);
    const MesureEnFlash pleine = MesureImpulsion(1000, 0, 1);
    EXPECT_EQ(pleine[0], 0);
    EXPECT_NE(pleine[1], 0);
}

TEST(StoredMeasure, ParityIsRightForAllKindsOfBytes) {
    for (std::uint32_t i = 0; i < 4000; ++i) {
        const std::uint32_t secondes = i * 1048573U;
        EXPECT_TRUE(PariteJuste(MesurePeriodique(secondes, static_cast<int>(i % 1024))));
        EXPECT_TRUE(PariteJuste(MesureImpulsion(secondes, static_cast<int>(i % 8), 1023)));
    }
}

TEST(StoredMeasure, ABrokenBitIsBrokenAlone) {
    const MesureEnFlash juste = MesurePeriodique(0x65432107, 700);
    for (const int bit : {6, 5, 4, 3, 2}) {
        const MesureEnFlash cassee = PariteCassee(juste, bit);
        EXPECT_FALSE(PariteJuste(cassee)) << bit;
        const int propre = bit == 2 ? 0 : 4;
        EXPECT_EQ((cassee[6] ^ juste[6]) & ~propre, 1 << bit);
        EXPECT_EQ(Parite(cassee[6] & 251) == ((cassee[6] >> 2) & 1), bit != 2);
        EXPECT_EQ((cassee[6] & 3) * 256 + cassee[7], 700);
    }
}

TEST(StoredMeasure, WithoutParityOnlyThePointsStay) {
    const MesureEnFlash m = SansParite(MesurePeriodique(0x65432107, 0x2A5));
    EXPECT_EQ(m[6], 2);
    EXPECT_TRUE(PariteJuste(m));
    EXPECT_EQ(AvecParite(m), MesurePeriodique(0x65432107, 0x2A5));
}

TEST(StoredMeasure, AnErasedCellHasAllBitsSet) {
    for (const std::uint8_t octet : CelluleEffacee())
        EXPECT_EQ(octet, 0xFF);
}

TEST(StoredMeasure, AGroupSharesItsSecond) {
    const std::vector<int> points = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const auto groupe = GroupeMemeSeconde(77, points);
    ASSERT_EQ(groupe.size(), 12U);
    for (std::size_t i = 0; i < groupe.size(); ++i) {
        EXPECT_EQ(groupe[i], MesurePeriodique(77, points[i]));
    }
}

}  // namespace
}  // namespace bornika::simulateur
