#include "chart/model/chart_model.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "support/fault_number.h"

namespace bornika {
namespace {

SerieGraphe& AjouterPoints(ModeleGraphe& graphe, std::initializer_list<double> abscisses) {
    SerieGraphe& serie = graphe.AjouterSerie();
    for (const double x : abscisses)
        serie.AjouterPoint(x, 10 * x, QString::number(x));
    return serie;
}

using essai::NumeroDeFaute;

TEST(ModeleGraphe, SeriesAreAddressedByPosition) {
    ModeleGraphe graphe;
    graphe.AjouterSerie().titre = "a";
    graphe.AjouterSerie().titre = "b";
    graphe.AjouterSerie().titre = "c";
    const auto revision = graphe.RevisionSeries();
    graphe.RetirerSerie(1);
    EXPECT_NE(graphe.RevisionSeries(), revision);
    ASSERT_EQ(graphe.NombreSeries(), 2);
    EXPECT_EQ(graphe.Serie(1).titre, "c");
    graphe.RetirerTout();
    EXPECT_EQ(graphe.NombreSeries(), 0);
}

TEST(ModeleGraphe, PositionOutOfRangeIsASubscriptFault) {
    ModeleGraphe graphe;
    graphe.AjouterSerie();
    EXPECT_EQ(NumeroDeFaute([&] { graphe.Serie(1); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { graphe.Serie(-1); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { graphe.RetirerSerie(1); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { graphe.Outil(0); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { graphe.RetirerOutil(-1); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { graphe.Etiquette(0, 0); }), numero_faute::indice);
}

TEST(ModeleGraphe, VisiblePointsFollowTheTimeAxis) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {10, 20, 30, 40, 50});
    graphe.FixerPlage(10, 50);
    EXPECT_EQ(graphe.FirstValueIndex(0), 0);
    EXPECT_EQ(graphe.LastValueIndex(0), 4);
    graphe.MontrerPlage({20, 45});
    EXPECT_EQ(graphe.FirstValueIndex(0), 1);
    EXPECT_EQ(graphe.LastValueIndex(0), 3);
    graphe.MontrerPlage({21, 29});
    EXPECT_EQ(graphe.FirstValueIndex(0), -1);
    EXPECT_EQ(graphe.LastValueIndex(0), -1);
    graphe.MontrerTout();
    EXPECT_EQ(graphe.LastValueIndex(0), 4);
}

TEST(ModeleGraphe, SwitchedOffSeriesHaveVisiblePointsToo) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {1, 2, 3}).active = false;
    graphe.FixerPlage(2, 3);
    EXPECT_EQ(graphe.FirstValueIndex(0), 1);
    EXPECT_EQ(graphe.LastValueIndex(0), 2);
}

TEST(ModeleGraphe, PointsOutOfOrderAreFoundOneByOne) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {30, 10, 50, 20, 40});
    EXPECT_FALSE(graphe.Serie(0).EstTriee());
    graphe.FixerPlage(15, 45);
    EXPECT_EQ(graphe.FirstValueIndex(0), 0);
    EXPECT_EQ(graphe.LastValueIndex(0), 4);
    graphe.MontrerPlage({9, 21});
    EXPECT_EQ(graphe.FirstValueIndex(0), 1);
    EXPECT_EQ(graphe.LastValueIndex(0), 3);
}

TEST(ModeleGraphe, RunsOfTimesInOrderBeginWhereTimeGoesBack) {
    const auto suites = [](const SerieGraphe& serie) {
        return std::vector<int>(serie.Suites().begin(), serie.Suites().end());
    };
    ModeleGraphe graphe;
    AjouterPoints(graphe, {1, 2, 2, 5, 3, 4, 0});
    AjouterPoints(graphe, {1, 1, 2});
    graphe.AjouterSerie();
    graphe.FixerFonction(2, SerieGraphe::fonctionLissage, 0);
    EXPECT_EQ(suites(graphe.Serie(0)), (std::vector<int>{0, 4, 6}));
    EXPECT_EQ(suites(graphe.Serie(1)), (std::vector<int>{0}));
    EXPECT_EQ(suites(graphe.Serie(2)), suites(graphe.Serie(0)));
    EXPECT_FALSE(graphe.Serie(2).EstTriee());
    EXPECT_TRUE(graphe.Serie(1).EstTriee());
    EXPECT_TRUE(graphe.AjouterSerie().EstTriee());
}

TEST(ModeleGraphe, RangeWithMinimumAboveMaximumShowsNothing) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {1, 2, 3});
    graphe.FixerPlage(1.7e12, 0);
    EXPECT_EQ(graphe.FirstValueIndex(0), -1);
    EXPECT_EQ(graphe.LastValueIndex(0), -1);
    EXPECT_EQ(graphe.PlageEntiere(), (Plage{1.7e12, 0}));
}

