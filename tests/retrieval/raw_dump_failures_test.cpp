// What goes wrong in a raw dump, and what the operator does meanwhile.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QSignalBlocker>
#include <optional>

#include "logger/parameter_reading.h"
#include "retrieval/raw_dump_fixture.h"
#include "support/case_names.h"
#include "support/limits.h"

namespace bornika::essai {
using simulateur::GenrePanne;

namespace {

constexpr int deuxPages = 2 * cellules;

class LostAtCell : public testing::TestWithParam<std::tuple<GenrePanne, int>> {
  protected:
    GenrePanne genre() const { return std::get<0>(GetParam()); }
    int place() const { return std::get<1>(GetParam()); }
};

std::vector<std::string> AvecEntete(int combien) {
    std::vector<std::string> lignes{ligneEntete};
    for (int place = 1; place <= combien; ++place)
        lignes.push_back(BancDump::Attendue(place));
    return lignes;
}

/// Starts a dump of one page of a logger that one frame of the reading of the parameters fails.
struct BancReglages : BancDump {
    BancReglages(GenrePanne genre, const std::vector<int>& codes, std::size_t rang,
                 int parametre = 0) {
        const int occurrence = static_cast<int>(std::count(
            codes.begin(), codes.begin() + static_cast<std::ptrdiff_t>(rang) + 1, codes[rang]));
        enregistreur.pannes.Ordonner({.code = codes[rang],
                                      .genre = genre,
                                      .occurrence = occurrence,
                                      .parametre = parametre});
        ui.LireValeurs->setEnabled(false);
        Lire();
    }
};

/// Codes of the frames before the first cell.
std::vector<int> CodesDesReglages() {
    BancDump banc;
    banc.Lire(100, 99);
    return banc.enregistreur.journal.Codes();
}

}  // namespace

TEST_P(LostAtCell, SaysSoOnceAndRepeatsTheLastGoodCellToTheEnd) {
    BancDump banc;
    banc.PanneCellule(genre(), place());
    banc.Lire(100, 101);
    std::vector<std::string> attendues = AvecEntete(place() - 1);
    const std::string derniere = place() > 1 ? attendues.back() : Ligne(0, 0, "0");
    attendues.resize(1 + deuxPages, derniere);
    EXPECT_EQ(banc.Lignes(), attendues);
    ASSERT_EQ(banc.Boites(), 2U);
    AttendreAbsent(banc.Boite(0));
    AttendreAnnonce(banc, banc.Boite(1));
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.tours, deuxPages);
    AttendreRepos(banc);
}

INSTANTIATE_TEST_SUITE_P(Kinds, LostAtCell,
                         testing::Combine(testing::Values(GenrePanne::silence,
                                                          GenrePanne::reponsePerdue,
                                                          GenrePanne::debranchement),
                                          testing::Values(1, 2, 66, 67, 132)),
                         [](const auto& cas) {
                             return NomDePanne(std::get<0>(cas.param)) + "AtCell" +
                                    std::to_string(std::get<1>(cas.param));
                         });

TEST(RawDumpFailing, ShowsTheAbsentLoggerWhileEverythingReadIsOnTheDisk) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::silence, 40);
    std::size_t lignes = 0;
    banc.etabli.dialogues.pendantBoite = [&](const auto& boite) {
        if (boite.icone == Icone::Aucune) lignes = banc.Lignes().size();
    };
    banc.Lire();
    EXPECT_EQ(lignes, 40U);
}

class ShortAnswer : public testing::TestWithParam<int> {};

TEST_P(ShortAnswer, CountsAndWhatDidNotComeIsZero) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::reponseCourte, GetParam(), 1, 4);
    banc.Lire(100, 101);
    std::vector<std::string> attendues = AvecEntete(deuxPages);
    // Two bytes of the time stamp are there.
    attendues[static_cast<std::size_t>(GetParam())] = Ligne(t0 & 0xFFFF0000U, 0, "0");
    EXPECT_EQ(banc.Lignes(), attendues);
    EXPECT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.Demandees(), deuxPages);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    AttendreRepos(banc);
}

INSTANTIATE_TEST_SUITE_P(Cells, ShortAnswer, testing::Values(1, 2, 66, 67, 132), nomDuCasImprime);

