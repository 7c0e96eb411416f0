#include "retrieval/measure_group.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "retrieval/retrieval_fixture.h"
#include "simulator/measure.h"

namespace bornika::essai {
using simulateur::MesureEnFlash;
using simulateur::MesureImpulsion;
using simulateur::MesurePeriodique;

namespace {

/// One transfer: what comes out of the answers that go in.
class Transfert : public SortieMesures {
  public:
    Transfert& Recevoir(const MesureEnFlash& mesure, bool derniere = false) {
        std::array<int, 10> reponse{10, derniere ? 1 : 0};
        for (std::size_t i = 0; i < mesure.size(); ++i)
            reponse[i + 2] = mesure[i];
        decodeur.Decoder(reponse, *this);
        return *this;
    }
    Transfert& Finir(const MesureEnFlash& mesure) { return Recevoir(mesure, true); }

    void Compter(std::int32_t Compteur) override { comptes.push_back(Compteur); }
    void Mesurer(const MesureDatee& mesure) override { mesures.push_back(mesure); }

    std::vector<int> Millisecondes() const { return De(&MesureDatee::millisecondes); }
    std::vector<int> Secondes() const { return De(&MesureDatee::secondes); }
    std::vector<int> Points() const { return De(&MesureDatee::points); }

    DecodeurMesures decodeur;
    std::vector<MesureDatee> mesures;
    std::vector<int> comptes;

  private:
    template <class Champ>
    std::vector<int> De(Champ champ) const {
        std::vector<int> valeurs;
        for (const MesureDatee& mesure : mesures)
            valeurs.push_back(static_cast<int>(mesure.*champ));
        return valeurs;
    }
};

using Entiers = std::vector<int>;

}  // namespace

TEST(PeriodicGroup, TheFirstMeasureAppearsWithTheSecondOne) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 100));
    EXPECT_TRUE(transfert.mesures.empty());
    transfert.Recevoir(MesurePeriodique(t0 + 1, 101));
    EXPECT_EQ(transfert.Points(), (Entiers{100, 101}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{0, 500}));
    EXPECT_EQ(transfert.Secondes(), (Entiers{t0 + 1, t0 + 1}));
}

TEST(PeriodicGroup, MeasuresInSecondsOfTheirOwnGiveOneLineEachAfterTheFirstTwo) {
    Transfert transfert;
    for (int i = 0; i < 5; ++i)
        transfert.Recevoir(MesurePeriodique(t0 + static_cast<std::uint32_t>(i), 100 + i));
    EXPECT_EQ(transfert.Points(), (Entiers{100, 101, 102, 103, 104}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{0, 500, 0, 0, 0}));
    EXPECT_EQ(transfert.Secondes(), (Entiers{t0 + 1, t0 + 1, t0 + 2, t0 + 3, t0 + 4}));
    EXPECT_EQ(transfert.decodeur.Compteur(), 5);
}

TEST(PeriodicGroup, ThreeOfOneSecondAndTheirCloserTakeTheClosersSecond) {
    Transfert transfert;
    for (int points : {1, 2, 3})
        transfert.Recevoir(MesurePeriodique(t0, points));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 4));
    EXPECT_EQ(transfert.Points(), (Entiers{1, 2, 3, 4}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{0, 250, 500, 750}));
    EXPECT_EQ(transfert.Secondes(), (Entiers(4, t0 + 1)));
}

TEST(PeriodicGroup, TheClosersParityDecidesForAll) {
    for (bool bonne : {true, false}) {
        const MesureEnFlash saine = MesurePeriodique(t0 + 1, 4);
        const MesureEnFlash cassee = simulateur::PariteCassee(MesurePeriodique(t0, 1), 4);
        Transfert transfert;
        transfert.Recevoir(bonne ? cassee : MesurePeriodique(t0, 1));
        transfert.Recevoir(bonne ? saine : simulateur::PariteCassee(saine, 4));
        ASSERT_EQ(transfert.mesures.size(), 2U);
        EXPECT_EQ(transfert.mesures[0].parite_ok, bonne);
        EXPECT_EQ(transfert.mesures[1].parite_ok, bonne);
    }
}

TEST(PeriodicGroup, OfTwelveOnlyNineLinesComeSpacedByThirteenAndAllAreCounted) {
    Transfert transfert;
    for (int i = 0; i < 12; ++i)
        transfert.Recevoir(MesurePeriodique(t0, i));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 500));
    EXPECT_EQ(transfert.Points(), (Entiers{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{0, 77, 154, 231, 308, 385, 462, 538, 615}));
    EXPECT_EQ(transfert.decodeur.Compteur(), 13);
    EXPECT_EQ(transfert.comptes.size(), 13U);
    EXPECT_EQ(transfert.comptes.back(), 12);
    EXPECT_FALSE(transfert.decodeur.Fin());
}

TEST(PeriodicGroup, TheGroupAfterAnOverfullOneIsWhole) {
    Transfert transfert;
    for (int i = 0; i < 12; ++i)
        transfert.Recevoir(MesurePeriodique(t0, i));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 500));
    transfert.mesures.clear();
    transfert.Recevoir(MesurePeriodique(t0 + 2, 501));
    EXPECT_EQ(transfert.Points(), (Entiers{501}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{0}));
}

TEST(PeriodicGroup, TheLastMeasureAndTheOpenGroupAreLost) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 1)).Recevoir(MesurePeriodique(t0 + 1, 2));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 3)).Finir(MesurePeriodique(t0 + 1, 4));
    EXPECT_EQ(transfert.Points(), (Entiers{1, 2}));
    EXPECT_TRUE(transfert.decodeur.Fin());
}

