// What goes wrong in a download: the logger, the disk.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <algorithm>

#include "retrieval/retrieval_fixture.h"
#include "support/case_names.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
using simulateur::GenrePanne;
using simulateur::MesurePeriodique;

namespace {

constexpr int nombreStocke = 30;

/// A logger with 30 measures, one a second: 29 lines.
struct BancPlein : BancLecture {
    BancPlein() {
        for (std::uint32_t i = 0; i < nombreStocke; ++i)
            Stocker({MesurePeriodique(t0 + i, static_cast<int>(i))});
    }
    bool AToutEcrit() const { return NombreLignes() == nombreStocke - 1; }
    std::size_t Boites() const { return etabli.dialogues.Boites().size(); }
};

/// What each end by the loss of the logger leaves behind.
void AttendreAppareilPerdu(const BancLecture& banc) {
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_EQ(banc.Bouton(),
              Clair(const_cast<MainScreen&>(banc.ecran).Texte(QStringLiteral("LireValeurs"))));
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_FALSE(banc.ui.ProgressBar2->isHidden());
    EXPECT_FALSE(banc.ui.Infos->isHidden());
    EXPECT_FALSE(banc.Rejets().contains("End Parity Control"));
    EXPECT_TRUE(banc.montres.empty());
    EXPECT_TRUE(banc.commentaires.empty());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

}  // namespace

class FewFailures : public testing::TestWithParam<int> {};

TEST_P(FewFailures, InARowAreSilentAndNothingIsLost) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 7, GetParam());
    banc.Telecharger();
    EXPECT_TRUE(banc.AToutEcrit());
    ASSERT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Information);
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

INSTANTIATE_TEST_SUITE_P(UpToFive, FewFailures, testing::Values(1, 2, 5), nomDuCasImprime);

TEST(Download, TheSixthFailureInARowEndsItAndSaysSo) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 7, simulateur::sansFin);
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Aucune);
    EXPECT_EQ(Clair(boite.titre), "");
    EXPECT_EQ(Clair(boite.texte), Clair(banc.ecran.Texte(QStringLiteral("k-Pod Absent"))));
    EXPECT_EQ(banc.enregistreur.journal.Nombre(10), 12);
    EXPECT_EQ(banc.NombreLignes(), 6);
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(Clair(banc.Rejets()), Clair(entete));
    AttendreAppareilPerdu(banc);
}

TEST(Download, TheFirstRequestIsNeverSentAgainAsTheFirst) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 1, 3);
    banc.Telecharger();
    const std::vector<int> drapeaux = banc.Drapeaux();
    ASSERT_GT(drapeaux.size(), 4U);
    EXPECT_EQ(drapeaux[0], 1);
    EXPECT_EQ(std::count(drapeaux.begin(), drapeaux.end(), 1), 1);
}

TEST(Download, ASuccessStartsTheCountOfFailuresAgain) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 4, 5);
    banc.Panne(GenrePanne::silence, 10, 5);
    banc.Panne(GenrePanne::silence, 16, 5);
    banc.Telecharger();
    EXPECT_TRUE(banc.AToutEcrit());
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(Download, WhatWasReceivedIsOnTheDiskWhenTheLoggerIsFirstSilent) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 12);
    int lignes = 0;
    banc.AuTour(12, [&] { lignes = banc.NombreLignes(); });
    banc.Telecharger();
    EXPECT_EQ(lignes, 11);
}

TEST(Download, EachFailureOpensTheLinkAgain) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 4, 3);
    banc.Telecharger();
    BancPlein sain;
    sain.Telecharger();
    EXPECT_EQ(banc.enregistreur.lien.size(), sain.enregistreur.lien.size() + 3U * 4);
}

TEST(Download, AFailedRoundDecodesNothingButMovesTheBar) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 3, 2);
    std::vector<double> pas;
    for (int tour : {2, 3, 4})
        banc.AuTour(tour, [&] { pas.push_back(banc.ui.ProgressBar2->Valeur()); });
    banc.Telecharger();
    EXPECT_EQ(pas, (std::vector<double>{2, 3, 4}));
    EXPECT_TRUE(banc.AToutEcrit());
}

TEST(Download, AnswersWithAnotherEchoAreLeftAloneAndNotCounted) {
    BancPlein banc;
    banc.Panne(GenrePanne::mauvaisEcho, 5, 10);
    banc.Telecharger();
    EXPECT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.enregistreur.journal.Nombre(10), nombreStocke);
    // Ten measures went by undecoded.
    EXPECT_EQ(banc.NombreLignes(), nombreStocke - 1 - 10);
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(Download, NoiseAndHalfAnswersNeverStopIt) {
    BancPlein banc;
    banc.Panne(GenrePanne::bruit, 5, 3);
    banc.Panne(GenrePanne::reponseCourte, 12, 2, 4);
    banc.Panne(GenrePanne::reponsePerdue, 20, 2);
    banc.Telecharger();
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

class Unplugged : public testing::TestWithParam<int> {};

TEST_P(Unplugged, AtAnyRequestEndsByTheLossOfTheLogger) {
    BancPlein banc;
    banc.Panne(GenrePanne::debranchement, GetParam());
    banc.Telecharger();
    EXPECT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.NombreLignes(), std::max(0, GetParam() - 1 > 1 ? GetParam() - 1 : 0));
    AttendreAppareilPerdu(banc);
}

