#include <gtest/gtest.h>

#include <QSignalSpy>

#include "chart/view/chart_scene.h"

namespace bornika {
namespace {

using essai::Scene;

TEST(ChartLegend, AClickOnItsBoxSwitchesTheCurve) {
    Scene scene;
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, scene.CaseLegende(1));
    EXPECT_FALSE(scene.modele.Serie(1).active);
    EXPECT_FALSE(scene.vue.graph(1)->visible());
    EXPECT_TRUE(scene.modele.Serie(0).active);
    EXPECT_EQ(dessins.count(), 1);
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, scene.CaseLegende(1));
    EXPECT_TRUE(scene.modele.Serie(1).active);
    EXPECT_TRUE(scene.vue.graph(1)->visible());
}

TEST(ChartLegend, TheSecondClickOfADoubleClickSwitchesBack) {
    Scene scene;
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, scene.CaseLegende(0));
    QTest::mouseDClick(&scene.vue, Qt::LeftButton, {}, scene.CaseLegende(0));
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    EXPECT_EQ(annulations.count(), 0);
    EXPECT_EQ(scene.modele.Serie(0).active, scene.vue.graph(0)->visible());
}

TEST(ChartLegend, WithoutCheckBoxesTheLegendIsNotThere) {
    Scene scene;
    const QPoint ou = scene.CaseLegende(0);
    scene.modele.legendeCases = false;
    scene.vue.Repaint();
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, ou);
    EXPECT_TRUE(scene.modele.Serie(0).active);
}

TEST(ChartZoom, ARectangleDrawnToTheRightShowsWhatIsInIt) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    const QPoint de = scene.Dans(0.25, 0.2);
    const QPoint a = scene.Dans(0.5, 0.7);
    const double gauche = scene.vue.xAxis->pixelToCoord(de.x());
    const double haut = scene.vue.yAxis->pixelToCoord(de.y());
    scene.Tirer(Qt::LeftButton, de, a);
    EXPECT_EQ(zooms.count(), 1);
    EXPECT_NEAR(scene.vue.xAxis->range().lower, gauche, 1);
    EXPECT_NEAR(scene.vue.xAxis->range().upper, 500, 5);
    EXPECT_NEAR(scene.vue.yAxis->range().upper, haut, 0.01);
}

TEST(ChartZoom, ReachesTheVisiblePointsOfTheModel) {
    Scene scene;
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    EXPECT_NEAR(scene.modele.FirstValueIndex(0), 250, 3);
    EXPECT_NEAR(scene.modele.LastValueIndex(0), 500, 3);
}

TEST(ChartZoom, ARectangleDrawnToTheLeftUndoesTheZoom) {
    Scene scene;
    const QCPRange gauche = scene.vue.yAxis->range();
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    scene.Tirer(Qt::LeftButton, scene.Dans(0.6, 0.5), scene.Dans(0.3, 0.6));
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
    EXPECT_EQ(scene.vue.xAxis->range().upper, 999);
    EXPECT_NEAR(scene.vue.yAxis->range().upper, gauche.upper, 1e-9);
}

TEST(ChartZoom, ADoubleClickUndoesTheZoom) {
    Scene scene;
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    QTest::mouseDClick(&scene.vue, Qt::LeftButton, {}, scene.Dans(0.5, 0.5));
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, UndoingWithoutAZoomRaisesNothing) {
    Scene scene;
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    QTest::mouseDClick(&scene.vue, Qt::LeftButton, {}, scene.Dans(0.5, 0.5));
    EXPECT_EQ(annulations.count(), 0);
}

TEST(ChartZoom, AClickZoomsNothing) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, scene.Dans(0.5, 0.5));
    scene.Tirer(Qt::LeftButton, scene.Dans(0.5, 0.5), scene.Dans(0.5, 0.5) + QPoint(3, 60));
    EXPECT_EQ(zooms.count(), 0);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, AFlatRectangleKeepsTheVerticalScales) {
    Scene scene;
    const QCPRange gauche = scene.vue.yAxis->range();
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.5), scene.Dans(0.5, 0.5));
    EXPECT_NEAR(scene.vue.yAxis->range().size(), gauche.size(), gauche.size() * 0.02);
    EXPECT_LT(scene.vue.xAxis->range().size(), 300);
}

TEST(ChartZoom, IsAnimatedInTenStepsThatTheTimerDrives) {
    Scene scene;
    scene.graphe.FixerAnimation({.animee = true, .pas = 10});
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    int pas = 1;
    double largeur = scene.vue.xAxis->range().size();
    EXPECT_GT(largeur, 900);
    while (scene.vue.animation.EnCours()) {
        scene.vue.animation.Avancer();
        EXPECT_LT(scene.vue.xAxis->range().size(), largeur);
        largeur = scene.vue.xAxis->range().size();
        ++pas;
    }
    EXPECT_EQ(pas, 10);
    EXPECT_EQ(dessins.count(), 10);
    EXPECT_NEAR(scene.modele.bas.plage.max, 500, 5);
}

