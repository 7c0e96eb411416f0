#include "platform/guard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <stdexcept>
#include <thread>

#include "platform/clock.h"
#include "platform/yield.h"

namespace bornika {
namespace {

class Garde : public testing::Test {
  protected:
    Garde() {
        InstallerTraitementFaute(
            [this](const FauteExecution& faute) { fautes.push_back(faute.numero()); });
    }
    ~Garde() override { InstallerTraitementFaute({}); }

    std::vector<int> fautes;
};

TEST(Faute, HasTheStandardTextOfItsNumber) {
    const std::pair<int, const char*> textes[] = {{5, "Invalid procedure call or argument"},
                                                  {6, "Overflow"},
                                                  {9, "Subscript out of range"},
                                                  {11, "Division by zero"},
                                                  {13, "Type mismatch"},
                                                  {52, "Bad file name"},
                                                  {53, "File not found"},
                                                  {61, "Disk full"},
                                                  {70, "Permission denied"},
                                                  {76, "Path not found"},
                                                  {91, "Object variable not set"},
                                                  {380, "Invalid property value"},
                                                  {381, "Invalid property array index"}};
    for (const auto& [numero, texte] : textes) {
        EXPECT_EQ(TexteFaute(numero), texte);
        EXPECT_EQ(FauteExecution(numero).texte(), texte);
        EXPECT_STREQ(FauteExecution(numero).what(), texte);
    }
    EXPECT_EQ(TexteFaute(12345), "Application-defined or object-defined error");
}

TEST(Faute, CanCarryAReasonOfThePlatform) {
    const FauteExecution faute(70, QStringLiteral("refusé"));
    EXPECT_EQ(faute.numero(), 70);
    EXPECT_EQ(faute.texte(), "refusé");
    EXPECT_STREQ(faute.what(), "refusé");
}

TEST(Faute, IgnoredEndsItsStatementAndNothingElse) {
    bool suite = false;
    EXPECT_FALSE(ignorer([&] {
        LeverFaute(6);
        suite = true;
    }));
    EXPECT_FALSE(suite);
    EXPECT_TRUE(ignorer([&] { suite = true; }));
    EXPECT_TRUE(suite);
    EXPECT_THROW(ignorer([] { throw std::logic_error("other"); }), std::logic_error);
}

TEST_F(Garde, HandsAFaultOverInsteadOfLettingItThrough) {
    QPushButton bouton;
    bool fini = false;
    brancher(&bouton, &QPushButton::clicked, &bouton, [&fini] {
        LeverFaute(11);
        fini = true;
    });
    EXPECT_NO_THROW(bouton.click());
    EXPECT_EQ(fautes, std::vector<int>{11});
    EXPECT_FALSE(fini);
}

TEST_F(Garde, RunsAnOperationThatHasNoFault) {
    int appels = 0;
    QPushButton bouton;
    brancher(&bouton, &QPushButton::clicked, &bouton, [&appels] { ++appels; });
    bouton.click();
    EXPECT_EQ(appels, 1);
    EXPECT_TRUE(fautes.empty());
}

TEST_F(Garde, DisconnectsWithItsContext) {
    int appels = 0;
    QPushButton bouton;
    {
        const QObject contexte;
        brancher(&bouton, &QPushButton::clicked, &contexte, [&appels] { ++appels; });
    }
    bouton.click();
    EXPECT_EQ(appels, 0);
}

TEST_F(Garde, DropsFaultsWhileTheyAreIgnored) {
    {
        const FautesIgnorees dehors;
        { const FautesIgnorees dedans; }
        EXPECT_TRUE(FautesIgnorees::Actif());
        garder([] { LeverFaute(6); });
    }
    EXPECT_FALSE(FautesIgnorees::Actif());
    EXPECT_TRUE(fautes.empty());
    garder([] { LeverFaute(6); });
    EXPECT_EQ(fautes, std::vector<int>{6});
}

TEST_F(Garde, LetsAHandlerInstallAnother) {
    InstallerTraitementFaute([this](const FauteExecution&) {
        InstallerTraitementFaute([this](const FauteExecution&) { fautes.push_back(2); });
        fautes.push_back(1);
    });
    garder([] { LeverFaute(6); });
    garder([] { LeverFaute(6); });
    EXPECT_EQ(fautes, (std::vector<int>{1, 2}));
}

TEST(GardeDeathTest, AbortsWithoutAHandler) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_DEATH(garder([] { LeverFaute(6); }), "Run-time error '6': Overflow");
}

#ifndef QT_NO_DEBUG
TEST(GardeDeathTest, AssertsThatFaultsAreIgnoredInTheThreadOfTheInterfaceOnly) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto ailleurs = [] {
        const FautesIgnorees ici;
        std::thread([] { const FautesIgnorees la; }).join();
    };
    EXPECT_DEATH(ailleurs(), "outside the thread of the interface");
}
#endif

TEST(Cession, LetsTheInterfaceRunAtEveryCallWithoutAStep) {
    Respiration respiration;
    int passages = 0;
    respiration.ReglerPas(std::chrono::milliseconds(0));
    respiration.ReglerEvenements([&passages] { ++passages; });
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(respiration.Ceder());
    EXPECT_EQ(passages, 5);
}

// Shorter than the clock has run, so that the first call is due, and longer than any test.
std::chrono::milliseconds PasLong() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::steady_clock::now().time_since_epoch()) /
           2;
}

TEST(Cession, WaitsForItsStepBeforeItRunsTheInterfaceAgain) {
    Respiration respiration;
    int passages = 0;
    respiration.ReglerPas(PasLong());
    respiration.ReglerEvenements([&passages] { ++passages; });
    EXPECT_TRUE(respiration.EstDue());
    EXPECT_TRUE(respiration.Ceder());
    EXPECT_FALSE(respiration.EstDue());
    EXPECT_FALSE(respiration.Ceder());
    EXPECT_EQ(passages, 1);
}

TEST(Cession, StartsAFullStepInsideItself) {
    Respiration respiration;
    bool dedans = true;
    respiration.ReglerPas(PasLong());
    respiration.ReglerEvenements([&] { dedans = respiration.Ceder(); });
    EXPECT_TRUE(respiration.Ceder());
    EXPECT_FALSE(dedans);
}

TEST(Cession, HandlesTheEventsOfTheInterface) {
    Respiration respiration;
    bool venu = false;
    QTimer::singleShot(0, qApp, [&venu] { venu = true; });
    EXPECT_TRUE(respiration.Ceder());
    EXPECT_TRUE(venu);
}

TEST(HorlogeSysteme, GivesTheWallClockWithoutSummerTime) {
    const QDateTime avant = QDateTime::currentDateTime();
    const QDateTime instant = HorlogeSysteme().Maintenant();
    EXPECT_EQ(instant.timeSpec(), Qt::UTC);
    const QDateTime local(instant.date(), instant.time(), Qt::LocalTime);
    EXPECT_LE(avant, local);
    EXPECT_LE(local, QDateTime::currentDateTime());
}

TEST(HorlogeSysteme, PausesWithoutHandlingEvents) {
    bool venu = false;
    const QObject contexte;
    QTimer::singleShot(0, &contexte, [&venu] { venu = true; });
    const auto debut = std::chrono::steady_clock::now();
    HorlogeSysteme().Pause(2);
    EXPECT_GE(std::chrono::steady_clock::now() - debut, std::chrono::milliseconds(2));
    EXPECT_FALSE(venu);
}

}  // namespace
}  // namespace bornika
