#include "viewer/chart_menu.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>

#include "chart/model/chart_cursor.h"
#include "chart/view/chart_picture.h"
#include "viewer/paper_reader.h"
#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Papier;
using essai::Visionneuse;

class MenuGraphe : public ::testing::Test {
  protected:
    void SetUp() override { Preparer("Français"); }
    void TearDown() override {
        if (QMenu* menu = Menu()) menu->close();
    }
    void Preparer(const QString& langue) {
        v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, langue);
        v.EcrireEnregistrement("2026-3-5.txt");
        v.Fiche().show();
        v.Ouvrir("2026-3-5.txt");
        v.etabli.dialogues.demandes.clear();
    }
    VueGraphe& Vue() { return *v.Ui().TChart1; }
    double Etendue() { return v.Regard().Temps().max - v.Regard().Temps().min; }
    QPoint Milieu() { return v.Regard().Cadre().center(); }
    static QMenu* Menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    void ClicDroit(QPoint ou) { QTest::mouseClick(&v.Regard().Surface(), Qt::RightButton, {}, ou); }
    static QStringList Textes() {
        QStringList textes;
        if (Menu())
            for (const QAction* entree : Menu()->actions())
                textes << entree->text();
        return textes;
    }
    /// Opens the menu and clicks an entry of it.
    void Choisir(QAction* entree) {
        ClicDroit(Milieu());
        ASSERT_TRUE(Menu());
        essai::Operateur::CliquerEntree(Menu(), entree);
    }
    /// The next two file dialogs are cancelled.
    void AnnulerDeux() {
        v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
        v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    }
    const DemandeFichier& Demande() { return v.etabli.dialogues.demandes.at(0); }

    Visionneuse v;
};

TEST_F(MenuGraphe, ARightClickShowsItWhereTheMouseIs) {
    EXPECT_EQ(Menu(), nullptr);
    ClicDroit(Milieu());
    ASSERT_TRUE(Menu());
    EXPECT_EQ(Textes(), (QStringList{"Agrandir", "Réduire", "Tout montrer", "", "Copier l'image",
                                     "Enregistrer l'image (PNG)...", "Enregistrer en PDF..."}));
    EXPECT_EQ(Menu()->pos(), Vue().mapToGlobal(Milieu()));
}

TEST_F(MenuGraphe, ItSpeaksTheLanguageOfTheForm) {
    v.Fiche().close();
    Preparer("English");
    ClicDroit(Milieu());
    EXPECT_EQ(Textes(), (QStringList{"Zoom in", "Zoom out", "Show all", "", "Copy picture",
                                     "Save picture (PNG)...", "Save as PDF..."}));
}

TEST_F(MenuGraphe, ItsFirstEntriesZoomAndNameTheirKeys) {
    const double entiere = Etendue();
    EXPECT_EQ(v.Ui().Agrandir->shortcut(), QKeySequence(Qt::Key_Plus));
    Choisir(v.Ui().Agrandir);
    EXPECT_NEAR(Etendue(), entiere * 0.8, 1e-3);
    EXPECT_FALSE(v.Ui().Pages->isEnabled());
    Choisir(v.Ui().Agrandir);
    EXPECT_EQ(v.Ui().Reduire->shortcut(), QKeySequence(Qt::Key_Minus));
    Choisir(v.Ui().Reduire);
    EXPECT_NEAR(Etendue(), entiere * 0.8, 1e-3);
    EXPECT_EQ(v.Ui().VueEntiere->shortcut(), QKeySequence(Qt::Key_0));
    Vue().FixerAnimation({});
    Choisir(v.Ui().VueEntiere);
    EXPECT_EQ(Etendue(), entiere);
    EXPECT_TRUE(v.Ui().Pages->isEnabled());
}

TEST_F(MenuGraphe, OffersTheStepsOfACursorThatIsThere) {
    v.Ui().Curseur->Choisir(2);
    ClicDroit(Milieu());
    EXPECT_EQ(Textes().mid(3, 2),
              (QStringList{"Curseur au point précédent", "Curseur au point suivant"}));
    Menu()->close();
    EXPECT_EQ(v.Ui().PointSuivant->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Right));
    EXPECT_EQ(v.Ui().PointPrecedent->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Left));
    const ModeleGraphe& modele = v.Modele();
    Choisir(v.Ui().PointSuivant);
    const int depart = CurseurMobile(modele)->point;
    Choisir(v.Ui().PointSuivant);
    EXPECT_EQ(CurseurMobile(modele)->point, depart + 1);
    Choisir(v.Ui().PointPrecedent);
    EXPECT_EQ(CurseurMobile(modele)->point, depart);
    EXPECT_FALSE(v.Ui().date->text().isEmpty());
    v.Ui().Curseur->Choisir(0);
    ClicDroit(Milieu());
    EXPECT_FALSE(Textes().contains("Curseur au point suivant"));
}

