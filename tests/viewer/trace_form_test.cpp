#include "viewer/trace_form.h"

#include <gtest/gtest.h>

#include <QPointer>

#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

TEST(TraceForm, HoldsEachControlByItsNameAndKind) {
    Visionneuse v;
    Trace& fiche = v.Fiche();
    const auto sont = [&](const char* classe, const QStringList& noms) {
        for (const QString& nom : noms) {
            QWidget* controle = fiche.findChild<QWidget*>(nom);
            ASSERT_TRUE(controle) << nom.toStdString();
            EXPECT_TRUE(controle->inherits(classe)) << nom.toStdString();
        }
    };
    sont("bornika::VueGraphe", {"TChart1"});
    sont("bornika::NavigateurPages", {"ChartPageNavigator"});
    sont("bornika::BarreProgression", {"ProgressBar"});
    sont("bornika::ListeDeroulante", {"Curseur", "Couleurs", "ListeTemps"});
    sont("QScrollBar", {"Lissage"});
    sont("QPlainTextEdit", {"Commentaires"});
    sont("QGroupBox", {"FrameDebit", "Frame_advanced"});
    sont("QCheckBox", {"Marques", "MinMaxMoy", "Pages", "Check_advanced"});
    sont("QLineEdit", {"Min", "Max", "Moy", "pression", "date", "CoefImpulsion", "UniteImpulsion",
                       "NomEvenement"});
    sont("QPushButton", {"CommandOpen", "Export", "EnregistrerSelection", "Enregistrer", "Detruire",
                         "Imprimer", "Sortir", "Command1", "Command_Refresh"});
    sont("QLabel",
         {"LabelMin", "LabelMax", "LabelMoyenne", "LabelCurseur", "LabelLissage", "LabelPression",
          "LabelTemps", "LabelCommentaires", "LabelNomFichier", "LabelCoefImpulsion",
          "LabelUniteImpulsion", "LabelUniteTemps", "Image1", "PicturePalette"});
    EXPECT_TRUE(fiche.findChild<QWidget*>("TeeCommander1"));
    EXPECT_EQ(v.Ui().Lissage->minimum(), 1);
    EXPECT_EQ(v.Ui().Lissage->maximum(), 100);
    EXPECT_EQ(v.Ui().Lissage->orientation(), Qt::Horizontal);
}

TEST(TraceForm, PicturesAreThere) {
    Visionneuse v;
    EXPECT_FALSE(v.Ui().Image1->pixmap().isNull());
    EXPECT_FALSE(v.Ui().PicturePalette->pixmap().isNull());
}

TEST(TraceForm, SettingsOfTheFlowLieInTheAdvancedFrame) {
    Visionneuse v;
    EXPECT_TRUE(v.Ui().FrameDebit->isAncestorOf(v.Ui().Frame_advanced));
    for (const QWidget* controle :
         {static_cast<QWidget*>(v.Ui().CoefImpulsion), static_cast<QWidget*>(v.Ui().UniteImpulsion),
          static_cast<QWidget*>(v.Ui().ListeTemps), static_cast<QWidget*>(v.Ui().Command_Refresh),
          static_cast<QWidget*>(v.Ui().LabelCoefImpulsion),
          static_cast<QWidget*>(v.Ui().LabelUniteImpulsion),
          static_cast<QWidget*>(v.Ui().LabelUniteTemps)})
        EXPECT_TRUE(v.Ui().Frame_advanced->isAncestorOf(controle));
    EXPECT_FALSE(v.Ui().FrameDebit->isAncestorOf(v.Ui().Check_advanced));
}

TEST(TraceForm, ComesUpEmpty) {
    Visionneuse v;
    v.Fiche().show();
    EXPECT_EQ(v.Fiche().NomFichierCourant, QString());
    EXPECT_FALSE(v.Fiche().Chargement);
    EXPECT_FALSE(v.Ui().TChart1->isVisible());
    EXPECT_FALSE(v.Ui().ProgressBar->isVisible());
    EXPECT_FALSE(v.Ui().Curseur->isVisible());
    EXPECT_FALSE(v.Ui().Commentaires->isVisible());
    EXPECT_FALSE(v.Ui().FrameDebit->isVisible());
    EXPECT_TRUE(v.Ui().CommandOpen->isVisible());
    EXPECT_TRUE(v.Ui().Sortir->isVisible());
}

