#include <gtest/gtest.h>

#include <QSignalSpy>

#include "chart/view/chart_scene.h"

namespace bornika {
namespace {

using essai::Scene;

TEST(ChartRedraw, IsAnnouncedOnceBeforeItIsDone) {
    Scene scene;
    QStringList suite;
    QObject::connect(&scene.vue, &DessinGraphe::Dessin, [&] { suite += "announced"; });
    QObject::connect(&scene.vue, &DessinGraphe::Redessin, [&] { suite += "done"; });
    scene.vue.Repaint();
    EXPECT_EQ(suite, (QStringList{"announced", "done"}));
}

TEST(ChartRedraw, OfAZoomAScrollAndALegendClickIsAnnounced) {
    Scene scene;
    QCoreApplication::processEvents();
    QSignalSpy annonces(&scene.vue, &DessinGraphe::Dessin);
    scene.Rouler(scene.Dans(0.3, 0.5), 1);
    EXPECT_EQ(annonces.count(), 1);
    QTest::mouseClick(&scene.vue, Qt::LeftButton, {}, scene.CaseLegende(1));
    EXPECT_EQ(annonces.count(), 2);
    scene.Tirer(Qt::RightButton, scene.Dans(0.5, 0.5), scene.Dans(0.3, 0.6));
    QCoreApplication::processEvents();
    EXPECT_EQ(annonces.count(), 3);
    QTest::keyClick(&scene.vue, Qt::Key_0);
    EXPECT_GT(annonces.count(), 3);
}

TEST(ChartRedraw, IsAnnouncedWithWhatIsVisibleAlreadyInTheModel) {
    Scene scene;
    std::vector<int> premiers;
    QObject::connect(&scene.vue, &DessinGraphe::Dessin,
                     [&] { premiers.push_back(scene.modele.FirstValueIndex(0)); });
    scene.vue.Montrer({{200.5, 300}, {3, 5}, {0, 50}});
    scene.vue.RemettreEchelles();
    EXPECT_EQ(premiers, (std::vector<int>{201, 0}));
}

TEST(ChartRedraw, ShowsTheLinesThatItsAnnouncementMoved) {
    Scene scene;
    OutilGraphe ligne;
    ligne.genre = OutilGraphe::Genre::LigneCouleur;
    scene.modele.AjouterOutil(ligne);
    QObject::connect(&scene.vue, &DessinGraphe::Dessin,
                     [&] { scene.modele.Outil(0).valeur = 4.5; });
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    scene.vue.Repaint();
    EXPECT_EQ(dessins.count(), 1);
    const auto* dessinee = qobject_cast<QCPItemStraightLine*>(scene.vue.item(0));
    ASSERT_TRUE(dessinee);
    EXPECT_EQ(dessinee->point1->value(), 4.5);
}

TEST(ChartRedraw, AskedForByItsAnnouncementMakesNoLoop) {
    Scene scene;
    QCoreApplication::processEvents();
    QSignalSpy annonces(&scene.vue, &DessinGraphe::Dessin);
    QObject::connect(&scene.vue, &DessinGraphe::Dessin, [&] { scene.vue.Repaint(); });
    scene.vue.Repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(annonces.count(), 1);
    scene.graphe.hide();
    scene.vue.Repaint();
    EXPECT_EQ(annonces.count(), 2);
}

TEST(ChartRedraw, OfAHiddenChartIsAnnouncedButNotDone) {
    Scene scene;
    scene.graphe.hide();
    QSignalSpy annonces(&scene.vue, &DessinGraphe::Dessin);
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    scene.vue.Repaint();
    EXPECT_EQ(annonces.count(), 1);
    EXPECT_EQ(dessins.count(), 0);
}

}  // namespace
}  // namespace bornika
