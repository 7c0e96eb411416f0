#include "chart/model/smoothing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace bornika {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::vector<double> Lissees(const std::vector<double>& valeurs, int periode) {
    std::vector<double> resultat;
    Lisser(valeurs, periode, resultat);
    return resultat;
}

/// The kernel term by term, for curves of finite values.
std::vector<double> Naif(const std::vector<double>& valeurs, int periode) {
    const int nombre = static_cast<int>(valeurs.size());
    std::vector<double> resultat(valeurs.size());
    for (int i = 0; i < nombre; ++i) {
        const int n = std::min({periode, i + 1, nombre - i});
        double somme = 0;
        for (int j = 1 - n; j < n; ++j)
            somme += (n - std::abs(j)) * valeurs[static_cast<std::size_t>(i + j)];
        resultat[static_cast<std::size_t>(i)] = somme / (static_cast<double>(n) * n);
    }
    return resultat;
}

std::vector<double> Hasard(std::size_t nombre, unsigned graine) {
    std::mt19937 tirage(graine);
    std::uniform_real_distribution<double> loi(-5, 20);
    std::vector<double> valeurs(nombre);
    for (double& valeur : valeurs)
        valeur = loi(tirage);
    return valeurs;
}

TEST(Lisser, EqualsTheKernelTermByTerm) {
    for (const std::size_t nombre :
         {0U, 1U, 2U, 3U, 5U, 19U, 20U, 21U, 39U, 100U, 199U, 200U, 1003U})
        for (const int periode : {1, 2, 3, 7, 10, 50, 99, 100}) {
            const auto valeurs = Hasard(nombre, static_cast<unsigned>(nombre) + 1);
            const auto attendues = Naif(valeurs, periode);
            const auto lissees = Lissees(valeurs, periode);
            ASSERT_EQ(lissees.size(), nombre);
            for (std::size_t i = 0; i < nombre; ++i)
                ASSERT_NEAR(lissees[i], attendues[i], 1e-12)
                    << nombre << " points, period " << periode << ", point " << i;
        }
}

TEST(Lisser, PeriodOneIsIdentity) {
    const auto valeurs = Hasard(50, 3);
    EXPECT_EQ(Lissees(valeurs, 1), valeurs);
}

TEST(Lisser, EndPointsStayExact) {
    const auto valeurs = Hasard(500, 4);
    for (const int periode : {2, 10, 100}) {
        const auto lissees = Lissees(valeurs, periode);
        EXPECT_EQ(lissees.front(), valeurs.front());
        EXPECT_EQ(lissees.back(), valeurs.back());
    }
}

TEST(Lisser, KeepsStraightLines) {
    std::vector<double> droite(333);
    for (std::size_t i = 0; i < droite.size(); ++i)
        droite[i] = 2.5 * static_cast<double>(i) - 40;
    const auto lissees = Lissees(droite, 25);
    for (std::size_t i = 0; i < droite.size(); ++i)
        EXPECT_NEAR(lissees[i], droite[i], 1e-10);
}

TEST(Lisser, SpikeReachesNoFurtherThanThePeriod) {
    std::vector<double> valeurs(400, 0.1);
    valeurs[200] = 1e17;
    const auto lissees = Lissees(valeurs, 10);
    const std::vector<double> sans = Lissees(std::vector<double>(400, 0.1), 10);
    for (std::size_t i = 0; i < 400; ++i) {
        if (i > 190 && i < 210)
            EXPECT_GT(lissees[i], 1e14) << i;
        else
            EXPECT_NEAR(lissees[i], sans[i], 1e-15) << i;
    }
}

TEST(Lisser, EachFiniteRunIsSmoothedByItself) {
    const auto gauche = Hasard(70, 5);
    const auto droite = Hasard(90, 6);
    std::vector<double> valeurs = gauche;
    valeurs.push_back(nan);
    valeurs.push_back(std::numeric_limits<double>::infinity());
    valeurs.insert(valeurs.end(), droite.begin(), droite.end());
    const auto lissees = Lissees(valeurs, 12);
    const auto seuleGauche = Lissees(gauche, 12);
    const auto seuleDroite = Lissees(droite, 12);
    EXPECT_TRUE(std::equal(seuleGauche.begin(), seuleGauche.end(), lissees.begin()));
    EXPECT_TRUE(std::isnan(lissees[70]));
    EXPECT_TRUE(std::isinf(lissees[71]));
    EXPECT_TRUE(std::equal(seuleDroite.begin(), seuleDroite.end(), lissees.begin() + 72));
}

TEST(Lisser, ValuesThatAreNoNumbersAreNoticedWhereverTheyStand) {
    constexpr int periode = 3;
    const auto valeurs = Hasard(61, 8);
    for (const double intrus : {nan, std::numeric_limits<double>::infinity()})
        for (std::size_t ou = 0; ou < valeurs.size(); ++ou) {
            auto percees = valeurs;
            percees[ou] = intrus;
            const auto lissees = Lissees(percees, periode);
            const auto milieu = valeurs.begin() + static_cast<std::ptrdiff_t>(ou);
            const auto avant = Lissees({valeurs.begin(), milieu}, periode);
            const auto apres = Lissees({milieu + 1, valeurs.end()}, periode);
            ASSERT_FALSE(std::isfinite(lissees[ou]));
            ASSERT_TRUE(std::equal(avant.begin(), avant.end(), lissees.begin())) << ou;
            ASSERT_TRUE(std::equal(apres.rbegin(), apres.rend(), lissees.rbegin())) << ou;
        }
}

TEST(Lisser, SumsBeyondTheLargestNumberStayNearTheirValues) {
    std::vector<double> valeurs(300, 1);
    valeurs[150] = valeurs[151] = std::numeric_limits<double>::max();
    const auto lissees = Lissees(valeurs, 5);
    for (std::size_t i = 0; i < valeurs.size(); ++i) {
        if (i + 5 > 150 && i < 151 + 5) continue;
        ASSERT_EQ(lissees[i], 1) << i;
    }
}

TEST(Lisser, AConstantCurveStaysAsItIs) {
    for (const int periode : {2, 3, 7, 10, 49, 100})
        EXPECT_EQ(Lissees(std::vector<double>(1500, 3), periode), std::vector<double>(1500, 3));
}

TEST(Lisser, IsSmootherAsThePeriodGrows) {
    const auto valeurs = Hasard(2000, 7);
    const auto rugosite = [](const std::vector<double>& courbe) {
        double somme = 0;
        for (std::size_t i = 201; i + 200 < courbe.size(); ++i)
            somme += std::abs(courbe[i] - courbe[i - 1]);
        return somme;
    };
    double precedente = rugosite(valeurs);
    for (const int periode : {2, 5, 10, 30, 100}) {
        const double presente = rugosite(Lissees(valeurs, periode));
        EXPECT_LT(presente, precedente);
        precedente = presente;
    }
}

}  // namespace
}  // namespace bornika
