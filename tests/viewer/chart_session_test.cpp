#include "viewer/chart_session.h"

#include <gtest/gtest.h>

#include "platform/guard.h"
#include "viewer/viewer_fixture.h"
#include "widgets/pointer_shape.h"

namespace bornika {
namespace {

using essai::Visionneuse;

class Seance : public ::testing::Test {
  protected:
    Visionneuse v;
};

TEST_F(Seance, TheFirstLoadShowsTheWorkingControlsAndHidesTheOthers) {
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    const QStringList montres{"pression",
                              "MinMaxMoy",
                              "date",
                              "ProgressBar",
                              "LabelCommentaires",
                              "Commentaires",
                              "Imprimer",
                              "Detruire",
                              "EnregistrerSelection",
                              "Export",
                              "LabelPression",
                              "LabelTemps",
                              "LabelCurseur",
                              "Curseur",
                              "PicturePalette",
                              "Couleurs",
                              "Pages",
                              "Lissage",
                              "LabelLissage",
                              "Marques",
                              "TChart1"};
    const QStringList caches{"TeeCommander1", "Enregistrer", "NomEvenement", "LabelNomFichier"};
    for (const QString& nom : montres)
        EXPECT_FALSE(v.Fiche().findChild<QWidget*>(nom)->isVisible()) << nom.toStdString();
    for (const QString& nom : caches)
        v.Fiche().findChild<QWidget*>(nom)->show();
    v.Ouvrir("a.txt");
    for (const QString& nom : montres)
        EXPECT_TRUE(v.Fiche().findChild<QWidget*>(nom)->isVisible()) << nom.toStdString();
    for (const QString& nom : caches)
        EXPECT_FALSE(v.Fiche().findChild<QWidget*>(nom)->isVisible()) << nom.toStdString();
    EXPECT_EQ(v.Ui().ProgressBar->Minimum(), 0);
}

TEST_F(Seance, TheNavigatorIsShownDuringALoadAndHiddenAtItsEnd) {
    v.EcrireEnregistrement("a.txt");
    bool montre = false;
    bool graphe = false;
    v.etabli.respiration.ReglerEvenements([&] {
        montre = montre || v.Ui().ChartPageNavigator->isVisible();
        graphe = graphe || v.Ui().TChart1->isVisible();
    });
    v.Charger();
    EXPECT_TRUE(montre);
    EXPECT_FALSE(graphe);
    EXPECT_FALSE(v.Ui().ChartPageNavigator->isVisible());
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
}

TEST_F(Seance, TheChartIsHiddenDuringALaterLoadToo) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    bool graphe = false;
    v.etabli.respiration.ReglerEvenements([&] { graphe = graphe || v.Ui().TChart1->isVisible(); });
    v.Charger();
    EXPECT_FALSE(graphe);
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
}

TEST_F(Seance, TheMouseWaitsDuringALoadAndIsAnArrowAfterIt) {
    v.EcrireEnregistrement("a.txt");
    int pendant = -1;
    v.etabli.respiration.ReglerEvenements([&] { pendant = PointeurSouris(v.Fiche()); });
    v.Charger();
    EXPECT_EQ(pendant, pointeur::sablier);
    EXPECT_EQ(PointeurSouris(v.Fiche()), pointeur::fleche);
}

TEST_F(Seance, ALoadFinishesTheChart) {
    v.EcrireEnregistrement("a.txt");
    ModeleGraphe& modele = v.Modele();
    modele.legendeVisible = modele.legendeCases = modele.legendeSeries = modele.zoomPermis = false;
    modele.defilement = 0;
    v.Ui().Lissage->setValue(55);
    modele.troisDimensions = true;
    v.Charger();
    EXPECT_TRUE(modele.visible);
    EXPECT_TRUE(v.Modele().legendeVisible);
    EXPECT_TRUE(v.Modele().legendeCases);
    EXPECT_TRUE(v.Modele().legendeSeries);
    EXPECT_TRUE(v.Modele().zoomPermis);
    EXPECT_EQ(v.Modele().defilement, 3);
    EXPECT_FALSE(v.Modele().troisDimensions);
    EXPECT_TRUE(v.Modele().bas.etiquettesTexte);
    EXPECT_EQ(v.Modele().couleursEtiquettes.bas, 0xFF00U);
    EXPECT_EQ(v.Modele().couleursEtiquettes.gauche, 0xFF00U);
    EXPECT_FALSE(v.Fiche().Chargement);
    EXPECT_EQ(v.Ui().Curseur->Index(), 0);
    EXPECT_EQ(v.Ui().Lissage->value(), 10);
    EXPECT_EQ(modele.Serie(3).Periode(), 10);
}

TEST_F(Seance, TheTimeAxisSpansTheTimeStampsOfTheFile) {
    v.EcrireEnregistrement("a.txt", 300);
    v.Charger();
    EXPECT_EQ(v.Modele().bas.plage, (Plage{1'000'000, 1'299'000}));
    EXPECT_EQ(v.Regard().Temps().max, 1'299'000);
}

TEST_F(Seance, WithoutAnyLineTheTimeAxisKeepsItsStartingValues) {
    v.etabli.Ecrire("a.txt", Visionneuse::enteteAppareil + "\r\n");
    v.Charger();
    EXPECT_GT(v.Modele().bas.plage.min, 1e12);
    EXPECT_EQ(v.Modele().bas.plage.max, 0);
    EXPECT_EQ(v.Regard().NombreEtiquettesTemps(), 0);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Seance, AnEmptyFileOnAnEmptyViewerDrawsNothing) {
    v.etabli.Ecrire("a.txt", "");
    v.Charger();
    EXPECT_EQ(v.Modele().NombreSeries(), 0);
    EXPECT_EQ(v.Modele().bas.plage, (Plage{0, 0}));
    EXPECT_FALSE(v.Fiche().Chargement);
    EXPECT_TRUE(v.etabli.dialogues.departsCouleur.empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Seance, AnEmptyFileLeavesTheChartAsItWas) {
    v.EcrireEnregistrement("a.txt", 300);
    v.etabli.Ecrire("b.txt", "");
    v.Charger();
    v.Charger("b.txt");
    EXPECT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().bas.plage, (Plage{1'000'000, 1'299'000}));
}

TEST_F(Seance, AMissingFileIsSilentAndTheClosingStepsRun) {
    v.Charger("absent.txt");
    EXPECT_FALSE(v.Fiche().Chargement);
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
    EXPECT_EQ(PointeurSouris(v.Fiche()), pointeur::fleche);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(Seance, CurvesAndCursorEntriesMatch) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    ASSERT_EQ(v.Ui().Curseur->Nombre(), 5);
    EXPECT_EQ(v.Ui().Curseur->TexteA(0), "Pas de curseur");
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(v.Ui().Curseur->TexteA(i + 1), v.Modele().Serie(i).titre);
    EXPECT_EQ(v.Modele().Serie(2).titre, "(Lissée) Pression");
    EXPECT_TRUE(v.Ui().FrameDebit->isVisible());
    EXPECT_EQ(v.Ui().LabelPression->text(), "Pression");
}

TEST_F(Seance, ASecondStartDuringALoadIsRefused) {
    v.EcrireEnregistrement("a.txt");
    v.EcrireEnregistrement("b.txt", 10);
    bool essaye = false;
    v.etabli.respiration.ReglerEvenements([&] {
        if (!std::exchange(essaye, true)) ChargeCourbes(v.Fiche(), v.etabli.Chemin("b.txt"), false);
    });
    v.Charger();
    EXPECT_TRUE(essaye);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
}

TEST_F(Seance, AFaultOfAHandlerDuringALoadIsGuardedAsEver) {
    v.EcrireEnregistrement("a.txt");
    bool leve = false;
    v.etabli.respiration.ReglerEvenements([&] {
        if (!std::exchange(leve, true)) garder([] { LeverFaute(6); });
    });
    v.Charger();
    EXPECT_EQ(v.etabli.fautes, std::vector<int>{6});
}

TEST_F(Seance, AConfigurationThatCannotBeReadDoesNotKeepTheCurveAway) {
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.etabli.Ecrire("config.xml", "<broken");
    v.Ouvrir("a.txt");
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
    EXPECT_FALSE(v.Fiche().Chargement);
}

TEST_F(Seance, SeveralFilesAreLoadedFromOneFolder) {
    v.EcrireEnregistrement("a.txt", 300);
    v.EcrireEnregistrement("b.txt", 20);
    v.Fiche().show();
    v.OuvrirPlusieurs({"a.txt", "b.txt"});
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
    EXPECT_EQ(v.Modele().Serie(2).Nombre(), 20);
    EXPECT_EQ(v.Ui().Curseur->Nombre(), 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_FALSE(v.Ui().Curseur->TexteA(i).contains("(Lissée)")) << i;
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.systeme.dossier);
}

TEST_F(Seance, AfterADownloadTheBareNameIsTakenFromTheProgramsFolder) {
    v.EcrireEnregistrement("a.txt");
    v.Fiche().NomDialogue = "a.txt";
    chart_Init(v.Fiche());
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 300);
    EXPECT_FALSE(v.Fiche().isVisible());
}

