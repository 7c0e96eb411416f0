// The walk over the flash: pointers, the circular buffer, and the download command.

#include <gmock/gmock.h>

#include "exchange_support.h"
#include "simulator/recordings.h"

namespace bornika::essai {
namespace {

using namespace simulateur;

ListeOctets Premiere(EnregistreurSimule& logger) {
    return Reponse(logger, {10, 1});
}
ListeOctets Suivante(EnregistreurSimule& logger) {
    return Reponse(logger, {10, 0});
}

MesureEnFlash MesureDe(const ListeOctets& reponse) {
    MesureEnFlash mesure{};
    std::copy_n(reponse.begin() + 2, 8, mesure.begin());
    return mesure;
}

/// All measures of a transfer, the marked last one included.
std::vector<MesureEnFlash> Telecharger(EnregistreurSimule& logger) {
    std::vector<MesureEnFlash> mesures;
    ListeOctets reponse = Premiere(logger);
    mesures.push_back(MesureDe(reponse));
    while (reponse.at(1) != 1) {
        reponse = Suivante(logger);
        mesures.push_back(MesureDe(reponse));
    }
    return mesures;
}

int Lineaire(const EnregistreurSimule::Pointeur& ou) {
    return ou.page * 526 + ou.offset;
}

TEST(StoredMeasures, AnEmptyMemoryGivesOneMeasureMarkedAsLast) {
    EnregistreurSimule logger;
    const ListeOctets reponse = Premiere(logger);
    EXPECT_EQ(reponse.at(0), 10);
    EXPECT_EQ(reponse.at(1), 1);
    EXPECT_EQ(reponse.size(), 10U);
    EXPECT_EQ(Suivante(logger).at(1), 1);
}

TEST(StoredMeasures, MeasuresComeInTheirOrderAndTheLastIsMarked) {
    EnregistreurSimule logger;
    const auto mesures = MesuresRegulieres(1'700'000'000, 200);
    logger.Stocker(mesures);
    EXPECT_EQ(Telecharger(logger), mesures);
    EXPECT_EQ(logger.RestantATransmettre(), 0);
}

TEST(StoredMeasures, TheFirstFlagRewindsAndTheReadPointerStays) {
    EnregistreurSimule logger;
    logger.Stocker(MesuresRegulieres(1'700'000'000, 5));
    const ListeOctets debut = Premiere(logger);
    Suivante(logger);
    EXPECT_EQ(Premiere(logger), debut);
    Telecharger(logger);
    EXPECT_EQ(logger.NombreMesures(), 5);
    EXPECT_EQ(Premiere(logger), debut);
}

TEST(StoredMeasures, ATransferThatNeverBeganBeginsAtTheReadPointer) {
    EnregistreurSimule logger;
    const auto mesures = MesuresRegulieres(1'700'000'000, 3);
    logger.Stocker(mesures);
    EXPECT_EQ(MesureDe(Suivante(logger)), mesures[0]);
    EXPECT_EQ(MesureDe(Suivante(logger)), mesures[1]);
}

TEST(StoredMeasures, APageHoldsSixtySixMeasures) {
    EnregistreurSimule logger;
    logger.Stocker(MesuresRegulieres(1'700'000'000, 65));
    EXPECT_EQ(logger.Ecriture(), (Pointeur{1, 520}));
    logger.Stocker(MesurePeriodique(1'700'000'100, 900));
    EXPECT_EQ(logger.Ecriture(), (Pointeur{2, 0}));
    const MesureEnFlash derniere = MesurePeriodique(1'700'000'100, 900);
    EXPECT_EQ(logger.Stockee(65), derniere);
    EXPECT_THAT(Reponse(logger, {20, 0, 1, 2, 8, 32, 32, 32}), testing::ElementsAreArray(derniere));
}

TEST(StoredMeasures, TheDistanceOfThePointersShowsAboutTheMeasuresHeld) {
    EnregistreurSimule logger;
    logger.Stocker(MesuresRegulieres(1'700'000'000, 30000));
    const int distance = Lineaire(logger.Ecriture()) - Lineaire(logger.Lecture());
    EXPECT_NEAR(distance / 8.0, 30000, 30000 * 2.0 / 528 + 8);
}

TEST(StoredMeasures, CapacityFollowsTheSizeCode) {
    EnregistreurSimule logger;
    EXPECT_EQ(logger.Capacite(), 540606);
    logger.identite.tailleMemoire = 2;
    EXPECT_EQ(logger.Capacite(), 270270);
    logger.identite.tailleMemoire = 1;
    EXPECT_EQ(logger.Capacite(), 135102);
}

EnregistreurSimule Petit() {
    Identite qui;
    qui.tailleMemoire = 1;
    return EnregistreurSimule(qui);
}

TEST(StoredMeasures, AFullMemoryHasEqualPointersAndGivesAllItHolds) {
    EnregistreurSimule logger = Petit();
    const auto mesures = MesuresRegulieres(1'700'000'000, logger.Capacite());
    logger.Stocker(mesures);
    EXPECT_EQ(logger.Ecriture(), logger.Lecture());
    EXPECT_EQ(ReponseA(logger, 22).at(5), 0);
    EXPECT_EQ(Telecharger(logger), mesures);
}

TEST(StoredMeasures, AFullMemoryThatStopsDropsTheNewMeasure) {
    EnregistreurSimule logger = Petit();
    logger.Stocker(MesuresRegulieres(1'700'000'000, logger.Capacite()));
    logger.Stocker(MesurePeriodique(1, 1));
    EXPECT_EQ(logger.NombreMesures(), logger.Capacite());
    EXPECT_EQ(logger.Stockee(0), MesurePeriodique(1'700'000'000, 200));
}

TEST(StoredMeasures, ACircularMemoryLosesTheOldestMeasures) {
    EnregistreurSimule logger = Petit();
    logger.memoire.EcrireOctet(adresse::mode, 0x08);
    const auto mesures = MesuresRegulieres(1'700'000'000, logger.Capacite() + 100);
    logger.Stocker(mesures);
    EXPECT_EQ(logger.NombreMesures(), logger.Capacite());
    const std::vector<MesureEnFlash> reste(mesures.begin() + 100, mesures.end());
    EXPECT_EQ(Telecharger(logger), reste);
}

TEST(StoredMeasures, AReadPointerAheadOfTheWritePointerWalksOverTheEnd) {
    EnregistreurSimule logger = Petit();
    logger.ReglerEcriture({2047, 512});
    logger.ReglerLecture({2047, 512});
    const auto mesures = MesuresRegulieres(1'700'000'000, 10);
    logger.Stocker(mesures);
    EXPECT_EQ(logger.Ecriture(), (Pointeur{1, 64}));
    EXPECT_EQ(logger.NombreMesures(), 10);
    EXPECT_EQ(Telecharger(logger), mesures);
}

TEST(StoredMeasures, OddPointersNeitherHangNorReadOutside) {
    EnregistreurSimule logger = Petit();
    logger.ReglerLecture({0xFFFF, 0xFFFF});
    logger.ReglerEcriture({0, 3});
    logger.octetVide = 0;
    EXPECT_EQ(Telecharger(logger).size(), static_cast<std::size_t>(logger.NombreMesures()));
}

TEST(StoredMeasures, PulsesGroupsErasedCellsAndBrokenParityTravelAsStored) {
    EnregistreurSimule logger;
    const std::vector<int> points = {1, 2, 3};
    std::vector<MesureEnFlash> mesures = GroupeMemeSeconde(5000, points);
    mesures.push_back(MesureImpulsion(5001, 7, 300));
    mesures.push_back(CelluleEffacee());
    mesures.push_back(PariteCassee(MesurePeriodique(5002, 4), 4));
    mesures.push_back(SansParite(MesurePeriodique(5003, 5)));
    logger.Stocker(mesures);
    EXPECT_EQ(Telecharger(logger), mesures);
}

TEST(StoredMeasures, AStoredMeasureCanBeReplaced) {
    EnregistreurSimule logger;
    logger.Stocker(MesuresRegulieres(1'700'000'000, 100));
    logger.Remplacer(70, CelluleEffacee());
    EXPECT_EQ(Telecharger(logger).at(70), CelluleEffacee());
    EXPECT_EQ(logger.NombreMesures(), 100);
}

TEST(StoredMeasures, ReadingCellByCellFindsTheSameMeasures) {
    EnregistreurSimule logger;
    const auto mesures = MesuresRegulieres(1'700'000'000, 150);
    logger.Stocker(mesures);
    for (int i = 0; i < 150; ++i) {
        const int page = 1 + i / 66;
        const int offset = i % 66 * 8;
        const ListeOctets cellule =
            Reponse(logger, {20, 0, page, offset / 256, offset % 256, 32, 32, 32});
        EXPECT_THAT(cellule, testing::ElementsAreArray(mesures[static_cast<std::size_t>(i)]));
    }
}

TEST(StoredMeasures, EmptyingForgetsThemAll) {
    EnregistreurSimule logger;
    logger.Stocker(MesuresRegulieres(1'700'000'000, 100));
    Premiere(logger);
    logger.ViderMesures();
    EXPECT_EQ(Suivante(logger).at(1), 1);
    EXPECT_EQ(ReponseA(logger, 22), Octets8({22, 0, 1, 0, 0, 1, 0, 0}));
}

}  // namespace
}  // namespace bornika::essai
