#include "viewer/printing.h"

#include <gtest/gtest.h>

#include "viewer/network_day.h"
#include "viewer/paper_reader.h"
#include "viewer/viewer_fixture.h"
#include "widgets/print_preview.h"

namespace bornika {
namespace {

using essai::Papier;
using essai::Visionneuse;

class Impression : public ::testing::Test {
  protected:
    void SetUp() override {
        v.EcrireEnregistrement("a.txt", 300, Visionneuse::enteteCoefficient);
        v.Fiche().show();
        v.Ui().Commentaires->setPlainText("burst main");
        v.Ouvrir("a.txt");
        v.etabli.dialogues.pendantApercu = [this](const DemandeApercu& demande) {
            ImprimerDans(demande, v.etabli.Chemin("paper.pdf"));
        };
    }
    static void ImprimerDans(const DemandeApercu& demande, const QString& chemin) {
        ImprimantePage imprimante(demande);
        imprimante.setOutputFormat(QPrinter::PdfFormat);
        imprimante.setOutputFileName(chemin);
        demande.peindre(imprimante);
    }
    void Imprimer() { v.Ui().Imprimer->click(); }
    Papier Page() const { return Papier(v.etabli.Chemin("paper.pdf")); }
    const OutilGraphe& Annotation() { return v.Modele().Outil(v.Modele().NombreOutils() - 5); }
    const std::vector<DemandeApercu>& Apercus() const { return v.etabli.dialogues.apercus; }
    void ChoisirStatistiques() { v.Ui().MinMaxMoy->setChecked(true); }
    /// What the annotation says while the preview stands, and whether it is shown.
    QString TextePendantApercu() {
        QString texte = "(no preview)";
        v.etabli.dialogues.pendantApercu = [&](const DemandeApercu&) {
            texte = Annotation().actif ? Annotation().texte : "(inactive)";
        };
        Imprimer();
        return texte;
    }

