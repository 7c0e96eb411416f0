#include "viewer/file_drop.h"

#include <gtest/gtest.h>

#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "viewer/export_scene.h"

namespace bornika::essai {
namespace {

/// Files dragged over the viewer and dropped on it.
class FileDrop : public Sorties {
  protected:
    void SetUp() override {
        v.EcrireEnregistrement("a.txt", 30);
        v.EcrireEnregistrement("b.txt", 20);
        v.Fiche().show();
    }
    void Prendre(const QStringList& noms) {
        QList<QUrl> adresses;
        for (const QString& nom : noms)
            adresses << QUrl::fromLocalFile(v.etabli.Chemin(nom));
        donnees.setUrls(adresses);
    }
    /// True when the place would take what is dragged.
    bool Survoler(QWidget& lieu) {
        QDragEnterEvent entree(QPoint(5, 5), actions, &donnees, Qt::LeftButton, Qt::NoModifier);
        QDragMoveEvent pas(QPoint(6, 6), actions, &donnees, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&lieu, &entree);
        QCoreApplication::sendEvent(&lieu, &pas);
        EXPECT_EQ(entree.isAccepted(), pas.isAccepted());
        return entree.isAccepted();
    }
    bool Deposer(QWidget& lieu) {
        Survoler(lieu);
        QDropEvent depot(QPointF(6, 6), actions, &donnees, Qt::LeftButton, Qt::NoModifier);
        depot.setDropAction(depot.proposedAction());
        QCoreApplication::sendEvent(&lieu, &depot);
        action = depot.dropAction();
        return depot.isAccepted();
    }
    /// The load comes after the drop.
    static void Attendre() { QCoreApplication::processEvents(); }
    QWidget& PageCommentaires() { return *v.Ui().Commentaires->viewport(); }