TEST(ChartZoom, ANewOneStartsFromTheEndOfTheOneThatRuns) {
    Scene scene;
    scene.graphe.FixerAnimation({.animee = true, .pas = 10});
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    ASSERT_TRUE(scene.vue.animation.EnCours());
    scene.vue.AnnulerZoom();
    while (scene.vue.animation.EnCours())
        scene.vue.animation.Avancer();
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, TheWheelZoomsInTimeAroundThePointerWithTheSameEvents) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    const QPoint ou = scene.Dans(0.3, 0.5);
    const double temps = scene.vue.xAxis->pixelToCoord(ou.x());
    scene.Rouler(ou, 1);
    EXPECT_EQ(zooms.count(), 1);
    EXPECT_NEAR(scene.vue.xAxis->range().size(), 999 * 0.8, 0.01);
    EXPECT_NEAR(scene.vue.xAxis->pixelToCoord(ou.x()), temps, 0.5);
    scene.Rouler(ou, -1);
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, TheWheelBackwardsOnTheWholeChartDoesNothing) {
    Scene scene;
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    scene.Rouler(scene.Dans(0.3, 0.5), -1);
    EXPECT_EQ(annulations.count(), 0);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, StopsBeforeNumbersRunOutOfDigits) {
    Scene scene;
    for (int i = 0; i < 300; ++i)
        scene.Rouler(scene.Dans(0.3, 0.5), 1);
    EXPECT_GT(scene.vue.xAxis->range().size(), 0);
    EXPECT_TRUE(std::isfinite(scene.vue.xAxis->range().lower));
}

TEST(ChartZoom, NothingHappensWhereZoomIsNotAllowed) {
    Scene scene;
    scene.modele.zoomPermis = false;
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    scene.Rouler(scene.Dans(0.3, 0.5), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartZoom, NothingHappensOnAnEmptyChart) {
    Scene scene;
    scene.modele.RetirerTout();
    scene.modele.FixerPlage(10, 0);
    scene.vue.RemettreEchelles();
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    scene.Tirer(Qt::RightButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    scene.Rouler(scene.Dans(0.3, 0.5), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{10, 0}));
}

TEST(ChartScroll, TheRightButtonDragsTheViewInBothDirections) {
    Scene scene;
    const QPoint de = scene.Dans(0.5, 0.5);
    const QPoint a = scene.Dans(0.3, 0.6);
    const double temps = scene.vue.xAxis->pixelToCoord(de.x());
    const double valeur = scene.vue.yAxis->pixelToCoord(de.y());
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    scene.Tirer(Qt::RightButton, de, a);
    EXPECT_NEAR(scene.vue.xAxis->pixelToCoord(a.x()), temps, 1.5);
    EXPECT_NEAR(scene.vue.yAxis->pixelToCoord(a.y()), valeur, 0.02);
    EXPECT_NEAR(scene.modele.FirstValueIndex(0), 200, 4);
    EXPECT_EQ(zooms.count(), 0);
}

TEST(ChartScroll, OneDirectionAloneWhereOnlyOneIsAllowed) {
    Scene scene;
    scene.modele.defilement = 1;
    const QCPRange gauche = scene.vue.yAxis->range();
    scene.Tirer(Qt::RightButton, scene.Dans(0.5, 0.5), scene.Dans(0.3, 0.6));
    EXPECT_EQ(scene.vue.yAxis->range(), gauche);
    EXPECT_GT(scene.vue.xAxis->range().lower, 100);
}

TEST(ChartScroll, UndoingTheZoomUndoesTheScrollingToo) {
    Scene scene;
    scene.Tirer(Qt::RightButton, scene.Dans(0.5, 0.5), scene.Dans(0.3, 0.6));
    QTest::mouseDClick(&scene.vue, Qt::LeftButton, {}, scene.Dans(0.5, 0.5));
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartPages, UndoingAZoomOnAPageShowsThatPage) {
    Scene scene;
    scene.modele.FixerMaxPointsPerPage(100);
    scene.modele.FixerPage(3);
    scene.vue.RemettreEchelles();
    EXPECT_EQ(scene.vue.xAxis->range().lower, 300);
    EXPECT_EQ(scene.vue.xAxis->range().upper, 399);
    scene.Rouler(scene.Dans(0.3, 0.5), 2);
    scene.vue.AnnulerZoom();
    EXPECT_EQ(scene.modele.bas.plage, (Plage{300, 399}));
}

}  // namespace
}  // namespace bornika
