#include "recording/recording_path.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <filesystem>

namespace bornika {
namespace {

QString Faire(const QTemporaryDir& dossier, const QString& nom) {
    QFile fichier(dossier.filePath(nom));
    if (!fichier.open(QIODevice::WriteOnly)) qFatal("cannot write a test file");
    return fichier.fileName();
}

TEST(RecordingPaths, AreTheOneNameOrFolderAndNames) {
    EXPECT_EQ(CheminsFichiers("/a/b.txt"), QStringList{"/a/b.txt"});
    const QChar nul(u'\0');
    EXPECT_EQ(CheminsFichiers(QStringLiteral("/a") + nul + "b.txt" + nul + "c.txt"),
              (QStringList{"/a/b.txt", "/a/c.txt"}));
    EXPECT_EQ(CheminsFichiers(QStringLiteral("/a") + nul + "b.txt"), QStringList{"/a/b.txt"});
}

TEST(SameFile, IsSeenThroughLinks) {
    const QTemporaryDir dossier;
    const QString a = Faire(dossier, "a.txt");
    const QString lien = dossier.filePath("link.txt");
    const QString dur = dossier.filePath("hard.txt");
    ASSERT_TRUE(QFile::link("a.txt", lien));
    std::filesystem::create_hard_link(a.toStdString(), dur.toStdString());
    EXPECT_TRUE(EstMemeFichier(a, a));
    EXPECT_TRUE(EstMemeFichier(a, lien));
    EXPECT_TRUE(EstMemeFichier(dur, lien));
    EXPECT_TRUE(EstMemeFichier(a, dossier.filePath("./a.txt")));
}

TEST(SameFile, IsNoneOfTwoNamesOfDifferentFilesOrOfNone) {
    const QTemporaryDir dossier;
    const QString a = Faire(dossier, "a.txt");
    const QString b = Faire(dossier, "b.txt");
    const QString absent = dossier.filePath("absent.txt");
    EXPECT_FALSE(EstMemeFichier(a, b));
    EXPECT_FALSE(EstMemeFichier(a, absent));
    EXPECT_FALSE(EstMemeFichier(absent, absent));
    EXPECT_FALSE(EstMemeFichier(a, ""));
}

}  // namespace
}  // namespace bornika
