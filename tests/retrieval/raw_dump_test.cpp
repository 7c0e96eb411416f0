#include "retrieval/raw_dump.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "retrieval/raw_dump_fixture.h"

namespace bornika::essai {
using simulateur::MesureEnFlash;
using simulateur::MesurePeriodique;

TEST(NomDeDump, IsNotPaddedUnlikeTheNameOfARecording) {
    EXPECT_EQ(Clair(NomDeDump(QDateTime(QDate(2026, 3, 5), QTime(4, 7, 9), Qt::UTC))),
              "2026-3-5-4-7-9");
    EXPECT_EQ(Clair(NomDeDump(QDateTime(QDate(2026, 12, 31), QTime(23, 59, 58), Qt::UTC))),
              "2026-12-31-23-59-58");
}

TEST(LigneDump, HasABlankBehindTheTimeStampAndTwoEmptyFields) {
    EXPECT_EQ(Clair(LigneDump({.fraction = 769, .horodatage = 1700000000, .points = 500}, 7.813,
                              Regional())),
              "1700000000; 14/11/2023 22:13:20;500;7.813;;769;");
}

TEST(LigneDump, FollowsTheLocale) {
    const Regional regional{.separateur = QStringLiteral(","),
                            .dateCourte = QStringLiteral("M/d/yyyy")};
    EXPECT_EQ(
        Clair(LigneDump({.fraction = 0, .horodatage = 1700000000, .points = 8}, 0.125, regional)),
        "1700000000; 11/14/2023 22:13:20;8;0,125;;0;");
}

TEST(RawDump, WritesEveryCellOfThePageRange) {
    BancDump banc;
    banc.Poser(0, MesurePeriodique(t0, 64));
    banc.Poser(1, simulateur::MesureImpulsion(t0 + 1, 3, 500));
    banc.Poser(2, MesurePeriodique(t0 + 2, 1023));
    banc.Lire();
    const std::vector<std::string> lignes = banc.Lignes();
    ASSERT_EQ(lignes.size(), 1U + cellules);
    EXPECT_EQ(lignes[0], ligneEntete);
    EXPECT_EQ(lignes[1], "1700000000; 14/11/2023 22:13:20;64;1;;0;");
    EXPECT_EQ(lignes[2], "1700000001; 14/11/2023 22:13:21;500;7.813;;769;");
    EXPECT_EQ(lignes[3], "1700000002; 14/11/2023 22:13:22;1023;15.984;;0;");
    EXPECT_EQ(lignes[9], "1700000008; 14/11/2023 22:13:28;8;0.125;;0;");
    EXPECT_EQ(lignes[66], "1700000065; 14/11/2023 22:14:25;65;1.016;;0;");
    ASSERT_EQ(banc.Boites(), 1U);
    AttendreAnnonce(banc, banc.Boite(0));
    AttendreRepos(banc);
}

TEST(RawDump, WalksTheAddressesByItself) {
    BancDump banc;
    banc.Lire(255, 257);
    const auto trames = banc.enregistreur.journal.DeCode(20);
    ASSERT_EQ(trames.size(), 3U * cellules);
    for (int i = 0; i < 3 * cellules; ++i) {
        const int page = 255 + i / cellules;
        const int offset = i % cellules * 8;
        EXPECT_EQ(trames[static_cast<std::size_t>(i)],
                  (std::vector<std::uint8_t>{20, static_cast<std::uint8_t>(page / 256),
                                             static_cast<std::uint8_t>(page % 256),
                                             static_cast<std::uint8_t>(offset / 256),
                                             static_cast<std::uint8_t>(offset % 256), 32, 32, 32}));
    }
    EXPECT_EQ(trames.back()[3] * 256 + trames.back()[4], 520);
}

TEST(RawDump, OpensAndClosesTheLinkForEachCell) {
    BancDump vide;
    vide.Lire(100, 99);
    BancDump banc;
    banc.Lire();
    EXPECT_EQ(banc.enregistreur.lien.size(), vide.enregistreur.lien.size() + 4U * cellules);
}

TEST(RawDump, KeepsItsNameForTheProgram) {
    BancDump banc;
    banc.Lire();
    EXPECT_EQ(Clair(banc.ecran.etat.Nom_Fichier), "2026-3-5-14-7-9");
}

TEST(RawDump, ReplacesAFileOfThatName) {
    BancDump banc;
    banc.etabli.Ecrire(banc.fichier, QByteArray(20000, 'x'));
    banc.Lire();
    EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
}

TEST(RawDump, DoesNotLookAtParityAndDropsTheFlagsAboveTheValue) {
    BancDump banc;
    MesureEnFlash cellule = MesurePeriodique(t0, 700);
    cellule[6] |= 0xFC;
    banc.Poser(0, cellule);
    banc.Poser(1, simulateur::PariteCassee(MesurePeriodique(t0 + 1, 64), 5));
    banc.Lire();
    EXPECT_EQ(banc.Lignes()[1], Ligne(t0, 700, "10.938"));
    EXPECT_EQ(banc.Lignes()[2], Ligne(t0 + 1, 64, "1"));
}

TEST(RawDump, AnErasedCellKeepsTheTimeStampBeforeItAndAddsWhatFits) {
    BancDump banc;
    banc.Poser(1, simulateur::CelluleEffacee());
    banc.Poser(2, simulateur::CelluleEffacee());
    banc.Lire();
    // Its first byte cannot be held and is left out, the three others are added.
    constexpr std::uint32_t ajout = 0xFFFFFF;
    EXPECT_EQ(banc.Lignes()[1], Ligne(t0, 0, "0"));
    EXPECT_EQ(banc.Lignes()[2], Ligne(t0 + ajout, 1023, "15.984", 65535));
    EXPECT_EQ(banc.Lignes()[3], Ligne(t0 + 2 * ajout, 1023, "15.984", 65535));
    EXPECT_EQ(banc.Lignes()[4], Ligne(t0 + 3, 3, "0.047"));
}

TEST(RawDump, AnErasedMemoryIsDumpedToItsEnd) {
    BancDump banc;
    banc.Lire(7000, 7003);
    const std::vector<std::string> lignes = banc.Lignes();
    ASSERT_EQ(lignes.size(), 1U + 4 * cellules);
    EXPECT_EQ(lignes[1], Ligne(0xFFFFFF, 1023, "15.984", 65535));
    // No time stamp is beyond what 32 signed bits hold.
    for (std::size_t i = 1; i < lignes.size(); ++i)
        EXPECT_LE(std::stoll(lignes[i]), 2147483647LL);
    EXPECT_GT(std::stoll(lignes.back()), 2147483647LL - 0xFFFF);
    AttendreRepos(banc);
}

TEST(RawDump, CorrectsByTheCalibrationAndNeverToAbsolutePressure) {
    BancDump banc;
    banc.enregistreur.ReglerEtalonnage(t0, 1, 164, 100);
    banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::mode, 128);
    banc.Lire();
    EXPECT_TRUE(banc.ui.PressionAbsolue->isChecked());
    EXPECT_EQ(banc.Lignes()[1], Ligne(t0, 0, "1"));
}

