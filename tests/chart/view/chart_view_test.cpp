#include "chart/view/chart_view.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "chart/view/chart_scene.h"
#include "chart/view/chart_view_ticker.h"

namespace bornika {
namespace {

using essai::Scene;

TEST(ChartView, ShowsEveryPointOfTheSwitchedOnCurvesInTheirOrder) {
    const Scene scene;
    ASSERT_EQ(scene.vue.graphCount(), 2);
    EXPECT_EQ(scene.vue.graph(0)->dataCount(), 1000);
    EXPECT_EQ(scene.vue.graph(0)->data()->at(999)->key, 999);
    EXPECT_EQ(scene.vue.graph(1)->valueAxis(), scene.vue.yAxis2);
}

TEST(ChartView, TheTimeAxisIsExactlyTheRangeOfTheModel) {
    const Scene scene;
    EXPECT_EQ(scene.vue.xAxis->range().lower, 0);
    EXPECT_EQ(scene.vue.xAxis->range().upper, 999);
}

TEST(ChartView, VerticalScalesHoldTheSwitchedOnCurves) {
    Scene scene;
    EXPECT_LT(scene.vue.yAxis->range().lower, 3.01);
    EXPECT_GT(scene.vue.yAxis->range().upper, 4.99);
    EXPECT_TRUE(scene.vue.yAxis2->visible());
    scene.modele.Serie(1).active = false;
    scene.vue.Repaint();
    EXPECT_FALSE(scene.vue.yAxis2->visible());
}

TEST(ChartView, ARangeWithItsEndBeforeItsStartDrawsNothing) {
    Scene scene;
    scene.modele.FixerPlage(1.7e12, 0);
    scene.vue.RemettreEchelles();
    EXPECT_FALSE(scene.vue.graph(0)->visible());
    EXPECT_TRUE(scene.vue.xAxis->tickVector().isEmpty());
    EXPECT_FALSE(scene.vue.PeutNaviguer());
    EXPECT_EQ(scene.modele.bas.plage, (Plage{1.7e12, 0}));
}

TEST(ChartView, ASingleInstantStillHasAWidth) {
    Scene scene;
    scene.modele.FixerPlage(5, 5);
    scene.vue.RemettreEchelles();
    EXPECT_GT(scene.vue.xAxis->range().size(), 0);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{5, 5}));
}

TEST(ChartView, PointsAddedAreAppendedAndRemovedSeriesGo) {
    Scene scene;
    scene.modele.Serie(0).AjouterPoint(1000, 9, MagasinEtiquettes::vide);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graph(0)->dataCount(), 1001);
    EXPECT_GT(scene.vue.yAxis->range().upper, 9);
    scene.modele.RetirerSerie(1);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graphCount(), 1);
    EXPECT_EQ(scene.vue.legend->itemCount(), 1);
}

TEST(ChartView, SmoothedCurvesFollowTheirSourceAndTheirPeriod) {
    Scene scene;
    SerieGraphe& lissee = scene.modele.AjouterSerie();
    scene.modele.FixerFonction(2, SerieGraphe::fonctionLissage, 0);
    lissee.FixerPeriode(1);
    scene.vue.Repaint();
    ASSERT_EQ(scene.vue.graph(2)->dataCount(), 1000);
    const double avant = scene.vue.graph(2)->data()->at(80)->value;
    lissee.FixerPeriode(100);
    scene.vue.Repaint();
    EXPECT_NE(scene.vue.graph(2)->data()->at(80)->value, avant);
    scene.modele.Serie(0).AjouterPoint(1000, 4, MagasinEtiquettes::vide);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graph(2)->dataCount(), 1001);
}

TEST(ChartView, PointsOutOfOrderInTimeAreDrawnInTime) {
    Scene scene;
    scene.modele.Serie(0).AjouterPoint(500.5, 4, MagasinEtiquettes::vide);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graph(0)->data()->at(501)->key, 500.5);
}

TEST(ChartView, AHiddenChartTakesNoDataUntilItIsShown) {
    Scene scene;
    scene.graphe.hide();
    scene.modele.Serie(0).AjouterPoint(1000, 9, MagasinEtiquettes::vide);
    scene.modele.Redessiner();
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graph(0)->dataCount(), 1000);
    scene.graphe.show();
    EXPECT_EQ(scene.vue.graph(0)->dataCount(), 1001);
}

TEST(ChartView, EachRedrawRaisesItsEvent) {
    Scene scene;
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    scene.vue.Repaint();
    EXPECT_EQ(dessins.count(), 1);
}

TEST(ChartView, CurvesArePaintedWithOnePixelAndWithoutSmoothingOfEdges) {
    const Scene scene;
    for (int i = 0; i < 2; ++i) {
        EXPECT_LE(scene.vue.graph(i)->pen().widthF(), 1.0);
        EXPECT_TRUE(scene.vue.notAntialiasedElements() & QCP::aePlottables);
    }
    EXPECT_FALSE(scene.vue.openGl());
}

TEST(ChartView, ColoursOfCurvesComeFromTheModelOrElseFromTheTemplate) {
    Scene scene;
    scene.modele.Serie(1).couleur = 0x00FF80;
    Apparence apparence;
    apparence.palette = {0x0000FF};
    scene.vue.FixerApparence(apparence);
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.graph(0)->pen().color(), QColor(255, 0, 0));
    EXPECT_EQ(scene.vue.graph(1)->pen().color(), QColor(128, 255, 0));
}

