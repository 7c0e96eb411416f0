#include "platform/text_file.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <cstring>
#include <memory>

#include "platform/code_page.h"
#include "platform/fault.h"
#include "platform/file_fixture.h"
#include "support/fault_number.h"
#include "support/limits.h"

namespace bornika {
namespace {

class FichierTexte : public essai::DossierDEssai {
  protected:
    static int NumeroCreation(const QString& chemin) {
        return essai::NumeroDeFaute([&] { FichierTexteEcrit(chemin, ModeEcriture::Remplacer); });
    }
};

TEST_F(FichierTexte, EndsWrittenLinesWithCarriageReturnAndLineFeed) {
    FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer);
    fichier.EcrireLigne(u"un");
    fichier.EcrireLigneOctets("deux");
    fichier.EcrireLigne(u"");
    fichier.Ecrire(u"trois");
    fichier.Fermer();
    EXPECT_EQ(Lire(Chemin("a.txt")), "un\r\ndeux\r\n\r\ntrois");
}

TEST_F(FichierTexte, WritesOneByteForEachCharacter) {
    FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer);
    fichier.EcrireLigne(QStringLiteral("N° série €"));
    fichier.Fermer();
    EXPECT_EQ(Lire(Chemin("a.txt")), "N\xB0 s\xE9rie \x80\r\n");
}

TEST_F(FichierTexte, ReplacesOrAppendsAsTold) {
    Poser(Chemin("a.txt"), "ancien\r\n");
    {
        FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Ajouter);
        fichier.EcrireLigne(u"suite");
    }
    EXPECT_EQ(Lire(Chemin("a.txt")), "ancien\r\nsuite\r\n");
    { FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer); }
    EXPECT_EQ(Lire(Chemin("a.txt")), "");
}

TEST_F(FichierTexte, AppendsToAFileThatIsNotThereYet) {
    {
        FichierTexteEcrit fichier(Chemin("neuf.txt"), ModeEcriture::Ajouter);
        fichier.EcrireLigne(u"un");
    }
    EXPECT_EQ(Lire(Chemin("neuf.txt")), "un\r\n");
}

TEST_F(FichierTexte, KeepsWhatItHadWhenTheProgramIsEnded) {
    FichierTexteEcrit un(Chemin("un.txt"), ModeEcriture::Remplacer);
    FichierTexteEcrit deux(Chemin("deux.txt"), ModeEcriture::Remplacer);
    un.EcrireLigne(u"1");
    deux.EcrireLigne(u"2");
    FichierTexteEcrit::ViderTous();
    EXPECT_EQ(Lire(Chemin("un.txt")), "1\r\n");
    EXPECT_EQ(Lire(Chemin("deux.txt")), "2\r\n");
}

TEST_F(FichierTexte, ForgetsClosedFilesWhenAllAreFlushed) {
    {
        FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer);
        fichier.EcrireLigne(u"1");
        fichier.Fermer();
        FichierTexteEcrit::ViderTous();
    }
    FichierTexteEcrit::ViderTous();
    EXPECT_EQ(Lire(Chemin("a.txt")), "1\r\n");
}

TEST_F(FichierTexte, BringsItsLinesToTheDiskWhenTheDelayIsOver) {
    FichierTexteEcrit lent(Chemin("lent.txt"), ModeEcriture::Remplacer, std::chrono::hours(1));
    lent.EcrireLigne(u"1");
    EXPECT_EQ(Lire(Chemin("lent.txt")), "");
    FichierTexteEcrit vif(Chemin("vif.txt"), ModeEcriture::Remplacer, std::chrono::seconds(0));
    vif.EcrireLigne(u"1");
    EXPECT_EQ(Lire(Chemin("vif.txt")), "1\r\n");
}

TEST_F(FichierTexte, WritesManyLinesWhole) {
    QByteArray attendu;
    FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer);
    for (int i = 0; i < 50000; ++i) {
        fichier.EcrireLigneOctets(QByteArray::number(i));
        attendu += QByteArray::number(i) + "\r\n";
    }
    EXPECT_GT(Lire(Chemin("a.txt")).size(), attendu.size() / 2);
    fichier.Fermer();
    EXPECT_EQ(Lire(Chemin("a.txt")), attendu);
}