TEST(RawDump, WritesPressuresWithTheSeparatorOfTheLocale) {
    BancDump banc;
    banc.etabli.systeme.regional.separateur = QStringLiteral(",");
    banc.Lire();
    EXPECT_EQ(banc.Lignes()[2], Ligne(t0 + 1, 1, "0,016"));
}

TEST(RawDump, ReadsTheParametersFirst) {
    BancDump banc;
    banc.ui.ListeUnites->Choisir(banc.ui.ListeUnites->findText(QStringLiteral("mbar")));
    banc.ecran.etat.TimeOut = true;
    banc.Lire();
    EXPECT_EQ(Clair(banc.ui.ListeUnites->Texte()), "bar");
    EXPECT_EQ(Clair(banc.ui.Version->text()), "(1) 2.100");
    const std::vector<int> codes = banc.enregistreur.journal.Codes();
    EXPECT_EQ(codes.front(), 9);
    EXPECT_EQ(std::ranges::find(codes, 20) - codes.begin(),
              static_cast<std::ptrdiff_t>(codes.size()) - cellules);
    EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
}

TEST(RawDump, FromAPageBehindTheLastOneIsAFileOfOneLine) {
    for (const int fin : {99, 0, -32768}) {
        BancDump banc;
        banc.Lire(100, fin);
        EXPECT_EQ(Clair(banc.Contenu()), ligneEntete + "\r\n");
        EXPECT_EQ(banc.tours, 0);
        EXPECT_LE(banc.ui.ProgressBar2->Maximum(), 1);
        ASSERT_EQ(banc.Boites(), 1U);
        AttendreAnnonce(banc, banc.Boite(0));
        AttendreRepos(banc);
    }
}