TEST_F(MenuGraphe, LeavesTheKeysToTheChartWhichTakesEachOfThemOnce) {
    Vue().activateWindow();
    Vue().setFocus();
    const double entiere = Etendue();
    QTest::keyClick(&v.Regard().Surface(), Qt::Key_Plus);
    EXPECT_NEAR(Etendue(), entiere * 0.8, 1e-3);
}

TEST_F(MenuGraphe, ARightClickBesideTheFrameShowsItToo) {
    ClicDroit({5, 5});
    EXPECT_TRUE(Menu());
}

TEST_F(MenuGraphe, TheMenuKeyShowsItOverTheFrame) {
    QContextMenuEvent touche(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(&v.Regard().Surface(), &touche);
    ASSERT_TRUE(Menu());
    EXPECT_EQ(Menu()->pos(), Vue().mapToGlobal(Milieu()));
}

TEST_F(MenuGraphe, ARightDragMovesTheViewAndShowsNoMenu) {
    const Plage avant = v.Regard().Temps();
    QTest::mousePress(&v.Regard().Surface(), Qt::RightButton, {}, Milieu());
    for (const QPoint pas : {QPoint(3, 0), QPoint(40, 0), QPoint(2, 0)}) {
        const QPointF ou = Milieu() + pas;
        QMouseEvent mouvement(QEvent::MouseMove, ou, Vue().mapToGlobal(ou), Qt::NoButton,
                              Qt::RightButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&v.Regard().Surface(), &mouvement);
        EXPECT_EQ(v.Regard().Temps().min < avant.min, pas.x() != 3) << pas.x();
    }
    // Back near where it began: it was a drag all the same.
    QTest::mouseRelease(&v.Regard().Surface(), Qt::RightButton, {}, Milieu() + QPoint(2, 0));
    EXPECT_EQ(Menu(), nullptr);
}

TEST_F(MenuGraphe, AHandThatTremblesClicksAndLeavesTheViewWhereItIs) {
    const Plage avant = v.Regard().Temps();
    QTest::mousePress(&v.Regard().Surface(), Qt::RightButton, {}, Milieu());
    QTest::mouseRelease(&v.Regard().Surface(), Qt::RightButton, {}, Milieu() + QPoint(2, 1));
    EXPECT_TRUE(Menu());
    EXPECT_EQ(v.Regard().Temps(), avant);
}

TEST_F(MenuGraphe, TheLeftButtonShowsNone) {
    QTest::mouseClick(&v.Regard().Surface(), Qt::LeftButton, {}, Milieu());
    EXPECT_EQ(Menu(), nullptr);
}

TEST_F(MenuGraphe, CopiesThePictureToTheClipboard) {
    QGuiApplication::clipboard()->clear();
    Choisir(v.Ui().CopierImage);
    const QImage copiee = QGuiApplication::clipboard()->image();
    EXPECT_EQ(copiee.size(), Vue().size() * 2);
    EXPECT_EQ(copiee, ImageGraphe(Vue()));
    EXPECT_TRUE(v.etabli.dialogues.demandes.empty());
}

TEST_F(MenuGraphe, SavesAPictureNamedAfterTheRecording) {
    v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin("curve.png"));
    Choisir(v.Ui().EnregistrerPng);
    EXPECT_EQ(Demande().nom, "2026-3-5.png");
    EXPECT_EQ(Demande().suffixe, "*.png");
    EXPECT_EQ(Demande().filtre, "png (*.png)|*.png");
    EXPECT_EQ(Demande().dossier, v.etabli.systeme.dossier);
    const QImage lue(v.etabli.Chemin("curve.png"));
    EXPECT_EQ(lue, ImageGraphe(Vue()));
    EXPECT_GT(essai::Part(lue, [](const QColor& c) { return c != QColor(Qt::white); }), 0.01);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(MenuGraphe, SavesADocumentOfVectors) {
    v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin("curve.pdf"));
    Choisir(v.Ui().EnregistrerPdf);
    EXPECT_EQ(Demande().nom, "2026-3-5.pdf");
    EXPECT_EQ(Demande().filtre, "pdf (*.pdf)|*.pdf");
    const Papier papier(v.etabli.Chemin("curve.pdf"));
    EXPECT_EQ(papier.pages, 1);
    EXPECT_EQ(papier.titre, "2026-3-5");
    EXPECT_TRUE(papier.texte.contains("Pression"));
    EXPECT_EQ(papier.Bitmaps(), 0);
    RienNEstCoupeNiRecouvert(papier);
}