TEST_F(FichierTexte, TellsThatTheDiskIsFull) {
    FichierTexteEcrit fichier(QStringLiteral("/dev/full"), ModeEcriture::Remplacer);
    fichier.EcrireLigne(u"perdu");
    const FauteExecution faute = essai::FauteDe([&] { fichier.Fermer(); });
    EXPECT_EQ(faute.numero(), 61);
    EXPECT_EQ(faute.texte().toStdString(), std::strerror(ENOSPC));
}

TEST_F(FichierTexte, TellsOfAFullDiskWhileItWrites) {
    FichierTexteEcrit fichier(QStringLiteral("/dev/full"), ModeEcriture::Remplacer);
    const FauteExecution faute = essai::FauteDe([&] {
        for (int i = 0; i < 100000; ++i)
            fichier.EcrireLigne(u"0123456789");
    });
    EXPECT_EQ(faute.numero(), 61);
}

TEST_F(FichierTexte, ClosesWhatIsNoFileOfADisk) {
    FichierTexteEcrit fichier(QStringLiteral("/dev/null"), ModeEcriture::Remplacer);
    fichier.EcrireLigne(u"nulle part");
    EXPECT_NO_THROW(fichier.Fermer());
}

TEST_F(FichierTexte, ClosesQuietlyWhenNobodyAsks) {
    EXPECT_NO_THROW({
        FichierTexteEcrit fichier(QStringLiteral("/dev/full"), ModeEcriture::Remplacer);
        fichier.EcrireLigne(u"perdu");
        FichierTexteEcrit::ViderTous();
    });
}

TEST_F(FichierTexte, TellsTheReasonOfAnyOtherFailedWriteAndLosesNoLine) {
    FichierTexteEcrit fichier(Chemin("a.txt"), ModeEcriture::Remplacer);
    fichier.EcrireLigne(u"0123456789ABCDEF");
    fichier.EcrireLigne(u"fin");
    {
        const essai::TailleLimitee limite(10);
        FichierTexteEcrit::ViderTous();
        EXPECT_EQ(Lire(Chemin("a.txt")), "0123456789");
        fichier.EcrireLigne(u"apres");
    }
    fichier.Fermer();
    EXPECT_EQ(Lire(Chemin("a.txt")), "0123456789ABCDEF\r\nfin\r\napres\r\n");

    FichierTexteEcrit autre(Chemin("b.txt"), ModeEcriture::Remplacer);
    autre.EcrireLigne(u"0123456789ABCDEF");
    const essai::TailleLimitee limite(10);
    const FauteExecution faute = essai::FauteDe([&] { autre.Fermer(); });
    EXPECT_EQ(faute.numero(), 70);
    EXPECT_EQ(faute.texte().toStdString(), std::strerror(EFBIG));
}

TEST_F(FichierTexte, FaultsWhenItCannotBeCreated) {
    EXPECT_EQ(NumeroCreation(Chemin("absent/a.txt")), 76);
    Poser(Chemin("plat"), "");
    EXPECT_EQ(NumeroCreation(Chemin("plat/a.txt")), 76);
    EXPECT_EQ(NumeroCreation(dossier.path()), 70);
    EXPECT_EQ(NumeroCreation(QString()), 52);
    EXPECT_EQ(NumeroCreation(Chemin("") + QString(300, u'x')), 52);
    EXPECT_EQ(NumeroCreation(Chemin("a") + QChar(u'\0') + QLatin1Char('b')), 52);
}

TEST_F(FichierTexte, FaultsWithTheStandardTextWhenItCannotBeCreated) {
    const auto faute =
        essai::FauteDe([&] { FichierTexteEcrit(Chemin("absent/a.txt"), ModeEcriture::Remplacer); });
    EXPECT_EQ(faute.texte(), "Path not found");
}