TEST(TraceForm, ReadingAidsComeUpSwitchedOffWithTheirCaptions) {
    Visionneuse v;
    const auto& ui = v.Ui();
    EXPECT_EQ(ui.MinMaxMoy->text(), "Min/Max");
    EXPECT_EQ(ui.LabelMin->text(), "Min");
    EXPECT_EQ(ui.LabelMax->text(), "Max");
    EXPECT_EQ(ui.LabelMoyenne->text(), "Moy.");
    EXPECT_EQ(ui.LabelCurseur->text(), "Curseur");
    EXPECT_EQ(ui.LabelLissage->text(), "Lissage");
    EXPECT_FALSE(ui.MinMaxMoy->isChecked());
    EXPECT_FALSE(ui.Marques->isChecked());
    EXPECT_FALSE(ui.Marques->isEnabled());
    EXPECT_EQ(ui.Lissage->value(), 10);
    for (const QLineEdit* boite : {ui.Min, ui.Max, ui.Moy, ui.pression, ui.date})
        EXPECT_EQ(boite->text(), QString()) << boite->objectName().toStdString();
}

TEST(TraceForm, ZoomIsAnimatedInTenSteps) {
    Visionneuse v;
    EXPECT_TRUE(v.Ui().TChart1->AnimationPresente().animee);
    EXPECT_EQ(v.Ui().TChart1->AnimationPresente().pas, 10);
}

TEST(TraceForm, CaptionsComeFromTheCatalogueInTheLanguageOfTheMainForm) {
    Visionneuse v;
    EXPECT_EQ(v.Ui().Sortir->text(), "Quitter");
    EXPECT_EQ(v.Ui().FrameDebit->title(), "Débit");
    EXPECT_EQ(v.Ui().LabelCommentaires->text(), "Commentaires");
    Visionneuse anglais;
    anglais.ecran.configuration.RemplitListeLangues(*anglais.ecran.ui->ListeLangues, "English");
    EXPECT_EQ(anglais.Ui().Sortir->text(), "Quit");
    EXPECT_EQ(anglais.Ui().FrameDebit->title(), "Flow");
    EXPECT_EQ(anglais.Ui().LabelCommentaires->text(), "Comments");
}

TEST(TraceForm, AKeyThatTheCatalogueLacksLeavesTheCaptionAsDesigned) {
    Visionneuse v;
    QByteArray catalogue = v.etabli.Lire("config.xml");
    ASSERT_TRUE(catalogue.contains("<Cle>EnregistrerSelection</Cle>"));
    catalogue.replace("<Cle>EnregistrerSelection</Cle>", "<Cle>PasCelleLa</Cle>");
    v.etabli.Ecrire("config.xml", catalogue);
    EXPECT_EQ(v.Ui().EnregistrerSelection->text(), "Enregistrer sélection");
}

TEST(TraceForm, PicturesAndBarsAreNeverLookedUp) {
    Visionneuse v;
    v.Fiche();
    const QByteArray catalogue = v.etabli.Lire("config.xml");
    for (const char* nom : {"TChart1", "PicturePalette", "ProgressBar", "Lissage", "Couleurs",
                            "ChartPageNavigator", "BandeauHaut", "AIDE_Sortir2"})
        EXPECT_FALSE(catalogue.contains(QByteArray("<Cle>") + nom + "</Cle>")) << nom;
}

TEST(TraceForm, WithHelpSwitchedOffNoControlHasAToolTip) {
    Visionneuse v;
    v.ecran.etat.AideValide = false;
    for (const QWidget* controle : v.Fiche().findChildren<QWidget*>())
        EXPECT_EQ(controle->toolTip(), QString()) << controle->objectName().toStdString();
}

