#include <gmock/gmock.h>

#include "exchange_support.h"
#include "simulator/recordings.h"

namespace bornika::essai {
namespace {

using namespace simulateur;

struct FaultsOnDemand : testing::Test {
    FaultsOnDemand() { logger.ReglerNumeroSerie(4711); }
    ListeOctets Serie() { return ligne.Echange({6, 0, 0, 0, 0, 0, 0, 0}, 8); }
    ListeOctets Version() { return ligne.Echange({9, 0, 0, 0, 0, 0, 0, 0}, 9); }
    ListeOctets EcrireSerie(int numero) {
        return ligne.Echange({5, 0, 0, 0, numero, 32, 32, 32}, 8);
    }
    BusSimule bus;
    EnregistreurSimule& logger = bus.Brancher(EnregistreurSimule());
    Ligne ligne{bus, logger.identite.usb};
};

TEST_F(FaultsOnDemand, SilenceStrikesTheOrderedOccurrenceOfItsCommandAlone) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::silence, .occurrence = 2});
    EXPECT_EQ(Serie().size(), 8U);
    EXPECT_EQ(Version().size(), 9U);
    EXPECT_TRUE(Serie().empty());
    EXPECT_EQ(Serie().size(), 8U);
    EXPECT_EQ(logger.journal.Nombre(6), 3) << "a frame that was not heard is noted all the same";
}

TEST_F(FaultsOnDemand, ASilentLoggerDoesNotCarryOutTheCommand) {
    logger.pannes.Ordonner({.code = 5, .genre = GenrePanne::silence});
    EXPECT_TRUE(EcrireSerie(9).empty());
    EXPECT_EQ(logger.memoire.DoubleMot(1), 4711U);
}

TEST_F(FaultsOnDemand, ALostReplyComesFromACommandThatWasCarriedOut) {
    logger.pannes.Ordonner({.code = 5, .genre = GenrePanne::reponsePerdue});
    EXPECT_TRUE(EcrireSerie(9).empty());
    EXPECT_EQ(logger.memoire.DoubleMot(1), 9U);
}

TEST_F(FaultsOnDemand, SilenceCanLastForSeveralFramesOrForEver) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::silence, .combien = 3});
    logger.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence, .combien = sansFin});
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(Serie().empty());
    EXPECT_EQ(Serie().size(), 8U);
    for (int i = 0; i < 20; ++i)
        EXPECT_TRUE(Version().empty());
    logger.pannes.Annuler();
    EXPECT_EQ(Version().size(), 9U);
}

TEST_F(FaultsOnDemand, AFaultCanStrikeAnyCommand) {
    logger.pannes.Ordonner({.genre = GenrePanne::silence, .occurrence = 2});
    EXPECT_EQ(Version().size(), 9U);
    EXPECT_TRUE(Serie().empty());
    EXPECT_EQ(Serie().size(), 8U);
}

TEST_F(FaultsOnDemand, ASilentTransferGoesOnWhereItStood) {
    const auto mesures = MesuresRegulieres(1'700'000'000, 4);
    logger.Stocker(mesures);
    logger.pannes.Ordonner({.code = 10, .genre = GenrePanne::silence, .occurrence = 2});
    EXPECT_EQ(ligne.Echange({10, 1}, 10).at(9), mesures[0][7]);
    EXPECT_TRUE(ligne.Echange({10, 0}, 10).empty());
    EXPECT_EQ(ligne.Echange({10, 0}, 10).at(9), mesures[1][7]);
}

TEST_F(FaultsOnDemand, ALostReplyLosesItsMeasure) {
    const auto mesures = MesuresRegulieres(1'700'000'000, 4);
    logger.Stocker(mesures);
    logger.pannes.Ordonner({.code = 10, .genre = GenrePanne::reponsePerdue, .occurrence = 2});
    ligne.Echange({10, 1}, 10);
    EXPECT_TRUE(ligne.Echange({10, 0}, 10).empty());
    EXPECT_EQ(ligne.Echange({10, 0}, 10).at(9), mesures[2][7]);
}

TEST_F(FaultsOnDemand, AShortReplyHasTheOrderedNumberOfBytes) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::reponseCourte, .parametre = 3});
    EXPECT_EQ(Serie(), Octets8({6, 0, 0}));
    EXPECT_EQ(Serie().size(), 8U);
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::reponseCourte, .parametre = 0});
    EXPECT_TRUE(Serie().empty());
}

