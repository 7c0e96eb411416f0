// What the operator does while a download runs.

#include <gtest/gtest.h>

#include <QDir>
#include <QSignalBlocker>

#include "logger/parameter_reading.h"
#include "retrieval/retrieval_fixture.h"
#include "setup/pressure_scale.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
using simulateur::MesurePeriodique;

namespace {

struct BancLong : BancLecture {
    BancLong() {
        for (std::uint32_t i = 0; i < 100; ++i)
            Stocker({MesurePeriodique(t0 + i, static_cast<int>(i))});
    }
};

}  // namespace

TEST(DownloadCancelled, ByASecondClickEndsAsACompleteRecording) {
    BancLong banc;
    banc.AuTour(10, [&] { banc.Telecharger(); });
    banc.Telecharger();
    EXPECT_EQ(banc.tours, 10);
    // The answer that is here already is still decoded.
    EXPECT_EQ(banc.NombreLignes(), 10);
    EXPECT_TRUE(banc.Mesures().endsWith("\r\n"));
    EXPECT_TRUE(banc.Rejets().endsWith("End Parity Control"));
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Information);
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("Lire les valeurs"))));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(DownloadCancelled, TheClickAsksForTheVersionInBetween) {
    BancLong banc;
    banc.AuTour(10, [&] { banc.Telecharger(); });
    banc.Telecharger();
    const std::vector<int> codes = banc.enregistreur.journal.Codes();
    EXPECT_EQ(codes.back(), 9);
    EXPECT_EQ(codes[codes.size() - 2], 10);
    EXPECT_EQ(banc.enregistreur.journal.Nombre(10), 10);
}

TEST(DownloadCancelled, ALoggerSilentAtTheClickLosesTheAnswerOfThatRound) {
    BancLong banc;
    banc.AuTour(10, [&] {
        banc.enregistreur.pannes.Ordonner({.code = 9, .genre = simulateur::GenrePanne::silence});
        banc.Telecharger();
    });
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 9);
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(DownloadCancelled, BetweenTwoMeasuresOfAGroupLosesTheOpenGroup) {
    BancLecture banc;
    banc.Stocker({MesurePeriodique(t0, 1), MesurePeriodique(t0 + 1, 2), MesurePeriodique(t0 + 1, 3),
                  MesurePeriodique(t0 + 1, 4), MesurePeriodique(t0 + 2, 5),
                  MesurePeriodique(t0 + 3, 6)});
    banc.AuTour(4, [&] { banc.Telecharger(); });
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 2);
}

TEST(DownloadCancelled, AnotherPartOfTheProgramCanClearTheFlag) {
    BancLong banc;
    banc.AuTour(5, [&] { banc.ecran.etat.EnLecture = false; });
    banc.Telecharger();
    EXPECT_EQ(banc.tours, 5);
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(LectureValeurs, WhileADownloadRunsOnlyClearsTheFlag) {
    BancLong banc;
    banc.ecran.etat.EnLecture = true;
    LectureValeurs(banc.poste, banc.suite);
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_EQ(banc.enregistreur.journal.Total(), 0);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST(DownloadCancelled, CanBeRunAgainAtOnce) {
    BancLong banc;
    banc.AuTour(10, [&] { banc.Telecharger(); });
    banc.Telecharger();
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99);
    EXPECT_EQ(banc.montres.size(), 2U);
}

TEST(DownloadClosed, ClosingTheFormLeavesWithoutBoxesAndViewer) {
    BancLong banc;
    banc.AuTour(10, [&] { banc.ecran.close(); });
    banc.Telecharger();
    EXPECT_EQ(banc.tours, 10);
    EXPECT_TRUE(banc.ecran.etat.EnFermeture);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.montres.empty());
    EXPECT_TRUE(banc.commentaires.empty());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    // What was received stays.
    EXPECT_EQ(banc.NombreLignes(), 9);
}

TEST(DownloadClosed, ClosingTheFormWhileTheLastBoxStandsSkipsTheViewer) {
    BancLong banc;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { banc.ecran.close(); };
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99);
    EXPECT_TRUE(banc.montres.empty());
}

TEST(DownloadDisturbed, AUnitChosenMeanwhileCountsFromTheNextLineOn) {
    BancLong banc;
    banc.AuTour(10, [&] {
        banc.ui.ListeUnites->Choisir(banc.ui.ListeUnites->findText(QStringLiteral("mbar")));
    });
    banc.Telecharger();
    const QList<QByteArray> lignes = banc.Mesures().split('\n');
    EXPECT_EQ(Clair(lignes[9].split(';').at(3)), "0.125");
    EXPECT_EQ(Clair(lignes[10].split(';').at(3)), "140.625");
    // The header keeps the unit of the start.
    EXPECT_EQ(Clair(lignes[0] + '\n'), Clair(entete));
}

