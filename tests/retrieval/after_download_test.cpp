// The end of a download in the real viewer.

#include <gtest/gtest.h>

#include <QDir>

#include "platform/guard.h"
#include "retrieval/retrieval_fixture.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika::essai {
using simulateur::MesurePeriodique;

namespace {

struct BancTrace : BancLecture {
    BancTrace() {
        for (std::uint32_t i = 0; i < 20; ++i)
            Stocker({MesurePeriodique(t0 + i, static_cast<int>(64 * (i % 3)))});
    }
    void Telecharger() {
        garder([this] { LireValeurs(poste, acces); });
    }

    AccesTrace acces{ecran};
};

}  // namespace

TEST(AfterDownload, TheCommentFileHoldsCommentReportAndOneLineEnd) {
    BancTrace banc;
    banc.Telecharger();
    const QByteArray fichier = banc.etabli.Lire(banc.nom + QStringLiteral(".cmt"));
    EXPECT_EQ(Clair(QString::fromLatin1(fichier)), Clair(banc.ui.Commentaire->text()) + "\r\n" +
                                                       Clair(banc.ecran.etat.Rapport) + "\r\n");
    EXPECT_TRUE(fichier.startsWith("Reseau Est"));
}

TEST(AfterDownload, TheViewerStandsOpenWithTheCurveOfTheRecording) {
    BancTrace banc;
    banc.Telecharger();
    Trace* trace = banc.acces.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_EQ(Clair(trace->NomDialogue), "2026-03-05-14-07-09.txt");
    EXPECT_EQ(Clair(trace->NomFichierCourant),
              Clair(banc.etabli.Chemin(QStringLiteral("2026-03-05-14-07-09.txt"))));
    EXPECT_EQ(trace->Mini, (t0 + 1) * 1000.0);
    EXPECT_EQ(trace->Maxi, (t0 + 18) * 1000.0);
    EXPECT_FALSE(trace->Chargement);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(AfterDownload, AnEmptyLoggerOpensTheViewerToo) {
    BancLecture banc;
    AccesTrace acces(banc.ecran);
    LireValeurs(banc.poste, acces);
    ASSERT_NE(acces.Presente(), nullptr);
    EXPECT_TRUE(acces.Presente()->isVisible());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(AfterDownload, ACommentFileThatCannotBeMadeIsToldAndTheCurveIsStillShown) {
    BancTrace banc;
    ASSERT_TRUE(QDir(banc.etabli.dossier.path()).mkdir(banc.nom + QStringLiteral(".cmt")));
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 2U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Critique);
    EXPECT_TRUE(
        banc.etabli.dialogues.Boites()[0].texte.startsWith(banc.nom + QStringLiteral(".cmt : ")));
    ASSERT_NE(banc.acces.Presente(), nullptr);
    EXPECT_TRUE(banc.acces.Presente()->isVisible());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(AfterDownload, TheViewerIsNotMadeWhenTheLoggerIsLost) {
    BancTrace banc;
    banc.Panne(simulateur::GenrePanne::silence, 5, simulateur::sansFin);
    banc.Telecharger();
    EXPECT_EQ(banc.acces.Presente(), nullptr);
    EXPECT_FALSE(banc.etabli.Fichiers().contains(banc.nom + QStringLiteral(".cmt")));
}

TEST(AfterDownload, TheViewerIsShownBeforeItLoadsWithTheFileNameInItsDialog) {
    BancTrace banc;
    int chargements = 0;
    for (int tour = 21; tour < 60; ++tour)
        banc.AuTour(tour, [&] {
            ++chargements;
            EXPECT_TRUE(banc.acces.Presente()->isVisible());
            EXPECT_EQ(Clair(banc.acces.Presente()->NomDialogue), "2026-03-05-14-07-09.txt");
        });
    banc.Telecharger();
    EXPECT_GT(chargements, 10);
}

TEST(AfterDownload, TheNextDownloadUsesTheSameViewer) {
    BancTrace banc;
    banc.Telecharger();
    Trace* premier = banc.acces.Presente();
    banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(60);
    banc.Telecharger();
    EXPECT_EQ(banc.acces.Presente(), premier);
    EXPECT_EQ(Clair(premier->NomDialogue), "2026-03-05-14-08-09.txt");
}

TEST(AfterDownload, AViewerClosedWhileTheLastBoxStandsGivesItsCommentsToTheNextOne) {
    BancTrace banc;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        ASSERT_NE(banc.acces.Presente(), nullptr);
        banc.acces.Presente()->close();
        QApplication::processEvents();
        EXPECT_EQ(banc.acces.Presente(), nullptr);
    };
    banc.Telecharger();
    Trace* trace = banc.acces.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_TRUE(trace->ui->Commentaires->toPlainText().startsWith(banc.ui.Commentaire->text() +
                                                                  QLatin1Char('\n')));
    ASSERT_FALSE(trace->modele.titre.isEmpty());
    EXPECT_TRUE(trace->modele.titre.first().startsWith(QStringLiteral("Reseau Est")));
    EXPECT_EQ(trace->Maxi, (t0 + 18) * 1000.0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(AfterDownload, CommentsTypedWhileTheLastBoxStandsStay) {
    BancTrace banc;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        banc.acces.Fiche().ui->Commentaires->setPlainText(QStringLiteral("typed"));
    };
    banc.Telecharger();
    EXPECT_EQ(Clair(banc.acces.Fiche().ui->Commentaires->toPlainText()), "typed");
}

TEST(AfterDownload, AClickWhileTheCurveIsLoadedMakesAnotherWholeRecording) {
    BancTrace banc;
    // Twenty rounds are the transfer; those that follow are the loading.
    banc.AuTour(25, [&] {
        ASSERT_TRUE(banc.acces.Presente()->Chargement);
        EXPECT_FALSE(Telechargement::EnTransfert());
        banc.etabli.horloge.instant = banc.etabli.horloge.instant.addSecs(60);
        banc.Telecharger();
    });
    banc.Telecharger();
    const QByteArray seconde = banc.etabli.Lire(QStringLiteral("2026-03-05-14-08-09.txt"));
    EXPECT_EQ(banc.NombreLignes(), 19);
    EXPECT_EQ(Clair(seconde), Clair(banc.Mesures()));
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_FALSE(banc.acces.Presente()->Chargement);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

}  // namespace bornika::essai