/// One dump of a page after the other on one form, each with its fault at another cell.
class FaultAtEachCell : public testing::TestWithParam<GenrePanne> {
  protected:
    bool Perdue() const {
        return GetParam() == GenrePanne::silence || GetParam() == GenrePanne::reponsePerdue ||
               GetParam() == GenrePanne::debranchement;
    }
    void Vider(int place) {
        banc.bus.Rebrancher(banc.enregistreur.identite.usb);
        banc.enregistreur.pannes.Annuler();
        banc.PanneCellule(GetParam(), place, 1, 4);
        banc.etabli.dialogues.OublierBoites();
        banc.Lire();
    }
    std::vector<std::string> Attendues(int place) const {
        const auto rang = static_cast<std::size_t>(place);
        std::vector<std::string> lignes = AvecEntete(cellules);
        if (GetParam() == GenrePanne::reponseCourte) lignes[rang] = Ligne(t0 & 0xFFFF0000U, 0, "0");
        if (GetParam() == GenrePanne::mauvaisEcho)
            lignes[rang].replace(lignes[rang].rfind(";0;"), 3, ';' + std::to_string(0x5500) + ';');
        if (!Perdue()) return lignes;
        lignes.resize(rang);
        lignes.resize(1 + cellules, place > 1 ? lignes.back() : Ligne(0, 0, "0"));
        return lignes;
    }
    BancDump banc;
};

TEST_P(FaultAtEachCell, ChangesThatCellOrLosesTheLaterOnesAndTheFormComesBack) {
    for (int place = 1; place <= cellules; ++place) {
        SCOPED_TRACE(place);
        Vider(place);
        EXPECT_EQ(banc.Lignes(), Attendues(place));
        ASSERT_EQ(banc.Boites(), Perdue() ? 2U : 1U);
        if (Perdue()) AttendreAbsent(banc.Boite(0));
        AttendreAnnonce(banc, banc.etabli.dialogues.Boites().back());
        EXPECT_EQ(banc.ecran.etat.TimeOut, Perdue());
        AttendreRepos(banc);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, FaultAtEachCell,
                         testing::Values(GenrePanne::silence, GenrePanne::reponsePerdue,
                                         GenrePanne::debranchement, GenrePanne::reponseCourte,
                                         GenrePanne::mauvaisEcho),
                         nomDuCasPanne);

TEST(RawDumpFailing, NoiseIsWrittenAsItCameAndGoesNoFurther) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::bruit, 3);
    banc.PanneCellule(GenrePanne::mauvaisEcho, 5);
    banc.Lire();
    std::vector<std::string> attendues = AvecEntete(cellules);
    const std::vector<std::string> lignes = banc.Lignes();
    ASSERT_EQ(lignes.size(), attendues.size());
    EXPECT_NE(lignes[3], attendues[3]);
    attendues[3] = lignes[3];
    // The first byte of a cell is the high one of its fraction.
    attendues[5] = Ligne(t0 + 4, 4, "0.063", 0x5500);
    EXPECT_EQ(lignes, attendues);
    AttendreRepos(banc);
}

TEST(RawDumpFailing, AReadingBegunMeanwhileReachesTheLoggerAgain) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::silence, 5);
    banc.AuTour(10, [&] { Lire_Parametres(banc.poste); });
    banc.Lire();
    std::vector<std::string> attendues = AvecEntete(cellules);
    for (const std::size_t place : {5U, 6U, 7U, 8U, 9U})
        attendues[place] = attendues[4];
    EXPECT_EQ(banc.Lignes(), attendues);
    AttendreRepos(banc);
}

class LostInTheParameters : public testing::TestWithParam<GenrePanne> {};