TEST(PeriodicGroup, AnEndMarkThatClosesAGroupDropsIt) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 1)).Finir(MesurePeriodique(t0 + 1, 2));
    EXPECT_TRUE(transfert.mesures.empty());
    EXPECT_EQ(transfert.decodeur.Compteur(), 0);
    EXPECT_TRUE(transfert.decodeur.Fin());
}

TEST(PeriodicGroup, AnEmptyLoggerEndsWithItsFirstAnswer) {
    Transfert transfert;
    transfert.Finir(MesurePeriodique(t0, 0));
    EXPECT_TRUE(transfert.decodeur.Fin());
    EXPECT_TRUE(transfert.mesures.empty());
    EXPECT_TRUE(transfert.comptes.empty());
}

TEST(PeriodicGroup, AStepBackInTimeClosesItToo) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 1)).Recevoir(MesurePeriodique(t0 - 5, 2));
    EXPECT_EQ(transfert.Secondes(), (Entiers(2, t0 - 5)));
}

TEST(PeriodicGroup, AnErasedCellCarriesTheTimeBeforeItOn) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 1))
        .Recevoir(simulateur::SansParite(MesurePeriodique(t0, 2)));
    MesureEnFlash effacee = simulateur::CelluleEffacee();
    effacee[0] = effacee[1] = 0;
    transfert.Recevoir(effacee);
    const auto attendu = static_cast<int>(t0 + 255U * 65536 + 255U * 256 + 255U);
    EXPECT_EQ(transfert.Secondes(), (Entiers(3, attendu)));
    EXPECT_EQ(transfert.Points(), (Entiers{1, 2, 1023}));
}

TEST(Pulse, EachEventIsOneLineWithUnroundedEighths) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 1, 300)).Recevoir(MesureImpulsion(t0, 3, 301));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{125, 375}));
    EXPECT_EQ(transfert.Points(), (Entiers{300, 301}));
    EXPECT_TRUE(transfert.mesures[0].impulsion);
    EXPECT_EQ(transfert.decodeur.Compteur(), 2);
}

TEST(Pulse, TheFirstRateRoundsToZeroAndTheNextCountsTheInterval) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 1, 300)).Recevoir(MesureImpulsion(t0, 4, 300));
    EXPECT_EQ(transfert.mesures[0].taux, 0.0);
    EXPECT_EQ(transfert.mesures[1].taux, 2.6667);
}

TEST(Pulse, TwoAtTheSameInstantKeepTheOldRate) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 0, 1)).Recevoir(MesureImpulsion(t0 + 2, 0, 1));
    transfert.Recevoir(MesureImpulsion(t0 + 2, 0, 1));
    ASSERT_EQ(transfert.mesures.size(), 3U);
    EXPECT_EQ(transfert.mesures[1].taux, 0.5);
    EXPECT_EQ(transfert.mesures[2].taux, 0.5);
}

TEST(Pulse, AStepBackInTimeGivesANegativeRate) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 4, 1)).Recevoir(MesureImpulsion(t0, 0, 1));
    EXPECT_EQ(transfert.mesures[1].taux, -2.0);
}

TEST(Pulse, MillisecondsGoBeyondTheSecondForAnOddHighByte) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 255, 1));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{31875}));
}

TEST(Pulse, ItsOwnParityDecides) {
    Transfert transfert;
    transfert.Recevoir(simulateur::PariteCassee(MesureImpulsion(t0, 1, 300), 6));
    EXPECT_FALSE(transfert.mesures.at(0).parite_ok);
}

TEST(Pulse, TheOneWithTheEndMarkIsNotWrittenButShown) {
    Transfert transfert;
    transfert.Recevoir(MesureImpulsion(t0, 1, 300)).Finir(MesureImpulsion(t0 + 1, 1, 300));
    EXPECT_EQ(transfert.mesures.size(), 1U);
    EXPECT_EQ(transfert.comptes, (Entiers{0, 1}));
    EXPECT_EQ(transfert.decodeur.Compteur(), 1);
    EXPECT_TRUE(transfert.decodeur.Fin());
}

TEST(Pulse, AGroupStaysOpenAcrossItAndLosesItsFirstValueToIt) {
    Transfert transfert;
    transfert.Recevoir(MesurePeriodique(t0, 1)).Recevoir(MesurePeriodique(t0, 2));
    transfert.Recevoir(MesureImpulsion(t0, 2, 700));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 3));
    EXPECT_EQ(transfert.Points(), (Entiers{700, 700, 2, 3}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers{250, 0, 333, 667}));
}

TEST(PeriodicGroup, TheCountOfAnEndlessSecondStopsAtItsLimitAndTheGroupStillCloses) {
    Transfert transfert;
    for (int i = 0; i < 33000; ++i)
        transfert.Recevoir(MesurePeriodique(t0, i % 1000));
    transfert.Recevoir(MesurePeriodique(t0 + 1, 500));
    EXPECT_EQ(transfert.Points(), (Entiers{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(transfert.Millisecondes(), (Entiers(9, 0)));
    EXPECT_EQ(transfert.decodeur.Compteur(), 32768);
    transfert.mesures.clear();
    transfert.Recevoir(MesurePeriodique(t0 + 2, 501));
    EXPECT_EQ(transfert.Points(), (Entiers{501}));
}

}  // namespace bornika::essai
