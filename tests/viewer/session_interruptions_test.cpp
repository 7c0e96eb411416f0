#include <gtest/gtest.h>

#include "viewer/viewer_fixture.h"
#include "widgets/pointer_shape.h"

namespace bornika {
namespace {

using essai::Visionneuse;

/// What comes in the way of a load: files that end it, and what the operator does meanwhile.
class Interruptions : public ::testing::Test {
  protected:
    int Points(int serie) { return v.Modele().Serie(serie).Nombre(); }
    /// Does that once, at that yield of the load.
    void ALaCession(int numero, std::function<void()> action) {
        v.etabli.respiration.ReglerEvenements([this, numero, action] {
            if (++cessions_ == numero) action();
        });
    }
    int cessions_ = 0;

    Visionneuse v;
};

TEST_F(Interruptions, ALineThatEndsALoadIsSilentAndTheClosingStepsRun) {
    for (const char* ligne :
         {"3000;d;0;1\r\n", "\r\n", "abc;d;0;1;;2;\r\n", ";d;0;1;;2;\r\n", "12h;d;0;abc;;2;\r\n"}) {
        v.etabli.Ecrire("a.txt", Visionneuse::enteteAppareil +
                                     "\r\n1000;d;0;1;;2;\r\n2000;d;0;1;;2;\r\n" + ligne +
                                     "9000;d;0;1;;2;\r\n");
        v.Charger();
        EXPECT_FALSE(v.Fiche().Chargement) << ligne;
        EXPECT_TRUE(v.Ui().TChart1->isVisible()) << ligne;
        ASSERT_EQ(v.Modele().NombreSeries(), 2) << ligne;
        EXPECT_EQ(Points(0), 2) << ligne;
        EXPECT_EQ(v.Modele().bas.plage, (Plage{1000, 2000})) << ligne;
        EXPECT_EQ(v.Ui().Curseur->Index(), 0) << ligne;
        EXPECT_EQ(v.Ui().Couleurs->Nombre(), 5) << ligne;
        EXPECT_EQ(PointeurSouris(v.Fiche()), pointeur::fleche) << ligne;
    }
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Interruptions, AMissingFileAmongSeveralKeepsNoneOfTheOthersAway) {
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("c.txt", 20);
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt", "c.txt"});
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(Points(0), 30);
    EXPECT_EQ(Points(2), 20);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(Interruptions, AnEmptyFirstOfSeveralAddsTheOthersToWhatStood) {
    v.EcrireEnregistrement("a.txt", 30);
    v.etabli.Ecrire("b.txt", "");
    v.EcrireEnregistrement("c.txt", 20);
    v.Charger();
    v.Fiche().show();
    v.OuvrirPlusieurs({"b.txt", "c.txt"});
    ASSERT_EQ(v.Modele().NombreSeries(), 6);
    EXPECT_EQ(Points(0), 30);
    EXPECT_EQ(Points(4), 20);
    EXPECT_FALSE(v.Fiche().Chargement);
}

TEST_F(Interruptions, AChartThatIsShownDuringALoadGrowsWithIt) {
    v.EcrireEnregistrement("a.txt", 300);
    v.Modele().pasRedessin = std::chrono::milliseconds(0);
    std::vector<int> dessines;
    std::vector<int> lus;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++cessions_ == 100) v.Ui().TChart1->show();
        if (cessions_ < 100 || cessions_ % 100 != 0) return;
        dessines.push_back(v.Regard().PointsDessines(0));
        lus.push_back(Points(0));
    });
    v.Charger();
    EXPECT_EQ(lus, (std::vector<int>{49, 99, 149, 199, 249, 299}));
    EXPECT_EQ(dessines, lus);
    EXPECT_EQ(v.Regard().PointsDessines(0), 300);
}

TEST_F(Interruptions, AnotherFilePickedDuringALoadIsNamedButNotLoaded) {
    v.EcrireEnregistrement("a.txt");
    v.EcrireEnregistrement("b.txt", 10);
    ALaCession(50, [this] { v.Ouvrir("b.txt"); });
    v.Charger();
    EXPECT_EQ(Points(0), 300);
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("b.txt"));
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("b.txt"));
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(Points(0), 10);
}

TEST_F(Interruptions, FilesPickedDuringALoadOfSeveralDoNotTakeTheirPlace) {
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("b.txt", 20);
    v.EcrireEnregistrement("c.txt", 10);
    ALaCession(10, [this] { v.Ouvrir("c.txt"); });
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(Points(0), 30);
    EXPECT_EQ(Points(2), 20);
}

TEST_F(Interruptions, ARefreshDuringALoadIsRefused) {
    v.EcrireEnregistrement("a.txt", 30);
    v.Charger();
    std::uint64_t avant = 0;
    std::uint64_t apres = 0;
    ALaCession(20, [&] {
        avant = v.Modele().RevisionSeries();
        v.Ui().Command_Refresh->click();
        apres = v.Modele().RevisionSeries();
    });
    v.Ui().Command_Refresh->click();
    EXPECT_GT(avant, 0U);
    EXPECT_EQ(apres, avant);
    EXPECT_EQ(cessions_, 60);
    EXPECT_EQ(Points(0), 30);
}

TEST_F(Interruptions, TheBarStaysAtItsLastValue) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    const BarreProgression& barre = *v.Ui().ProgressBar;
    EXPECT_TRUE(barre.isVisible());
    EXPECT_EQ(barre.Maximum(), v.etabli.Lire("a.txt").size());
    EXPECT_GT(barre.Valeur(), barre.Maximum() * 0.9);
    EXPECT_LT(barre.Valeur(), barre.Maximum());
}

}  // namespace
}  // namespace bornika
