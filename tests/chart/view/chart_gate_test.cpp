#include <gtest/gtest.h>

#include <QSignalSpy>

#include "chart/view/chart_picture.h"
#include "chart/view/chart_scene.h"

namespace bornika {
namespace {

using essai::Scene;

TEST(ChartGate, IsFilledByItsPlotInEverySize) {
    Scene scene;
    for (const QSize taille : {QSize(900, 480), QSize(600, 300), QSize(1400, 700)}) {
        scene.graphe.resize(taille);
        EXPECT_EQ(scene.vue.geometry(), QRect(QPoint(0, 0), taille));
    }
    const QWidget& dessin = scene.vue;
    EXPECT_EQ(scene.graphe.sizeHint(), dessin.sizeHint());
    EXPECT_EQ(scene.graphe.minimumSizeHint(), dessin.minimumSizeHint());
}

TEST(ChartGate, OnTheScreenIsThePlotAndNothingElse) {
    Scene scene;
    EXPECT_EQ(scene.graphe.grab().toImage(), scene.vue.grab().toImage());
}

TEST(ChartGate, APictureHasItsSizeAlsoWhileItIsHidden) {
    Scene scene;
    scene.graphe.hide();
    scene.graphe.resize(700, 350);
    EXPECT_EQ(ImageGraphe(scene.graphe).size(), QSize(1400, 700));
    scene.graphe.show();
    EXPECT_EQ(scene.vue.size(), QSize(700, 350));
}

TEST(ChartGate, PassesOnWhatThePlotRaises) {
    Scene scene;
    scene.PoserCurseur(0);
    QSignalSpy zooms(&scene.graphe, &VueGraphe::Zoom);
    QSignalSpy annulations(&scene.graphe, &VueGraphe::AnnulationZoom);
    QSignalSpy annonces(&scene.graphe, &VueGraphe::Dessin);
    QSignalSpy dessins(&scene.graphe, &VueGraphe::Redessin);
    QSignalSpy menus(&scene.graphe, &VueGraphe::MenuDemande);
    QSignalSpy souris(&scene.graphe, &VueGraphe::SourisBougee);
    EXPECT_TRUE(scene.graphe.PresserTouche(Qt::Key_Plus));
    EXPECT_TRUE(scene.graphe.PresserTouche(Qt::Key_0));
    EXPECT_FALSE(scene.graphe.PresserTouche(Qt::Key_A));
    EXPECT_EQ(zooms.count(), 1);
    EXPECT_EQ(annulations.count(), 1);
    EXPECT_GE(annonces.count(), 2);
    EXPECT_GE(dessins.count(), 2);
    scene.Survoler(scene.Dans(0.25, 0.5));
    EXPECT_EQ(souris.count(), 1);
    QTest::mouseClick(&scene.vue, Qt::RightButton, {}, scene.Dans(0.5, 0.5));
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus.front().front().toPoint(), scene.Dans(0.5, 0.5));
    EXPECT_EQ(scene.graphe.PositionSouris(0), scene.vue.PositionSouris(0));
}

TEST(ChartGate, RaisesTheAnnouncementAloneWhileItIsHidden) {
    Scene scene;
    scene.graphe.hide();
    QSignalSpy annonces(&scene.graphe, &VueGraphe::Dessin);
    QSignalSpy dessins(&scene.graphe, &VueGraphe::Redessin);
    scene.graphe.Repaint();
    EXPECT_EQ(annonces.count(), 1);
    EXPECT_EQ(dessins.count(), 0);
    scene.graphe.show();
    EXPECT_EQ(annonces.count(), 2);
    EXPECT_EQ(dessins.count(), 1);
}

TEST(ChartGate, GivesItsFocusToThePlotWhichShowsTheOneOfTheKeyboard) {
    QWidget fiche;
    Scene scene;
    auto* avant = new QWidget(&fiche);
    avant->setFocusPolicy(Qt::StrongFocus);
    scene.graphe.setParent(&fiche);
    auto* apres = new QWidget(&fiche);
    apres->setFocusPolicy(Qt::StrongFocus);
    QWidget::setTabOrder(avant, &scene.graphe);
    QWidget::setTabOrder(&scene.graphe, apres);
    scene.graphe.show();
    fiche.show();
    fiche.activateWindow();
    QCoreApplication::processEvents();
    avant->setFocus();
    EXPECT_EQ(scene.graphe.focusPolicy(), Qt::StrongFocus);

    QTest::keyClick(avant, Qt::Key_Tab);
    EXPECT_TRUE(scene.graphe.hasFocus());
    ASSERT_TRUE(scene.vue.hasFocus());
    const QPoint coin = scene.Cadre().topLeft() + QPoint(-1, 40);
    EXPECT_EQ(scene.graphe.grab().toImage().pixelColor(coin),
              scene.graphe.ApparencePresente().texteAxes);
    // One step of the keyboard, not two.
    QTest::keyClick(&scene.vue, Qt::Key_Tab);
    EXPECT_TRUE(apres->hasFocus());
    QTest::keyClick(apres, Qt::Key_Backtab);
    EXPECT_TRUE(scene.vue.hasFocus());
    scene.graphe.hide();
    EXPECT_FALSE(scene.vue.hasFocus());
}

TEST(ChartGate, LeavesDropsAndForeignKeysToTheFormAroundIt) {
    Scene scene;
    EXPECT_FALSE(scene.graphe.acceptDrops());
    EXPECT_FALSE(scene.vue.acceptDrops());
    QKeyEvent touche(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier);
    QCoreApplication::sendEvent(&scene.vue, &touche);
    EXPECT_FALSE(touche.isAccepted());
}

}  // namespace
}  // namespace bornika
