#include "usb/usb_endpoints.h"

#include <gtest/gtest.h>

namespace bornika {
namespace {

constexpr std::uint8_t controle = 0;
constexpr std::uint8_t isochrone = 1;
constexpr std::uint8_t bloc = 2;
constexpr std::uint8_t interruption = 3;

const std::vector<PointDecrit> deuxPaires = {{0x81, interruption, 8, 10},
                                             {0x01, interruption, 16, 4},
                                             {0x82, bloc, 64, 0},
                                             {0x02, bloc, 32, 0}};

ReglageUsb Reglage(std::optional<std::uint8_t> sortie, std::optional<std::uint8_t> entree) {
    return {.Vendeur = 1, .Produit = 2, .Interface = 0, .Sortie = sortie, .Entree = entree};
}

TEST(ChoisirPoints, TakesTheFirstOfEachDirectionWhereNoneIsNamed) {
    const auto points = ChoisirPoints(deuxPaires, Reglage({}, {}), false);
    ASSERT_TRUE(points);
    EXPECT_EQ(points->sortie.adresse, 0x01);
    EXPECT_EQ(points->entree.adresse, 0x81);
    EXPECT_EQ(points->sortie.paquet, 16);
    EXPECT_EQ(points->entree.paquet, 8);
    EXPECT_TRUE(points->sortie.interruption);
    EXPECT_TRUE(points->entree.interruption);
}

TEST(ChoisirPoints, TakesThoseThatAreNamedOfTheKindThatTheDescriptorSays) {
    const auto points = ChoisirPoints(deuxPaires, Reglage(0x02, 0x82), false);
    ASSERT_TRUE(points);
    EXPECT_EQ(points->sortie.adresse, 0x02);
    EXPECT_EQ(points->sortie.paquet, 32);
    EXPECT_FALSE(points->sortie.interruption);
    EXPECT_EQ(points->entree.adresse, 0x82);
    EXPECT_EQ(points->entree.paquet, 64);
    EXPECT_FALSE(points->entree.interruption);
}

TEST(ChoisirPoints, NamesOneAndLeavesTheOtherToTheDescriptor) {
    const auto points = ChoisirPoints(deuxPaires, Reglage({}, 0x82), false);
    ASSERT_TRUE(points);
    EXPECT_EQ(points->sortie.adresse, 0x01);
    EXPECT_TRUE(points->sortie.interruption);
    EXPECT_EQ(points->entree.adresse, 0x82);
    EXPECT_FALSE(points->entree.interruption);
}

TEST(ChoisirPoints, PassesOverWhatCarriesNoFrames) {
    const std::vector<PointDecrit> melange = {{0x81, isochrone, 64, 1}, {0x01, isochrone, 64, 1},
                                              {0x82, bloc, 0, 0},       {0x83, controle, 64, 0},
                                              {0x84, bloc, 64, 0},      {0x04, bloc, 64, 0}};
    const auto points = ChoisirPoints(melange, Reglage({}, {}), false);
    ASSERT_TRUE(points);
    EXPECT_EQ(points->sortie.adresse, 0x04);
    EXPECT_EQ(points->entree.adresse, 0x84);
    EXPECT_FALSE(ChoisirPoints(melange, Reglage({}, 0x81), false));
    EXPECT_FALSE(ChoisirPoints(melange, Reglage(0x01, {}), false));
}

TEST(ChoisirPoints, FindsNoneWhereADirectionHasNone) {
    EXPECT_FALSE(ChoisirPoints({}, Reglage({}, {}), false));
    EXPECT_FALSE(ChoisirPoints({{0x81, bloc, 64, 0}}, Reglage({}, {}), false));
    EXPECT_FALSE(ChoisirPoints({{0x01, bloc, 64, 0}}, Reglage({}, {}), false));
    EXPECT_FALSE(ChoisirPoints(deuxPaires, Reglage(0x03, {}), false));
    EXPECT_FALSE(ChoisirPoints(deuxPaires, Reglage({}, 0x83), false));
    EXPECT_FALSE(ChoisirPoints(deuxPaires, Reglage(0x81, 0x82), false)) << "the other direction";
}

TEST(ChoisirPoints, TakesTheBytesOfOnePacketOutOfItsField) {
    // Three packets of 1024 bytes a microframe.
    const auto points = ChoisirPoints({{0x81, interruption, 0x1400, 1}, {0x01, bloc, 512, 0}},
                                      Reglage({}, {}), true);
    ASSERT_TRUE(points);
    EXPECT_EQ(points->entree.paquet, 1024);
}

TEST(ChoisirPoints, TellsTheTimeBetweenTwoPolls) {
    const auto intervalle = [](std::uint8_t type, std::uint8_t valeur, bool rapide) {
        return ChoisirPoints({{0x81, type, 8, valeur}, {0x01, bloc, 8, 0}}, Reglage({}, {}), rapide)
            ->entree.intervalle;
    };
    EXPECT_EQ(intervalle(interruption, 10, false), 10);
    EXPECT_EQ(intervalle(interruption, 255, false), 255);
    EXPECT_EQ(intervalle(interruption, 0, false), 1);
    EXPECT_EQ(intervalle(interruption, 1, true), 1);
    EXPECT_EQ(intervalle(interruption, 4, true), 1);
    EXPECT_EQ(intervalle(interruption, 5, true), 2);
    EXPECT_EQ(intervalle(interruption, 16, true), 4096);
    EXPECT_EQ(intervalle(interruption, 255, true), 4096);
    EXPECT_EQ(intervalle(bloc, 10, false), 0);
    EXPECT_EQ(intervalle(bloc, 10, true), 0);
}

TEST(PlaceEnPaquets, IsWholePacketsAndAtLeastOne) {
    EXPECT_EQ(PlaceEnPaquets(2, 64), 64U);
    EXPECT_EQ(PlaceEnPaquets(8, 8), 8U);
    EXPECT_EQ(PlaceEnPaquets(9, 8), 16U);
    EXPECT_EQ(PlaceEnPaquets(12, 64), 64U);
    EXPECT_EQ(PlaceEnPaquets(64, 64), 64U);
    EXPECT_EQ(PlaceEnPaquets(65, 64), 128U);
    EXPECT_EQ(PlaceEnPaquets(0, 64), 64U);
}

}  // namespace
}  // namespace bornika
