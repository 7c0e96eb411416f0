#include "platform/block_append.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QTemporaryDir>
#include <cstring>

#include "platform/fault.h"
#include "support/fault_number.h"
#include "support/limits.h"

namespace bornika::essai {
namespace {

struct BlocAjoute : testing::Test {
    QTemporaryDir dossier;

    QString Chemin(const char* nom) const { return dossier.filePath(QString::fromLatin1(nom)); }
    QByteArray Lire(const char* nom) const {
        QFile fichier(Chemin(nom));
        return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray("?");
    }
    void Poser(const char* nom, const QByteArray& contenu) const {
        QFile fichier(Chemin(nom));
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
    int Numero(const QString& chemin) {
        return NumeroDeFaute([&] { AjouterBloc(chemin, "bloc\r\n"); });
    }
};

TEST_F(BlocAjoute, CreatesTheFileAndPutsEachBlockBehindTheLast) {
    AjouterBloc(Chemin("a.log"), "un\r\n");
    AjouterBloc(Chemin("a.log"), "deux\r\n");
    EXPECT_EQ(Lire("a.log"), "un\r\ndeux\r\n");
}

TEST_F(BlocAjoute, KeepsTheBytesOfTheBlockAsTheyAre) {
    AjouterBloc(Chemin("a.log"), QByteArray("\0\xB0\n", 3));
    EXPECT_EQ(Lire("a.log"), QByteArray("\0\xB0\n", 3));
}

TEST_F(BlocAjoute, CutsAHalfWrittenBlockOffAgain) {
    Poser("a.log", "ancien\r\n");
    {
        const TailleLimitee limite(8 + 3);
        const FauteExecution faute = FauteDe([&] { AjouterBloc(Chemin("a.log"), "nouveau\r\n"); });
        EXPECT_EQ(faute.numero(), 70);
        EXPECT_EQ(faute.texte().toStdString(), std::strerror(EFBIG));
    }
    EXPECT_EQ(Lire("a.log"), "ancien\r\n");
    AjouterBloc(Chemin("a.log"), "nouveau\r\n");
    EXPECT_EQ(Lire("a.log"), "ancien\r\nnouveau\r\n");
}

TEST_F(BlocAjoute, LeavesAFileEmptyThatItCouldOnlyBegin) {
    {
        const TailleLimitee limite(3);
        EXPECT_EQ(Numero(Chemin("a.log")), 70);
    }
    EXPECT_EQ(Lire("a.log"), "");
    EXPECT_EQ(Numero(Chemin("a.log")), 0);
    EXPECT_EQ(Lire("a.log"), "bloc\r\n");
}

TEST_F(BlocAjoute, TellsOfAFullDisk) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), Chemin("plein.log")));
    EXPECT_EQ(Numero(Chemin("plein.log")), 61);
}

TEST_F(BlocAjoute, LeavesAProtectedFileAsItIs) {
    Poser("a.log", "ancien\r\n");
    ASSERT_TRUE(QFile::setPermissions(Chemin("a.log"), QFile::ReadOwner | QFile::ReadOther));
    ASSERT_EQ(chmod(QFile::encodeName(dossier.path()).constData(), 0755), 0);
    {
        const SansPrivilege ordinaire;
        EXPECT_EQ(Numero(Chemin("a.log")), 70);
    }
    EXPECT_EQ(Lire("a.log"), "ancien\r\n");
}

TEST_F(BlocAjoute, FaultsWhereNoFileCanBe) {
    Poser("plat", "");
    EXPECT_EQ(Numero(Chemin("absent/a.log")), 76);
    EXPECT_EQ(Numero(Chemin("plat/a.log")), 76);
    EXPECT_EQ(Numero(dossier.path()), 70);
    EXPECT_EQ(Numero(QString()), 52);
    EXPECT_EQ(Numero(Chemin("a") + QChar(u'\0')), 52);
    EXPECT_EQ(Numero(dossier.filePath(QString(300, u'x'))), 52);
}

TEST_F(BlocAjoute, WaitsForNobodyAtAPipeWithoutAReader) {
    ASSERT_EQ(mkfifo(QFile::encodeName(Chemin("tuyau")).constData(), 0600), 0);
    EXPECT_EQ(Numero(Chemin("tuyau")), 70);
}

}  // namespace
}  // namespace bornika::essai
