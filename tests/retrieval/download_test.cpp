// The normal road of a download: requests, files, controls, boxes.

#include <gtest/gtest.h>

#include "retrieval/retrieval_fixture.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
using simulateur::MesureImpulsion;
using simulateur::MesurePeriodique;
using simulateur::PariteCassee;

namespace {

/// Groups, pulses and broken parity in one transfer.
void StockerMelange(BancLecture& banc) {
    banc.Stocker({MesurePeriodique(t0, 64), MesurePeriodique(t0 + 1, 128),
                  MesureImpulsion(t0 + 1, 3, 100), MesureImpulsion(t0 + 2, 3, 100),
                  PariteCassee(MesurePeriodique(t0 + 2, 192), 5), MesurePeriodique(t0 + 3, 1023),
                  PariteCassee(MesureImpulsion(t0 + 4, 0, 1), 2), MesurePeriodique(t0 + 9, 1)});
}

}  // namespace

TEST(Download, WritesTheWholeRecordingWithAPointAndMonthsFirst) {
    BancLecture banc;
    banc.etabli.systeme.regional = {QStringLiteral("."), QStringLiteral("M/d/yyyy")};
    StockerMelange(banc);
    banc.Telecharger();
    EXPECT_EQ(Clair(banc.Mesures()),
              Clair(entete + "1700000001000;11/14/2023 22:13:21:000;64;1;;0;\r\n"
                             "1700000001500;11/14/2023 22:13:21:500;128;2;;0;\r\n"
                             "1700000001375;11/14/2023 22:13:21:375;100;1.563;;0 ;\r\n"
                             "1700000002375;11/14/2023 22:13:22:375;100;1.563;;1 ;\r\n"
                             "1700000003000;11/14/2023 22:13:23:000;1023;15.984;;0;\r\n"));
    EXPECT_EQ(Clair(banc.Rejets()),
              Clair(entete + "1700000002000;11/14/2023 22:13:22:000;192;3;;0;\r\n"
                             "1700000004000;11/14/2023 22:13:24:0;1;0.016;;0.6154 ;\r\n"
                             "End Parity Control"));
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(Download, WritesTheWholeRecordingWithACommaAndDaysFirst) {
    BancLecture banc({}, QStringLiteral("Français"));
    banc.etabli.systeme.regional = {QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};
    StockerMelange(banc);
    banc.Telecharger();
    EXPECT_EQ(Clair(banc.Mesures()),
              Clair(entete + "1700000001000;14/11/2023 22:13:21:000;64;1;;0;\r\n"
                             "1700000001500;14/11/2023 22:13:21:500;128;2;;0;\r\n"
                             "1700000001375;14/11/2023 22:13:21:375;100;1,563;;0 ;\r\n"
                             "1700000002375;14/11/2023 22:13:22:375;100;1,563;;1 ;\r\n"
                             "1700000003000;14/11/2023 22:13:23:000;1023;15,984;;0;\r\n"));
    EXPECT_EQ(Clair(banc.Rejets()),
              Clair(entete + "1700000002000;14/11/2023 22:13:22:000;192;3;;0;\r\n"
                             "1700000004000;14/11/2023 22:13:24:0;1;0,016;;0,6154 ;\r\n"
                             "End Parity Control"));
}

TEST(Download, AnEmptyLoggerLeavesHeadersAndOpensTheViewer) {
    BancLecture banc;
    banc.Telecharger();
    EXPECT_EQ(Clair(banc.Mesures()), Clair(entete));
    EXPECT_EQ(Clair(banc.Rejets()), Clair(entete + "End Parity Control"));
    EXPECT_EQ(banc.montres.size(), 1U);
    EXPECT_EQ(banc.tours, 1);
}

TEST(Download, TheLastMeasureIsNeverWritten) {
    BancLecture banc;
    banc.Stocker(
        {MesurePeriodique(t0, 1), MesurePeriodique(t0 + 1, 2), MesurePeriodique(t0 + 2, 3)});
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 2);
}

TEST(Download, LinesMayShareATimeAndAreNotSorted) {
    BancLecture banc;
    banc.Stocker({MesureImpulsion(t0 + 5, 2, 1), MesureImpulsion(t0 + 5, 2, 2),
                  MesureImpulsion(t0, 1, 3), MesurePeriodique(t0 + 9, 1)});
    banc.Telecharger();
    const QList<QByteArray> lignes = banc.Mesures().split('\n');
    ASSERT_EQ(lignes.size(), 5);
    EXPECT_TRUE(lignes[1].startsWith("1700000005250;"));
    EXPECT_TRUE(lignes[2].startsWith("1700000005250;"));
    EXPECT_TRUE(lignes[3].startsWith("1700000000125;"));
}