TEST_F(FaultsOnDemand, AWrongEchoLeavesTheRestOfTheReply) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::mauvaisEcho});
    ListeOctets reponse = Serie();
    EXPECT_NE(reponse.at(0), 6);
    reponse[0] = 6;
    EXPECT_EQ(reponse, Serie());
}

TEST_F(FaultsOnDemand, NoiseDisturbsEveryByteAndKeepsTheLength) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::bruit});
    const ListeOctets bruit = Serie();
    const ListeOctets juste = Serie();
    ASSERT_EQ(bruit.size(), juste.size());
    for (std::size_t i = 0; i < bruit.size(); ++i)
        EXPECT_NE(bruit[i], juste[i]);
}

TEST_F(FaultsOnDemand, UnpluggingInAnExchangeEndsEverythingUntilTheLoggerIsBack) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::debranchement, .occurrence = 2});
    Serie();
    EXPECT_TRUE(ligne.Ecrire({6, 0, 0, 0, 0, 0, 0, 0})) << "the frame still goes out";
    EXPECT_TRUE(ligne.Lire(8).empty());
    EXPECT_FALSE(ligne.Ecrire({9, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(bus.Compte(), 0);
    bus.Rebrancher(logger.identite.usb);
    Ligne neuve(bus, logger.identite.usb);
    EXPECT_EQ(neuve.Echange({6, 0, 0, 0, 0, 0, 0, 0}, 8).size(), 8U);
}

TEST_F(FaultsOnDemand, WritesFailAsOftenAsOrdered) {
    for (const int combien : {1, 2, 3}) {
        logger.pannes.OrdonnerEchecsEcriture(combien);
        for (int i = 0; i < combien; ++i) {
            EXPECT_FALSE(ligne.Ecrire({6, 0, 0, 0, 0, 0, 0, 0}));
            EXPECT_NE(bus.DerniereErreur(), 0U);
        }
        EXPECT_EQ(Serie().size(), 8U);
    }
    EXPECT_EQ(logger.journal.Nombre(6), 3) << "a failed write never reaches the logger";
}

TEST_F(FaultsOnDemand, FailingWritesCanComeLater) {
    logger.pannes.OrdonnerEchecsEcriture(1, 2);
    EXPECT_EQ(Serie().size(), 8U);
    EXPECT_EQ(Serie().size(), 8U);
    EXPECT_TRUE(Serie().empty());
    EXPECT_EQ(Serie().size(), 8U);
}

TEST_F(FaultsOnDemand, TheFirstHandleCanFailToOpen) {
    ligne.Fermer();
    logger.pannes.OrdonnerEchecOuverture(1);
    Ligne neuve(bus, logger.identite.usb);
    EXPECT_EQ(neuve.ecriture, -1);
    EXPECT_GT(neuve.lecture, 0);
    EXPECT_NE(bus.Ouvrir(logger.identite.usb), -1);
}

TEST_F(FaultsOnDemand, TheSecondHandleCanFailToOpen) {
    ligne.Fermer();
    logger.pannes.OrdonnerEchecOuverture(2);
    Ligne neuve(bus, logger.identite.usb);
    EXPECT_GT(neuve.ecriture, 0);
    EXPECT_EQ(neuve.lecture, -1);
    EXPECT_EQ(bus.PoigneesOuvertes(), 1);
}

TEST_F(FaultsOnDemand, OpeningCanFailAtALaterConversation) {
    ligne.Fermer();
    logger.pannes.OrdonnerEchecOuverture(1, sansFin, 1);
    Ligne premiere(bus, logger.identite.usb);
    EXPECT_GT(premiere.ecriture, 0);
    EXPECT_GT(premiere.lecture, 0);
    premiere.Fermer();
    EXPECT_EQ(bus.Ouvrir(logger.identite.usb), -1);
    EXPECT_EQ(bus.Ouvrir(logger.identite.usb), -1);
}

TEST_F(FaultsOnDemand, OfTwoOrdersForOneFrameTheFirstWinsAndBothCount) {
    logger.pannes.Ordonner({.code = 6, .genre = GenrePanne::silence});
    logger.pannes.Ordonner({.genre = GenrePanne::mauvaisEcho, .combien = 2});
    EXPECT_TRUE(Serie().empty());
    EXPECT_NE(Serie().at(0), 6);
    EXPECT_EQ(Serie().at(0), 6);
}

}  // namespace
}  // namespace bornika::essai
