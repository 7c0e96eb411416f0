// Every command of the set, seen from the wire and in the internal memory.

#include "exchange_support.h"

namespace bornika::essai {
namespace {

struct Longueurs {
    ListeOctets trame;
    std::size_t reponse;
};

TEST(CommandTable, EveryCommandAnswersWithItsLength) {
    const std::vector<Longueurs> lignes = {
        {Octets8({1, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({2, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({3, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({4, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({5, 0, 0, 0, 1, 32, 32, 32}), 8},
        {Octets8({6, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({7, 0, 0, 0, 0, 0, 8, 32}), 8},
        {Octets8({8, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({9, 0, 0, 0, 0, 0, 0, 0}), 9},
        {Octets8({10, 1}), 10},
        {Octets8({11, 65, 66, 67, 68, 69, 70, 71}), 8},
        {Octets8({12, 65, 66, 67, 68, 69, 70, 71}), 8},
        {Octets8({13, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({14, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({15, 0, 0, 0, 0, 0, 0, 0}), 1},
        {Octets8({17, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({18, 1, 2, 3, 4, 5, 6, 0}), 1},
        {Octets8({19, 0, 1, 0, 0, 32, 32, 32}), 1},
        {Octets8({20, 0, 1, 0, 0, 32, 32, 32}), 8},
        {Octets8({20, 1, 32, 32, 32, 32, 32, 32}), 8},
        {Octets8({21, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({22, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({24, 1, 0, 1, 0, 0, 0, 0}), 8},
        {Octets8({25, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({26, 1, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({27, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({28, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({29, 0, 0, 32, 32, 32, 32, 32}), 8},
        {Octets8({29, 0, 0, 0, 0, 0, 0, 0}), 8},
        {Octets8({30, 0, 200, 7, 32, 32, 32, 32}), 4},
        {Octets8({31, 0, 0, 0, 0, 0, 0, 0}), 1},
        {Octets8({32, 0, 0, 0, 0, 0, 0, 0}), 4},
        {Octets8({99, 32, 32, 32, 32, 32, 32, 32}), 1},
        {Octets8({240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}), 6},
    };
    EnregistreurSimule logger;
    for (const Longueurs& ligne : lignes) {
        EXPECT_EQ(logger.Repondre(ligne.trame).Liste().size(), ligne.reponse)
            << "command " << int{ligne.trame[0]};
    }
}

TEST(CommandTable, CodesOutsideTheTableAreSilent) {
    EnregistreurSimule logger;
    for (const int code : {0, 16, 23, 33, 98, 100, 239, 241, 255}) {
        EXPECT_TRUE(ReponseA(logger, code).empty()) << code;
    }
    EXPECT_TRUE(logger.Repondre({}).Liste().empty());
}

TEST(CommandTable, AFrameOfAWrongLengthIsSilent) {
    EnregistreurSimule logger;
    EXPECT_TRUE(Reponse(logger, {9, 0}).empty());
    EXPECT_TRUE(Reponse(logger, {9, 0, 0, 0, 0, 0, 0, 0, 0}).empty());
    EXPECT_TRUE(Reponse(logger, {10, 1, 20, 20, 20, 20, 20, 20}).empty());
    EXPECT_TRUE(ReponseA(logger, 240).empty());
}

TEST(CommandTable, RepliesEchoTheCommandWhereTheProtocolHasAnEcho) {
    EnregistreurSimule logger;
    for (const int code : {2, 4, 6, 8, 9, 13, 14, 17, 21, 22, 25, 26, 28}) {
        EXPECT_EQ(ReponseA(logger, code).at(0), code);
    }
}

TEST(CommandTable, StartDateAndPeriodAreHeldLowByteFirst) {
    EnregistreurSimule logger;
    Reponse(logger, {1, 0x65, 0x43, 0x21, 0x0F, 0x01, 0x2C, 0});
    EXPECT_EQ(Memoire(logger, 19, 4), Octets8({0x0F, 0x21, 0x43, 0x65}));
    EXPECT_EQ(Memoire(logger, 45, 2), Octets8({0x2C, 0x01}));
    EXPECT_EQ(ReponseA(logger, 17), Octets8({17, 0x65, 0x43, 0x21, 0x0F, 0, 0, 0}));
    EXPECT_EQ(ReponseA(logger, 2), Octets8({2, 0x65, 0x43, 0x21, 0x0F, 0x01, 0x2C, 0}));
}

TEST(CommandTable, NumberOfMeasuresBeforeTheTriggerComesFromTheMemory) {
    EnregistreurSimule logger;
    Reponse(logger, {30, 0, 49, 12, 32, 32, 32, 32});
    EXPECT_EQ(ReponseA(logger, 2).at(7), 12);
}

TEST(CommandTable, ANewStartGivesUpTheMeasuresHeld) {
    EnregistreurSimule logger;
    for (int i = 0; i < 70; ++i)
        logger.Stocker(simulateur::MesurePeriodique(1000, i));
    Reponse(logger, {1, 0x65, 0, 0, 0, 0, 8, 0});
    EXPECT_EQ(logger.NombreMesures(), 0);
    EXPECT_EQ(ReponseA(logger, 21), Octets8({21, 0, 2, 0, 32, 0, 0, 0}));
    EXPECT_EQ(ReponseA(logger, 22), Octets8({22, 0, 2, 0, 32, 1, 0, 0}));
}

TEST(CommandTable, ModeThresholdsAndScaleAreHeldLowByteFirst) {
    EnregistreurSimule logger;
    Reponse(logger, {3, 0x9E, 0x01, 0x02, 0x03, 0x04, 0x31, 1});
    EXPECT_EQ(Memoire(logger, 44, 1), Octets8({0x9E}));
    EXPECT_EQ(Memoire(logger, 50, 6), Octets8({0x02, 0x01, 0x04, 0x03, 0, 0x31}));
    EXPECT_EQ(ReponseA(logger, 4), Octets8({4, 0x9E, 0x01, 0x02, 0x03, 0x04, 0x31, 0}));
    EXPECT_EQ(logger.memoire.Octet(simulateur::adresse::chargeRapide), 1);
}

TEST(CommandTable, SerialNumberIsHeldLowByteFirstAndReadAtR3) {
    EnregistreurSimule logger;
    Reponse(logger, {5, 0x7F, 0xFF, 0xFE, 0x01, 32, 32, 32});
    EXPECT_EQ(Memoire(logger, 1, 4), Octets8({0x01, 0xFE, 0xFF, 0x7F}));
    EXPECT_EQ(ReponseA(logger, 6), Octets8({6, 0, 0, 0x7F, 0xFF, 0xFE, 0x01, 0}));
}

TEST(CommandTable, ClearingTheSerialNumberInhibitsUntilTheNextNumber) {
    EnregistreurSimule logger;
    logger.ReglerNumeroSerie(4711);
    EXPECT_EQ(ReponseA(logger, 15), Octets8({15}));
    EXPECT_TRUE(logger.inhibe);
    EXPECT_EQ(ReponseA(logger, 6), Octets8({6, 0, 0, 0, 0, 0, 0, 0}));
    Reponse(logger, {5, 0, 0, 0, 9, 32, 32, 32});
    EXPECT_FALSE(logger.inhibe);
}

TEST(CommandTable, ClockAndTriggerPeriodAreHeldLowByteFirst) {
    EnregistreurSimule logger;
    logger.cartePresente = true;
    Reponse(logger, {7, 0x69, 0xA9, 0x0D, 0x1D, 0x02, 0x58, 32});
    EXPECT_EQ(Memoire(logger, 23, 4), Octets8({0x1D, 0x0D, 0xA9, 0x69}));
    EXPECT_EQ(ReponseA(logger, 8), Octets8({8, 0x69, 0xA9, 0x0D, 0x1D, 0x02, 0x58, 1}));
    logger.cartePresente = false;
    EXPECT_EQ(ReponseA(logger, 8).at(7), 0);
}

TEST(CommandTable, TheClockAdvancesWithItsSource) {
    std::int64_t secondes = 500;
    EnregistreurSimule logger;
    logger.BrancherHorloge([&secondes] { return secondes; });
    Reponse(logger, {7, 0, 0, 0x10, 0, 0, 8, 32});
    secondes += 0x25;
    EXPECT_EQ(ReponseA(logger, 8), Octets8({8, 0, 0, 0x10, 0x25, 0, 8, 0}));
    EXPECT_EQ(Memoire(logger, 23, 4), Octets8({0x25, 0x10, 0, 0}));
    EXPECT_EQ(logger.Horloge(), 0x1025U);
}

TEST(CommandTable, TheNextMeasureIsTheFirstOfItsRowStillToCome) {
    std::int64_t secondes = 0;
    EnregistreurSimule logger;
    logger.BrancherHorloge([&secondes] { return secondes; });
    const auto prochaine = [&logger] {
        const ListeOctets r = ReponseA(logger, 2);
        return r.at(3) * 256 + r.at(4);
    };
    Reponse(logger, {7, 0, 0, 0x10, 0, 0, 8, 32});
    // From 0x1064 on, every 15 seconds.
    Reponse(logger, {1, 0, 0, 0x10, 0x64, 0, 120, 0});
    EXPECT_EQ(prochaine(), 0x1064) << "the start is still to come";
    secondes = 0x63;
    EXPECT_EQ(prochaine(), 0x1064);
    secondes = 0x64;
    EXPECT_EQ(prochaine(), 0x1064 + 15) << "the first one is being taken";
    secondes = 0x64 + 15 * 100 + 14;
    EXPECT_EQ(prochaine(), 0x1064 + 15 * 101);
    EXPECT_EQ(Memoire(logger, 27, 2),
              Octets8({(0x1064 + 15 * 101) % 256, (0x1064 + 15 * 101) / 256}));
}

TEST(CommandTable, ANextMeasureInLessThanASecondIsToldAsTheNextSecond) {
    std::int64_t secondes = 0;
    EnregistreurSimule logger;
    logger.BrancherHorloge([&secondes] { return secondes; });
    Reponse(logger, {7, 0, 0, 0x10, 0, 0, 8, 32});
    Reponse(logger, {1, 0, 0, 0x10, 0, 0, 1, 0});
    secondes = 7;
    EXPECT_EQ(ReponseA(logger, 2), Octets8({2, 0, 0, 0x10, 8, 0, 1, 0}));
}

TEST(CommandTable, WithoutAPeriodThereIsNoFurtherMeasure) {
    std::int64_t secondes = 0;
    EnregistreurSimule logger;
    logger.BrancherHorloge([&secondes] { return secondes; });
    Reponse(logger, {1, 0, 0, 0, 5, 0, 0, 0});
    secondes = 1000;
    EXPECT_EQ(ReponseA(logger, 2), Octets8({2, 0, 0, 0, 5, 0, 0, 0}));
}

TEST(CommandTable, VersionTellsTypeVersionBatteryAndMemorySize) {
    simulateur::Identite qui;
    qui.type = 20;
    qui.versionHaute = 2;
    qui.versionMilieu = 3;
    qui.versionBasse = 120;
    qui.tailleMemoire = 2;
    qui.reserve = 9;
    EnregistreurSimule logger(qui);
    logger.ReglerBatterie(0x0197);
    EXPECT_EQ(ReponseA(logger, 9), Octets8({9, 20, 2, 3, 120, 0x01, 0x97, 2, 9}));
    EXPECT_EQ(Memoire(logger, 17, 2), Octets8({0x97, 0x01}));
    EXPECT_EQ(Reponse(logger, {240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}),
              Octets8({240, 2, 20, 120, 3, 0}));
}

TEST(CommandTable, CommentTravelsInTwoHalvesOfSeven) {
    EnregistreurSimule logger;
    Reponse(logger, {11, 'R', 'e', 's', 'e', 'a', 'u', ' '});
    Reponse(logger, {12, 'E', 's', 't', 32, 32, 32, 0xE9});
    EXPECT_EQ(logger.memoire.Texte(81, 14), std::string("Reseau Est   \xE9"));
    EXPECT_EQ(ReponseA(logger, 13), Octets8({13, 'R', 'e', 's', 'e', 'a', 'u', ' '}));
    EXPECT_EQ(ReponseA(logger, 14), Octets8({14, 'E', 's', 't', 32, 32, 32, 0xE9}));
}

TEST(CommandTable, FlashBufferIsWrittenAtTheAddressThatFollows) {
    EnregistreurSimule logger;
    EXPECT_EQ(Reponse(logger, {18, 1, 2, 3, 4, 5, 6, 0}), Octets8({18}));
    EXPECT_EQ(Reponse(logger, {19, 0x01, 0x00, 0x02, 0x05, 32, 32, 32}), Octets8({19}));
    EXPECT_EQ(Reponse(logger, {20, 0x01, 0x00, 0x02, 0x04, 32, 32, 32}),
              Octets8({0xFF, 1, 2, 3, 4, 5, 6, 0}));
}

TEST(CommandTable, FlashReadsAcceptAnyOffset) {
    EnregistreurSimule logger;
    const auto page = Octets8({10, 11, 12, 13, 14, 15, 16, 17});
    logger.flash.Ecrire(3, 520, page);
    EXPECT_EQ(Reponse(logger, {20, 0, 3, 2, 8, 32, 32, 32}), page);
    // Two bytes are left at 526; behind the page there is nothing but erased cells.
    EXPECT_EQ(Reponse(logger, {20, 0, 3, 2, 14, 32, 32, 32}),
              Octets8({16, 17, 255, 255, 255, 255, 255, 255}));
    EXPECT_EQ(Reponse(logger, {20, 0xFF, 0xFF, 0, 0, 32, 32, 32}), ListeOctets(8, 0xFF));
}

TEST(CommandTable, FlowTestSharesItsCodeWithTheFlashRead) {
    EnregistreurSimule logger;
    EXPECT_EQ(Reponse(logger, {20, 1, 32, 32, 32, 32, 32, 32}).at(0), 20);
    EXPECT_TRUE(logger.testDebit);
    // A flash read in between, even of a page whose low byte is a blank, leaves the test alone.
    EXPECT_EQ(Reponse(logger, {20, 0, 32, 0, 32, 32, 32, 32}), ListeOctets(8, 0xFF));
    EXPECT_TRUE(logger.testDebit);
    Reponse(logger, {20, 0, 32, 32, 32, 32, 32, 32});
    EXPECT_FALSE(logger.testDebit);
}

TEST(CommandTable, PointersAreThoseOfTheMemory) {
    EnregistreurSimule logger;
    logger.ReglerEcriture({0x123, 0x108});
    logger.ReglerLecture({0x0FE, 0x010});
    logger.octetVide = 0;
    EXPECT_EQ(ReponseA(logger, 21), Octets8({21, 0x01, 0x23, 0x01, 0x08, 0, 0, 0}));
    EXPECT_EQ(ReponseA(logger, 22), Octets8({22, 0x00, 0xFE, 0x00, 0x10, 0, 0, 0}));
    EXPECT_EQ(Memoire(logger, 32, 4), Octets8({0x23, 0x01, 0x08, 0x01}));
    EXPECT_EQ(Memoire(logger, 40, 4), Octets8({0xFE, 0x00, 0x10, 0x00}));
}

TEST(CommandTable, MemoryIsReadInPiecesOfEightWithoutEcho) {
    EnregistreurSimule logger;
    for (int i = 0; i < 8; ++i)
        logger.memoire.EcrireOctet(1016 + i, 100 + i);
    EXPECT_EQ(Reponse(logger, {29, 3, 0xF8, 32, 32, 32, 32, 32}),
              Octets8({100, 101, 102, 103, 104, 105, 106, 107}));
    EXPECT_EQ(Reponse(logger, {29, 3, 0xFE, 32, 32, 32, 32, 32}),
              Octets8({106, 107, 255, 255, 255, 255, 255, 255}));
}

TEST(CommandTable, MemoryWriteStoresOneByteAndEchoesItAtR3) {
    EnregistreurSimule logger;
    EXPECT_EQ(Reponse(logger, {30, 0x01, 0x10, 0xC8, 32, 32, 32, 32}),
              Octets8({30, 0x01, 0x10, 0xC8}));
    EXPECT_EQ(logger.memoire.Octet(0x110), 0xC8);
    EXPECT_EQ(Reponse(logger, {30, 0x04, 0x00, 5, 32, 32, 32, 32}).at(3), 0xFF);
}

TEST(CommandTable, WhatTheMemoryCommandWritesAllOtherCommandsSee) {
    EnregistreurSimule logger;
    Reponse(logger, {30, 0, 1, 0x39, 32, 32, 32, 32});
    Reponse(logger, {30, 0, 2, 0x30, 32, 32, 32, 32});
    EXPECT_EQ(ReponseA(logger, 6), Octets8({6, 0, 0, 0, 0, 0x30, 0x39, 0}));
    Reponse(logger, {30, 0, 44, 0x08, 32, 32, 32, 32});
    EXPECT_EQ(ReponseA(logger, 4).at(1), 0x08);
    Reponse(logger, {30, 0, 81, 'Z', 32, 32, 32, 32});
    EXPECT_EQ(ReponseA(logger, 13).at(1), 'Z');
}

TEST(CommandTable, PulseParametersAreFloatsLowByteFirst) {
    EnregistreurSimule logger;
    logger.memoire.EcrireFlottant(112, 100.0F);
    EXPECT_EQ(Memoire(logger, 112, 4), Octets8({0x00, 0x00, 0xC8, 0x42}));
    int adresse = 125;
    for (const int octet : {0x00, 0x00, 0x61, 0x45}) {
        Reponse(logger, {30, 0, adresse++, octet, 32, 32, 32, 32});
    }
    EXPECT_EQ(logger.memoire.Flottant(125), 3600.0F);
}

TEST(CommandTable, SelfTestSharesItsCodeWithTheMemoryRead) {
    EnregistreurSimule logger;
    logger.pointsCapteur = 300;
    EXPECT_EQ(ReponseA(logger, 29), Octets8({29, 2, 0x01, 0x2C, 0, 0, 0, 0}));
    logger.codeTest = 1;
    EXPECT_EQ(ReponseA(logger, 29), Octets8({29, 1, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(Reponse(logger, {29, 0, 5, 0, 0, 0, 0, 0}).empty());
}

TEST(CommandTable, TimeCorrectionTravelsLowByteFirst) {
    EnregistreurSimule logger;
    EXPECT_EQ(Reponse(logger, {31, 0xFE, 0xFF, 0xFF, 0xFF, 0, 0, 0}), Octets8({31}));
    EXPECT_EQ(Memoire(logger, 95, 4), Octets8({0xFE, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(logger.memoire.DoubleMot(95), 4294967294U);
}

TEST(CommandTable, SensorDetectionComesLowByteFirstWithoutEcho) {
    EnregistreurSimule logger;
    logger.detectionCapteur = 300;
    EXPECT_EQ(ReponseA(logger, 32), Octets8({0x2C, 0x01, 0, 0}));
}

TEST(CommandTable, ForcedContextsAreCounted) {
    EnregistreurSimule logger;
    Reponse(logger, {99, 32, 32, 32, 32, 32, 32, 32});
    EXPECT_EQ(Reponse(logger, {99, 32, 32, 32, 32, 32, 32, 32}), Octets8({99}));
    EXPECT_EQ(logger.contextesForces, 2);
}

TEST(CommandTable, ResetRecordStandsInTheMemoryAndOnPageZero) {
    EnregistreurSimule logger;
    logger.ReglerResets(0x01020304, 0x0506);
    const auto trace = Octets8({4, 3, 2, 1, 6, 5});
    EXPECT_EQ(Memoire(logger, 7, 6), trace);
    auto page = Reponse(logger, {20, 0, 0, 0, 0, 32, 32, 32});
    page.resize(6);
    EXPECT_EQ(page, trace);
}

}  // namespace
}  // namespace bornika::essai
