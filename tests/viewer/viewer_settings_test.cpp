#include "viewer/viewer_settings.h"

#include <gtest/gtest.h>

#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

class ReglagesDebit : public ::testing::Test {
  protected:
    double Debit(int point) { return v.Modele().Serie(1).Y()[std::size_t(point)]; }

    Visionneuse v;
};

TEST_F(ReglagesDebit, EachKeystrokeIsSaved) {
    v.Fiche().show();
    v.Ui().Check_advanced->setChecked(true);
    v.Ui().CoefImpulsion->clear();
    QTest::keyClicks(v.Ui().CoefImpulsion, "1");
    EXPECT_EQ(v.Reglage("CoefImpulsion"), "1");
    QTest::keyClicks(v.Ui().CoefImpulsion, ",5");
    EXPECT_EQ(v.Reglage("CoefImpulsion"), "1,5");
    v.Ui().UniteImpulsion->clear();
    QTest::keyClicks(v.Ui().UniteImpulsion, "m3");
    EXPECT_EQ(v.Reglage("UniteImpulsion"), "m3");
}

TEST_F(ReglagesDebit, TheIndexOfTheTimeUnitIsSavedOnClick) {
    v.Ui().ListeTemps->Choisir(3);
    EXPECT_EQ(v.Reglage("IndexListeTemps"), "3");
    v.Ui().ListeTemps->Choisir(-1);
    EXPECT_EQ(v.Reglage("IndexListeTemps"), "-1");
}

TEST_F(ReglagesDebit, TheFirstOpeningOfADeviceFileLeavesNoTimeUnitAndSavesThat) {
    v.ecran.configuration.EcritConfig("1", "IndexListeTemps");
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    EXPECT_EQ(v.Ui().ListeTemps->Index(), -1);
    EXPECT_EQ(v.Reglage("IndexListeTemps"), "-1");
    EXPECT_EQ(v.Reglage("UniteImpulsion"), "M3/sec.");
    EXPECT_EQ(Debit(1), 2);
}

TEST_F(ReglagesDebit, WhatAHeaderSetsIsSaved) {
    v.EcrireEnregistrement("a.txt", 300, Visionneuse::enteteCoefficient);
    v.Charger();
    EXPECT_EQ(v.Reglage("CoefImpulsion"), "2.5");
    EXPECT_EQ(v.Reglage("UniteImpulsion"), "m3");
    EXPECT_EQ(v.Reglage("IndexListeTemps"), "1");
    EXPECT_EQ(Debit(1), 2 * 2.5 * 60);
    EXPECT_EQ(v.Modele().Serie(1).titre, "m3/Min");
}

TEST_F(ReglagesDebit, ARefreshAppliesTheSettingsOfTheForm) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    v.Ui().CoefImpulsion->setText("3");
    v.Ui().UniteImpulsion->setText("l");
    v.Ui().ListeTemps->Choisir(2);
    EXPECT_EQ(Debit(1), 2);
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(Debit(1), 2 * 3 * 3600);
    EXPECT_EQ(v.Modele().Serie(1).titre, "l/Hrs");
    EXPECT_EQ(v.Modele().droite.titre, "l/Hrs");
    EXPECT_EQ(v.Ui().Curseur->TexteA(2), "l/Hrs");
}

TEST_F(ReglagesDebit, EachLoadTakesWhatTheConfigurationHoldsThen) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    v.ecran.configuration.EcritConfig("4", "CoefImpulsion");
    v.ecran.configuration.EcritConfig("l", "UniteImpulsion");
    v.ecran.configuration.EcritConfig("1", "IndexListeTemps");
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(v.Ui().CoefImpulsion->text(), "4");
    EXPECT_EQ(v.Ui().UniteImpulsion->text(), "l");
    EXPECT_EQ(v.Ui().ListeTemps->Index(), 1);
    EXPECT_EQ(Debit(1), 2 * 4 * 60);
}

TEST_F(ReglagesDebit, ATextThatIsNoNumberShowsTheRawRateWithoutAMessage) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    v.Ui().CoefImpulsion->setText("abc");
    v.Ui().ListeTemps->Choisir(2);
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(Debit(1), 2);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(ReglagesDebit, WithNothingLoadedARefreshDoesNothing) {
    v.Fiche().show();
    v.Ui().Command_Refresh->click();
    EXPECT_FALSE(v.Ui().TChart1->isVisible());
    EXPECT_EQ(v.Modele().NombreOutils(), 0);
}

TEST_F(ReglagesDebit, ARefreshAfterAnotherUseOfTheFileDialogReloadsTheFileOnTheScreen) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    v.etabli.dialogues.AnnoncerOuverture(std::nullopt);
    v.Ui().CommandOpen->click();
    v.Fiche().NomDialogue = "/elsewhere/export.csv";
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
}

TEST_F(ReglagesDebit, ARefreshOfSeveralFilesReloadsThemAll) {
    v.EcrireEnregistrement("a.txt", 30);
    v.EcrireEnregistrement("b.txt", 20);
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    v.Fiche().NomDialogue.clear();
    v.Ui().Command_Refresh->click();
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 30);
    EXPECT_EQ(v.Modele().Serie(2).Nombre(), 20);
}

TEST_F(ReglagesDebit, TheAdvancedFrameIsVisibleExactlyWhileItsBoxIsChecked) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    EXPECT_FALSE(v.Ui().Frame_advanced->isVisible());
    v.Ui().Check_advanced->click();
    EXPECT_TRUE(v.Ui().Frame_advanced->isVisible());
    v.Ui().Check_advanced->click();
    EXPECT_FALSE(v.Ui().Frame_advanced->isVisible());
}

}  // namespace
}  // namespace bornika