TEST(RawDump, OfAPageThatCannotBeAskedForRepeatsWhatStood) {
    BancDump banc;
    banc.Lire(-1, 0);
    const std::vector<std::string> lignes = banc.Lignes();
    ASSERT_EQ(lignes.size(), 1U + 2 * cellules);
    for (int i = 1; i <= cellules; ++i)
        EXPECT_EQ(lignes[static_cast<std::size_t>(i)], Ligne(0, 0, "0"));
    EXPECT_EQ(banc.Demandees(), cellules);
    AttendreRepos(banc);
}

TEST(RawDump, ClosesTheLinkThatItsLastCellHasLeftOpenBehindItsBox) {
    BancDump banc;
    int ouvertes = -1;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { ouvertes = banc.PoigneesOuvertes(); };
    // A page below 0 is a fault behind the opening of the link.
    banc.Lire(-1, -1);
    EXPECT_EQ(ouvertes, 2);
    ASSERT_EQ(banc.Boites(), 1U);
    AttendreRepos(banc);
}

TEST(RawDump, MovesTheBarOneStepACellUpToOneBeforeItsEnd) {
    BancDump banc;
    std::vector<double> maxima;
    std::vector<double> valeurs;
    for (const int tour : {1, 2, 66, 67, 68, 69, 198})
        banc.AuTour(tour, [&] {
            maxima.push_back(banc.ui.ProgressBar2->Maximum());
            valeurs.push_back(banc.ui.ProgressBar2->Valeur());
        });
    banc.Lire(100, 102);
    EXPECT_EQ(banc.tours, 198);
    EXPECT_EQ(maxima, (std::vector<double>(7, 67)));
    EXPECT_EQ(valeurs, (std::vector<double>{0, 1, 65, 66, 66, 66, 66}));
}

TEST(RawDump, OfOnePageLeavesTheBarAtItsStart) {
    BancDump banc;
    banc.ui.ProgressBar2->FixerValeur(50);
    double valeur = -1;
    banc.AuTour(40, [&] { valeur = banc.ui.ProgressBar2->Valeur(); });
    banc.Lire();
    EXPECT_EQ(valeur, 0);
    EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 1);
}

TEST(RawDump, OfTheWholeMemoryHasALongBar) {
    BancDump banc;
    banc.AuTour(1, [&] {
        EXPECT_EQ(banc.ui.ProgressBar2->Maximum(), 8191 * 33 + 1);
        banc.ecran.close();
    });
    banc.Lire(0, 8191);
    EXPECT_EQ(banc.tours, 1);
}

TEST(RawDump, ShowsTheBarAndTheArrowAndTakesItsButtonAwayWhileItRuns) {
    BancDump banc;
    banc.AuTour(5, [&] {
        EXPECT_FALSE(banc.ui.ProgressBar2->isHidden());
        EXPECT_FALSE(banc.ui.Infos->isHidden());
        EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
        EXPECT_FALSE(banc.ui.LireValeursPage->isEnabled());
    });
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        EXPECT_TRUE(banc.ui.ProgressBar2->isHidden());
        EXPECT_TRUE(banc.ui.Infos->isHidden());
        EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
        EXPECT_FALSE(banc.ui.LireValeursPage->isEnabled());
        EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
    };
    banc.Lire();
    EXPECT_EQ(banc.tours, cellules);
    EXPECT_EQ(banc.Boites(), 1U);
    AttendreRepos(banc);
}

TEST(RawDump, BringsEachLineToTheDiskAtOnce) {
    BancDump banc;
    std::size_t lignes = 0;
    banc.AuTour(31, [&] { lignes = banc.Lignes().size(); });
    banc.Lire();
    EXPECT_EQ(lignes, 31U);
}

TEST(RawDump, NamesTheFileInTheLanguageOfTheForm) {
    BancDump banc(QStringLiteral("Français"));
    banc.Lire(100, 99);
    EXPECT_EQ(Clair(banc.Boite(0).texte), "Valeurs stockées dans le fichier 2026-3-5-14-7-9.dmp");
}

TEST(RawDump, OfALoggerInCalibrationSaysSoAndGoesOn) {
    BancDump banc;
    banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::modeEtalonnage, 1);
    int boites = 0;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        EXPECT_FALSE(banc.ui.LireValeursPage->isEnabled());
        if (++boites > 1) return;
        EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
        EXPECT_FALSE(banc.FichierFait());
    };
    banc.Lire();
    ASSERT_EQ(banc.Boites(), 2U);
    AttendreAnnonce(banc, banc.Boite(1));
    EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
    AttendreRepos(banc);
}

}  // namespace bornika::essai
