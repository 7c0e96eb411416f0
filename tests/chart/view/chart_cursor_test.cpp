#include "chart/model/chart_cursor.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <limits>

#include "chart/view/chart_scene.h"

namespace bornika {
namespace {

using essai::nan;
using essai::Scene;

/// The regions of a widget that were painted.
class Peintures : public QObject {
  public:
    explicit Peintures(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* evenement) override {
        if (evenement->type() == QEvent::Paint)
            zone += static_cast<QPaintEvent*>(evenement)->region();
        return false;
    }
    int Surface() const {
        int surface = 0;
        for (const QRect& rectangle : zone)
            surface += rectangle.width() * rectangle.height();
        return surface;
    }
    QRegion zone;
};

TEST(ChartCursor, AMoveOfTheMousePutsItOnTheNearestPointOfItsCurve) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(1);
    scene.vue.Montrer({{100, 110}, {3, 5}, {0, 50}});
    scene.SurvolerTemps(104.4);
    EXPECT_EQ(curseur.point, 104);
    EXPECT_EQ(curseur.x, 104);
    EXPECT_EQ(curseur.y, 20 + 104 * 0.01);
    scene.SurvolerTemps(104.6);
    EXPECT_EQ(curseur.x, 105);
}

TEST(ChartCursor, StandsOnItsPointWhenTheMoveIsTold) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    std::vector<double> temps;
    QObject::connect(&scene.vue, &DessinGraphe::SourisBougee, [&] { temps.push_back(curseur.x); });
    scene.SurvolerTemps(200);
    scene.SurvolerTemps(700);
    ASSERT_EQ(temps.size(), 2U);
    EXPECT_NEAR(temps[0], 200, 1);
    EXPECT_NEAR(temps[1], 700, 1);
}

TEST(ChartCursor, EveryMoveIsToldWithoutACursorToolToo) {
    Scene scene;
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    scene.SurvolerTemps(200);
    EXPECT_EQ(moves.count(), 1);
    scene.modele.RetirerTout();
    scene.Survoler({5, 5});
    EXPECT_EQ(moves.count(), 2);
}

TEST(ChartCursor, OneThatDoesNotFollowOrIsNotTheLastToolStays) {
    Scene scene;
    scene.PoserCurseur(0);
    scene.PoserCurseur(0).suitSouris = false;
    scene.SurvolerTemps(200);
    EXPECT_EQ(scene.modele.Outil(0).point, -1);
    EXPECT_EQ(scene.modele.Outil(1).point, -1);
}

TEST(ChartCursor, WhoseCurveWasRemovedOrNeverWasStays) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(1);
    scene.SurvolerTemps(200);
    const double avant = curseur.x;
    scene.modele.RetirerSerie(1);
    scene.vue.Repaint();
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    scene.SurvolerTemps(700);
    EXPECT_EQ(moves.count(), 1);
    EXPECT_EQ(curseur.x, avant);
    scene.modele.Outil(0).serie = -1;
    scene.SurvolerTemps(300);
    EXPECT_EQ(curseur.x, avant);
    EXPECT_FALSE(scene.vue.grab().isNull());
}

TEST(ChartCursor, StandsOnVisiblePointsAlone) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.vue.Montrer({{200, 300}, {3, 5}, {0, 50}});
    scene.Survoler({scene.Cadre().left() - 40, scene.Cadre().center().y()});
    EXPECT_EQ(curseur.x, 200);
    scene.Survoler({scene.Cadre().right() + 40, scene.Cadre().center().y()});
    EXPECT_EQ(curseur.x, 300);
}

TEST(ChartCursor, StaysWhereNoPointIsVisible) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(200);
    const double avant = curseur.x;
    scene.vue.Montrer({{2000, 2100}, {3, 5}, {0, 50}});
    scene.SurvolerTemps(2050);
    EXPECT_EQ(curseur.x, avant);
    scene.Remplacer({});
    scene.vue.RemettreEchelles();
    scene.SurvolerTemps(500);
    EXPECT_EQ(curseur.x, avant);
}

TEST(ChartCursor, FindsTheNearestOfPointsOutOfOrder) {
    Scene scene;
    scene.Remplacer({{10, 1}, {90, 2}, {50, 3}, {20, 4}, {200, 5}});
    scene.modele.FixerPlage(0, 100);
    scene.vue.RemettreEchelles();
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(45);
    EXPECT_EQ(curseur.y, 3);
    scene.SurvolerTemps(99);
    EXPECT_EQ(curseur.y, 2);
    scene.SurvolerTemps(16);
    EXPECT_EQ(curseur.y, 4);
}

TEST(ChartCursor, OfPointsOutOfOrderKeepsToItsPage) {
    Scene scene;
    scene.Remplacer({{10, 1}, {20, 2}, {30, 3}, {15, 4}, {25, 5}, {35, 6}});
    scene.modele.FixerPlage(10, 35);
    EXPECT_EQ(PointProche(scene.modele, 0, 24), 4);
    scene.modele.FixerMaxPointsPerPage(3);
    EXPECT_EQ(PointProche(scene.modele, 0, 24), 1);
    scene.modele.FixerPage(1);
    EXPECT_EQ(PointProche(scene.modele, 0, 11), 3);
}

