#include "recording/comment_file.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/fault.h"

namespace bornika::essai {

namespace {

struct FichierCommentaires : testing::Test {
    QTemporaryDir dossier;
    QString chemin = dossier.filePath(QStringLiteral("a.cmt"));

    void Poser(const QByteArray& contenu) const {
        QFile fichier(chemin);
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        ASSERT_EQ(fichier.write(contenu), contenu.size());
    }
    QByteArray Octets() const {
        QFile fichier(chemin);
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("(none)");
    }
    void Ecrire(const QString& texte, ModeEcriture mode = ModeEcriture::Remplacer) const {
        EcrireTexteCommentaires(chemin, texte, mode);
    }
    std::string Lu() const { return LireTexteCommentaires(chemin).toStdString(); }
};

}  // namespace

TEST(NomCommentaires, EndsAtTheFirstDotOfTheRecordingsName) {
    const auto nom = [](const char* enregistrement) {
        return NomCommentaires(QString::fromUtf8(enregistrement)).toStdString();
    };
    EXPECT_EQ(nom("2026-03-05-14-07-09.txt"), "2026-03-05-14-07-09.cmt");
    EXPECT_EQ(nom("a.b.c.txt"), "a.cmt");
    EXPECT_EQ(nom("abc"), "abc.cmt");
    EXPECT_EQ(nom(".txt"), ".cmt");
    EXPECT_EQ(nom("réseau nord.TXT"), "réseau nord.cmt");
}

TEST_F(FichierCommentaires, HasOneByteACharacterAndCrLfAtEachLineEndAndBehindTheText) {
    Ecrire(QStringLiteral("réseau nord\n2 Ω\n"));
    EXPECT_EQ(Octets(), "r\xE9seau nord\r\n2 ?\r\n\r\n");
    Ecrire(QString());
    EXPECT_EQ(Octets(), "\r\n");
}

TEST_F(FichierCommentaires, TakesThePlaceOfAnOlderOneOrStandsBehindIt) {
    Poser("a much longer text than the new one");
    Ecrire(QStringLiteral("x"));
    EXPECT_EQ(Octets(), "x\r\n");
    Ecrire(QStringLiteral("y"), ModeEcriture::Ajouter);
    EXPECT_EQ(Octets(), "x\r\ny\r\n");
}

TEST_F(FichierCommentaires, ThatCannotBeMadeOrWrittenIsAFaultThatNamesIt) {
    const auto faute = [this] {
        try {
            Ecrire(QStringLiteral("x"));
        } catch (const FauteExecution& levee) {
            return levee;
        }
        return FauteExecution(0);
    };
    ASSERT_TRUE(QDir(dossier.path()).mkdir(QStringLiteral("a.cmt")));
    EXPECT_EQ(faute().numero(), numero_faute::accesRefuse);
    EXPECT_TRUE(faute().texte().startsWith(chemin + QStringLiteral(" : ")));
    ASSERT_TRUE(QDir(dossier.path()).rmdir(QStringLiteral("a.cmt")));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), chemin));
    EXPECT_EQ(faute().numero(), numero_faute::disquePlein);
    EXPECT_TRUE(faute().texte().startsWith(chemin + QStringLiteral(" : ")));
}

TEST_F(FichierCommentaires, IsReadWholeWithItsLineEndsAsTheyStand) {
    Poser("n\xB0 1\r\nsecond\nlast");
    EXPECT_EQ(Lu(), "n° 1\r\nsecond\nlast");
}

TEST_F(FichierCommentaires, WhoseFirstLineIsEmptyReadsAsNoText) {
    for (const char* contenu : {"", "\r\nsecond line\r\n", "\nsecond line\r\n"}) {
        Poser(contenu);
        EXPECT_EQ(Lu(), "");
        EXPECT_EQ(Octets(), contenu);
    }
}

TEST_F(FichierCommentaires, ThatIsMissingIsMadeEmptyByTheReading) {
    EXPECT_EQ(Lu(), "");
    EXPECT_EQ(Octets(), "");
}

TEST_F(FichierCommentaires, ThatCannotBeReadIsAFault) {
    ASSERT_TRUE(QDir(dossier.path()).mkdir(QStringLiteral("a.cmt")));
    EXPECT_THROW(Lu(), FauteExecution);
    chemin = dossier.filePath(QStringLiteral("nowhere/a.cmt"));
    EXPECT_THROW(Lu(), FauteExecution);
}

}  // namespace bornika::essai