    QMimeData donnees;
    Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction;
    Qt::DropAction action = Qt::IgnoreAction;
};

TEST_F(FileDrop, OpensARecordingLikeThePickedOne) {
    Prendre({"a.txt"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    EXPECT_EQ(v.Modele().NombreSeries(), 0);
    Attendre();
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Fiche().NomDialogue, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 30);
    EXPECT_EQ(v.Modele().NombreSeries(), 4);
}

TEST_F(FileDrop, OpensSeveralRecordingsOfOneFolderInOneView) {
    Prendre({"a.txt", "b.txt"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    Attendre();
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.Plusieurs({"a.txt", "b.txt"}));
    EXPECT_EQ(v.Fiche().windowTitle(), v.etabli.systeme.dossier);
    ASSERT_EQ(v.Modele().NombreSeries(), 4);
    EXPECT_EQ(v.Modele().Serie(2).Nombre(), 20);
}

TEST_F(FileDrop, TakesNamesInAnyLetterCase) {
    v.EcrireEnregistrement("REC.TXT", 10);
    Prendre({"REC.TXT"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    Attendre();
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 10);
}

TEST_F(FileDrop, RefusesWhatIsNoRecording) {
    ASSERT_TRUE(QDir().mkdir(v.etabli.Chemin("folder.txt")));
    for (const QStringList& noms :
         {QStringList{"config.xml"}, {"folder.txt"}, {"absent.txt"}, {"a.txt", "config.xml"}}) {
        Prendre(noms);
        EXPECT_FALSE(Deposer(v.Fiche())) << noms.join(' ').toStdString();
    }
    donnees.setUrls({QUrl("http://example.org/a.txt")});
    EXPECT_FALSE(Deposer(v.Fiche()));
    donnees.clear();
    donnees.setText("a.txt");
    EXPECT_FALSE(Deposer(v.Fiche()));
    Attendre();
    EXPECT_EQ(v.Modele().NombreSeries(), 0);
    EXPECT_TRUE(v.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(Fautes().empty());
}

TEST_F(FileDrop, RefusesRecordingsOfSeveralFolders) {
    ASSERT_TRUE(QDir().mkdir(v.etabli.Chemin("folder")));
    v.EcrireEnregistrement("folder/c.txt", 10);
    Prendre({"a.txt", "folder/c.txt"});
    EXPECT_FALSE(Deposer(v.Fiche()));
}

TEST_F(FileDrop, LeavesTheRecordingWhereItIs) {
    Prendre({"a.txt"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    EXPECT_EQ(action, Qt::CopyAction);
    actions = Qt::MoveAction | Qt::LinkAction;
    EXPECT_TRUE(Deposer(v.Fiche()));
    EXPECT_EQ(action, Qt::LinkAction);
    actions = Qt::MoveAction;
    EXPECT_FALSE(Deposer(v.Fiche()));
}

TEST_F(FileDrop, OnATextBoxOpensTheRecordingInsteadOfWritingItsAddress) {
    Montrer("b.txt");
    for (QWidget* boite : {&PageCommentaires(), static_cast<QWidget*>(v.Ui().CoefImpulsion)}) {
        const QString avant = v.Ui().CoefImpulsion->text();
        Prendre({"a.txt"});
        EXPECT_TRUE(Deposer(*boite));
        Attendre();
        EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
        EXPECT_EQ(v.Ui().Commentaires->toPlainText(), QString());
        EXPECT_EQ(v.Ui().CoefImpulsion->text(), avant);
        Montrer("b.txt");
    }
    Prendre({"config.xml"});
    EXPECT_FALSE(Deposer(PageCommentaires()));
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), QString());
}

TEST_F(FileDrop, OnTheChartOpensTheRecordingToo) {
    Montrer("b.txt");
    Prendre({"a.txt"});
    EXPECT_TRUE(Deposer(v.Regard().Surface()));
    Attendre();
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 30);
}

TEST_F(FileDrop, LeavesTextsToTheTextBoxes) {
    Montrer("a.txt");
    donnees.setText("valve closed");
    EXPECT_TRUE(Deposer(PageCommentaires()));
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), "valve closed");
}

TEST_F(FileDrop, RefusesWhileALoadRuns) {
    Prendre({"b.txt"});
    int essais = 0;
    v.etabli.respiration.ReglerEvenements([&] {
        if (++essais == 10) {
            EXPECT_FALSE(Deposer(v.Fiche()));
        }
    });
    v.Ouvrir("a.txt");
    Attendre();
    EXPECT_GE(essais, 10);
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
}

TEST_F(FileDrop, RefusesWhileADialogOfTheFormStands) {
    Prendre({"b.txt"});
    v.etabli.dialogues.pendantDemande = [this](const DemandeFichier&) {
        EXPECT_FALSE(Deposer(v.Fiche()));
    };
    v.Ouvrir("a.txt");
    QDialog autre(&v.Fiche());
    autre.setModal(true);
    autre.show();
    EXPECT_FALSE(Deposer(v.Fiche()));
    autre.hide();
    EXPECT_TRUE(Deposer(v.Fiche()));
}

TEST_F(FileDrop, IsForgottenWhenALoadBeganBeforeItsTurn) {
    Prendre({"b.txt"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    // The load lets the interface run, and the drop finds its form at work.
    v.etabli.respiration.ReglerEvenements([] { QCoreApplication::processEvents(); });
    v.Ouvrir("a.txt");
    Attendre();
    EXPECT_EQ(v.Fiche().NomFichierCourant, v.etabli.Chemin("a.txt"));
    EXPECT_EQ(v.Modele().Serie(0).Nombre(), 30);
}

TEST_F(FileDrop, IsForgottenWhenTheFormIsClosed) {
    Prendre({"b.txt"});
    EXPECT_TRUE(Deposer(v.Fiche()));
    v.Fiche().close();
    Attendre();
    Attendre();
    EXPECT_EQ(v.Modele().NombreSeries(), 0);
}

}  // namespace
}  // namespace bornika::essai
