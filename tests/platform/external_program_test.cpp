// Real processes of the tests' own stand-in tool.

#include "platform/external_program.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <chrono>
#include <thread>

#include "support/programmer_stand_in.h"

namespace bornika::essai {
namespace {

/// False when that does not come true in ten seconds.
template <class Condition>
bool Attendre(Condition condition) {
    const auto fin = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > fin) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

/// Neither a running nor a dead process of ours is left; takes no note of an end by itself.
bool SansEnfant() {
    siginfo_t info;
    return waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == -1;
}

struct ProgrammeLance : testing::Test {
    QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("l'outil à essais.exe"));
    const OutilDEssai outil{chemin};

    void TearDown() override { EXPECT_TRUE(Attendre(SansEnfant)); }
};

TEST_F(ProgrammeLance, GetsItsArgumentInOnePieceByteForByte) {
    for (const char* texte : {"LANGUE=Français ;prg=/a b/c  d.HEX",
                              "\"$HOME\" 'x' `id` * ; rm && \\ | > <", "été\nñ", "", " "}) {
        const auto programme = LancerProgramme(chemin, QString::fromUtf8(texte));
        ASSERT_TRUE(programme) << texte;
        ASSERT_TRUE(Attendre([&] { return !programme->EnCours(); }));
        EXPECT_EQ(outil.Arguments(), QByteArray(texte) + '\0') << texte;
    }
}

TEST_F(ProgrammeLance, RunsUntilItsEndIsSeenAndThenNoMore) {
    outil.Retenir();
    const auto programme = LancerProgramme(chemin, QStringLiteral("x:1"));
    ASSERT_TRUE(programme);
    ASSERT_TRUE(Attendre([&] { return !outil.Arguments().isEmpty(); }));
    EXPECT_TRUE(programme->EnCours());
    EXPECT_EQ(outil.Version(), QByteArray());
    outil.Liberer();
    ASSERT_TRUE(Attendre([&] { return !programme->EnCours(); }));
    EXPECT_FALSE(programme->EnCours());
    EXPECT_EQ(outil.Version(), QByteArray("1"));
    EXPECT_TRUE(SansEnfant());
}

TEST_F(ProgrammeLance, IsOutOfReachOfTheTerminalThatStartedThisOne) {
    const auto programme = LancerProgramme(chemin, QStringLiteral("x:1"));
    ASSERT_TRUE(programme);
    ASSERT_TRUE(Attendre([&] { return !programme->EnCours(); }));
    EXPECT_FALSE(outil.Session().isEmpty());
    EXPECT_NE(outil.Session(), QByteArray::number(getsid(0)));
}

TEST_F(ProgrammeLance, IsAtItsEndWhenItDies) {
    outil.FaireMourir();
    const auto programme = LancerProgramme(chemin, QStringLiteral("x:1"));
    ASSERT_TRUE(programme);
    EXPECT_TRUE(Attendre([&] { return !programme->EnCours(); }));
    EXPECT_EQ(outil.Version(), QByteArray());
    EXPECT_TRUE(SansEnfant());
}

TEST_F(ProgrammeLance, GoesOnWhenNobodyWaitsAnyMoreAndLeavesNoDeadEntryBehind) {
    outil.Retenir();
    auto programme = LancerProgramme(chemin, QStringLiteral("x:2.100"));
    ASSERT_TRUE(programme);
    programme.reset();
    EXPECT_FALSE(SansEnfant());
    outil.Liberer();
    EXPECT_TRUE(Attendre([&] { return outil.Version() == "2.100"; }));
    EXPECT_TRUE(Attendre(SansEnfant));
}

TEST_F(ProgrammeLance, EndedBeforeAnybodyLookedLeavesNoDeadEntryBehind) {
    auto programme = LancerProgramme(chemin, QStringLiteral("x:3"));
    ASSERT_TRUE(Attendre([&] { return outil.Version() == "3"; }));
    programme.reset();
    EXPECT_TRUE(Attendre(SansEnfant));
}

TEST_F(ProgrammeLance, IsNoneWhereTheFileIsMissingOrCannotRun) {
    QFile(dossier.filePath(QStringLiteral("text"))).open(QIODevice::WriteOnly);
    for (const QString& absent : {QStringLiteral("nothing"), QStringLiteral("text"), QString()})
        EXPECT_EQ(LancerProgramme(dossier.filePath(absent), QStringLiteral("x")), nullptr)
            << absent.toStdString();
    EXPECT_TRUE(SansEnfant());
}

}  // namespace
}  // namespace bornika::essai
