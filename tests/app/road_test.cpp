// The whole road of a technician, with real clicks on the real forms: choose, read, download, look.

#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "app/program_fixture.h"
#include "app/tour.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;
using essai::nomSelonHorloge;

struct Road : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPodReseauEau(maintenantSimule));

    void SetUp() override {
        // Let the interface run as in the program, or tens of thousands of repaints would be made.
        banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(5));
        ASSERT_TRUE(banc.Demarrer());
    }

    int Lignes(const QString& nom) { return static_cast<int>(banc.etabli.Lire(nom).count("\r\n")); }
};

TEST_F(Road, ChooseReadDownloadAndSeeTheCurve) {
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().Version->text(), QStringLiteral("(1) 2.100"));
    EXPECT_EQ(banc.ui().TensionPile->text(), QStringLiteral("4.00 V."));

    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_GT(Lignes(nomSelonHorloge + QStringLiteral(".txt")), 20'000);
    EXPECT_TRUE(
        banc.etabli.Lire(nomSelonHorloge + QStringLiteral(".err")).endsWith("End Parity Control"));
    EXPECT_TRUE(banc.etabli.Fichiers().contains(nomSelonHorloge + QStringLiteral(".cmt")));
    EXPECT_EQ(banc.Boites(), QStringList({QStringLiteral("Valeurs stockées dans le fichier ") +
                                          nomSelonHorloge + QStringLiteral(".txt")}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);

    Trace* trace = banc.programme->trace.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_FALSE(trace->ui->TChart1->isHidden());
    EXPECT_EQ(trace->modele.NombreSeries(), 4);
    EXPECT_EQ(trace->modele.Serie(0).Nombre(),
              Lignes(nomSelonHorloge + QStringLiteral(".txt")) - 1);
    EXPECT_EQ(banc.ui().LireValeurs->text(), QStringLiteral("Lire les valeurs"));
}

TEST_F(Road, ASecondClickCancelsAndLeavesACompleteFileWithItsCurve) {
    int tours = 0;
    banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(0));
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 500) BancProgramme::Cliquer(banc.ui().LireValeurs);
    });
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    const int lignes = Lignes(nomSelonHorloge + QStringLiteral(".txt"));
    EXPECT_GT(lignes, 100);
    EXPECT_LT(lignes, 600);
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    ASSERT_NE(banc.programme->trace.Presente(), nullptr);
    EXPECT_EQ(banc.programme->trace.Presente()->modele.Serie(0).Nombre(), lignes - 1);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(Road, GoingToTheViewerAndBackCancelsTheDownload) {
    int tours = 0;
    banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(0));
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours != 300) return;
        BancProgramme::Cliquer(banc.ui().VoirLesValeurs);
        ASSERT_TRUE(QTest::qWaitForWindowActive(banc.programme->trace.Presente()));
        EXPECT_TRUE(banc.ecran().etat.EnLecture);
        banc.ecran().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&banc.ecran()));
        EXPECT_FALSE(banc.ecran().etat.EnLecture);
        // The caption still says that a click cancels: this one begins nothing.
        BancProgramme::Cliquer(banc.ui().LireValeurs);
    });
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    const int lignes = Lignes(nomSelonHorloge + QStringLiteral(".txt"));
    EXPECT_GT(lignes, 100);
    EXPECT_LT(lignes, 400);
    EXPECT_TRUE(
        banc.etabli.Lire(nomSelonHorloge + QStringLiteral(".err")).endsWith("End Parity Control"));
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.programme->trace.Presente()->modele.Serie(0).Nombre(), lignes - 1);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(Road, ALoggerPulledOutKeepsWhatWasReceivedAndSaysSo) {
    int tours = 0;
    banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(0));
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 500) banc.bus.Debrancher(banc.ecran().etat.UsbID);
    });
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_GT(Lignes(nomSelonHorloge + QStringLiteral(".txt")), 100);
    EXPECT_EQ(banc.Boites(), QStringList({QStringLiteral("k-Pod absent")}));
    EXPECT_EQ(banc.programme->trace.Presente(), nullptr);
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    EXPECT_TRUE(banc.sorties.empty());

    // Plugged in again, the next download works.
    banc.etabli.respiration.ReglerEvenements([] {});
    banc.bus.Rebrancher(banc.ecran().etat.UsbID);
    banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(60);
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_GT(Lignes(QStringLiteral("2026-03-05-14-08-09.txt")), 20'000);
}

TEST_F(Road, ClosingTheMainFormInADownloadLeavesWithoutBoxesAndViewer) {
    int tours = 0;
    banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(0));
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 300) banc.ecran().close();
    });
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_TRUE(banc.Boites().isEmpty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_GT(Lignes(nomSelonHorloge + QStringLiteral(".txt")), 100);
    EXPECT_TRUE(banc.programme->trace.Presente() == nullptr ||
                !banc.programme->trace.Presente()->isVisible());
}

TEST_F(Road, ADiskThatFillsUpIsToldOnceAndNothingReceivedIsLost) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"),
                            banc.etabli.Chemin(nomSelonHorloge + QStringLiteral(".txt"))));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().icone, Icone::Critique);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().front().texte.contains(nomSelonHorloge));
    EXPECT_TRUE(banc.sorties.empty());
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(Road, TheViewerOpensEmptyFromItsOwnButtonAndAgainAfterItWasClosed) {
    BancProgramme::Cliquer(banc.ui().VoirLesValeurs);
    Trace* trace = banc.programme->trace.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_TRUE(trace->ui->TChart1->isHidden());
    BancProgramme::Cliquer(trace->ui->Sortir);
    QCoreApplication::processEvents();
    EXPECT_EQ(banc.programme->trace.Presente(), nullptr);
    BancProgramme::Cliquer(banc.ui().VoirLesValeurs);
    ASSERT_NE(banc.programme->trace.Presente(), nullptr);
    EXPECT_TRUE(banc.programme->trace.Presente()->NomFichierCourant.isEmpty());
}

}  // namespace
}  // namespace bornika