TEST(TraceForm, WithHelpSwitchedOnTheSixKindsHaveTheirHelpText) {
    Visionneuse v;
    v.ecran.etat.AideValide = true;
    for (const QWidget* controle :
         {static_cast<QWidget*>(v.Ui().CommandOpen), static_cast<QWidget*>(v.Ui().Curseur),
          static_cast<QWidget*>(v.Ui().Pages), static_cast<QWidget*>(v.Ui().pression),
          static_cast<QWidget*>(v.Ui().Commentaires), static_cast<QWidget*>(v.Ui().Couleurs)})
        EXPECT_NE(controle->toolTip(), QString()) << controle->objectName().toStdString();
    for (const QWidget* controle :
         {static_cast<QWidget*>(v.Ui().LabelTemps), static_cast<QWidget*>(v.Ui().FrameDebit),
          static_cast<QWidget*>(v.Ui().Lissage), static_cast<QWidget*>(v.Ui().ProgressBar)})
        EXPECT_EQ(controle->toolTip(), QString()) << controle->objectName().toStdString();
}

TEST(TraceForm, SettingsOfTheConfigurationAreThereAtItsLoad) {
    Visionneuse v;
    v.ecran.configuration.EcritConfig("2,5", "CoefImpulsion");
    v.ecran.configuration.EcritConfig("m3", "UniteImpulsion");
    v.ecran.configuration.EcritConfig("2", "IndexListeTemps");
    EXPECT_EQ(v.Ui().CoefImpulsion->text(), "2,5");
    EXPECT_EQ(v.Ui().UniteImpulsion->text(), "m3");
    EXPECT_EQ(v.Ui().ListeTemps->Index(), 2);
    EXPECT_EQ(v.Ui().ListeTemps->Nombre(), 4);
}

TEST(TraceForm, ASettingThatIsNoNumberOrIsMissingSelectsNothing) {
    for (const QByteArray valeur :
         {"<IndexListeTemps>abc</IndexListeTemps>", "<IndexListeTemps></IndexListeTemps>", "",
          "<IndexListeTemps>-1</IndexListeTemps>"}) {
        Visionneuse v;
        QByteArray reglages = v.etabli.Lire("config.xml");
        const qsizetype debut = reglages.indexOf("<IndexListeTemps>");
        const qsizetype fin = reglages.indexOf("</IndexListeTemps>") + 18;
        ASSERT_GT(debut, 0);
        v.etabli.Ecrire("config.xml", reglages.replace(debut, fin - debut, valeur));
        EXPECT_EQ(v.Ui().ListeTemps->Index(), -1) << valeur.toStdString();
        EXPECT_EQ(v.Ui().ListeTemps->Nombre(), 4);
    }
}

class TraceMarges : public ::testing::Test {
  protected:
    void Regler(int largeur, int hauteur) {
        v.Fiche().show();
        v.Fiche().resize(largeur, hauteur);
        ASSERT_EQ(v.Fiche().size(), QSize(largeur, hauteur));
    }
    QRect Graphe() { return v.Ui().TChart1->geometry(); }

    Visionneuse v;
};

TEST_F(TraceMarges, AreThoseOfTheFormAtItsLoad) {
    const QRect graphe = Graphe();
    EXPECT_EQ(v.Fiche().MargeDroite, v.Fiche().width() - graphe.x() - graphe.width());
    EXPECT_EQ(v.Fiche().MargeBas, v.Fiche().height() - graphe.y() - graphe.height());
    EXPECT_EQ(v.Fiche().EcartCommentaires, v.Ui().Commentaires->y() - graphe.y() - graphe.height());
    EXPECT_GT(v.Fiche().MargeBas, v.Ui().Commentaires->height());
}

TEST_F(TraceMarges, HoldAtSeveralSizes) {
    for (const QSize taille :
         {QSize(1120, 710), QSize(1600, 1000), QSize(700, 500), QSize(900, 900)}) {
        Regler(taille.width(), taille.height());
        EXPECT_EQ(Graphe().x() + Graphe().width(), taille.width() - v.Fiche().MargeDroite);
        EXPECT_EQ(Graphe().y() + Graphe().height(), taille.height() - v.Fiche().MargeBas);
        const int dessous = Graphe().y() + Graphe().height() + v.Fiche().EcartCommentaires;
        EXPECT_EQ(v.Ui().Commentaires->y(), dessous);
        EXPECT_EQ(v.Ui().LabelCommentaires->y(), dessous);
    }
}