TEST(ModeleGraphe, PagesHoldPointsOfTheLongestSeries) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {1, 5, 9});
    AjouterPoints(graphe, {1, 2, 3, 4, 5, 6, 7});
    graphe.FixerPlage(0, 10);
    EXPECT_EQ(graphe.NombrePages(), 1);
    graphe.FixerMaxPointsPerPage(3);
    EXPECT_EQ(graphe.NombrePages(), 3);
    EXPECT_EQ(graphe.bas.plage, (Plage{1, 3}));
    graphe.FixerPage(1);
    EXPECT_EQ(graphe.bas.plage, (Plage{4, 6}));
    EXPECT_EQ(graphe.FirstValueIndex(1), 3);
    EXPECT_EQ(graphe.LastValueIndex(1), 5);
    EXPECT_EQ(graphe.FirstValueIndex(0), 1);
    EXPECT_EQ(graphe.LastValueIndex(0), 1);
    graphe.FixerPage(99);
    EXPECT_EQ(graphe.Page(), 2);
    EXPECT_EQ(graphe.bas.plage, (Plage{7, 7}));
    graphe.FixerPage(-1);
    EXPECT_EQ(graphe.Page(), 0);
    graphe.FixerMaxPointsPerPage(0);
    EXPECT_EQ(graphe.bas.plage, (Plage{0, 10}));
    EXPECT_EQ(graphe.LastValueIndex(1), 6);
}

TEST(ModeleGraphe, PointsOfOneTimeArePartedByPosition) {
    ModeleGraphe graphe;
    AjouterPoints(graphe, {1, 2, 2, 3});
    graphe.FixerPlage(1, 3);
    graphe.FixerMaxPointsPerPage(2);
    EXPECT_EQ(graphe.LastValueIndex(0), 1);
    graphe.FixerPage(1);
    EXPECT_EQ(graphe.FirstValueIndex(0), 2);
}

TEST(ModeleGraphe, PagesWithoutSeriesKeepTheWholeRange) {
    ModeleGraphe graphe;
    graphe.FixerPlage(3, 8);
    graphe.FixerMaxPointsPerPage(100);
    EXPECT_EQ(graphe.NombrePages(), 1);
    EXPECT_EQ(graphe.bas.plage, (Plage{3, 8}));
}

TEST(ModeleGraphe, ToolsAreReplacedAsAWhole) {
    ModeleGraphe graphe;
    graphe.AjouterOutil({});
    OutilGraphe ligne;
    ligne.genre = OutilGraphe::Genre::LigneCouleur;
    graphe.RemplacerOutils({OutilGraphe{}, ligne});
    ASSERT_EQ(graphe.NombreOutils(), 2);
    EXPECT_EQ(graphe.Outil(1).genre, OutilGraphe::Genre::LigneCouleur);
    graphe.RetirerOutil(0);
    EXPECT_EQ(graphe.Outil(0).genre, OutilGraphe::Genre::LigneCouleur);
}

TEST(ModeleGraphe, FunctionSeriesFollowTheirSource) {
    ModeleGraphe graphe;
    SerieGraphe& source = AjouterPoints(graphe, {1, 2, 3});
    SerieGraphe& lissee = graphe.AjouterSerie();
    graphe.FixerFonction(1, SerieGraphe::fonctionLissage, 0);
    lissee.FixerPeriode(2);
    EXPECT_EQ(lissee.Nombre(), 3);
    EXPECT_DOUBLE_EQ(lissee.Y()[1], 20);
    const auto revision = lissee.Revision();
    source.AjouterPoint(4, 80, QString());
    EXPECT_NE(lissee.Revision(), revision);
    ASSERT_EQ(lissee.Nombre(), 4);
    EXPECT_DOUBLE_EQ(lissee.Y()[2], (20 + 2 * 30 + 80) / 4.0);
    lissee.FixerPeriode(1);
    EXPECT_DOUBLE_EQ(lissee.Y()[2], 30);
    EXPECT_EQ(graphe.Etiquette(1, 0), "1");
    graphe.RetirerSerie(0);
    EXPECT_EQ(graphe.Serie(0).Nombre(), 0);
    EXPECT_TRUE(graphe.Serie(0).Y().empty());
    EXPECT_EQ(graphe.FirstValueIndex(0), -1);
}

TEST(ModeleGraphe, LabelsOfTwoSeriesShareOneStore) {
    ModeleGraphe graphe;
    const auto magasin = std::make_shared<MagasinEtiquettes>();
    SerieGraphe& une = graphe.AjouterSerie();
    SerieGraphe& autre = graphe.AjouterSerie();
    une.FixerEtiquettes(magasin);
    autre.FixerEtiquettes(magasin);
    const auto place = magasin->Ajouter("31/12/2024 \xE9");
    une.AjouterPoint(1, 1, place);
    autre.AjouterPoint(1, 2, place);
    autre.AjouterPoint(2, 2, MagasinEtiquettes::vide);
    EXPECT_EQ(graphe.Etiquette(0, 0), QString::fromUtf8("31/12/2024 é"));
    EXPECT_EQ(graphe.Etiquette(1, 0), QString::fromUtf8("31/12/2024 é"));
    EXPECT_EQ(graphe.Etiquette(1, 1), "");
    EXPECT_EQ(magasin->Taille(), 1U + 13U);
}

TEST(ModeleGraphe, RedrawGoesToTheView) {
    ModeleGraphe graphe;
    graphe.Redessiner();
    int dessins = 0;
    graphe.quandRedessiner = [&] { ++dessins; };
    graphe.Redessiner();
    EXPECT_EQ(dessins, 1);
}

}  // namespace
}  // namespace bornika
