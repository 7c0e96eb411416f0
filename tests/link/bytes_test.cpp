#include "link/bytes.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/fault_number.h"

namespace bornika::essai {
namespace {

constexpr Tampon reponseEtroite{77, 9, 1, 2, 255, 254, 253, 252, 8};
const Octets reponseLarge{9, 1, 2, 255, 254, 253, 252, 8};

TEST(VueReponse, CountsFromTheFirstByteOfTheReplyWhicheverWayItIsKept) {
    for (const VueReponse& reponse : {VueReponse(reponseEtroite), VueReponse(reponseLarge)}) {
        EXPECT_EQ(reponse.Octet(0), 9);
        EXPECT_EQ(reponse.Octet(3), 255);
        EXPECT_EQ(reponse.Octet(7), 8);
    }
}

TEST(VueReponse, ReadsTheMostSignificantByteFirstAndWithoutASign) {
    for (const VueReponse& reponse : {VueReponse(reponseEtroite), VueReponse(reponseLarge)}) {
        EXPECT_EQ(reponse.Mot(1), 258);
        EXPECT_EQ(reponse.Mot(3), 65534);
        EXPECT_EQ(reponse.Quatre(0), 151061247.0);
        EXPECT_EQ(reponse.Quatre(3), 4294901244.0);
    }
}

TEST(VueReponse, KeepsAValueThatIsWiderThanAByte) {
    const Octets larges{300, -1};
    EXPECT_EQ(VueReponse(larges).Octet(0), 300);
    EXPECT_EQ(VueReponse(larges).Octet(1), -1);
}

TEST(VueReponse, APlaceBeyondTheEndIsASubscriptFault) {
    EXPECT_EQ(NumeroDeFaute([] { VueReponse(reponseEtroite).Octet(15); }), 0);
    EXPECT_EQ(NumeroDeFaute([] { VueReponse(reponseEtroite).Octet(16); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([] { VueReponse(reponseLarge).Octet(8); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([] { VueReponse(reponseLarge).Mot(7); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([] { VueReponse(reponseLarge).Quatre(5); }), numero_faute::indice);
    const Octets vides;
    EXPECT_EQ(NumeroDeFaute([&] { VueReponse(vides).Octet(0); }), numero_faute::indice);
}

TEST(MSB, RoundsHalfToEvenBeforeSplitting) {
    EXPECT_EQ(MSB(65535), 255);
    EXPECT_EQ(LSB(65535), 255);
    EXPECT_EQ(MSB(0), 0);
    EXPECT_EQ(LSB(0), 0);
    EXPECT_EQ(MSB(254.5), 0);
    EXPECT_EQ(LSB(254.5), 254);
    EXPECT_EQ(MSB(255.5), 1);
    EXPECT_EQ(LSB(255.5), 0);
    EXPECT_EQ(MSB(256.5), 1);
    EXPECT_EQ(LSB(256.5), 0);
    EXPECT_EQ(MSB(526), 2);
    EXPECT_EQ(LSB(526), 14);
}

TEST(MSB, ValueThatDoesNotFitSixteenBitsIsAFault) {
    for (const double x : {65536.0, -1.0, 65535.5, 1e9}) {
        EXPECT_EQ(NumeroDeFaute([&] { MSB(x); }), numero_faute::depassement) << x;
        EXPECT_EQ(NumeroDeFaute([&] { LSB(x); }), numero_faute::depassement) << x;
    }
    EXPECT_EQ(NumeroDeFaute([&] { MSB(std::numeric_limits<double>::quiet_NaN()); }),
              numero_faute::depassement);
    EXPECT_EQ(NumeroDeFaute([&] { MSB(65535.4); }), 0);
    EXPECT_EQ(LSB(-0.5), 0);
    EXPECT_EQ(MSB(-0.5), 0);
}

TEST(EntierVersOctets, GivesTheLowByteFirst) {
    EXPECT_EQ(EntierVersOctets(16909060), (std::vector<int>{4, 3, 2, 1}));
    EXPECT_EQ(EntierVersOctets(-1), (std::vector<int>{255, 255, 255, 255}));
    EXPECT_EQ(EntierVersOctets(-2), (std::vector<int>{254, 255, 255, 255}));
    EXPECT_EQ(EntierVersOctets(0), (std::vector<int>{0, 0, 0, 0}));
}

TEST(OctetsVersEntier, TakesBackWhatWasSplit) {
    for (const std::int32_t v : {0, 1, -1, 255, 256, -256, 65536, 2147483647, -2147483647,
                                 std::numeric_limits<std::int32_t>::min()})
        EXPECT_EQ(OctetsVersEntier(EntierVersOctets(v)), v);
}

TEST(OctetsVersEntier, OtherThanFourElementsGiveZero) {
    EXPECT_EQ(OctetsVersEntier({1, 2, 3}), 0);
    EXPECT_EQ(OctetsVersEntier({1, 2, 3, 4, 5}), 0);
    EXPECT_EQ(OctetsVersEntier({}), 0);
}

}  // namespace
}  // namespace bornika::essai