TEST(Download, AFreshlyErasedCellIsAPulseAndTheRunGoesOn) {
    BancLecture banc;
    banc.Stocker({MesurePeriodique(t0, 1), simulateur::CelluleEffacee(),
                  MesurePeriodique(t0 + 1, 2), MesurePeriodique(t0 + 2, 3)});
    banc.Telecharger();
    const auto instant = t0 + 255 * 65536 + 255 * 256 + 255;
    const QList<QByteArray> rejets = banc.Rejets().split('\n');
    ASSERT_EQ(rejets.size(), 3);
    EXPECT_TRUE(rejets[1].startsWith(QByteArray::number(instant) + "31875;"))
        << rejets[1].toStdString();
    EXPECT_EQ(banc.NombreLignes(), 2);
    EXPECT_EQ(banc.montres.size(), 1U);
}

TEST(Download, AsksFirstOnceAndThenForTheNextWithTwoBytesOnOneOpening) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 5; ++i)
        banc.Stocker({MesurePeriodique(t0 + i, 7)});
    banc.Telecharger();
    EXPECT_EQ(banc.Drapeaux(), (std::vector<int>{1, 0, 0, 0, 0}));
    for (const auto& trame : banc.enregistreur.journal.DeCode(10))
        EXPECT_EQ(trame.size(), 2U);
    // The last two openings are those of the transfer.
    const auto& lien = banc.enregistreur.lien;
    ASSERT_GE(lien.size(), 4U);
    EXPECT_TRUE(lien[lien.size() - 4].ouverture);
    EXPECT_TRUE(lien[lien.size() - 3].ouverture);
    EXPECT_FALSE(lien[lien.size() - 2].ouverture);
    EXPECT_FALSE(lien[lien.size() - 1].ouverture);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(Download, ReadsTheParametersBeforeTheFirstMeasure) {
    BancLecture banc;
    banc.Stocker({MesurePeriodique(t0, 1), MesurePeriodique(t0 + 1, 2)});
    banc.Telecharger();
    const std::vector<int> codes = banc.enregistreur.journal.Codes();
    const auto premiere = std::find(codes.begin(), codes.end(), 10);
    EXPECT_NE(std::find(codes.begin(), premiere, 4), premiere);
    EXPECT_NE(std::find(codes.begin(), premiere, 22), premiere);
    EXPECT_EQ(std::find_if(premiere, codes.end(), [](int code) { return code != 10; }),
              codes.end());
}

TEST(Download, TheButtonTheArrowAndTheProgressShowWhileItRuns) {
    BancLecture banc;
    banc.Stocker(
        {MesurePeriodique(t0, 1), MesurePeriodique(t0 + 1, 2), MesurePeriodique(t0 + 2, 3)});
    banc.AuTour(2, [&] {
        EXPECT_TRUE(banc.ecran.etat.EnLecture);
        EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("Annuler Lecture"))));
        EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
        EXPECT_FALSE(banc.ui.ProgressBar2->isHidden());
        EXPECT_FALSE(banc.ui.Infos->isHidden());
    });
    banc.Telecharger();
    EXPECT_GE(banc.tours, 2);
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_EQ(banc.Bouton(), Clair(banc.ecran.Texte(QStringLiteral("Lire les valeurs"))));
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
    EXPECT_TRUE(banc.ui.ProgressBar2->isHidden());
    EXPECT_TRUE(banc.ui.Infos->isHidden());
}

TEST(Download, EachRoundShowsTheMeasuresWrittenAndOneMoreStepOfTheBar) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 5; ++i)
        banc.Stocker({MesurePeriodique(t0 + i, 7)});
    std::vector<std::string> textes;
    std::vector<double> pas;
    for (int tour = 1; tour <= 5; ++tour)
        banc.AuTour(tour, [&] {
            textes.push_back(Clair(banc.ui.Infos->text()));
            pas.push_back(banc.ui.ProgressBar2->Valeur());
        });
    banc.Telecharger();
    const std::string maximum =
        "/" + std::to_string(static_cast<int>(banc.ui.ProgressBar2->Maximum()));
    ASSERT_EQ(textes.size(), 5U);
    EXPECT_EQ(textes[2], "1" + maximum);
    EXPECT_EQ(textes[3], "2" + maximum);
    EXPECT_EQ(textes[4], "3" + maximum);
    EXPECT_EQ(pas, (std::vector<double>{1, 2, 3, 4, 5}));
    EXPECT_EQ(Clair(banc.ui.Infos->text()), "5" + maximum);
}

TEST(Download, TheBarStopsOneStepShortOfItsEndAndTheTextAtTheMaximum) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 40; ++i)
        banc.Stocker({MesurePeriodique(t0 + i, 7)});
    // The bar was given fewer steps than there are measures.
    banc.AuTour(1, [&] { banc.ui.ProgressBar2->FixerMaximum(10); });
    std::string dernier;
    banc.AuTour(40, [&] { dernier = Clair(banc.ui.Infos->text()); });
    banc.Telecharger();
    EXPECT_EQ(banc.ui.ProgressBar2->Valeur(), 9);
    EXPECT_EQ(dernier, "10/10");
    EXPECT_EQ(Clair(banc.ui.Infos->text()), "9/10");
    EXPECT_EQ(banc.NombreLignes(), 39);
}

