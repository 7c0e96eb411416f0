#include <gtest/gtest.h>

#include <QSignalSpy>
#include <limits>

#include "chart/view/chart_scene.h"

namespace bornika {
namespace {

using essai::nan;
using essai::Scene;

bool Presser(Scene& scene, int touche, Qt::KeyboardModifiers avec = {}) {
    QKeyEvent evenement(QEvent::KeyPress, touche, avec);
    evenement.setAccepted(false);
    QCoreApplication::sendEvent(&scene.vue, &evenement);
    return evenement.isAccepted();
}

TEST(ChartKeys, PlusZoomsInTimeAroundTheMiddleWithTheEventOfTheMouse) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    const QCPRange gauche = scene.vue.yAxis->range();
    QTest::keyClick(&scene.vue, Qt::Key_Plus);
    EXPECT_EQ(zooms.count(), 1);
    EXPECT_NEAR(scene.modele.bas.plage.min, 99.9, 0.01);
    EXPECT_NEAR(scene.modele.bas.plage.max, 899.1, 0.01);
    EXPECT_EQ(scene.vue.yAxis->range(), gauche);
    EXPECT_EQ(scene.modele.FirstValueIndex(0), 100);
}

TEST(ChartKeys, PlusKeepsTheCursorInItsPlace) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(200);
    const double pixel = scene.vue.xAxis->coordToPixel(curseur.x);
    QTest::keyClick(&scene.vue, Qt::Key_Plus);
    EXPECT_NEAR(scene.vue.xAxis->coordToPixel(curseur.x), pixel, 0.01);
}

TEST(ChartKeys, ACursorThatCannotBeSeenDoesNotHoldTheZoom) {
    Scene scene;
    scene.PoserCurseur(0, 0);
    scene.SurvolerTemps(200);
    EXPECT_EQ(scene.vue.CentreZoom(), 499.5);
    scene.modele.Outil(0).crayon = 0xFFFFFF;
    EXPECT_EQ(scene.vue.CentreZoom(), scene.modele.Outil(0).x);
    scene.vue.Montrer({{600, 700}, {3, 5}, {0, 50}});
    EXPECT_EQ(scene.vue.CentreZoom(), 650);
}

TEST(ChartKeys, MinusZoomsOutUntilTheWholeIsShown) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    QTest::keyClick(&scene.vue, Qt::Key_Plus);
    QTest::keyClick(&scene.vue, Qt::Key_Plus);
    QTest::keyClick(&scene.vue, Qt::Key_Minus);
    EXPECT_EQ(zooms.count(), 3);
    EXPECT_EQ(annulations.count(), 0);
    EXPECT_NEAR(scene.vue.xAxis->range().size(), 999 * 0.8, 0.01);
    QTest::keyClick(&scene.vue, Qt::Key_Minus);
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
    QTest::keyClick(&scene.vue, Qt::Key_Minus);
    EXPECT_EQ(annulations.count(), 1);
}

TEST(ChartKeys, ZeroShowsTheWholeFromAnyZoom) {
    Scene scene;
    const QCPRange gauche = scene.vue.yAxis->range();
    scene.Tirer(Qt::LeftButton, scene.Dans(0.25, 0.2), scene.Dans(0.5, 0.7));
    QSignalSpy annulations(&scene.vue, &DessinGraphe::AnnulationZoom);
    QTest::keyClick(&scene.vue, Qt::Key_0);
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
    EXPECT_NEAR(scene.vue.yAxis->range().upper, gauche.upper, 1e-9);
    QTest::keyClick(&scene.vue, Qt::Key_0);
    EXPECT_EQ(annulations.count(), 1);
}

TEST(ChartKeys, ZoomByTheKeypadAndWithShiftOrControlToo) {
    Scene scene;
    QSignalSpy zooms(&scene.vue, &DessinGraphe::Zoom);
    EXPECT_TRUE(Presser(scene, Qt::Key_Plus, Qt::KeypadModifier));
    EXPECT_TRUE(Presser(scene, Qt::Key_Plus, Qt::ShiftModifier));
    EXPECT_TRUE(Presser(scene, Qt::Key_Plus, Qt::ControlModifier));
    EXPECT_TRUE(Presser(scene, Qt::Key_Equal));
    EXPECT_EQ(zooms.count(), 4);
    EXPECT_TRUE(Presser(scene, Qt::Key_Agrave));
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartKeys, ArrowsMoveTheViewByATenth) {
    Scene scene;
    scene.vue.Montrer({{400, 500}, {3.5, 4.5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_Left);
    EXPECT_NEAR(scene.modele.bas.plage.min, 390, 1e-9);
    EXPECT_NEAR(scene.modele.bas.plage.max, 490, 1e-9);
    QTest::keyClick(&scene.vue, Qt::Key_Right);
    QTest::keyClick(&scene.vue, Qt::Key_Right);
    EXPECT_NEAR(scene.modele.bas.plage.min, 410, 1e-9);
    QTest::keyClick(&scene.vue, Qt::Key_Up);
    EXPECT_NEAR(scene.vue.yAxis->range().lower, 3.6, 1e-9);
    EXPECT_NEAR(scene.vue.yAxis2->range().lower, 20.5, 1e-9);
    QTest::keyClick(&scene.vue, Qt::Key_Down);
    QTest::keyClick(&scene.vue, Qt::Key_Down);
    EXPECT_NEAR(scene.vue.yAxis->range().lower, 3.4, 1e-9);
    EXPECT_NEAR(scene.vue.yAxis->range().size(), 1, 1e-9);
}

TEST(ChartKeys, ArrowsStopAtTheEndsAndDoNothingOnTheWhole) {
    Scene scene;
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    for (const int touche : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
        EXPECT_TRUE(Presser(scene, touche));
    EXPECT_EQ(dessins.count(), 0);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
    scene.vue.Montrer({{5, 105}, {3.5, 4.5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_Left);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 100}));
    QTest::keyClick(&scene.vue, Qt::Key_Left);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 100}));
}