TEST_F(Seance, ChartAddSerieAddsACurve) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    Chart_Add_Serie(v.Fiche());
    EXPECT_EQ(v.Modele().NombreSeries(), 5);
    Chart_Refresh(v.Fiche());
    EXPECT_EQ(v.Regard().NombreCourbes(), 5);
}

TEST_F(Seance, ChartAddPointAddsToTheFirstCurveWithoutALabel) {
    Chart_Add_Serie(v.Fiche());
    Chart_Add_Point(v.Fiche(), "12.5", "-3", 40);
    ASSERT_EQ(v.Modele().Serie(0).Nombre(), 1);
    EXPECT_EQ(v.Modele().Serie(0).X()[0], 12.5);
    EXPECT_EQ(v.Modele().Serie(0).Y()[0], -3);
    EXPECT_EQ(v.Modele().Etiquette(0, 0), QString());
    EXPECT_EQ(v.Modele().MaxPointsPerPage(), 40);
    EXPECT_THROW(Chart_Add_Point(v.Fiche(), "abc", "1"), FauteExecution);
}

TEST_F(Seance, WithoutATemplateTheLoadWorksAndTheChartHasNoTools) {
    v.EcrireEnregistrement("a.txt");
    ASSERT_TRUE(QFile::remove(v.etabli.Chemin("BORNIKA.TEE")));
    v.Charger();
    EXPECT_EQ(v.Modele().NombreOutils(), 0);
    EXPECT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_TRUE(v.Ui().TChart1->isVisible());
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(Seance, ATemplateGoneOrMalformedAtAReloadTakesTheToolsAway) {
    v.EcrireEnregistrement("a.txt");
    v.Charger();
    ASSERT_EQ(v.Modele().NombreOutils(), 6);
    v.etabli.Ecrire("BORNIKA.TEE", "<Graphe><Outils>");
    v.Ui().Command_Refresh->click();
    EXPECT_EQ(v.Modele().NombreOutils(), 0);
}

TEST_F(Seance, TheTemplateIsNeverWritten) {
    v.EcrireEnregistrement("a.txt");
    const QByteArray avant = v.etabli.Lire("BORNIKA.TEE");
    v.Charger();
    v.etabli.dialogues.AnnoncerCouleur(0x123456);
    QTest::keyClick(v.Ui().Couleurs, Qt::Key_Down);
    EXPECT_EQ(v.etabli.Lire("BORNIKA.TEE"), avant);
}

}  // namespace
}  // namespace bornika
