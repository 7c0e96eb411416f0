#include <gtest/gtest.h>

#include "chart/view/chart_plot.h"
#include "viewer/chart_pages.h"
#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

/// A viewer with one recording of 300 measures on the screen.
class Choix : public ::testing::Test {
  protected:
    void SetUp() override {
        v.EcrireEnregistrement("a.txt");
        v.Fiche().show();
        v.Ouvrir("a.txt");
        v.Ui().TChart1->FixerAnimation({});
    }
    /// Chooses by hand, as the list of the combo box does.
    void Choisir(int index) {
        v.Ui().Couleurs->setCurrentIndex(index);
        Q_EMIT v.Ui().Couleurs->activated(index);
    }
    void ZoomerALaSouris() {
        DessinGraphe& vue = v.Ui().TChart1->Toile();
        const QRect cadre = vue.axisRect()->rect();
        const QPoint de = cadre.topLeft() + QPoint(cadre.width() / 4, cadre.height() / 4);
        const QPoint a = cadre.center();
        QTest::mousePress(&vue, Qt::LeftButton, {}, de);
        QTest::mouseMove(&vue, a);
        QTest::mouseRelease(&vue, Qt::LeftButton, {}, a);
    }
    void DoubleCliquer() {
        DessinGraphe& vue = v.Ui().TChart1->Toile();
        QTest::mouseDClick(&vue, Qt::LeftButton, {}, vue.axisRect()->rect().center());
    }
    QPushButton* Rafraichir() { return v.Ui().Command_Refresh; }
    /// The next two colour dialogs are cancelled.
    void AnnulerDeux() {
        v.etabli.dialogues.AnnoncerCouleur(std::nullopt);
        v.etabli.dialogues.AnnoncerCouleur(std::nullopt);
    }
    std::vector<std::uint32_t>& Departs() { return v.etabli.dialogues.departsCouleur; }

    Visionneuse v;
};

using CouleursChoix = Choix;
using PagesChoix = Choix;

TEST_F(CouleursChoix, TheListHoldsTheThreeLinesThenTheCurves) {
    QStringList textes;
    for (int i = 0; i < v.Ui().Couleurs->Nombre(); ++i)
        textes.append(v.Ui().Couleurs->TexteA(i));
    EXPECT_EQ(textes, QStringList({"Moy.", "Min", "Max", "Pression", "M3/sec.", "(Lissée) Pression",
                                   "(Lissée) M3/sec."}));
    EXPECT_EQ(v.Ui().Couleurs->Index(), 0);
}

TEST_F(CouleursChoix, NoDialogComesAtALoad) {
    EXPECT_TRUE(Departs().empty());
    Rafraichir()->click();
    EXPECT_TRUE(Departs().empty());
}

TEST_F(CouleursChoix, TheFirstThreeAreTheLinesAtToolPositionsTwoToFour) {
    for (int i = 0; i < 3; ++i) {
        const auto choisie = static_cast<Couleur>(0x101010 + i);
        v.etabli.dialogues.AnnoncerCouleur(choisie);
        const Couleur avant = v.Modele().Outil(i + 2).crayon;
        Choisir(i);
        EXPECT_EQ(Departs().back(), avant);
        EXPECT_EQ(v.Modele().Outil(i + 2).crayon, choisie);
    }
}

TEST_F(CouleursChoix, TheOthersAreTheCurves) {
    EXPECT_EQ(v.Modele().Serie(2).couleur, 65535U);
    for (int i = 3; i < 7; ++i) {
        const auto choisie = static_cast<Couleur>(0x202020 + i);
        v.etabli.dialogues.AnnoncerCouleur(choisie);
        const Couleur avant = v.Ui().TChart1->CouleurSerie(i - 3);
        Choisir(i);
        EXPECT_EQ(Departs().back(), avant);
        EXPECT_EQ(v.Modele().Serie(i - 3).couleur, choisie);
        EXPECT_EQ(v.Ui().TChart1->Toile().graph(i - 3)->pen().color(), VersQColor(choisie));
    }
}

TEST_F(CouleursChoix, ACancelledDialogKeepsTheColour) {
    const Couleur ligne = v.Modele().Outil(2).crayon;
    AnnulerDeux();
    Choisir(0);
    Choisir(4);
    EXPECT_EQ(Departs().size(), 2U);
    EXPECT_EQ(v.Modele().Outil(2).crayon, ligne);
    EXPECT_EQ(v.Modele().Serie(1).couleur, 0x00FF80U);
}

TEST_F(CouleursChoix, TheSameEntryCanBeChosenTwice) {
    AnnulerDeux();
    Choisir(1);
    Choisir(1);
    EXPECT_EQ(Departs().size(), 2U);
}

TEST_F(CouleursChoix, AreIgnoredDuringALoad) {
    bool essaye = false;
    v.etabli.respiration.ReglerEvenements([&] {
        if (!std::exchange(essaye, true)) Choisir(0);
    });
    Rafraichir()->click();
    EXPECT_TRUE(essaye);
    EXPECT_TRUE(Departs().empty());
}

