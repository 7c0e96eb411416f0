#include "logger/display_statement.h"

#include <gtest/gtest.h>

#include "support/fake_system.h"
#include "widgets/controls.h"

namespace bornika::essai {
namespace {

TEST(Afficher, SwallowsTheFaultOfItsStatement) {
    Etabli etabli;
    afficher([] { LeverFaute(numero_faute::valeurInvalide); });
    EXPECT_TRUE(etabli.fautes.empty());
}

TEST(Afficher, SwallowsFaultsOfRaisedHandlersToo) {
    Etabli etabli;
    ListeDeroulante liste;
    int clics = 0;
    brancher(&liste, &ListeDeroulante::Clic, &liste, [&] {
        ++clics;
        LeverFaute(numero_faute::depassement);
    });
    bool suite = false;
    afficher([&] {
        liste.Choisir(-1);
        suite = true;
    });
    EXPECT_EQ(clics, 1);
    EXPECT_TRUE(suite);
    EXPECT_TRUE(etabli.fautes.empty());
    liste.Choisir(-1);
    EXPECT_EQ(etabli.fautes, std::vector<int>{numero_faute::depassement});
}

TEST(Afficher, LetsNothingElsePass) {
    Etabli etabli;
    EXPECT_THROW(afficher([] { throw 3; }), int);
    EXPECT_FALSE(FautesIgnorees::Actif());
}

TEST(Afficher, NestsAndEndsWithItsOutermostStatement) {
    Etabli etabli;
    afficher([] {
        afficher([] { LeverFaute(numero_faute::indice); });
        garder([] { LeverFaute(numero_faute::indice); });
    });
    EXPECT_TRUE(etabli.fautes.empty());
    garder([] { LeverFaute(numero_faute::indice); });
    EXPECT_EQ(etabli.fautes, std::vector<int>{numero_faute::indice});
}

}  // namespace
}  // namespace bornika::essai