TEST_P(LostInTheParameters, MakesNoFileAndLeavesItsButtonDisabled) {
    const std::vector<int> codes = CodesDesReglages();
    ASSERT_GT(codes.size(), 10U);
    for (std::size_t rang = 0; rang < codes.size(); ++rang) {
        SCOPED_TRACE("frame " + std::to_string(rang) + " of code " + std::to_string(codes[rang]));
        const BancReglages banc(GetParam(), codes, rang);
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(banc.etabli.Fichiers().filter(QStringLiteral(".dmp")).size(), 0);
        EXPECT_TRUE(banc.ecran.etat.Nom_Fichier.isEmpty());
        EXPECT_FALSE(banc.ui.LireValeursPage->isEnabled());
        EXPECT_TRUE(banc.ui.LireValeurs->isEnabled());
        EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
        EXPECT_EQ(banc.Demandees(), 0);
        EXPECT_EQ(banc.tours, 0);
        EXPECT_LE(banc.Boites(), 1U);
        if (banc.Boites() == 1U) AttendreAbsent(banc.Boite(0));
        EXPECT_EQ(banc.PoigneesOuvertes(), 0);
        EXPECT_TRUE(banc.etabli.fautes.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, LostInTheParameters,
                         testing::Values(GenrePanne::silence, GenrePanne::reponsePerdue,
                                         GenrePanne::debranchement),
                         nomDuCasPanne);

class OddInTheParameters : public testing::TestWithParam<GenrePanne> {};

TEST_P(OddInTheParameters, IsNoReasonNotToDump) {
    const std::vector<int> codes = CodesDesReglages();
    for (std::size_t rang = 0; rang < codes.size(); ++rang) {
        SCOPED_TRACE("frame " + std::to_string(rang) + " of code " + std::to_string(codes[rang]));
        const BancReglages banc(GetParam(), codes, rang, 1);
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
        AttendreAnnonce(banc, banc.etabli.dialogues.Boites().back());
        AttendreRepos(banc);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, OddInTheParameters,
                         testing::Values(GenrePanne::reponseCourte, GenrePanne::mauvaisEcho,
                                         GenrePanne::bruit),
                         nomDuCasPanne);

TEST(RawDumpFailing, AFileThatCannotBeMadeIsAFault) {
    BancDump banc;
    ASSERT_TRUE(QDir(banc.etabli.dossier.path()).mkdir(banc.fichier));
    banc.Lire();
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::accesRefuse});
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
    EXPECT_FALSE(banc.ui.LireValeursPage->isEnabled());
    EXPECT_EQ(banc.Demandees(), 0);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(RawDumpFailing, AFullDiskIsToldWithFileAndReasonBeforeAnyCellIsRead) {
    BancDump banc;
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), banc.etabli.Chemin(banc.fichier)));
    banc.Lire(100, 102);
    ASSERT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.Boite(0).icone, Icone::Critique);
    EXPECT_EQ(banc.Boite(0).boutons, Boutons::Ok);
    EXPECT_EQ(Clair(banc.Boite(0).titre), "k-Pod");
    EXPECT_TRUE(banc.Boite(0).texte.startsWith(banc.fichier + QStringLiteral(" : ")));
    EXPECT_GT(banc.Boite(0).texte.size(), banc.fichier.size() + 3);
    EXPECT_EQ(banc.Demandees(), 0);
    AttendreRepos(banc);
}

TEST(RawDumpFailing, ADiskThatFillsUpEndsItAndKeepsTheLinesThatAreThere) {
    BancDump banc;
    std::optional<TailleLimitee> limite;
    banc.AuTour(1, [&] { limite.emplace(2000); });
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { limite.reset(); };
    banc.Lire(100, 102);
    ASSERT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.Boite(0).icone, Icone::Critique);
    EXPECT_TRUE(banc.Boite(0).texte.startsWith(banc.fichier + QStringLiteral(" : ")));
    EXPECT_EQ(banc.Contenu().size(), 2000);
    const int lignes = static_cast<int>(banc.Contenu().count('\n'));
    EXPECT_GT(lignes, 30);
    // The header and one line for each cell, the last one cut off.
    EXPECT_EQ(banc.Demandees(), lignes);
    AttendreRepos(banc);
}