TEST(ChartKeys, AnArrowTowardsTheCurveBringsAViewThatWasDraggedAwayBack) {
    Scene scene;
    scene.vue.Montrer({{-300, 100}, {3, 5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_Left);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{-300, 100}));
    QTest::keyClick(&scene.vue, Qt::Key_Right);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{-260, 140}));
}

TEST(ChartKeys, ArrowsKeepToTheDirectionsInWhichScrollingIsAllowed) {
    Scene scene;
    scene.vue.Montrer({{400, 500}, {3.5, 4.5}, {20, 25}});
    scene.modele.defilement = 2;
    QTest::keyClick(&scene.vue, Qt::Key_Left);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{400, 500}));
    scene.modele.defilement = 1;
    QTest::keyClick(&scene.vue, Qt::Key_Up);
    EXPECT_EQ(scene.vue.yAxis->range().lower, 3.5);
}

TEST(ChartKeys, ControlAndArrowsTakeTheCursorFromPointToPoint) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(1);
    scene.SurvolerTemps(300);
    const int depart = curseur.point;
    std::vector<double> dits;
    QObject::connect(&scene.vue, &DessinGraphe::SourisBougee, [&] { dits.push_back(curseur.x); });
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.point, depart + 1);
    EXPECT_EQ(curseur.y, 20 + (depart + 1) * 0.01);
    QTest::keyClick(&scene.vue, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&scene.vue, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(curseur.point, depart - 1);
    EXPECT_EQ(dits, (std::vector<double>{depart + 1.0, double(depart), depart - 1.0}));
    EXPECT_EQ(dessins.count(), 0);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartKeys, HomeAndEndPutTheCursorOnTheFirstAndTheLastVisiblePoint) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    QTest::keyClick(&scene.vue, Qt::Key_End);
    EXPECT_EQ(curseur.x, 999);
    scene.vue.Montrer({{400.5, 500.5}, {3, 5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_Home);
    EXPECT_EQ(curseur.x, 401);
    QTest::keyClick(&scene.vue, Qt::Key_End);
    EXPECT_EQ(curseur.x, 500);
    EXPECT_EQ(moves.count(), 3);
}

TEST(ChartKeys, ACursorThatStoodNowhereStartsInTheMiddle) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NEAR(curseur.x, 499.5, 0.6);
}

TEST(ChartKeys, ACursorOutsideTheViewComesToItsNearestEdge) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(100);
    scene.vue.Montrer({{400, 500}, {3, 5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 400);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{400, 500}));
}

TEST(ChartKeys, TheViewFollowsTheCursorOverItsEdge) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.vue.Montrer({{400, 500}, {3, 5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_End);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 501);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{411, 511}));
    QTest::keyClick(&scene.vue, Qt::Key_Home);
    QTest::keyClick(&scene.vue, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 410);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{400, 500}));
}

TEST(ChartKeys, TheCursorStaysInTheViewWhereScrollingIsNotAllowed) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.modele.defilement = 0;
    scene.vue.Montrer({{400, 500}, {3, 5}, {20, 25}});
    QTest::keyClick(&scene.vue, Qt::Key_End);
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 500);
    EXPECT_EQ(moves.count(), 0);
}

TEST(ChartKeys, TheCursorStaysOnItsPage) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.modele.FixerMaxPointsPerPage(100);
    scene.modele.FixerPage(3);
    scene.vue.RemettreEchelles();
    QTest::keyClick(&scene.vue, Qt::Key_End);
    EXPECT_EQ(curseur.x, 399);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 399);
    EXPECT_EQ(scene.modele.bas.plage, (Plage{300, 399}));
}

TEST(ChartKeys, TheCursorStopsAtTheLastPoint) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    QTest::keyClick(&scene.vue, Qt::Key_End);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 999);
    QTest::keyClick(&scene.vue, Qt::Key_Home);
    QTest::keyClick(&scene.vue, Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 0);
}