TEST(ChartView, TitlesOfTheChartItsAxesAndItsCurvesAreThoseOfTheModel) {
    Scene scene;
    auto* titre = qobject_cast<QCPTextElement*>(scene.vue.plotLayout()->element(0, 0));
    ASSERT_TRUE(titre);
    EXPECT_FALSE(titre->visible());
    scene.modele.titre = QStringList{"burst main", "valve V12"};
    scene.modele.gauche.titre = "Pressure (bar)";
    scene.modele.droite.titre = "m3/Hrs";
    scene.vue.Repaint();
    EXPECT_TRUE(titre->visible());
    EXPECT_EQ(titre->text(), "burst main\nvalve V12");
    EXPECT_EQ(scene.vue.yAxis->label(), "Pressure (bar)");
    EXPECT_EQ(scene.vue.yAxis2->label(), "m3/Hrs");
    EXPECT_EQ(scene.vue.legend->itemCount(), 2);
}

TEST(ChartView, AxisLabelsTakeTheColoursOfTheModel) {
    Scene scene;
    scene.modele.couleursEtiquettes = {0xFF00, 0xFF00};
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.xAxis->tickLabelColor(), QColor(0, 255, 0));
    EXPECT_EQ(scene.vue.yAxis->tickLabelColor(), QColor(0, 255, 0));
}

TEST(ChartView, LinesOfTheStatisticsAreDrawnOnTheirAxisWhileTheirPenIsVisible) {
    Scene scene;
    OutilGraphe ligne;
    ligne.genre = OutilGraphe::Genre::LigneCouleur;
    ligne.axe = OutilGraphe::AxeLigne::Droite;
    ligne.valeur = 22;
    ligne.crayonVisible = false;
    scene.modele.AjouterOutil(ligne);
    scene.vue.Repaint();
    ASSERT_EQ(scene.vue.itemCount(), 1);
    EXPECT_FALSE(scene.vue.item(0)->visible());
    scene.modele.Outil(0).crayonVisible = true;
    scene.vue.Repaint();
    auto* dessinee = qobject_cast<QCPItemStraightLine*>(scene.vue.item(0));
    ASSERT_TRUE(dessinee);
    EXPECT_TRUE(dessinee->visible());
    EXPECT_EQ(dessinee->point1->valueAxis(), scene.vue.yAxis2);
    EXPECT_EQ(dessinee->point1->value(), 22);
    scene.modele.RemplacerOutils({});
    scene.vue.Repaint();
    EXPECT_EQ(scene.vue.itemCount(), 0);
}

TEST(ChartLabels, AreTextsOfPointsOfTheFirstCurve) {
    const Scene scene;
    ASSERT_GT(scene.vue.xAxis->tickVector().size(), 3);
    for (qsizetype i = 0; i < scene.vue.xAxis->tickVector().size(); ++i)
        EXPECT_EQ(scene.vue.xAxis->tickVectorLabels()[i],
                  QStringLiteral("t%1").arg(scene.vue.xAxis->tickVector()[i]));
}

TEST(ChartLabels, NeverOverlap) {
    Scene scene(20);
    scene.modele.RetirerTout();
    SerieGraphe& serie = scene.modele.AjouterSerie();
    // A dense start and a far end: even spreading alone would put labels on each other.
    for (int i = 0; i < 500; ++i)
        serie.AjouterPoint(i < 490 ? i * 0.3 : i, 1, QStringLiteral("05/03/2026 14:07:%1").arg(i));
    scene.modele.FixerPlage(0, 499);
    scene.vue.RemettreEchelles();
    const QFontMetrics mesures(scene.vue.xAxis->tickLabelFont());
    double fin = -1e9;
    ASSERT_FALSE(scene.vue.xAxis->tickVector().isEmpty());
    for (qsizetype i = 0; i < scene.vue.xAxis->tickVector().size(); ++i) {
        const double largeur = mesures.horizontalAdvance(scene.vue.xAxis->tickVectorLabels()[i]);
        const double centre = scene.vue.xAxis->coordToPixel(scene.vue.xAxis->tickVector()[i]);
        EXPECT_GT(centre - largeur / 2, fin);
        EXPECT_GE(centre - largeur / 2, 0);
        EXPECT_LE(centre + largeur / 2, scene.vue.width());
        fin = centre + largeur / 2;
    }
}

TEST(ChartLabels, OfAZoomedChartComeFromItsVisiblePoints) {
    Scene scene;
    scene.vue.Montrer({{200, 210}, {3, 5}, {0, 1}});
    ASSERT_FALSE(scene.vue.xAxis->tickVector().isEmpty());
    for (const double x : scene.vue.xAxis->tickVector()) {
        EXPECT_GE(x, 200);
        EXPECT_LE(x, 210);
    }
}

TEST(ChartLabels, AreNoneWithoutAPointInRange) {
    Scene scene;
    scene.vue.Montrer({{2000, 2010}, {3, 5}, {0, 1}});
    EXPECT_TRUE(scene.vue.xAxis->tickVector().isEmpty());
}

TEST(ChartLabels, AreChosenAtEvenDistances) {
    const Scene scene;
    EXPECT_EQ(ChoisirPoints(scene.modele.Serie(0), {0, 999}, 4),
              (std::vector<int>{125, 375, 624, 874}));
    EXPECT_EQ(ChoisirPoints(scene.modele.Serie(0), {10, 12}, 50), (std::vector<int>{10, 11, 12}));
    EXPECT_TRUE(ChoisirPoints(scene.modele.Serie(0), {10.2, 10.4}, 5).empty());
    EXPECT_TRUE(ChoisirPoints(scene.modele.Serie(0), {12, 10}, 5).empty());
}

}  // namespace
}  // namespace bornika
