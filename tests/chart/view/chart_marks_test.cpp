#include <gtest/gtest.h>

#include <QSignalSpy>
#include <limits>

#include "chart/view/chart_scene.h"
#include "chart/view/chart_view_marks.h"

namespace bornika {
namespace {

using essai::nan;
using essai::Scene;

void VerifierSansRecouvrement(const std::vector<Marque>& marques, const QRectF& cadre) {
    for (std::size_t i = 0; i < marques.size(); ++i) {
        EXPECT_TRUE(cadre.contains(marques[i].zone)) << marques[i].texte.toStdString();
        for (std::size_t k = 0; k < i; ++k)
            EXPECT_FALSE(marques[i].zone.intersects(marques[k].zone)) << i << " and " << k;
    }
}

TEST(ChartMarks, AreThereForCurvesWhoseMarksAreOnAlone) {
    Scene scene;
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
    scene.modele.Serie(1).marques = true;
    scene.vue.Repaint();
    const std::vector<Marque> marques = scene.vue.Marques().Placer();
    ASSERT_FALSE(marques.empty());
    for (const Marque& marque : marques)
        EXPECT_EQ(marque.couleur, VersQColor(scene.vue.CouleurSerie(1)));
    scene.modele.Serie(1).active = false;
    scene.vue.Repaint();
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
}

TEST(ChartMarks, StandOnEveryPointWhereThereIsRoom) {
    Scene scene;
    scene.modele.Serie(0).marques = true;
    scene.vue.Montrer({{99.5, 106.5}, {2, 6}, {0, 50}});
    const std::vector<Marque> marques = scene.vue.Marques().Placer();
    ASSERT_EQ(marques.size(), 7U);
    for (std::size_t i = 0; i < 7; ++i) {
        const double valeur = 4 + std::sin((100 + double(i)) / 50.0);
        EXPECT_EQ(marques[i].texte, TexteMarque(valeur, 4, Regional()));
        EXPECT_NEAR(marques[i].point.x(), scene.vue.xAxis->coordToPixel(100 + double(i)), 1e-6);
        EXPECT_NEAR(marques[i].point.y(), scene.vue.yAxis->coordToPixel(valeur), 1e-6);
        EXPECT_NEAR(marques[i].zone.center().x(), marques[i].point.x(), 1);
        EXPECT_LT(marques[i].zone.bottom(), marques[i].point.y());
    }
}

TEST(ChartMarks, ThinOutOnAFullViewAndReachFromEndToEnd) {
    Scene scene(100'000);
    scene.modele.Serie(0).marques = true;
    scene.vue.Repaint();
    const std::vector<Marque> marques = scene.vue.Marques().Placer();
    const QRectF cadre = scene.Cadre();
    VerifierSansRecouvrement(marques, cadre);
    EXPECT_GT(marques.size(), 8U);
    EXPECT_LT(marques.size(), 60U);
    double largeur = 0;
    for (const Marque& marque : marques)
        largeur = std::max(largeur, marque.zone.width());
    EXPECT_LT(marques.front().zone.left(), cadre.left() + largeur);
    EXPECT_GT(marques.back().zone.right(), cadre.right() - 2 * largeur);
    for (std::size_t i = 1; i < marques.size(); ++i)
        EXPECT_LT(marques[i].zone.left() - marques[i - 1].zone.right(), largeur);
}

TEST(ChartMarks, OfTwoCurvesMakeRoomForEachOther) {
    Scene scene;
    scene.modele.Serie(0).marques = true;
    scene.modele.Serie(1).marques = true;
    scene.vue.Repaint();
    const std::vector<Marque> marques = scene.vue.Marques().Placer();
    VerifierSansRecouvrement(marques, scene.Cadre());
    const QColor premiere = VersQColor(scene.vue.CouleurSerie(0));
    scene.modele.Serie(1).couleur = 0x123456;
    scene.vue.Repaint();
    bool seconde = false;
    for (const Marque& marque : scene.vue.Marques().Placer())
        seconde = seconde || marque.couleur != premiere;
    EXPECT_TRUE(seconde);
}

TEST(ChartMarks, StayInTheFrameAtItsEdges) {
    Scene scene;
    scene.Remplacer({{0, 0}, {5, 10}, {10, 10}}).marques = true;
    scene.modele.FixerPlage(0, 10);
    scene.vue.RemettreEchelles();
    scene.vue.Montrer({{0, 10}, {0, 10}, {0, 1}});
    const std::vector<Marque> marques = scene.vue.Marques().Placer();
    ASSERT_EQ(marques.size(), 3U);
    VerifierSansRecouvrement(marques, scene.Cadre());
    EXPECT_GT(marques[1].zone.top(), marques[1].point.y()) << "below a point at the top";
}

TEST(ChartMarks, PassOverPointsOutsideTheScaleAndValuesThatAreNoNumbers) {
    Scene scene;
    scene.Remplacer({{0, 1}, {1, nan}, {2, 50}, {3, 2}, {4, -50}, {5, 3}}).marques = true;
    scene.modele.FixerPlage(-1, 6);
    scene.vue.RemettreEchelles();
    scene.vue.Montrer({{-1, 6}, {0, 10}, {0, 1}});
    QStringList textes;
    for (const Marque& marque : scene.vue.Marques().Placer())
        textes += marque.texte;
    EXPECT_EQ(textes, (QStringList{"1", "2", "3"}));
}

TEST(ChartMarks, AreNoneOnAnEmptyChartAndOnARangeWithoutPoints) {
    Scene scene;
    scene.modele.Serie(0).marques = true;
    scene.vue.Montrer({{2000, 2010}, {3, 5}, {0, 1}});
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
    scene.modele.FixerPlage(10, 0);
    scene.vue.RemettreEchelles();
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
    scene.Remplacer({}).marques = true;
    scene.vue.RemettreEchelles();
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
}

TEST(ChartMarks, OfPointsOutOfOrderStandInTime) {
    Scene scene;
    scene.Remplacer({{0, 1}, {8, 3}, {4, 2}}).marques = true;
    scene.modele.FixerPlage(-1, 10);
    scene.vue.RemettreEchelles();
    QStringList textes;
    for (const Marque& marque : scene.vue.Marques().Placer())
        textes += marque.texte;
    EXPECT_EQ(textes, (QStringList{"1", "2", "3"}));
}

TEST(ChartMarks, AreDrawnInTheColourOfTheirCurve) {
    Scene scene;
    scene.Remplacer({{5, 8}}).couleur = 0x8000FF;
    scene.modele.FixerPlage(0, 10);
    scene.vue.RemettreEchelles();
    const auto rouges = [&] {
        const QImage image = scene.vue.grab().toImage();
        int nombre = 0;
        for (int y = scene.Cadre().top(); y < scene.Cadre().bottom(); ++y)
            for (int x = scene.Cadre().left(); x < scene.Cadre().right(); ++x)
                nombre += image.pixelColor(x, y) == QColor(255, 0, 128);
        return nombre;
    };
    const int sans = rouges();
    scene.modele.Serie(0).marques = true;
    scene.vue.Repaint();
    EXPECT_GT(rouges(), sans + 10);
}

TEST(ChartMarks, ClearedWhileARedrawIsAnnouncedAreNotInIt) {
    Scene scene;
    scene.modele.Serie(0).marques = true;
    scene.vue.Repaint();
    const QImage avec = scene.vue.grab().toImage();
    QObject::connect(&scene.vue, &DessinGraphe::Dessin,
                     [&] { scene.modele.Serie(0).marques = false; });
    QSignalSpy dessins(&scene.vue, &DessinGraphe::Redessin);
    scene.vue.Repaint();
    EXPECT_EQ(dessins.count(), 1);
    EXPECT_NE(scene.vue.grab().toImage(), avec);
    EXPECT_TRUE(scene.vue.Marques().Placer().empty());
}

TEST(ChartMarkText, IsTheValueWithTheSeparatorOfTheUser) {
    Regional francais;
    francais.separateur = QStringLiteral(",");
    EXPECT_EQ(TexteMarque(4.125, 2, Regional()), "4.125");
    EXPECT_EQ(TexteMarque(4.125, 2, francais), "4,125");
    EXPECT_EQ(TexteMarque(16, 2, francais), "16");
    EXPECT_EQ(TexteMarque(-0.5, 2, francais), "-0,5");
}

TEST(ChartMarkText, HasNoMoreDecimalsThanTheScaleCanShow) {
    EXPECT_EQ(TexteMarque(4.123456789, 2, Regional()), "4.1235");
    EXPECT_EQ(TexteMarque(4.123456789, 0.002, Regional()), "4.1234568");
    EXPECT_EQ(TexteMarque(1234.5678, 5000, Regional()), "1234.6");
    EXPECT_EQ(TexteMarque(123456.78, 1e7, Regional()), "123457");
    EXPECT_EQ(TexteMarque(-1e-9, 2, Regional()), "0");
}

TEST(ChartMarkText, IsTheWholeNumberOnAScaleWithoutHeight) {
    for (const double hauteur : {0.0, nan, 1e-300})
        EXPECT_EQ(TexteMarque(4.123456789, hauteur, Regional()), "4.123456789");
}

TEST(ChartScales, WriteNumbersWithTheSeparatorOfTheUser) {
    Scene scene;
    Regional francais;
    francais.separateur = QStringLiteral(",");
    scene.vue.FixerRegional(francais);
    scene.vue.Montrer({{0, 999}, {4.1, 4.3}, {10000, 40000}});
    EXPECT_TRUE(scene.vue.yAxis->tickVectorLabels().join(' ').contains("4,15"));
    EXPECT_TRUE(scene.vue.yAxis2->tickVectorLabels().contains("20000"));
    scene.vue.FixerRegional(Regional());
    scene.vue.Repaint();
    EXPECT_TRUE(scene.vue.yAxis->tickVectorLabels().join(' ').contains("4.15"));
}

}  // namespace
}  // namespace bornika
