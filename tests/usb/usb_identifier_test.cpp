#include "usb/usb_identifier.h"

#include <gmock/gmock.h>

#include <set>

namespace bornika {
namespace {

using testing::ElementsAre;

const char cles[4] = {};

PresenceUsb Presence(int cle, const std::string& serie, CheminUsb chemin) {
    return {&cles[cle], serie, std::move(chemin)};
}

TEST(IdentifiantDeSerie, IsTheNumberWithinItsRange) {
    EXPECT_EQ(IdentifiantDeSerie("1"), 1);
    EXPECT_EQ(IdentifiantDeSerie("123456"), 123456);
    EXPECT_EQ(IdentifiantDeSerie("2147483647"), 2147483647);
    EXPECT_EQ(IdentifiantDeSerie("0000000000042"), 42);
    EXPECT_EQ(IdentifiantDeSerie(" 42 \r\n"), 42);
    EXPECT_EQ(IdentifiantDeSerie(std::string_view("42\0\0", 4)), 42);
}

TEST(IdentifiantDeSerie, IsNothingOutsideOfItOrForAnotherText) {
    for (const char* serie :
         {"", "   ", "0", "000", "-1", "2147483648", "4294967297", "99999999999999999999", "12A",
          "A12", "1.5", "1 2", "+1", "0x10", "????"})
        EXPECT_FALSE(IdentifiantDeSerie(serie)) << serie;
}

TEST(IdentifiantDeChemin, IsAlwaysTheSameForAPlaceAndHigh) {
    EXPECT_EQ(IdentifiantDeChemin(CheminUsb{1, 2, 3}), IdentifiantDeChemin(CheminUsb{1, 2, 3}));
    // Written down here: it has to survive the next release too.
    EXPECT_EQ(IdentifiantDeChemin(CheminUsb{1, 1}), 1819549428);
}

TEST(IdentifiantDeChemin, DiffersBetweenTheUsualPlacesAndKeepsItsRange) {
    std::set<IdentifiantUsb> ids;
    std::size_t places = 0;
    const auto noter = [&](const CheminUsb& chemin) {
        ++places;
        const IdentifiantUsb id = IdentifiantDeChemin(chemin);
        EXPECT_GE(id, 0x40000000);
        ids.insert(id);
    };
    for (std::uint8_t bus = 1; bus <= 8; ++bus)
        for (std::uint8_t port = 1; port <= 16; ++port) {
            noter({bus, port});
            for (std::uint8_t second = 1; second <= 7; ++second)
                noter({bus, port, second});
        }
    EXPECT_EQ(ids.size(), places);
}

TEST(Attribuer, GivesTheSerialNumberElseTheNumberOfThePlace) {
    IdentificateurUsb identificateur;
    EXPECT_THAT(
        identificateur.Attribuer({Presence(0, "77", {1, 1}), Presence(1, "", {1, 2}),
                                  Presence(2, "KP-9", {1, 3}), Presence(3, "0", {2, 1})}),
        ElementsAre(77, IdentifiantDeChemin(CheminUsb{1, 2}), IdentifiantDeChemin(CheminUsb{1, 3}),
                    IdentifiantDeChemin(CheminUsb{2, 1})));
    EXPECT_THAT(identificateur.Attribuer({}), ElementsAre());
}

TEST(Attribuer, GivesALoggerThatComesBackItsNumberAgain) {
    IdentificateurUsb identificateur;
    const auto place = IdentifiantDeChemin(CheminUsb{1, 2});
    EXPECT_THAT(identificateur.Attribuer({Presence(0, "77", {1, 1}), Presence(1, "", {1, 2})}),
                ElementsAre(77, place));
    EXPECT_THAT(identificateur.Attribuer({Presence(2, "", {1, 2}), Presence(3, "77", {1, 4})}),
                ElementsAre(place, 77));
}

TEST(Attribuer, NeverGivesTwoLoggersOfOneSerialStringTheSameNumber) {
    IdentificateurUsb identificateur;
    EXPECT_THAT(identificateur.Attribuer({Presence(0, "77", {1, 1}), Presence(1, "77", {1, 2}),
                                          Presence(2, "0077", {1, 3})}),
                ElementsAre(77, IdentifiantDeChemin(CheminUsb{1, 2}),
                            IdentifiantDeChemin(CheminUsb{1, 3})));
}

TEST(Attribuer, LeavesALoggerItsNumberWhenAnotherOneOfItsSerialStringJoinsOrLeaves) {
    IdentificateurUsb identificateur;
    const PresenceUsb premier = Presence(0, "77", {1, 5});
    const PresenceUsb second = Presence(1, "77", {1, 2});
    const auto place = IdentifiantDeChemin(CheminUsb{1, 2});
    EXPECT_THAT(identificateur.Attribuer({premier}), ElementsAre(77));
    EXPECT_THAT(identificateur.Attribuer({second, premier}), ElementsAre(place, 77));
    EXPECT_THAT(identificateur.Attribuer({second}), ElementsAre(place));
    EXPECT_THAT(identificateur.Attribuer({second, Presence(2, "77", {1, 5})}),
                ElementsAre(place, 77));
}

TEST(Attribuer, StepsAsideWhereASerialNumberIsTheNumberOfAPlace) {
    const auto place = IdentifiantDeChemin(CheminUsb{1, 2});
    IdentificateurUsb identificateur;
    EXPECT_THAT(identificateur.Attribuer({Presence(0, "", {1, 2}),
                                          Presence(1, std::to_string(place), {1, 1}),
                                          Presence(2, std::to_string(place + 1), {1, 3})}),
                ElementsAre(place + 2, place, place + 1));
}

TEST(Attribuer, SeparatesLoggersWhosePlacesCannotBeTold) {
    IdentificateurUsb identificateur;
    const auto ids = identificateur.Attribuer(
        {Presence(0, "", {1}), Presence(1, "", {1}), Presence(2, "", {1})});
    EXPECT_EQ(std::set<IdentifiantUsb>(ids.begin(), ids.end()).size(), 3U);
}

}  // namespace
}  // namespace bornika
