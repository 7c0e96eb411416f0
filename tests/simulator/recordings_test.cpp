#include "simulator/recordings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "simulator/device_time.h"

namespace bornika::simulateur {
namespace {

const std::uint32_t debut = TempsAppareil(2026, 3, 2, 0, 0, 0);

struct Lue {
    double instant;
    int points;
    bool impulsion;
};

std::vector<Lue> Decoder(const std::vector<MesureEnFlash>& mesures) {
    std::vector<Lue> lues;
    for (const MesureEnFlash& m : mesures) {
        const double secondes = m[2] * 16777216.0 + m[3] * 65536.0 + m[4] * 256.0 + m[5];
        lues.push_back({secondes + m[0] / 8.0, (m[6] & 3) * 256 + m[7], m[0] != 0 || m[1] != 0});
    }
    return lues;
}

std::vector<Lue> Reseau() {
    ReseauEau reseau;
    reseau.debut = debut;
    return Decoder(MesuresReseauEau(reseau));
}

TEST(WaterNetworkRecording, HasSomeTensOfThousandsOfMeasuresOfBothKinds) {
    const auto lues = Reseau();
    const auto impulsions =
        std::count_if(lues.begin(), lues.end(), [](const Lue& lue) { return lue.impulsion; });
    EXPECT_EQ(static_cast<int>(lues.size()) - impulsions, 3 * 86400 / 15);
    EXPECT_GT(impulsions, 8000);
    EXPECT_LT(impulsions, 20000);
}

TEST(WaterNetworkRecording, NeverGoesBackInTime) {
    const auto lues = Reseau();
    for (std::size_t i = 1; i < lues.size(); ++i) {
        ASSERT_LE(lues[i - 1].instant, lues[i].instant) << i;
    }
    EXPECT_EQ(lues.front().instant, debut);
    EXPECT_LT(lues.back().instant, debut + 3 * 86400);
}

TEST(WaterNetworkRecording, NoTwoPulsesShareAnInstant) {
    double precedent = 0;
    for (const Lue& lue : Reseau()) {
        if (!lue.impulsion) continue;
        ASSERT_GT(lue.instant, precedent);
        precedent = lue.instant;
    }
}

TEST(WaterNetworkRecording, PressuresArePlausibleWithTransientsAboveAndBelow) {
    const auto lues = Reseau();
    double somme = 0;
    double plusBas = 16;
    double plusHaut = 0;
    int dansLaPlage = 0;
    for (const Lue& lue : lues) {
        const double pression = lue.points * 16.0 / 1024.0;
        somme += pression;
        plusBas = std::min(plusBas, pression);
        plusHaut = std::max(plusHaut, pression);
        if (pression > 4.0 && pression < 6.0) ++dansLaPlage;
    }
    const auto nombre = static_cast<double>(lues.size());
    EXPECT_NEAR(somme / nombre, 5.0, 0.5);
    EXPECT_GT(dansLaPlage, 0.95 * nombre);
    EXPECT_GT(plusHaut, 6.0);
    EXPECT_LT(plusHaut, 8.0);
    EXPECT_LT(plusBas, 4.0);
    EXPECT_GT(plusBas, 2.0);
}

TEST(WaterNetworkRecording, TheNightIsQuietAndTheMorningIsNot) {
    int nuit = 0;
    int matin = 0;
    for (const Lue& lue : Reseau()) {
        const double heure = std::fmod(lue.instant - debut, 86400.0) / 3600.0;
        if (!lue.impulsion) continue;
        if (heure >= 2 && heure < 4) ++nuit;
        if (heure >= 6.5 && heure < 8.5) ++matin;
    }
    EXPECT_GT(nuit, 10);
    EXPECT_GT(matin, 5 * nuit);
}

TEST(WaterNetworkRecording, TheGrainDecides) {
    ReseauEau reseau;
    reseau.debut = debut;
    reseau.duree = 3600;
    const auto une = MesuresReseauEau(reseau);
    EXPECT_EQ(MesuresReseauEau(reseau), une);
    reseau.grain = 1789;
    EXPECT_NE(MesuresReseauEau(reseau), une);
}

TEST(WaterNetworkRecording, EveryMeasureCarriesItsParity) {
    ReseauEau reseau;
    reseau.debut = debut;
    reseau.duree = 7200;
    for (const MesureEnFlash& mesure : MesuresReseauEau(reseau)) {
        EXPECT_EQ(mesure, AvecParite(mesure));
        EXPECT_EQ(mesure[6] & 128, 128);
    }
}

TEST(RegularRecording, EachMeasureIsKnown) {
    const auto mesures = MesuresRegulieres(1000, 700, 5);
    ASSERT_EQ(mesures.size(), 700U);
    EXPECT_EQ(mesures[0], MesurePeriodique(1000, 200));
    EXPECT_EQ(mesures[599], MesurePeriodique(1000 + 599 * 5, 799));
    EXPECT_EQ(mesures[600], MesurePeriodique(1000 + 600 * 5, 200));
}

TEST(DeviceTime, CountsSecondsFrom1970) {
    EXPECT_EQ(TempsAppareil(1970, 1, 1), 0U);
    EXPECT_EQ(TempsAppareil(1970, 1, 2, 1, 2, 3), 86400U + 3723U);
    EXPECT_EQ(TempsAppareil(2023, 12, 31), 1703980800U);
}

TEST(DeviceTime, RunsOneDayAheadAfterFebruaryOfALeapYear) {
    EXPECT_EQ(TempsAppareil(2024, 2, 28), 1709078400U);
    EXPECT_EQ(TempsAppareil(2024, 2, 29), 1709251200U) << "counted as 1 March";
    EXPECT_EQ(TempsAppareil(2024, 3, 1), 1709337600U) << "counted as 2 March";
    EXPECT_EQ(TempsAppareil(2024, 12, 31), TempsAppareil(2025, 1, 1));
    EXPECT_EQ(TempsAppareil(2025, 1, 1), 1735689600U);
}

}  // namespace
}  // namespace bornika::simulateur
