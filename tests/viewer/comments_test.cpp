#include "viewer/comments.h"

#include <gtest/gtest.h>

#include "viewer/viewer_fixture.h"

namespace bornika {
namespace {

using essai::Visionneuse;

TEST(Comments, AreStoredBesideTheRecordingWithOneLineEndAdded) {
    Visionneuse v;
    v.Ui().Commentaires->setPlainText("réseau nord");
    EnregistrerCommentaires(v.Fiche(), "2026-3-5-14-7-9.txt");
    EXPECT_EQ(v.etabli.Lire("2026-3-5-14-7-9.cmt"), QByteArray("r\xE9seau nord\r\n"));
}

TEST(Comments, KeepTheirLinesWithBothCharactersOfALineEnd) {
    Visionneuse v;
    v.Ui().Commentaires->setPlainText("one\r\ntwo\r\n");
    EnregistrerCommentaires(v.Fiche(), "a.txt");
    EXPECT_EQ(v.etabli.Lire("a.cmt"), "one\r\ntwo\r\n\r\n");
}

TEST(Comments, TheBaseEndsAtTheFirstDot) {
    Visionneuse v;
    EnregistrerCommentaires(v.Fiche(), "a.b.c.txt");
    EXPECT_TRUE(v.etabli.Fichiers().contains("a.cmt"));
    EXPECT_FALSE(v.etabli.Fichiers().contains("a.b.c.cmt"));
}

TEST(Comments, AnArgumentWithoutADotIsTheWholeBase) {
    Visionneuse v;
    EnregistrerCommentaires(v.Fiche(), "abc");
    EXPECT_TRUE(v.etabli.Fichiers().contains("abc.cmt"));
}

TEST(Comments, ReplaceAnOlderFile) {
    Visionneuse v;
    v.etabli.Ecrire("a.cmt", "a much longer text than the new one");
    v.Ui().Commentaires->setPlainText("x");
    EnregistrerCommentaires(v.Fiche(), "a.txt");
    EXPECT_EQ(v.etabli.Lire("a.cmt"), "x\r\n");
}

TEST(Comments, AnEmptyArgumentGivesABoxThatIsNotTranslated) {
    Visionneuse v;
    v.ecran.configuration.RemplitListeLangues(*v.ecran.ui->ListeLangues, "English");
    v.Fiche();
    const QByteArray catalogue = v.etabli.Lire("config.xml");
    const QStringList avant = v.etabli.Fichiers();
    EnregistrerCommentaires(v.Fiche(), "");
    ASSERT_EQ(v.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = v.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.texte, "Vous devez saisir un fichier");
    EXPECT_EQ(boite.icone, Icone::Exclamation);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, "k-Pod");
    EXPECT_EQ(v.etabli.Fichiers(), avant);
    EXPECT_EQ(v.etabli.Lire("config.xml"), catalogue);
}

TEST(Comments, AFileThatCannotBeMadeIsAFault) {
    Visionneuse v;
    QDir(v.etabli.systeme.dossier).mkdir("a.cmt");
    EXPECT_THROW(EnregistrerCommentaires(v.Fiche(), "a.txt"), FauteExecution);
}

TEST(Comments, OfARecordingAreNotBroughtBackByOpeningIt) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.etabli.Ecrire("a.cmt", "stored long ago\r\n");
    v.Fiche().show();
    v.Ui().Commentaires->setPlainText("what stands here");
    v.Ouvrir("a.txt");
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), "what stands here");
    EXPECT_EQ(v.Modele().titre, QStringList{"what stands here"});
    EXPECT_EQ(v.etabli.Lire("a.cmt"), "stored long ago\r\n");
}

TEST(Comments, WhenEmptyTakeTheTextOfTheEvent) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.Ui().NomEvenement->setText("burst main");
    v.Fiche().show();
    v.Ouvrir("a.txt");
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), "burst main");
}

TEST(Comments, TheButtonEnregistrerHasNoActionAndIsHiddenByEachLoad) {
    Visionneuse v;
    v.EcrireEnregistrement("a.txt");
    v.Fiche().show();
    v.Ui().Enregistrer->show();
    const QStringList avant = v.etabli.Fichiers();
    v.Ui().Enregistrer->setEnabled(true);
    v.Ui().Enregistrer->click();
    EXPECT_EQ(v.etabli.Fichiers(), avant);
    v.Ouvrir("a.txt");
    EXPECT_FALSE(v.Ui().Enregistrer->isVisible());
}

TEST(CommentFile, OfARecordingIsReadWhole) {
    Visionneuse v;
    v.etabli.Ecrire("a.cmt", "n\xB0 1\r\nsecond line\r\n");
    LireFichierCommentaires(v.Fiche(), "a.txt");
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), "n° 1\nsecond line\n");
}

TEST(CommentFile, ThatIsMissingIsMadeAndEmptiesTheBox) {
    Visionneuse v;
    v.Ui().Commentaires->setPlainText("old");
    LireFichierCommentaires(v.Fiche(), "a.txt");
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), QString());
    EXPECT_TRUE(v.etabli.Fichiers().contains("a.cmt"));
}

TEST(Comments, ADiskThatIsFullIsAFault) {
    Visionneuse v;
    ASSERT_TRUE(QFile::link("/dev/full", v.etabli.Chemin("a.cmt")));
    v.Ui().Commentaires->setPlainText("x");
    EXPECT_THROW(EnregistrerCommentaires(v.Fiche(), "a.txt"), FauteExecution);
}

TEST(CommentFile, WhoseFirstLineIsEmptyEmptiesTheBox) {
    Visionneuse v;
    v.etabli.Ecrire("a.cmt", "\r\nsecond line\r\n");
    v.Ui().Commentaires->setPlainText("old");
    LireFichierCommentaires(v.Fiche(), "a.b.txt");
    EXPECT_EQ(v.Ui().Commentaires->toPlainText(), QString());
}

}  // namespace
}  // namespace bornika