TEST(ChartCursor, StandsOnAnOnlyPoint) {
    Scene scene;
    scene.Remplacer({{5, 7}});
    scene.modele.FixerPlage(5, 5);
    scene.vue.RemettreEchelles();
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.Survoler(scene.Dans(0.9, 0.2));
    EXPECT_EQ(curseur.point, 0);
    EXPECT_EQ(curseur.y, 7);
}

TEST(ChartCursor, PassesOverValuesThatAreNoNumbers) {
    Scene scene;
    const std::vector<QPointF> points = {{0, 1}, {1, nan}, {2, nan}, {3, nan}, {4, 5}};
    for (const bool enOrdre : {true, false}) {
        SerieGraphe& serie = scene.Remplacer(points);
        if (!enOrdre) serie.AjouterPoint(-1, nan, MagasinEtiquettes::vide);
        scene.modele.FixerPlage(0, 4);
        EXPECT_EQ(PointProche(scene.modele, 0, 0.9), 0);
        EXPECT_EQ(PointProche(scene.modele, 0, 2.9), 4);
        scene.modele.MontrerPlage({1, 3});
        EXPECT_EQ(PointProche(scene.modele, 0, 2), -1);
        scene.modele.MontrerPlage({1, 4});
        EXPECT_EQ(PointProche(scene.modele, 0, 1), 4);
        scene.modele.MontrerPlage({0, 3});
        EXPECT_EQ(PointProche(scene.modele, 0, 3), 0);
    }
}

TEST(ChartCursor, TakesTheFirstOfPointsOfOneTime) {
    Scene scene;
    scene.Remplacer({{0, 1}, {5, 2}, {5, 3}, {5, 4}, {9, 5}});
    scene.modele.FixerPlage(0, 9);
    EXPECT_EQ(PointProche(scene.modele, 0, 4.5), 1);
    EXPECT_EQ(PointProche(scene.modele, 0, 5.5), 1);
}

TEST(ChartCursor, StaysWhenTheMouseLeavesTheChart) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(200);
    const double avant = curseur.x;
    QSignalSpy moves(&scene.vue, &DessinGraphe::SourisBougee);
    QEvent sortie(QEvent::Leave);
    QCoreApplication::sendEvent(&scene.vue, &sortie);
    EXPECT_EQ(moves.count(), 0);
    EXPECT_EQ(curseur.x, avant);
    EXPECT_NEAR(scene.vue.PositionSouris(0)->x(), 200, 1);
}

TEST(ChartCursor, MovesDuringADragOfTheViewToo) {
    Scene scene;
    const OutilGraphe& curseur = scene.PoserCurseur(0);
    scene.SurvolerTemps(500);
    const double avant = curseur.x;
    scene.Tirer(Qt::RightButton, scene.Dans(0.5, 0.5), scene.Dans(0.3, 0.5));
    // The point under the mouse travels with it.
    EXPECT_NEAR(curseur.x, avant, 2);
}

TEST(ChartMouse, IsNowhereBeforeItsFirstMoveAndOnACurveThatIsNotThere) {
    Scene scene;
    EXPECT_FALSE(scene.vue.PositionSouris(0).has_value());
    scene.Survoler(scene.Dans(0.5, 0.5));
    EXPECT_TRUE(scene.vue.PositionSouris(1).has_value());
    EXPECT_FALSE(scene.vue.PositionSouris(2).has_value());
    EXPECT_FALSE(scene.vue.PositionSouris(-1).has_value());
    scene.modele.FixerPlage(10, 0);
    scene.vue.RemettreEchelles();
    EXPECT_FALSE(scene.vue.PositionSouris(0).has_value()) << "no scale, no value";
}

TEST(ChartMouse, HasItsPlaceInTimeAndInTheUnitOfEachCurvesAxis) {
    Scene scene;
    const QPoint ou = scene.Dans(0.25, 0.75);
    scene.Survoler(ou);
    const QPointF pression = scene.vue.PositionSouris(0).value();
    const QPointF debit = scene.vue.PositionSouris(1).value();
    EXPECT_NEAR(pression.x(), 250, 2);
    EXPECT_EQ(debit.x(), pression.x());
    EXPECT_EQ(pression.y(), scene.vue.yAxis->pixelToCoord(ou.y()));
    EXPECT_EQ(debit.y(), scene.vue.yAxis2->pixelToCoord(ou.y()));
    EXPECT_GT(debit.y(), 20);
}