TEST(DownloadDisturbed, AScaleChosenMeanwhileCountsFromTheNextLineOn) {
    BancLong banc;
    const double avant = banc.ecran.etat.Maxi;
    banc.AuTour(10, [&] { banc.ui.ListeEchelles->Choisir(2); });
    banc.Telecharger();
    ASSERT_NE(banc.ecran.etat.Maxi, avant);
    const QList<QByteArray> lignes = banc.Mesures().split('\n');
    EXPECT_EQ(Clair(lignes[9].split(';').at(3)), "0.125");
    const double pression = Donne_Pression(banc.ecran, 9, true, false);
    EXPECT_EQ(lignes[10].split(';').at(3).toDouble(), pression);
    EXPECT_NE(pression, 0.141);
}

TEST(DownloadDisturbed, AbsolutePressureTickedMeanwhileCountsFromTheNextLineOn) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 10; ++i)
        banc.Stocker({simulateur::PariteCassee(MesurePeriodique(t0 + i, 512), 3)});
    banc.AuTour(5, [&] {
        const QSignalBlocker sansRegles(banc.ui.PressionAbsolue);
        banc.ui.PressionAbsolue->setChecked(true);
    });
    banc.Telecharger();
    const QList<QByteArray> lignes = banc.Rejets().split('\n');
    EXPECT_EQ(Clair(lignes[4].split(';').at(3)), "8");
    EXPECT_EQ(Clair(lignes[5].split(';').at(3)), "6.976");
}

TEST(DownloadDisturbed, ReadingTheParametersMeanwhileTakesTheLinkAwayAndNothingIsLost) {
    BancLong banc;
    banc.AuTour(10, [&] { Lire_Parametres(banc.poste); });
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99);
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(DownloadDisturbed, ALoggerInCalibrationSaysSoAndIsDownloaded) {
    BancLong banc;
    banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::modeEtalonnage, 1);
    banc.Telecharger();
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 2U);
    EXPECT_EQ(banc.NombreLignes(), 99);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(DownloadCancelled, AClickAfterAnotherFormHasEndedItBeginsNoTransferInsideTheFirst) {
    BancLong banc;
    banc.AuTour(10, [&] {
        banc.ecran.etat.EnLecture = false;
        banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(1);
        banc.Telecharger();
        EXPECT_FALSE(banc.ecran.etat.EnLecture);
    });
    banc.Telecharger();
    EXPECT_EQ(banc.tours, 10);
    EXPECT_EQ(banc.enregistreur.journal.Nombre(10), 10);
    EXPECT_EQ(banc.NombreLignes(), 10);
    EXPECT_TRUE(banc.Rejets().endsWith("End Parity Control"));
    EXPECT_EQ(banc.etabli.Fichiers().filter(QStringLiteral(".txt")).size(), 1);
    EXPECT_EQ(banc.montres, (std::vector<QString>{banc.nom + QStringLiteral(".txt")}));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    // The click after that is one that begins.
    banc.Telecharger();
    EXPECT_EQ(banc.montres.size(), 2U);
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("2026-03-05-14-07-10.txt")).count('\n'), 100);
}

TEST(DownloadCancelled, ATransferThatEndedByAFaultDoesNotKeepTheNextFromBeginning) {
    BancLong banc;
    ASSERT_TRUE(QDir(banc.etabli.dossier.path()).mkdir(banc.nom + QStringLiteral(".txt")));
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.fautes.size(), 1U);
    EXPECT_FALSE(Telechargement::EnTransfert());
    ASSERT_TRUE(QDir(banc.etabli.dossier.path()).rmdir(banc.nom + QStringLiteral(".txt")));
    banc.ecran.etat.EnLecture = false;
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99);
}

TEST(DownloadRepeated, WhileTheLastBoxStandsIsAnotherWholeDownload) {
    BancLong banc;
    int boites = 0;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        if (++boites > 1) return;
        banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(1);
        banc.Telecharger();
    };
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99);
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("2026-03-05-14-07-10.txt")).count('\n'), 100);
    // Each shows its own recording, the inner one first.
    EXPECT_EQ(banc.montres, (std::vector<QString>{QStringLiteral("2026-03-05-14-07-10.txt"),
                                                  banc.nom + QStringLiteral(".txt")}));
}

TEST(DownloadDisturbed, LinesThatCannotBeBuiltAreSkippedAndTheTransferGoesOn) {
    BancLong banc;
    // Without a unit no pressure can be computed.
    const auto choisir = [&](int unite) {
        const QSignalBlocker sansRegles(banc.ui.ListeUnites);
        return banc.ui.ListeUnites->Choisir(unite);
    };
    const int unite = banc.ui.ListeUnites->Index();
    banc.AuTour(10, [&] { choisir(-1); });
    banc.AuTour(15, [&] { choisir(unite); });
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 99 - 5);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_EQ(Clair(banc.ui.Infos->text()).substr(0, 4), "100/");
}

}  // namespace bornika::essai
