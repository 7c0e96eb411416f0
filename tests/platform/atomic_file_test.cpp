#include "platform/atomic_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/fault.h"
#include "platform/file_fixture.h"
#include "platform/program_folder.h"
#include "support/fault_number.h"
#include "support/limits.h"

namespace bornika {
namespace {

class FichierRemplace : public essai::DossierDEssai {
  protected:
    static int NumeroDe(const QString& chemin, const QByteArray& contenu) {
        return essai::NumeroDeFaute([&] { RemplacerFichier(chemin, contenu); });
    }
    QStringList Fichiers() const {
        return QDir(dossier.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }
};

TEST_F(FichierRemplace, TakesThePlaceOfTheOldOneAndLeavesNothingBeside) {
    Poser(Chemin("a.xml"), "ancien et plus long");
    RemplacerFichier(Chemin("a.xml"), "neuf");
    EXPECT_EQ(Lire(Chemin("a.xml")), "neuf");
    EXPECT_EQ(Fichiers(), QStringList{"a.xml"});
}

TEST_F(FichierRemplace, IsMadeWhenThereWasNone) {
    RemplacerFichier(Chemin("a.xml"), "neuf");
    EXPECT_EQ(Lire(Chemin("a.xml")), "neuf");
    EXPECT_EQ(Fichiers(), QStringList{"a.xml"});
}

TEST_F(FichierRemplace, IsAnotherFileSoThatHalfAWriteIsNeverSeen) {
    Poser(Chemin("a.xml"), "ancien");
    QFile ouvert(Chemin("a.xml"));
    ASSERT_TRUE(ouvert.open(QIODevice::ReadOnly));
    RemplacerFichier(Chemin("a.xml"), "neuf");
    EXPECT_EQ(ouvert.readAll(), "ancien");
}

TEST_F(FichierRemplace, KeepsItsPermissions) {
    Poser(Chemin("a.xml"), "ancien");
    ASSERT_EQ(::chmod(QFile::encodeName(Chemin("a.xml")).constData(), 0640), 0);
    RemplacerFichier(Chemin("a.xml"), "neuf");
    struct stat infos {};
    ASSERT_EQ(::stat(QFile::encodeName(Chemin("a.xml")).constData(), &infos), 0);
    EXPECT_EQ(infos.st_mode & 07777, 0640U);
}

TEST_F(FichierRemplace, IsTheTargetOfALink) {
    ASSERT_TRUE(QDir(dossier.path()).mkdir(QStringLiteral("vrai")));
    Poser(Chemin("vrai/a.xml"), "ancien");
    ASSERT_TRUE(QFile::link(Chemin("vrai/a.xml"), Chemin("milieu.xml")));
    ASSERT_TRUE(QFile::link(Chemin("milieu.xml"), Chemin("a.xml")));
    RemplacerFichier(Chemin("a.xml"), "neuf");
    EXPECT_EQ(Lire(Chemin("vrai/a.xml")), "neuf");
    EXPECT_TRUE(QFileInfo(Chemin("a.xml")).isSymLink());
    EXPECT_TRUE(QFileInfo(Chemin("milieu.xml")).isSymLink());
}

TEST_F(FichierRemplace, StandsUntouchedWhenTheNewOneCannotBeWritten) {
    Poser(Chemin("a.xml"), "ancien");
    {
        const essai::TailleLimitee limite(100);
        EXPECT_EQ(NumeroDe(Chemin("a.xml"), QByteArray(1000, 'x')), 70);
    }
    EXPECT_EQ(Lire(Chemin("a.xml")), "ancien");
    EXPECT_EQ(Fichiers(), QStringList{"a.xml"});
}

TEST_F(FichierRemplace, FaultsInAFolderThatIsNotThere) {
    EXPECT_EQ(NumeroDe(Chemin("absent/a.xml"), "neuf"), 76);
}

TEST_F(FichierRemplace, MayBearTheLongestNameOfTheSystem) {
    const QByteArray nom(255, 'n');
    RemplacerFichier(Chemin(nom.constData()), "ancien");
    RemplacerFichier(Chemin(nom.constData()), "neuf");
    EXPECT_EQ(Lire(Chemin(nom.constData())), "neuf");
    EXPECT_EQ(Fichiers(), QStringList{QString::fromLatin1(nom)});
    EXPECT_EQ(NumeroDe(Chemin(QByteArray(256, 'n').constData()), "neuf"), 52);
    EXPECT_EQ(Fichiers().size(), 1);
}

TEST_F(FichierRemplace, IsNoFolder) {
    ASSERT_TRUE(QDir(dossier.path()).mkdir(QStringLiteral("plat")));
    EXPECT_EQ(NumeroDe(Chemin("plat"), "neuf"), 70);
    EXPECT_TRUE(Fichiers().isEmpty());
}

TEST_F(FichierRemplace, IsNotReplacedWhenItIsProtected) {
    Poser(Chemin("a.xml"), "ancien");
    ASSERT_EQ(::chmod(QFile::encodeName(Chemin("a.xml")).constData(), 0444), 0);
    // The folder alone would let it be replaced.
    ASSERT_EQ(::chmod(QFile::encodeName(dossier.path()).constData(), 0777), 0);
    {
        const essai::SansPrivilege ordinaire;
        EXPECT_EQ(NumeroDe(Chemin("a.xml"), "neuf"), 70);
    }
    EXPECT_EQ(Lire(Chemin("a.xml")), "ancien");
    EXPECT_EQ(Fichiers(), QStringList{"a.xml"});
}

TEST_F(FichierRemplace, IsNeverADeviceOrAPipe) {
    const QByteArray tube = QFile::encodeName(Chemin("tube"));
    ASSERT_EQ(::mkfifo(tube.constData(), 0600), 0);
    EXPECT_EQ(NumeroDe(Chemin("tube"), "neuf"), 70);  // nobody reads from it
    const int lecteur = ::open(tube.constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(lecteur, 0);
    EXPECT_EQ(NumeroDe(Chemin("tube"), "neuf"), 0);
    char lus[8] = {};
    EXPECT_EQ(::read(lecteur, lus, sizeof lus), 4);
    ::close(lecteur);
    EXPECT_STREQ(lus, "neuf");
    EXPECT_EQ(Fichiers(), QStringList{"tube"});

    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), Chemin("plein")));
    EXPECT_EQ(NumeroDe(Chemin("plein"), "neuf"), 61);
    struct stat infos {};
    ASSERT_EQ(::stat("/dev/full", &infos), 0);
    EXPECT_TRUE(S_ISCHR(infos.st_mode));
}

TEST_F(FichierRemplace, GetsPastWhatACutOffProcessLeft) {
    Poser(Chemin(".bornika-") + QString::number(::getpid()) + QStringLiteral("-a.xml.tmp"),
          "reste");
    RemplacerFichier(Chemin("a.xml"), "neuf");
    EXPECT_EQ(Fichiers(), QStringList{"a.xml"});
}

class PreparedFile : public FichierRemplace {};

TEST_F(PreparedFile, AppearsWholeUnderItsNameAndNotBefore) {
    FichierPrepare prepare(Chemin("rec.txt"));
    prepare.Ecrire("one ");
    prepare.Ecrire("");
    prepare.Ecrire(QByteArrayView("two\0\x1A\xFF", 6));
    EXPECT_FALSE(QFile::exists(Chemin("rec.txt")));
    prepare.MettreEnPlace();
    EXPECT_EQ(Lire(Chemin("rec.txt")), QByteArray("one two\0\x1A\xFF", 10));
    EXPECT_EQ(Fichiers(), QStringList{"rec.txt"});
}

TEST_F(PreparedFile, LeavesNothingWhenItIsGivenUp) {
    { FichierPrepare(Chemin("rec.txt")).Ecrire("half"); }
    EXPECT_TRUE(Fichiers().isEmpty());
}

TEST_F(PreparedFile, SeveralWaitSideBySide) {
    FichierPrepare premier(Chemin("a.txt"));
    premier.Ecrire("a");
    RemplacerFichier(Chemin("b.txt"), "b");
    premier.MettreEnPlace();
    EXPECT_EQ(Lire(Chemin("a.txt")), "a");
    EXPECT_EQ(Lire(Chemin("b.txt")), "b");
    EXPECT_EQ(Fichiers().size(), 2);
}

TEST_F(PreparedFile, FaultsInAFolderThatIsNotThere) {
    EXPECT_EQ(essai::NumeroDeFaute([&] { FichierPrepare(Chemin("absent/rec.txt")); }), 76);
}

TEST(Dossier, OfTheProgramIsTheOneOfItsFile) {
    EXPECT_TRUE(QFileInfo(DossierProgramme()).isDir());
    EXPECT_TRUE(QFile::exists(DossierProgramme() + QStringLiteral("/test_platform")));
}

TEST(Dossier, IsTriedForWritingAndLeftAsItWas) {
    QTemporaryDir dossier;
    EXPECT_TRUE(DossierInscriptible(dossier.path()));
    EXPECT_TRUE(QDir(dossier.path())
                    .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                    .isEmpty());
    EXPECT_FALSE(DossierInscriptible(dossier.filePath(QStringLiteral("absent"))));
    EXPECT_FALSE(DossierInscriptible(QStringLiteral("/proc")));
}

}  // namespace
}  // namespace bornika