TEST_F(TraceMarges, AFormSmallerThanThemLeavesTheChartAsItWas) {
    Regler(800, 600);
    const QRect avant = Graphe();
    Regler(20, 60);
    EXPECT_EQ(Graphe(), avant);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(TraceMarges, WidthAndHeightAreHeldEachForItself) {
    Regler(800, 600);
    const QRect avant = Graphe();
    Regler(900, 60);
    EXPECT_EQ(Graphe().width(), 900 - v.Fiche().MargeDroite - avant.x());
    EXPECT_EQ(Graphe().height(), avant.height());
}

TEST_F(TraceMarges, ResizingRedrawsTheChart) {
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    QSignalSpy dessins(v.Ui().TChart1, &VueGraphe::Redessin);
    Regler(900, 640);
    EXPECT_GE(dessins.count(), 1);
}

TEST(TraceClosing, TheButtonSortirClosesTheForm) {
    Visionneuse v;
    EXPECT_EQ(v.Ui().Sortir->text(), "Quitter");
    v.Fiche().show();
    v.Ui().Sortir->click();
    EXPECT_EQ(v.acces.Presente(), nullptr);
}

TEST(TraceClosing, TheNextReferenceMakesAnEmptyFormInTheLanguageOfNowWithTheSavedSettings) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    v.Ui().CoefImpulsion->setText("7");
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    v.Fiche().close();
    v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, "English");
    EXPECT_EQ(v.Modele().NombreSeries(), 0);
    EXPECT_EQ(v.Fiche().NomFichierCourant, QString());
    EXPECT_EQ(v.Ui().Sortir->text(), "Quit");
    EXPECT_EQ(v.Ui().CoefImpulsion->text(), "7");
    EXPECT_FALSE(v.Ui().Curseur->isVisibleTo(&v.Fiche()));
}

TEST(TraceClosing, AChangeOfLanguageDoesNotReachAnOpenForm) {
    Visionneuse v;
    v.Fiche().show();
    v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, "English");
    EXPECT_EQ(v.Ui().Sortir->text(), "Quitter");
}

TEST(TraceClosing, AClosedFormIsDeletedLater) {
    Visionneuse v;
    const QPointer<Trace> fiche = &v.Fiche();
    fiche->show();
    fiche->close();
    EXPECT_TRUE(fiche);
    EXPECT_FALSE(fiche->isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST(TraceClosing, DuringADownloadItIsKeptUntilTheNextFormIsMade) {
    Visionneuse v;
    const QPointer<Trace> fiche = &v.Fiche();
    v.ecran.etat.EnLecture = true;
    fiche->close();
    QCoreApplication::processEvents();
    EXPECT_TRUE(fiche);
    v.ecran.etat.EnLecture = false;
    v.Fiche();
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST(TraceClosing, InsideALoadItEndsTheLoadAndOnlyThenTheForm) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt", 500);
    const QPointer<Trace> fiche = &v.Fiche();
    fiche->show();
    int passes = 0;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++passes == 20) fiche->close();
        QCoreApplication::processEvents();
        ASSERT_TRUE(fiche);
    });
    v.Ouvrir("a.txt");
    EXPECT_LE(passes, 21);
    EXPECT_TRUE(v.etabli.fautes.empty());
    EXPECT_EQ(v.acces.Presente(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_FALSE(fiche);
}

TEST(TraceClosing, OfTheMainFormEndsALoadThatRuns) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt", 500);
    v.Fiche().show();
    int passes = 0;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++passes == 20) v.ecran.close();
    });
    v.Ouvrir("a.txt");
    EXPECT_LE(passes, 21);
    EXPECT_FALSE(v.Fiche().Chargement);
}

}  // namespace
}  // namespace bornika
