#include "chart/model/curve_statistics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "chart/model/chart_model.h"
#include "platform/fault.h"

namespace bornika {
namespace {

using Axe = SerieGraphe::Axe;

SerieGraphe& Ajouter(ModeleGraphe& modele, Axe axe, const std::vector<double>& valeurs) {
    SerieGraphe& serie = modele.AjouterSerie();
    serie.axe = axe;
    double x = 0;
    for (const double valeur : valeurs)
        serie.AjouterPoint(x++, valeur, MagasinEtiquettes::vide);
    return serie;
}

/// A pressure and a flow curve of ten points, all of them in view.
class StatistiquesVisibles : public ::testing::Test {
  protected:
    StatistiquesVisibles() {
        Ajouter(modele, Axe::Gauche, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
        Ajouter(modele, Axe::Droite, {-20, 0, 0, 0, 0, 0, 0, 0, 0, 40});
        modele.FixerPlage(0, 9);
    }
    ModeleGraphe modele;
};

TEST_F(StatistiquesVisibles, OfAChosenCurveAreThoseOfItsAxis) {
    const StatistiquesCourbes pression = CalculerStatistiques(modele, 0);
    EXPECT_EQ(pression.minimum, 1);
    EXPECT_EQ(pression.maximum, 10);
    EXPECT_EQ(pression.nombre, 10);
    EXPECT_DOUBLE_EQ(pression.Moyenne(), 5.5);
    const StatistiquesCourbes debit = CalculerStatistiques(modele, 1);
    EXPECT_EQ(debit.minimum, -20);
    EXPECT_EQ(debit.maximum, 40);
    EXPECT_DOUBLE_EQ(debit.Moyenne(), 2);
}

TEST_F(StatistiquesVisibles, WithoutAChosenCurvePoolAllCurvesOfBothAxes) {
    const StatistiquesCourbes toutes = CalculerStatistiques(modele, -1);
    EXPECT_EQ(toutes.minimum, -20);
    EXPECT_EQ(toutes.maximum, 40);
    EXPECT_EQ(toutes.nombre, 20);
    EXPECT_DOUBLE_EQ(toutes.Moyenne(), 3.75);
}

TEST_F(StatistiquesVisibles, FollowTheVisibleSpanWithBothItsEnds) {
    modele.MontrerPlage({2, 4});
    const StatistiquesCourbes pression = CalculerStatistiques(modele, 0);
    EXPECT_EQ(pression.minimum, 3);
    EXPECT_EQ(pression.maximum, 5);
    EXPECT_EQ(pression.nombre, 3);
}

TEST_F(StatistiquesVisibles, FollowThePage) {
    modele.FixerMaxPointsPerPage(4);
    modele.FixerPage(1);
    const StatistiquesCourbes pression = CalculerStatistiques(modele, 0);
    EXPECT_EQ(pression.minimum, 5);
    EXPECT_EQ(pression.maximum, 8);
}

TEST_F(StatistiquesVisibles, TakeInCurvesThatAreSwitchedOff) {
    Ajouter(modele, Axe::Gauche, {99}).active = false;
    EXPECT_EQ(CalculerStatistiques(modele, 0).maximum, 99);
    EXPECT_EQ(CalculerStatistiques(modele, 2).nombre, 11);
}

TEST_F(StatistiquesVisibles, TakeInTheSmoothedCurvesOfTheAxis) {
    SerieGraphe& lissee = modele.AjouterSerie();
    modele.FixerFonction(2, SerieGraphe::fonctionLissage, 0);
    lissee.FixerPeriode(3);
    const StatistiquesCourbes pression = CalculerStatistiques(modele, 0);
    EXPECT_EQ(pression.nombre, 20);
    double somme = 0;
    for (const double valeur : lissee.Y())
        somme += valeur;
    EXPECT_DOUBLE_EQ(pression.somme, 55 + somme);
}

TEST_F(StatistiquesVisibles, WalkFromTheFirstToTheLastVisiblePointOfAnUnsortedCurve) {
    SerieGraphe& serie = modele.AjouterSerie();
    serie.axe = Axe::Droite;
    modele.RetirerSerie(1);
    for (const auto& [x, y] : {std::pair{100., 1.}, {5., 2.}, {200., 30.}, {6., 4.}, {300., 50.}})
        serie.AjouterPoint(x, y, MagasinEtiquettes::vide);
    const StatistiquesCourbes statistiques = CalculerStatistiques(modele, 1);
    EXPECT_EQ(statistiques.nombre, 3);
    EXPECT_EQ(statistiques.maximum, 30);
}

TEST_F(StatistiquesVisibles, WithoutAVisiblePointHaveNoMean) {
    modele.MontrerPlage({2.2, 2.8});
    const StatistiquesCourbes statistiques = CalculerStatistiques(modele, -1);
    EXPECT_EQ(statistiques.nombre, 0);
    EXPECT_THROW(statistiques.Moyenne(), FauteExecution);
    modele.RetirerTout();
    EXPECT_THROW(CalculerStatistiques(modele, -1).Moyenne(), FauteExecution);
}

TEST_F(StatistiquesVisibles, OfACurveThatIsNotThereAreAFault) {
    EXPECT_THROW(CalculerStatistiques(modele, 2), FauteExecution);
}

TEST(CurveStatistics, CurvesBelowZeroThroughoutHaveTheMaximumZero) {
    ModeleGraphe modele;
    Ajouter(modele, Axe::Gauche, {-3, -1, -2});
    modele.FixerPlage(0, 2);
    const StatistiquesCourbes statistiques = CalculerStatistiques(modele, 0);
    EXPECT_EQ(statistiques.maximum, 0);
    EXPECT_EQ(statistiques.minimum, -3);
    EXPECT_DOUBLE_EQ(statistiques.Moyenne(), -2);
}

TEST(CurveStatistics, CurvesAboveTheStartingMinimumHaveThatMinimum) {
    StatistiquesCourbes statistiques;
    const std::vector<double> valeurs(5, 2e19);
    statistiques.Prendre(valeurs);
    EXPECT_EQ(statistiques.minimum, 1e19);
    EXPECT_EQ(statistiques.maximum, 2e19);
}

TEST(CurveStatistics, EveryCountOfValuesGivesWhatAPlainLoopGives) {
    std::mt19937 hasard(11);
    std::uniform_real_distribution<double> tirage(-50, 50);
    for (std::size_t nombre = 1; nombre <= 40; ++nombre) {
        std::vector<double> valeurs(nombre);
        for (double& valeur : valeurs)
            valeur = tirage(hasard);
        double minimum = 1e19;
        double maximum = 0;
        double somme = 0;
        for (const double valeur : valeurs) {
            somme += valeur;
            maximum = std::max(maximum, valeur);
            minimum = std::min(minimum, valeur);
        }
        StatistiquesCourbes statistiques;
        statistiques.Prendre(valeurs);
        EXPECT_EQ(statistiques.minimum, minimum) << nombre;
        EXPECT_EQ(statistiques.maximum, maximum) << nombre;
        EXPECT_NEAR(statistiques.somme, somme, 1e-9) << nombre;
        EXPECT_EQ(statistiques.nombre, static_cast<std::int64_t>(nombre));
    }
}

TEST(CurveStatistics, AnExtremeAtAnyPlaceIsFound) {
    for (std::size_t place = 0; place < 11; ++place) {
        std::vector<double> valeurs(11, 5);
        valeurs[place] = 7;
        StatistiquesCourbes haute;
        haute.Prendre(valeurs);
        EXPECT_EQ(haute.maximum, 7) << place;
        valeurs[place] = -7;
        StatistiquesCourbes basse;
        basse.Prendre(valeurs);
        EXPECT_EQ(basse.minimum, -7) << place;
    }
}

TEST(CurveStatistics, AValueThatIsNoNumberIsNeitherMinimumNorMaximum) {
    StatistiquesCourbes statistiques;
    const std::vector<double> valeurs{1, std::nan(""), 3, 2, std::nan("")};
    statistiques.Prendre(valeurs);
    EXPECT_EQ(statistiques.minimum, 1);
    EXPECT_EQ(statistiques.maximum, 3);
}

}  // namespace
}  // namespace bornika