INSTANTIATE_TEST_SUITE_P(Requests, Unplugged, testing::Values(1, 2, 3, 15, 29), nomDuCasImprime);

TEST(Download, APluggedBackLoggerIsTakenUpAgain) {
    BancPlein banc;
    banc.AuTour(8, [&] { banc.bus.Debrancher(banc.enregistreur.identite.usb); });
    banc.AuTour(11, [&] { banc.bus.Rebrancher(banc.enregistreur.identite.usb); });
    banc.Telecharger();
    EXPECT_TRUE(banc.AToutEcrit());
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(Download, WithoutALoggerNothingIsCreated) {
    BancPlein banc;
    banc.bus.Debrancher(banc.enregistreur.identite.usb);
    const QStringList avant = banc.etabli.Fichiers();
    banc.Telecharger();
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
    EXPECT_EQ(banc.Boites(), 1U);
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("LireValeurs"))));
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
    EXPECT_EQ(banc.tours, 0);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(Download, CanRunAgainAfterTheLossOfTheLogger) {
    BancPlein banc;
    banc.Panne(GenrePanne::silence, 7, 6);
    banc.Telecharger();
    AttendreAppareilPerdu(banc);
    banc.enregistreur.pannes.Annuler();
    banc.Telecharger();
    EXPECT_TRUE(banc.AToutEcrit());
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(Download, AFullDiskIsToldOnceWithFileAndReasonAndEndsIt) {
    BancPlein banc;
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"),
                            banc.etabli.Chemin(banc.nom + QStringLiteral(".txt"))));
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(Clair(boite.titre), "k-Pod");
    EXPECT_TRUE(boite.texte.startsWith(banc.nom + QStringLiteral(".txt : "))) << Clair(boite.texte);
    EXPECT_GT(boite.texte.size(), banc.nom.size() + 7);
    EXPECT_EQ(banc.ecran.etat.EnLecture, false);
    EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("LireValeurs"))));
    EXPECT_FALSE(banc.ui.ProgressBar2->isHidden());
    EXPECT_TRUE(banc.montres.empty());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(Download, AFullDiskDuringALongTransferEndsItBeforeTheEndOfTheData) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 20000; ++i)
        banc.Stocker({MesurePeriodique(t0 + i, 7)});
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"),
                            banc.etabli.Chemin(banc.nom + QStringLiteral(".txt"))));
    banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(5));
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Critique);
    EXPECT_LT(banc.enregistreur.journal.Nombre(10), 20000);
    AttendreAppareilPerdu(banc);
}

TEST(Download, AnErrFileThatCannotBeWrittenIsToldToo) {
    BancPlein banc;
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"),
                            banc.etabli.Chemin(banc.nom + QStringLiteral(".err"))));
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 1U);
    EXPECT_TRUE(
        banc.etabli.dialogues.Boites()[0].texte.startsWith(banc.nom + QStringLiteral(".err : ")));
    // The measures themselves are all there.
    EXPECT_TRUE(banc.AToutEcrit());
}

TEST(Download, AFileThatCannotBeCreatedIsTheGeneralFailure) {
    BancPlein banc;
    ASSERT_TRUE(QDir(banc.etabli.dossier.path()).mkdir(banc.nom + QStringLiteral(".txt")));
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.fautes.size(), 1U);
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
    EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("Annuler Lecture"))));
    EXPECT_EQ(banc.tours, 0);
    EXPECT_TRUE(banc.montres.empty());
}

TEST(Download, ACommentFileThatCannotBeMadeIsToldAndTheCurveIsStillShown) {
    BancPlein banc;
    banc.fauteCommentaires = 70;
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 2U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Critique);
    EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].texte),
              Clair(banc.nom) + ".cmt : No space left");
    EXPECT_EQ(banc.etabli.dialogues.Boites()[1].icone, Icone::Information);
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(Download, ALossOfTheLoggerWithAFullDiskTellsOfTheLinesThatAreGoneToo) {
    BancPlein banc;
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"),
                            banc.etabli.Chemin(banc.nom + QStringLiteral(".txt"))));
    banc.Panne(GenrePanne::silence, 7, simulateur::sansFin);
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 2U);
    EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].texte),
              Clair(banc.ecran.Texte(QStringLiteral("k-Pod Absent"))));
    EXPECT_EQ(banc.etabli.dialogues.Boites()[1].icone, Icone::Critique);
    EXPECT_TRUE(
        banc.etabli.dialogues.Boites()[1].texte.startsWith(banc.nom + QStringLiteral(".txt : ")));
    AttendreAppareilPerdu(banc);
}

TEST(Download, ALoggerSilentAtTheClickIsJudgedByTheVersionReadLast) {
    BancPlein banc;
    banc.ecran.etat.VersionLogiciel = 2.11;
    banc.enregistreur.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence});
    banc.Telecharger();
    ASSERT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Information);
    EXPECT_EQ(banc.enregistreur.journal.Total(), banc.enregistreur.journal.Nombre(9));
    EXPECT_TRUE(banc.montres.empty());
    banc.ecran.etat.VersionLogiciel = 2.1;
    banc.enregistreur.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence});
    banc.Telecharger();
    EXPECT_TRUE(banc.AToutEcrit());
}

}  // namespace bornika::essai