TEST(ChartKeys, TheCursorPassesOverValuesThatAreNoNumbers) {
    Scene scene;
    scene.Remplacer({{0, nan}, {1, 1}, {2, nan}, {3, nan}, {4, 2}, {5, nan}});
    scene.modele.FixerPlage(0, 5);
    scene.vue.RemettreEchelles();
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    QTest::keyClick(&scene.vue, Qt::Key_Home);
    EXPECT_EQ(curseur.x, 1);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 4);
    QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(curseur.x, 4);
    QTest::keyClick(&scene.vue, Qt::Key_End);
    EXPECT_EQ(curseur.x, 4);
}

TEST(ChartKeys, TheCursorFollowsTheOrderOfTheFileOnPointsOutOfOrder) {
    Scene scene;
    scene.Remplacer({{10, 1}, {90, 2}, {500, 3}, {50, 4}});
    scene.modele.FixerPlage(0, 100);
    scene.vue.RemettreEchelles();
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    std::vector<double> valeurs;
    QTest::keyClick(&scene.vue, Qt::Key_Home);
    for (int i = 0; i < 3; ++i) {
        valeurs.push_back(curseur.y);
        QTest::keyClick(&scene.vue, Qt::Key_Right, Qt::ControlModifier);
    }
    EXPECT_EQ(valeurs, (std::vector<double>{1, 2, 4}));
}

TEST(ChartKeys, WithoutACursorItsKeysAreLeftToOthers) {
    Scene scene;
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    EXPECT_FALSE(Presser(scene, Qt::Key_Home));
    EXPECT_FALSE(Presser(scene, Qt::Key_Right, Qt::ControlModifier));
    EXPECT_FALSE(Presser(scene, Qt::Key_Left, Qt::AltModifier));
    EXPECT_FALSE(Presser(scene, Qt::Key_A));
    EXPECT_EQ(moves.count(), 0);
}

TEST(ChartKeys, ACursorThatCannotBeSeenLeavesItsKeysToOthers) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0, 0);
    scene.SurvolerTemps(200);
    const int avant = curseur.point;
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    EXPECT_FALSE(Presser(scene, Qt::Key_End));
    EXPECT_FALSE(Presser(scene, Qt::Key_Right, Qt::ControlModifier));
    EXPECT_EQ(curseur.point, avant);
    EXPECT_EQ(moves.count(), 0);
}

TEST(ChartKeys, DoNothingOnAnEmptyChart) {
    Scene scene;
    scene.PoserCurseur(0);
    scene.Remplacer({});
    scene.vue.RemettreEchelles();
    for (const int touche : {Qt::Key_Plus, Qt::Key_0, Qt::Key_Left, Qt::Key_Home, Qt::Key_End})
        Presser(scene, touche);
    EXPECT_EQ(scene.modele.Outil(0).point, -1);
    scene.modele.FixerPlage(10, 0);
    scene.vue.RemettreEchelles();
    for (const int touche : {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_0, Qt::Key_Left, Qt::Key_Up})
        EXPECT_FALSE(Presser(scene, touche));
    EXPECT_EQ(scene.modele.bas.plage, (Plage{10, 0}));
}

TEST(ChartKeys, NoZoomWhereItIsNotAllowed) {
    Scene scene;
    scene.modele.zoomPermis = false;
    EXPECT_FALSE(Presser(scene, Qt::Key_Plus));
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartKeys, WaitUntilTheMouseHasFinishedItsDrag) {
    Scene scene;
    QTest::mousePress(&scene.vue, Qt::RightButton, {}, scene.Dans(0.5, 0.5));
    EXPECT_TRUE(Presser(scene, Qt::Key_Plus));
    EXPECT_EQ(scene.modele.bas.plage, (Plage{0, 999}));
    QTest::mouseRelease(&scene.vue, Qt::RightButton, {}, scene.Dans(0.5, 0.5));
    EXPECT_TRUE(Presser(scene, Qt::Key_Plus));
    EXPECT_NE(scene.modele.bas.plage, (Plage{0, 999}));
}

TEST(ChartFocus, ComesWithAClickAndWithTheTabKeyAndIsShownForTheKeyboardAlone) {
    Scene scene;
    scene.vue.activateWindow();
    QCoreApplication::processEvents();
    EXPECT_EQ(scene.vue.focusPolicy(), Qt::StrongFocus);
    const QPoint coin = scene.Cadre().topLeft() + QPoint(-1, 40);
    scene.vue.setFocus(Qt::MouseFocusReason);
    ASSERT_TRUE(scene.vue.hasFocus());
    const QColor sans = scene.vue.grab().toImage().pixelColor(coin);
    scene.vue.clearFocus();
    scene.vue.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(scene.vue.grab().toImage().pixelColor(coin), scene.vue.ApparencePresente().texteAxes);
    EXPECT_NE(sans, scene.vue.ApparencePresente().texteAxes);
}

}  // namespace
}  // namespace bornika