TEST_F(FichierTexte, ReadsLinesOfBothEnds) {
    Poser(Chemin("a.txt"), "un\r\ndeux\n\r\ntr\rois\r\r\nfin");
    FichierTexteLu fichier(Chemin("a.txt"));
    EXPECT_EQ(fichier.Taille(), 23);
    EXPECT_EQ(fichier.LireLigne(), "un");
    EXPECT_EQ(fichier.LireLigne(), "deux");
    EXPECT_EQ(fichier.LireLigne(), "");
    EXPECT_EQ(fichier.LireLigne(), "tr\rois\r");
    EXPECT_FALSE(fichier.EstFin());
    EXPECT_EQ(fichier.LireLigne(), "fin");
    EXPECT_TRUE(fichier.EstFin());
}

TEST_F(FichierTexte, EndsWithTheLineEndOfItsLastLine) {
    Poser(Chemin("a.txt"), "un\r\n");
    FichierTexteLu fichier(Chemin("a.txt"));
    fichier.LireLigne();
    EXPECT_TRUE(fichier.EstFin());
    EXPECT_EQ(fichier.LireLigne(), "");
}

TEST_F(FichierTexte, KnowsTheEndOfALine) {
    Poser(Chemin("a.txt"), "\r\n\nx\r");
    FichierTexteLu fichier(Chemin("a.txt"));
    EXPECT_TRUE(fichier.EstFinDeLigne());
    fichier.LireLigne();
    EXPECT_TRUE(fichier.EstFinDeLigne());
    fichier.LireLigne();
    EXPECT_FALSE(fichier.EstFinDeLigne());
    // One carriage return belongs to a line feed; alone at the end it is a byte of the line.
    EXPECT_EQ(fichier.LireLigne(), "x\r");
    EXPECT_TRUE(fichier.EstFinDeLigne());
}

TEST_F(FichierTexte, ReadsAnEmptyFile) {
    Poser(Chemin("a.txt"), "");
    FichierTexteLu fichier(Chemin("a.txt"));
    EXPECT_EQ(fichier.Taille(), 0);
    EXPECT_TRUE(fichier.EstFin());
    EXPECT_TRUE(fichier.EstFinDeLigne());
    EXPECT_EQ(fichier.LireLigne(), "");
}

TEST_F(FichierTexte, KeepsItsLinesWhenTheFileIsWrittenAnewMeanwhile) {
    Poser(Chemin("a.txt"), "un\r\ndeux\r\n");
    FichierTexteLu fichier(Chemin("a.txt"));
    Poser(Chemin("a.txt"), "");
    EXPECT_EQ(fichier.LireLigne(), "un");
    EXPECT_EQ(fichier.LireLigne(), "deux");
}

TEST_F(FichierTexte, FaultsWhenItCannotBeRead) {
    EXPECT_EQ(essai::NumeroDeFaute([&] { FichierTexteLu(Chemin("absent.txt")); }), 53);
    EXPECT_EQ(essai::NumeroDeFaute([&] { FichierTexteLu(dossier.path()); }), 70);
}

TEST(PageDeCode, GivesEveryByteBack) {
    QByteArray tous;
    for (int i = 0; i < 256; ++i)
        tous.append(static_cast<char>(i));
    EXPECT_EQ(Depuis8Bits(tous).size(), 256);
    EXPECT_EQ(Vers8Bits(Depuis8Bits(tous)), tous);
}

TEST(PageDeCode, KnowsTheSignsBetweenControlsAndLetters) {
    EXPECT_EQ(Depuis8Bits("\x80\x99\x9C\xB0\xE9\xFF"), QStringLiteral("€™œ°éÿ"));
    EXPECT_EQ(Vers8Bits(u"€™œ°éÿŸ"), "\x80\x99\x9C\xB0\xE9\xFF\x9F");
}

TEST(PageDeCode, LeavesTheFiveUndefinedBytesAsControls) {
    EXPECT_EQ(Depuis8Bits("\x81\x8D\x8F\x90\x9D"),
              QStringLiteral("\u0081\u008D\u008F\u0090\u009D"));
}

TEST(PageDeCode, WritesAQuestionMarkForEachCharacterThatItLacks) {
    EXPECT_EQ(Vers8Bits(u"a\u0416b"), "a?b");
    EXPECT_EQ(Vers8Bits(u"a\U0001F600b"), "a?b");
    EXPECT_EQ(Vers8Bits(u"\u0080"), "?");
}

}  // namespace
}  // namespace bornika