TEST_F(MenuGraphe, OfSeveralRecordingsTheFirstGivesTheName) {
    v.EcrireEnregistrement("b.txt");
    v.OuvrirPlusieurs({"2026-3-5.txt", "b.txt"});
    v.etabli.dialogues.demandes.clear();
    v.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    v.Ui().EnregistrerPng->trigger();
    EXPECT_EQ(Demande().nom, "2026-3-5.png");
}

TEST_F(MenuGraphe, OnceTheRecordingIsDeletedTheProgramGivesTheName) {
    v.etabli.dialogues.AnnoncerQuestion(Reponse::Oui);
    v.Ui().Detruire->click();
    ASSERT_EQ(v.Fiche().NomFichierCourant, QString());
    AnnulerDeux();
    v.Ui().EnregistrerPng->trigger();
    v.Ui().EnregistrerPdf->trigger();
    ASSERT_EQ(v.etabli.dialogues.demandes.size(), 2U);
    EXPECT_EQ(v.etabli.dialogues.demandes[0].nom, "BORNIKA.png");
    EXPECT_EQ(v.etabli.dialogues.demandes[1].nom, "BORNIKA.pdf");
}

TEST_F(MenuGraphe, ACancelledDialogWritesNothing) {
    const QStringList avant = v.etabli.Fichiers();
    AnnulerDeux();
    v.Ui().EnregistrerPng->trigger();
    v.Ui().EnregistrerPdf->trigger();
    EXPECT_EQ(v.etabli.dialogues.demandes.size(), 2U);
    EXPECT_EQ(v.etabli.Fichiers(), avant);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
}

TEST_F(MenuGraphe, AFileThatCannotBeWrittenIsToldInOneBox) {
    const QString chemin = v.etabli.Chemin("missing/curve.png");
    v.etabli.dialogues.AnnoncerEnregistrement(chemin);
    v.Ui().EnregistrerPng->trigger();
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(v.etabli.dialogues.Boites()[0].icone, Icone::Critique);
    EXPECT_EQ(v.etabli.dialogues.Boites()[0].boutons, Boutons::Ok);
    EXPECT_EQ(v.etabli.dialogues.Boites()[0].titre, "k-Pod");
    EXPECT_TRUE(v.etabli.dialogues.Boites()[0].texte.startsWith(chemin + " : "));
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(MenuGraphe, AFileThatCannotBeReplacedStaysAsItWas) {
    // A folder in the way of the new file, whoever runs this.
    QDir(v.etabli.systeme.dossier).mkpath("curve.pdf/inside");
    v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin("curve.pdf"));
    const QStringList avant = v.etabli.Fichiers();
    v.Ui().EnregistrerPdf->trigger();
    EXPECT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(QFileInfo(v.etabli.Chemin("curve.pdf/inside")).isDir());
    EXPECT_EQ(v.etabli.Fichiers(), avant);
    EXPECT_TRUE(v.etabli.fautes.empty());
}

TEST_F(MenuGraphe, WhatIsSavedIsTheChartAsItStoodWhenTheEntryWasChosen) {
    const QImage avant = ImageGraphe(Vue());
    v.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        v.Modele().Serie(0).active = false;
        Vue().Repaint();
    };
    v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin("curve.png"));
    v.Ui().EnregistrerPng->trigger();
    EXPECT_EQ(QImage(v.etabli.Chemin("curve.png")), avant);
    EXPECT_NE(ImageGraphe(Vue()), avant);
}

TEST_F(MenuGraphe, AFormClosedWhileTheDialogStandsIsKeptUntilItsEnd) {
    Trace& fiche = v.Fiche();
    bool occupee = false;
    v.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        fiche.close();
        QCoreApplication::processEvents();
        occupee = fiche.EstOccupee();
    };
    v.etabli.dialogues.AnnoncerEnregistrement(v.etabli.Chemin("curve.png"));
    v.Ui().EnregistrerPng->trigger();
    EXPECT_TRUE(occupee);
    EXPECT_FALSE(QImage(v.etabli.Chemin("curve.png")).isNull());
}

}  // namespace
}  // namespace bornika