TEST(Download, DisplaysAreLeftAloneBetweenTwoRunsOfTheInterface) {
    BancLecture banc;
    for (std::uint32_t i = 0; i < 60; ++i)
        banc.Stocker({MesurePeriodique(t0 + i, 7)});
    banc.etabli.respiration.ReglerPas(std::chrono::hours(1));
    banc.etabli.respiration.Ceder();
    int changements = 0;
    QObject::connect(banc.ui.ProgressBar2, &QProgressBar::valueChanged, &banc.ecran,
                     [&] { ++changements; });
    banc.Telecharger();
    // The reset at the start and the final state, nothing in between.
    EXPECT_LE(changements, 3);
    EXPECT_EQ(banc.ui.ProgressBar2->Valeur(), 60);
    EXPECT_EQ(banc.NombreLignes(), 59);
}

TEST(Download, TellsWhereTheValuesAreAndThenShowsThem) {
    BancLecture banc;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { EXPECT_TRUE(banc.montres.empty()); };
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Information);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(Clair(boite.titre), "k-Pod");
    EXPECT_EQ(Clair(boite.texte),
              Clair(banc.ecran.Texte(QStringLiteral("Valeurs stockées dans le fichier"))) +
                  " 2026-03-05-14-07-09.txt");
    EXPECT_EQ(banc.montres, (std::vector<QString>{banc.nom + QStringLiteral(".txt")}));
    EXPECT_EQ(banc.ecran.etat.Nom_Fichier, banc.nom);
}

TEST(Download, TheCommentsAreTheLoggersCommentAndTheReport) {
    BancLecture banc;
    banc.Telecharger();
    ASSERT_EQ(banc.commentaires.size(), 2U);
    EXPECT_EQ(Clair(banc.commentaires[0]),
              Clair(banc.ui.Commentaire->text()) + "\r\n" + Clair(banc.ecran.etat.Rapport));
    EXPECT_TRUE(banc.commentaires[0].startsWith(QStringLiteral("Reseau Est")));
    EXPECT_FALSE(banc.ecran.etat.Rapport.isEmpty());
    EXPECT_EQ(banc.commentaires[1], banc.nom + QStringLiteral(".txt"));
}

TEST(Download, AnOldRecordingOfTheSameSecondIsReplaced) {
    BancLecture banc;
    banc.etabli.Ecrire(banc.nom + QStringLiteral(".txt"), QByteArray(9000, 'x'));
    banc.etabli.Ecrire(banc.nom + QStringLiteral(".err"), QByteArray(9000, 'y'));
    banc.Telecharger();
    EXPECT_EQ(Clair(banc.Mesures()), Clair(entete));
    EXPECT_EQ(Clair(banc.Rejets()), Clair(entete + "End Parity Control"));
}

class AbsolutePressure : public testing::TestWithParam<bool> {};

TEST_P(AbsolutePressure, IsTakenOffInPeriodicLinesOfTheErrFileOnly) {
    const bool absolue = GetParam();
    BancLecture banc;
    banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::mode, absolue ? 0x88 : 0x08);
    banc.Stocker({MesurePeriodique(t0, 512), MesurePeriodique(t0 + 1, 512),
                  PariteCassee(MesurePeriodique(t0 + 2, 512), 3),
                  PariteCassee(MesureImpulsion(t0 + 2, 1, 512), 3), MesureImpulsion(t0 + 3, 1, 512),
                  MesurePeriodique(t0 + 4, 1)});
    banc.Telecharger();
    EXPECT_EQ(banc.ui.PressionAbsolue->isChecked(), absolue);
    const auto pression = [](const QByteArray& fichier, int ligne) {
        return fichier.split('\n').at(ligne).split(';').at(3).toStdString();
    };
    for (int ligne : {1, 2, 3})
        EXPECT_EQ(pression(banc.Mesures(), ligne), "8") << "line " << ligne;
    EXPECT_EQ(pression(banc.Rejets(), 1), absolue ? "6.976" : "8");
    EXPECT_EQ(pression(banc.Rejets(), 2), "8");
}

INSTANTIATE_TEST_SUITE_P(Both, AbsolutePressure, testing::Bool(),
                         testing::PrintToStringParamName());

TEST(LireValeurs, ALoggerOfVersion211IsReadThroughItsCard) {
    BancLecture banc(simulateur::KPod2110(t0));
    banc.Telecharger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Information);
    EXPECT_EQ(Clair(boite.titre), "k-Pod");
    EXPECT_EQ(
        Clair(boite.texte),
        Clair(banc.ecran.Texte(QStringLiteral("Vous devez lires les données depuis la carte SD"))));
    EXPECT_EQ(banc.enregistreur.journal.Total(), 1);
    EXPECT_FALSE(banc.etabli.Fichiers().contains(banc.nom + QStringLiteral(".txt")));
    EXPECT_FALSE(banc.ecran.etat.EnLecture);
    EXPECT_TRUE(banc.montres.empty());
}

TEST(LireValeurs, ALoggerOfVersion2100IsDownloaded) {
    BancLecture banc(simulateur::KPod2100(t0));
    banc.Telecharger();
    EXPECT_EQ(banc.montres.size(), 1U);
}

}  // namespace bornika::essai