TEST_F(CouleursChoix, LastUntilTheNextLoad) {
    const Couleur ligne = v.Modele().Outil(2).crayon;
    v.etabli.dialogues.AnnoncerCouleur(0x111111);
    v.etabli.dialogues.AnnoncerCouleur(0x222222);
    Choisir(0);
    Choisir(4);
    Rafraichir()->click();
    EXPECT_EQ(v.Modele().Outil(2).crayon, ligne);
    EXPECT_EQ(v.Modele().Serie(1).couleur, 0x00FF80U);
}

TEST_F(CouleursChoix, ALineThatTheTemplateDidNotBringDoesNothing) {
    QFile::remove(v.etabli.Chemin("BORNIKA.TEE"));
    Rafraichir()->click();
    v.etabli.dialogues.AnnoncerCouleur(0x111111);
    Choisir(0);
    EXPECT_TRUE(Departs().empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
    Choisir(3);
    EXPECT_EQ(v.Modele().Serie(0).couleur, 0x111111U);
}

TEST_F(PagesChoix, CheckedGivesAHundredPointsAPageAndNotTheThousandOfTheLoad) {
    Visionneuse::Cliquer(v.Ui().Pages);
    ASSERT_TRUE(v.Ui().Pages->isChecked());
    EXPECT_EQ(v.Modele().MaxPointsPerPage(), 100);
    EXPECT_TRUE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_EQ(v.Ui().ChartPageNavigator->Texte(), "1 / 3");
    EXPECT_EQ(v.Modele().LastValueIndex(0), 99);
}

TEST_F(PagesChoix, UncheckedShowsTheWholeChartAgain) {
    v.Ui().Pages->setChecked(true);
    v.Ui().Pages->setChecked(false);
    EXPECT_EQ(v.Modele().MaxPointsPerPage(), 0);
    EXPECT_FALSE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_EQ(v.Modele().LastValueIndex(0), 299);
    EXPECT_EQ(v.Ui().TChart1->Toile().xAxis->range().upper, 1'299'000);
}

TEST_F(PagesChoix, TheNavigatorTurnsThePages) {
    v.Ui().Pages->setChecked(true);
    NavigateurPages& navigateur = *v.Ui().ChartPageNavigator;
    EXPECT_FALSE(navigateur.precedente->isEnabled());
    Visionneuse::Cliquer(navigateur.suivante);
    EXPECT_EQ(v.Modele().FirstValueIndex(0), 100);
    EXPECT_EQ(v.Ui().TChart1->Toile().xAxis->range().lower, 1'100'000);
    EXPECT_EQ(navigateur.Texte(), "2 / 3");
    Visionneuse::Cliquer(navigateur.derniere);
    EXPECT_EQ(v.Modele().LastValueIndex(0), 299);
    EXPECT_FALSE(navigateur.suivante->isEnabled());
    Visionneuse::Cliquer(navigateur.precedente);
    Visionneuse::Cliquer(navigateur.premiere);
    EXPECT_EQ(v.Modele().FirstValueIndex(0), 0);
}

TEST_F(PagesChoix, ALoadUnchecksThemSoThatItsThousandPointsNeverCome) {
    EXPECT_EQ(pointsParPageChargement, 1000);
    v.Ui().Pages->setChecked(true);
    Rafraichir()->click();
    EXPECT_FALSE(v.Ui().Pages->isChecked());
    EXPECT_EQ(v.Modele().MaxPointsPerPage(), 0);
    EXPECT_FALSE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_EQ(v.Modele().LastValueIndex(0), 299);
}

TEST_F(PagesChoix, ZoomingInHidesTheNavigatorAndDisablesPages) {
    v.Ui().Pages->setChecked(true);
    ZoomerALaSouris();
    EXPECT_FALSE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_FALSE(v.Ui().Pages->isEnabled());
}

TEST_F(PagesChoix, UndoingTheZoomShowsTheNavigatorEvenIfPagesIsUnchecked) {
    ZoomerALaSouris();
    ASSERT_FALSE(v.Ui().Pages->isEnabled());
    DoubleCliquer();
    EXPECT_FALSE(v.Ui().Pages->isChecked());
    EXPECT_TRUE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_TRUE(v.Ui().Pages->isEnabled());
    EXPECT_EQ(v.Modele().LastValueIndex(0), 299);
}

TEST_F(PagesChoix, ALoadOfAZoomedChartShowsAllOfItAndAllowsPages) {
    ZoomerALaSouris();
    Rafraichir()->click();
    EXPECT_EQ(v.Ui().TChart1->Toile().xAxis->range().upper, 1'299'000);
    EXPECT_TRUE(v.Ui().Pages->isEnabled());
}

}  // namespace
}  // namespace bornika