TEST(RawDumpClosed, ClosingTheFormLeavesWithoutABoxAndKeepsTheLines) {
    BancDump banc;
    banc.AuTour(10, [&] { banc.ecran.close(); });
    banc.Lire(100, 102);
    EXPECT_EQ(banc.tours, 10);
    EXPECT_EQ(banc.Demandees(), 9);
    EXPECT_EQ(banc.Lignes(), AvecEntete(9));
    EXPECT_EQ(banc.Boites(), 0U);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(RawDumpClosed, ClosingTheFormAtTheFirstCellLeavesTheHeader) {
    BancDump banc;
    banc.AuTour(1, [&] { banc.ecran.close(); });
    banc.Lire();
    EXPECT_EQ(banc.Lignes(), AvecEntete(0));
    EXPECT_EQ(banc.Boites(), 0U);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(RawDumpClosed, ClosingTheFormOverTheAbsentLoggerSaysNothingMore) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::silence, cellules);
    banc.etabli.dialogues.pendantBoite = [&](const auto&) { banc.ecran.close(); };
    banc.Lire();
    EXPECT_EQ(banc.Boites(), 1U);
    EXPECT_EQ(banc.Lignes().size(), 1U + cellules);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(RawDumpDisturbed, AUnitChosenMeanwhileCountsFromTheNextCellOn) {
    BancDump banc;
    banc.AuTour(10, [&] {
        banc.ui.ListeUnites->Choisir(banc.ui.ListeUnites->findText(QStringLiteral("mbar")));
    });
    banc.Lire();
    EXPECT_EQ(banc.Lignes()[9], BancDump::Attendue(9));
    EXPECT_EQ(banc.Lignes()[10], Ligne(t0 + 9, 9, "140.625"));
}

TEST(RawDumpDisturbed, AUnitChosenWhileTheBoxOfTheAbsentLoggerStandsCountsFromThatCellOn) {
    BancDump banc;
    banc.PanneCellule(GenrePanne::silence, 11);
    banc.etabli.dialogues.pendantBoite = [&](const auto& boite) {
        if (boite.icone == Icone::Aucune)
            banc.ui.ListeUnites->Choisir(banc.ui.ListeUnites->findText(QStringLiteral("mbar")));
    };
    // From there on the interface runs no more.
    banc.AuTour(11, [&] { banc.etabli.respiration.ReglerPas(std::chrono::hours(1)); });
    banc.Lire();
    EXPECT_EQ(banc.tours, 11);
    EXPECT_EQ(banc.Lignes()[10], BancDump::Attendue(10));
    EXPECT_EQ(banc.Lignes()[11], Ligne(t0 + 9, 9, "140.625"));
}

TEST(RawDumpDisturbed, APressureThatCannotBeComputedKeepsTheLastOne) {
    BancDump banc;
    banc.AuTour(10, [&] {
        const QSignalBlocker sansRegles(banc.ui.ListeUnites);
        banc.ui.ListeUnites->Choisir(-1);
    });
    banc.Lire();
    ASSERT_EQ(banc.Lignes().size(), 1U + cellules);
    EXPECT_EQ(banc.Lignes()[66], Ligne(t0 + 65, 65, "0.125"));
    AttendreRepos(banc);
}

TEST(RawDumpDisturbed, ADownloadInsideItLeavesEachItsOwnFileAndName) {
    BancDump banc;
    for (std::uint32_t i = 0; i < 30; ++i)
        banc.Stocker({simulateur::MesurePeriodique(t0 + i, 7)});
    banc.AuTour(10, [&] { banc.Telecharger(); });
    banc.Lire();
    EXPECT_EQ(banc.NombreLignes(), 29);
    EXPECT_EQ(banc.montres, std::vector<QString>{banc.nom + QStringLiteral(".txt")});
    EXPECT_EQ(banc.Lignes(), AvecEntete(cellules));
    ASSERT_EQ(banc.Boites(), 2U);
    EXPECT_TRUE(banc.Boite(0).texte.endsWith(banc.nom + QStringLiteral(".txt")));
    AttendreAnnonce(banc, banc.Boite(1));
    AttendreRepos(banc);
}

TEST(RawDumpDisturbed, InsideADownloadLeavesTheRecordingItsNameItsCommentsAndItsCurve) {
    BancDump banc;
    for (std::uint32_t i = 0; i < 30; ++i)
        banc.Stocker({simulateur::MesurePeriodique(t0 + i, 7)});
    banc.AuTour(10, [&] { banc.Lire(); });
    banc.Telecharger();
    EXPECT_EQ(banc.NombreLignes(), 29);
    ASSERT_EQ(banc.commentaires.size(), 2U);
    EXPECT_EQ(banc.commentaires[1], banc.nom + QStringLiteral(".txt"));
    EXPECT_EQ(banc.montres, std::vector<QString>{banc.nom + QStringLiteral(".txt")});
    EXPECT_EQ(banc.Lignes(), AvecEntete(cellules));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::sablier);
}

}  // namespace bornika::essai
