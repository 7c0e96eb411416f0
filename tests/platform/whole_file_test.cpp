#include "platform/whole_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/fault_number.h"

namespace bornika {
namespace {

using essai::NumeroDeFaute;

struct FichierEntier : testing::Test {
    QTemporaryDir dossier;
    QString chemin = dossier.filePath(QStringLiteral("a.txt"));

    void Poser(const QByteArray& octets) {
        QFile fichier(chemin);
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        ASSERT_EQ(fichier.write(octets), octets.size());
    }
};

TEST_F(FichierEntier, IsReadWholeAndAMissingOneIsNone) {
    EXPECT_FALSE(FichierExiste(chemin));
    EXPECT_FALSE(LireTout(chemin).has_value());
    Poser({"a\r\n\0b", 5});
    EXPECT_TRUE(FichierExiste(chemin));
    EXPECT_EQ(LireTout(chemin), QByteArray("a\r\n\0b", 5));
    Poser({});
    EXPECT_EQ(LireTout(chemin), QByteArray());
}

TEST_F(FichierEntier, IsCopiedButNeverOverAnother) {
    const QString autre = dossier.filePath(QStringLiteral("b.txt"));
    EXPECT_FALSE(CopierFichier(chemin, autre));
    Poser("one");
    EXPECT_TRUE(CopierFichier(chemin, autre));
    EXPECT_EQ(LireTout(autre), QByteArray("one"));
    Poser("two");
    EXPECT_FALSE(CopierFichier(chemin, autre));
    EXPECT_EQ(LireTout(autre), QByteArray("one"));
}

TEST_F(FichierEntier, IsRemovedThoughItIsProtected) {
    Poser("one");
    ASSERT_TRUE(QFile::setPermissions(chemin, QFile::ReadOwner));
    EffacerFichier(chemin);
    EXPECT_FALSE(FichierExiste(chemin));
    EXPECT_EQ(NumeroDeFaute([&] { EffacerFichier(chemin); }), numero_faute::fichierIntrouvable);
    // A folder is no file.
    EXPECT_EQ(NumeroDeFaute([&] { EffacerFichier(dossier.path()); }), numero_faute::accesRefuse);
}

TEST_F(FichierEntier, IsReadInPiecesUpToItsEnd) {
    Poser("abcde");
    FichierParMorceaux fichier(chemin);
    EXPECT_EQ(fichier.Lire(2), "ab");
    EXPECT_EQ(fichier.Lire(2), "cd");
    EXPECT_EQ(fichier.Lire(2), "e");
    EXPECT_EQ(fichier.Lire(2), QByteArray());
}

TEST_F(FichierEntier, TellsAMissingFileFromOneThatCannotBeRead) {
    EXPECT_EQ(NumeroDeFaute([&] { FichierParMorceaux{chemin}; }), numero_faute::fichierIntrouvable);
    EXPECT_EQ(NumeroDeFaute([&] { FichierParMorceaux{dossier.path()}; }),
              numero_faute::accesRefuse);
}

}  // namespace
}  // namespace bornika