TEST(ChartCursorDrawing, IsTwoLinesThroughThePointInTheColourOfItsPen) {
    Scene scene;
    scene.PoserCurseur(0, 0xFF0000);
    scene.SurvolerTemps(300);
    const QImage image = scene.vue.grab().toImage();
    const QRect cadre = scene.Cadre();
    const OutilGraphe& curseur = scene.modele.Outil(0);
    const int x = qRound(scene.vue.xAxis->coordToPixel(curseur.x));
    const int y = qRound(scene.vue.yAxis->coordToPixel(curseur.y));
    for (int ligne = cadre.top(); ligne <= cadre.bottom(); ++ligne)
        ASSERT_EQ(image.pixelColor(x, ligne), QColor(0, 0, 255)) << ligne;
    for (int colonne = cadre.left(); colonne <= cadre.right(); ++colonne)
        ASSERT_EQ(image.pixelColor(colonne, y), QColor(0, 0, 255)) << colonne;
    EXPECT_NE(image.pixelColor(x, cadre.top() - 3), QColor(0, 0, 255));
    EXPECT_NE(image.pixelColor(x + 9, y + 9), QColor(0, 0, 255));
}

TEST(ChartCursorDrawing, AMoveRepaintsTheOldAndTheNewLinesAndDrawsNoCurve) {
    Scene scene;
    scene.PoserCurseur(0);
    scene.SurvolerTemps(300);
    QCoreApplication::processEvents();
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    QSignalSpy annonces(&scene.vue, &DessinGraphe::Dessin);
    Peintures peintures(scene.vue);
    const int avant = qRound(scene.vue.xAxis->coordToPixel(300));
    scene.SurvolerTemps(800);
    QCoreApplication::processEvents();
    const int apres = qRound(scene.vue.xAxis->coordToPixel(scene.modele.Outil(0).x));
    EXPECT_EQ(dessins.count(), 0);
    EXPECT_EQ(annonces.count(), 0);
    EXPECT_TRUE(peintures.zone.contains(QPoint(avant, scene.Cadre().center().y())));
    EXPECT_TRUE(peintures.zone.contains(QPoint(apres, scene.Cadre().center().y())));
    EXPECT_GT(peintures.Surface(), 2 * scene.Cadre().height());
    EXPECT_LT(peintures.Surface(), 4 * (scene.Cadre().height() + scene.Cadre().width()));
}

TEST(ChartCursorDrawing, LeavesNoTraceOnTheScreen) {
    Scene scene;
    scene.PoserCurseur(0);
    QCoreApplication::processEvents();
    for (const double temps : {100.0, 640.0, 320.0, 820.0}) {
        scene.SurvolerTemps(temps);
        QCoreApplication::processEvents();
    }
    const QWidget& fenetre = scene.graphe;
    const QImage ecran = fenetre.screen()->grabWindow(fenetre.winId()).toImage();
    const QImage neuf = scene.graphe.grab().toImage();
    ASSERT_EQ(ecran.size(), neuf.size());
    EXPECT_EQ(ecran.convertToFormat(QImage::Format_RGB32),
              neuf.convertToFormat(QImage::Format_RGB32));
}

TEST(ChartCursorDrawing, AMoveToTheSamePointPaintsNothing) {
    Scene scene;
    scene.PoserCurseur(0);
    scene.vue.Montrer({{0, 5}, {3, 5}, {0, 50}});
    scene.SurvolerTemps(2);
    QCoreApplication::processEvents();
    Peintures peintures(scene.vue);
    scene.SurvolerTemps(2.2);
    QCoreApplication::processEvents();
    EXPECT_EQ(peintures.Surface(), 0);
}

TEST(ChartCursorDrawing, IsNotThereBeforeItMovedOrWithAHiddenPenOrSwitchedOff) {
    Scene scene;
    const auto rouges = [&] {
        const QImage image = scene.vue.grab().toImage();
        int nombre = 0;
        for (int ligne = 0; ligne < image.height(); ++ligne)
            for (int colonne = 0; colonne < image.width(); ++colonne)
                nombre += image.pixelColor(colonne, ligne) == QColor(255, 0, 128);
        return nombre;
    };
    OutilGraphe& curseur = scene.PoserCurseur(0, 0x8000FF);
    EXPECT_EQ(rouges(), 0);
    scene.SurvolerTemps(300);
    EXPECT_EQ(rouges(), scene.Cadre().width() + scene.Cadre().height() - 1);
    curseur.crayonVisible = false;
    EXPECT_EQ(rouges(), 0);
    curseur.crayonVisible = true;
    curseur.actif = false;
    EXPECT_EQ(rouges(), 0);
}

TEST(ChartCursorDrawing, StaysInTheFrameWhenItsPointIsZoomedAway) {
    Scene scene;
    scene.PoserCurseur(0, 0x8000FF);
    scene.SurvolerTemps(300);
    scene.vue.Montrer({{600, 700}, {10, 20}, {0, 50}});
    const QImage image = scene.vue.grab().toImage();
    for (int ligne = 0; ligne < image.height(); ++ligne)
        for (int colonne = 0; colonne < image.width(); ++colonne)
            ASSERT_NE(image.pixelColor(colonne, ligne), QColor(255, 0, 128));
}

}  // namespace
}  // namespace bornika