    Visionneuse v;
};

TEST_F(Impression, ShowsOnePreviewWithTheNameOfTheProductOnALyingPage) {
    Imprimer();
    ASSERT_EQ(Apercus().size(), 1U);
    EXPECT_EQ(Apercus()[0].titre, "BORNIKA k-Pod");
    EXPECT_TRUE(Apercus()[0].paysage);
    EXPECT_EQ(Apercus()[0].marges, 10);
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_TRUE(v.etabli.dialogues.boites.empty());
}

TEST_F(Impression, ThePreviewIsNamedAfterTheProductOfNow) {
    v.ecran.etat.NomKpod = "other";
    Imprimer();
    ASSERT_EQ(Apercus().size(), 1U);
    EXPECT_EQ(Apercus()[0].titre, "BORNIKA other");
    EXPECT_EQ(Page().titre, "BORNIKA other");
}

TEST_F(Impression, ThePageHoldsTitleAxesLegendAndTimes) {
    Imprimer();
    const Papier page = Page();
    EXPECT_EQ(page.pages, 1);
    EXPECT_EQ(page.titre, "BORNIKA k-Pod");
    EXPECT_GT(page.taille.width(), page.taille.height());
    for (const char* mot : {"burst main", "Pression", "m3/Min", "(Lissée)", "01/01/1970"})
        EXPECT_TRUE(page.texte.contains(mot)) << mot << page.texte.toStdString();
    RienNEstCoupeNiRecouvert(page);
    EXPECT_EQ(page.Bitmaps(), 0);
}

TEST_F(Impression, ThePageIsWhiteWithCurvesOnItAndItsMarginsAreEmpty) {
    Imprimer();
    const QImage page = Page().Image(96);
    ASSERT_FALSE(page.isNull());
    EXPECT_GT(essai::Part(page, [](const QColor& c) { return c == QColor(Qt::white); }), 0.75);
    EXPECT_GT(essai::Part(page, [](const QColor& c) { return c.saturation() > 120; }), 0.003);
    const int marge = static_cast<int>(10 / 25.4 * 96) - 2;
    const QImage vide = page.copy(0, 0, page.width(), marge);
    EXPECT_EQ(essai::Part(vide, [](const QColor& c) { return c == QColor(Qt::white); }), 1);
    const QImage gauche = page.copy(0, 0, marge, page.height());
    EXPECT_EQ(essai::Part(gauche, [](const QColor& c) { return c == QColor(Qt::white); }), 1);
}

TEST_F(Impression, ADayOfARealNetworkIsPrintedWithNothingCutOffOrCovered) {
    v.etabli.Ecrire("day.txt", essai::JourneeReseau(30000));
    v.Ui().Commentaires->setPlainText(
        "Réseau nord, vanne V12, mesure de contrôle après réparation de la conduite principale");
    v.Ouvrir("day.txt");
    for (int serie = 0; serie < 4; ++serie)
        v.Modele().Serie(serie).active = true;
    ChoisirStatistiques();
    Imprimer();
    const Papier page = Page();
    for (const char* mot : {"Réseau nord", "principale", "Pression (bar)", "m3/Hrs", "Moy.= "})
        EXPECT_TRUE(page.texte.contains(mot)) << mot << page.texte.toStdString();
    RienNEstCoupeNiRecouvert(page);
}

TEST_F(Impression, ThePageSetUpThatTheOperatorTriesIsFilledAnew) {
    v.etabli.dialogues.pendantApercu = [this](DemandeApercu demande) {
        demande.paysage = false;
        ImprimerDans(demande, v.etabli.Chemin("paper.pdf"));
    };
    Imprimer();
    const Papier page = Page();
    EXPECT_LT(page.taille.width(), page.taille.height());
    EXPECT_TRUE(page.texte.contains("burst main"));
    RienNEstCoupeNiRecouvert(page);
}

TEST_F(Impression, StatisticsAreOneLineOnPaperAndGoneAfterwards) {
    ChoisirStatistiques();
    Imprimer();
    EXPECT_TRUE(Page().texte.contains(TexteStatistiques(v.Fiche())));
    RienNEstCoupeNiRecouvert(Page());
    EXPECT_FALSE(Annotation().actif);
    v.Ui().MinMaxMoy->setChecked(false);
    Imprimer();
    EXPECT_FALSE(Page().texte.contains("Min="));
}

TEST_F(Impression, TheStatisticsLineIsBuiltFromWhatTheFormShows) {
    ChoisirStatistiques();
    v.Ui().Curseur->Choisir(1);
    EXPECT_EQ(TextePendantApercu(), "Pression : Min= " + v.Ui().Min->text() + " < Moy.= " +
                                        v.Ui().Moy->text() + " < Max= " + v.Ui().Max->text());
    EXPECT_EQ(v.Ui().Min->text(), "4.00");
    EXPECT_EQ(v.Ui().Max->text(), "4.49");
    v.Ui().LabelMin->setText("lo");
    v.Ui().LabelMoyenne->setText("mid");
    v.Ui().LabelMax->setText("hi");
    v.Ui().Min->setText("1");
    v.Ui().Moy->setText("2");
    v.Ui().Max->setText("3");
    EXPECT_EQ(TexteStatistiques(v.Fiche()), "Pression : lo= 1 < mid= 2 < hi= 3");
}

TEST_F(Impression, TheCurveNamedIsTheChosenOneAndTheFirstWithoutACursor) {
    ChoisirStatistiques();
    v.Ui().Curseur->Choisir(0);
    EXPECT_TRUE(TextePendantApercu().startsWith("Pression : Min= "));
    v.Ui().Curseur->Choisir(2);
    EXPECT_TRUE(TextePendantApercu().startsWith("m3/Min : Min= "));
    v.Ui().Curseur->Choisir(4);
    EXPECT_TRUE(TextePendantApercu().startsWith("(Lissée) m3/Min : Min= "));
}

TEST_F(Impression, WithMinMaxMoyUncheckedTheAnnotationStaysInactive) {
    EXPECT_EQ(TextePendantApercu(), "(inactive)");
    EXPECT_FALSE(Annotation().actif);
}

TEST_F(Impression, TheAnnotationIsInactiveAgainAfterACancelledPreview) {
    ChoisirStatistiques();
    EXPECT_NE(TextePendantApercu(), "(inactive)");
    EXPECT_FALSE(Annotation().actif);
    EXPECT_FALSE(QFile::exists(v.etabli.Chemin("paper.pdf")));
}

TEST_F(Impression, TheAnnotationIsGoneFromTheScreenAfterwards) {
    ChoisirStatistiques();
    QCoreApplication::processEvents();
    const QImage avant = v.Regard().Image();
    v.etabli.dialogues.pendantApercu = [this](const DemandeApercu&) { v.Ui().TChart1->Repaint(); };
    Imprimer();
    EXPECT_EQ(v.Regard().Image(), avant);
}

TEST_F(Impression, AFaultInBetweenPutsTheAnnotationAwayAndGoesOn) {
    ChoisirStatistiques();
    v.etabli.dialogues.pendantApercu = [](const DemandeApercu&) { LeverFaute(61); };
    Imprimer();
    EXPECT_EQ(v.etabli.fautes, std::vector<int>{61});
    EXPECT_FALSE(Annotation().actif);
}

TEST_F(Impression, WithoutTemplateItFaultsAfterThePreviewAndWithStatisticsBeforeIt) {
    QFile::remove(v.etabli.Chemin("BORNIKA.TEE"));
    v.Ui().Command_Refresh->click();
    ASSERT_EQ(v.Modele().NombreOutils(), 0);
    Imprimer();
    EXPECT_EQ(Apercus().size(), 1U);
    EXPECT_EQ(v.etabli.fautes, std::vector<int>{9});
    ChoisirStatistiques();
    Imprimer();
    EXPECT_EQ(Apercus().size(), 1U);
    EXPECT_EQ(v.etabli.fautes, (std::vector<int>{9, 9}));
}

TEST_F(Impression, FiveToolsAreEnoughAndTheAnnotationIsTheFifthFromTheEnd) {
    ChoisirStatistiques();
    v.Modele().RetirerOutil(0);
    EXPECT_TRUE(TextePendantApercu().startsWith("Pression : Min= "));
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_FALSE(v.Modele().Outil(0).actif);
    v.Modele().RetirerOutil(0);
    Imprimer();
    EXPECT_EQ(v.etabli.fautes, std::vector<int>{9});
}

TEST_F(Impression, TheTitleIsMadeAnewFromTheCommentOfNow) {
    EXPECT_EQ(v.Modele().titre, QStringList{"burst main"});
    v.Ui().Commentaires->setPlainText("valve V12");
    Imprimer();
    EXPECT_EQ(v.Modele().titre, QStringList{"valve V12"});
    EXPECT_TRUE(Page().texte.contains("valve V12"));
    EXPECT_FALSE(Page().texte.contains("burst main"));
}

TEST_F(Impression, WithoutACommentThePageHasNoTitle) {
    v.Ui().Commentaires->clear();
    Imprimer();
    EXPECT_EQ(v.Modele().titre, QStringList{QString()});
    EXPECT_TRUE(Page().texte.contains("Pression"));
    EXPECT_FALSE(Page().texte.contains("burst main"));
}

TEST_F(Impression, TwoLinesOfCommentAreJoinedToOneTitle) {
    v.Ui().Commentaires->setPlainText("burst main \nvalve V12");
    Imprimer();
    EXPECT_TRUE(Page().texte.contains("burst main valve V12"));
}

TEST_F(Impression, OfThreeLinesOfCommentTheFirstIsTheTitle) {
    v.Ui().Commentaires->setPlainText("burst main\nvalve V12\nno leak");
    Imprimer();
    EXPECT_TRUE(Page().texte.contains("burst main"));
    EXPECT_FALSE(Page().texte.contains("valve"));
    EXPECT_FALSE(Page().texte.contains("leak"));
}

TEST_F(Impression, OfAnEmptyRecordingIsAFrameWhoseStatisticsNameNoCurve) {
    Visionneuse vide;
    vide.etabli.Ecrire("empty.txt", "");
    vide.Fiche().show();
    vide.Ouvrir("empty.txt");
    ASSERT_EQ(vide.Modele().NombreSeries(), 0);
    vide.Ui().MinMaxMoy->setChecked(true);
    vide.etabli.dialogues.pendantApercu = [&](const DemandeApercu& demande) {
        ImprimerDans(demande, vide.etabli.Chemin("paper.pdf"));
    };
    vide.Ui().Imprimer->click();
    EXPECT_TRUE(vide.etabli.fautes.empty());
    EXPECT_TRUE(TexteStatistiques(vide.Fiche()).startsWith(" : Min= "));
    EXPECT_EQ(Papier(vide.etabli.Chemin("paper.pdf")).pages, 1);
}

TEST_F(Impression, AZoomedChartIsPrintedAsItStands) {
    v.Regard().Montrer({1100000, 1110000}, {4.1, 4.2}, {0, 5});
    Imprimer();
    EXPECT_TRUE(Page().texte.contains("01/01/1970 00:110"));
    EXPECT_FALSE(Page().texte.contains("01/01/1970 00:12"));
    EXPECT_TRUE(Page().texte.contains("4.12"));
    EXPECT_FALSE(Page().texte.contains("4.3"));
}

TEST_F(Impression, TheScreenStaysAsItIs) {
    const QImage avant = v.Regard().Image();
    const QPoint place(300, 200);
    const double temps = v.Regard().TempsA(place.x());
    Imprimer();
    EXPECT_EQ(v.Regard().TempsA(place.x()), temps);
    EXPECT_EQ(v.Regard().Image(), avant);
}

TEST_F(Impression, AFormClosedWhileThePreviewStandsIsKeptUntilItsEnd) {
    ChoisirStatistiques();
    Trace& fiche = v.Fiche();
    bool occupee = false;
    v.etabli.dialogues.pendantApercu = [&](const DemandeApercu& demande) {
        fiche.close();
        QCoreApplication::processEvents();
        occupee = fiche.EstOccupee();
        ImprimerDans(demande, v.etabli.Chemin("paper.pdf"));
    };
    Imprimer();
    EXPECT_TRUE(occupee);
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_TRUE(Page().texte.contains("burst main"));
}

TEST_F(Impression, ALoadWhileThePreviewStandsIsPrintedAndItsAnnotationPutAway) {
    ChoisirStatistiques();
    v.EcrireEnregistrement("b.txt", 20, "Temps;Date Heure;Valeur;Niveau;m;comptage;M3/sec.");
    v.etabli.dialogues.pendantApercu = [&](const DemandeApercu& demande) {
        v.Ouvrir("b.txt");
        ImprimerDans(demande, v.etabli.Chemin("paper.pdf"));
    };
    Imprimer();
    EXPECT_TRUE(Page().texte.contains("Niveau"));
    EXPECT_FALSE(Annotation().actif);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

}  // namespace
}  // namespace bornika
