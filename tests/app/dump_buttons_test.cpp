// The two dumps of the service panel, with real clicks on the whole program.

#include <gtest/gtest.h>

#include <QFile>

#include "app/program_fixture.h"
#include "support/case_names.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;

const QString contexte = QStringLiteral("Contexte.txt");
const QString pages = QStringLiteral("2026-3-5-14-7-9.dmp");

/// The program in maintenance mode, its logger chosen and full of measures.
struct DumpButtons : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPodReseauEau(maintenantSimule));

    void SetUp() override {
        QByteArray reglages = banc.etabli.Lire(QStringLiteral("config.xml"));
        reglages.replace("<Maintenance>False<", "<Maintenance>True<");
        banc.etabli.Ecrire(QStringLiteral("config.xml"), reglages);
        ASSERT_TRUE(banc.Demarrer());
        ASSERT_TRUE(banc.ui().LireEeprom->isVisible());
        ASSERT_TRUE(banc.ui().LireValeursPage->isVisible());
    }

    void LirePages(const char* debut, const char* fin) {
        BancProgramme::Taper(banc.ui().PageDebut, QString::fromLatin1(debut));
        BancProgramme::Taper(banc.ui().PageFin, QString::fromLatin1(fin));
        BancProgramme::Cliquer(banc.ui().LireValeursPage);
    }
    QList<QByteArray> Lignes(const QString& nom) { return banc.etabli.Lire(nom).split('\n'); }
    /// Runs `geste` in the yield of that round.
    void AuTour(int tour, std::function<void()> geste) {
        banc.etabli.respiration.ReglerEvenements([this, tour, geste = std::move(geste)] {
            if (++tours == tour) geste();
        });
    }

    int tours = 0;
};

TEST_F(DumpButtons, TheContextGoesToTheFileThatTheOperatorNames) {
    banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(contexte));
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    const QList<QByteArray> lignes = Lignes(contexte);
    ASSERT_EQ(lignes.size(), 168);
    EXPECT_EQ(lignes[129],
              "Ofs - 1 N\xB0 serie : " +
                  QByteArray::number(pod.memoire.DoubleMot(simulateur::adresse::numeroSerie)) +
                  "\r");
    EXPECT_TRUE(banc.Boites().isEmpty());
    EXPECT_TRUE(banc.ui().LireEeprom->isEnabled());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpButtons, TheContextShowsWhatTheLoggerWasToldMeanwhile) {
    pod.memoire.EcrireMot(simulateur::adresse::periodeStockage, 960);
    banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(contexte));
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    EXPECT_TRUE(banc.etabli.Lire(contexte).contains("Ofs - 45 Interval de stockage : 960\r\n"));
}

TEST_F(DumpButtons, ACancelledDialogAndALostLoggerLeaveNoContextFile) {
    banc.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    banc.bus.Debrancher(pod.identite.usb);
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    EXPECT_EQ(banc.Boites(), QStringList{QStringLiteral("k-Pod absent")});
    // As long as nothing was read anew no further click reaches the logger, nor says a word.
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    EXPECT_EQ(banc.Boites().size(), 1);
    EXPECT_FALSE(banc.etabli.Fichiers().contains(contexte));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.sorties.empty());

    banc.bus.Rebrancher(pod.identite.usb);
    BancProgramme::Cliquer(banc.ui().Lire);
    banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(contexte));
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    EXPECT_EQ(Lignes(contexte).size(), 168);
}

TEST_F(DumpButtons, AContextFileThatCannotBeMadeIsTheGeneralFailure) {
    banc.etabli.dialogues.AnnoncerEnregistrement(
        banc.etabli.Chemin(QStringLiteral("absent/") + contexte));
    BancProgramme::Cliquer(banc.ui().LireEeprom);
    EXPECT_EQ(banc.Boites(),
              QStringList{QStringLiteral("Run-time error '76':\n\nContexte.txt : Path not found")});
    EXPECT_EQ(banc.sorties, std::vector<int>{1});
}

TEST_F(DumpButtons, ThePagesGoToAFileBesideTheProgram) {
    LirePages("1", "3");
    const QList<QByteArray> lignes = Lignes(pages);
    ASSERT_EQ(lignes.size(), 1 + 3 * 66 + 1);
    EXPECT_EQ(lignes[0], "page;buffer;Date Heure;Valeur;Pression;unit\xE9\r");
    for (qsizetype i = 1; i < lignes.size() - 1; ++i)
        EXPECT_EQ(lignes[i].split(';').size(), 7) << i;
    EXPECT_EQ(banc.Boites(),
              QStringList{QStringLiteral("Valeurs stockées dans le fichier ") + pages});
    EXPECT_TRUE(banc.ui().LireValeursPage->isEnabled());
    EXPECT_FALSE(banc.ui().ProgressBar2->isVisible());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpButtons, TheFirstPageIsTheOneThatTheLoggerStoredFirst) {
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    LirePages("1", "1");
    const simulateur::MesureEnFlash premiere = pod.Stockee(0);
    const std::uint32_t secondes = static_cast<std::uint32_t>(premiere[2]) << 24 |
                                   static_cast<std::uint32_t>(premiere[3]) << 16 |
                                   static_cast<std::uint32_t>(premiere[4]) << 8 | premiere[5];
    EXPECT_TRUE(Lignes(pages)[1].startsWith(QByteArray::number(secondes) + "; "));
}

TEST_F(DumpButtons, ASecondClickWhileItRunsDoesNothing) {
    AuTour(20, [&] { BancProgramme::Cliquer(banc.ui().LireValeursPage); });
    LirePages("1", "1");
    EXPECT_EQ(tours, 66);
    EXPECT_EQ(pod.journal.Nombre(20), 66);
    EXPECT_EQ(banc.Boites().size(), 1);
}

TEST_F(DumpButtons, TheContextCanBeDumpedWhileThePagesAre) {
    banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(contexte));
    AuTour(20, [&] { BancProgramme::Cliquer(banc.ui().LireEeprom); });
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    LirePages("1", "1");
    EXPECT_EQ(Lignes(contexte).size(), 168);
    EXPECT_EQ(Lignes(pages).size(), 68);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpButtons, ADownloadInsideTheDumpEndsWithItsCurve) {
    AuTour(20, [&] { BancProgramme::Cliquer(banc.ui().LireValeurs); });
    LirePages("1", "1");
    EXPECT_NE(banc.programme->trace.Presente(), nullptr);
    EXPECT_EQ(Lignes(pages).size(), 68);
    EXPECT_EQ(banc.Boites(),
              QStringList({QStringLiteral("Valeurs stockées dans le fichier "
                                          "2026-03-05-14-07-09.txt"),
                           QStringLiteral("Valeurs stockées dans le fichier ") + pages}));
}

TEST_F(DumpButtons, ADownloadLosesNothingOverTheServiceReadingsInsideIt) {
    const QString mesures = QStringLiteral("2026-03-05-14-07-09.txt");
    pod.ViderMesures();
    for (std::uint32_t i = 0; i < 120; ++i)
        pod.Stocker(simulateur::MesurePeriodique(maintenantSimule - 1000 + i, 500));
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    const QByteArray seul = banc.etabli.Lire(mesures);
    ASSERT_GT(seul.count('\n'), 100);
    ASSERT_TRUE(QFile::remove(banc.etabli.Chemin(mesures)));

    banc.etabli.dialogues.AnnoncerEnregistrement(banc.etabli.Chemin(contexte));
    banc.etabli.respiration.ReglerEvenements([this] {
        ++tours;
        if (tours == 20) BancProgramme::Cliquer(banc.ui().LireEeprom);
        if (tours == 40) BancProgramme::Cliquer(banc.ui().LireLaFlash);
    });
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_EQ(Lignes(contexte).size(), 168);
    EXPECT_FALSE(banc.ui().resultat->text().isEmpty());
    EXPECT_EQ(banc.etabli.Lire(mesures).toStdString(), seul.toStdString());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(DumpButtons, ClosingTheMainFormInADumpLeavesWithoutABox) {
    AuTour(20, [&] { BancProgramme::Cliquer(banc.ui().Sortir); });
    LirePages("1", "3");
    EXPECT_EQ(tours, 20);
    EXPECT_TRUE(banc.Boites().isEmpty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(Lignes(pages).size(), 1 + 19 + 1);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(DumpButtons, ALoggerPulledOutInADumpIsToldOnceAndTheFileIsWholeInLines) {
    AuTour(20, [&] { banc.bus.Debrancher(pod.identite.usb); });
    LirePages("1", "2");
    EXPECT_EQ(banc.Boites(),
              QStringList({QStringLiteral("k-Pod absent"),
                           QStringLiteral("Valeurs stockées dans le fichier ") + pages}));
    const QList<QByteArray> lignes = Lignes(pages);
    ASSERT_EQ(lignes.size(), 1 + 2 * 66 + 1);
    for (qsizetype i = 20; i < lignes.size() - 1; ++i)
        EXPECT_EQ(lignes[i], lignes[19]);
    EXPECT_TRUE(banc.ui().LireValeursPage->isEnabled());
}

TEST_F(DumpButtons, WithoutALoggerThePagesButtonStaysDisabledAndTheOthersWork) {
    banc.bus.Debrancher(pod.identite.usb);
    LirePages("1", "1");
    EXPECT_EQ(banc.Boites(), QStringList{QStringLiteral("k-Pod absent")});
    EXPECT_FALSE(banc.ui().LireValeursPage->isEnabled());
    EXPECT_TRUE(banc.ui().LireValeurs->isEnabled());
    EXPECT_FALSE(banc.etabli.Fichiers().contains(pages));
    banc.bus.Rebrancher(pod.identite.usb);
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().Version->text(), QStringLiteral("(1) 2.100"));
}

TEST_F(DumpButtons, AFullDiskIsToldAndTheProgramGoesOn) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), banc.etabli.Chemin(pages)));
    LirePages("1", "3");
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().icone, Icone::Critique);
    EXPECT_TRUE(banc.ui().LireValeursPage->isEnabled());
    EXPECT_TRUE(banc.sorties.empty());
    EXPECT_EQ(pod.journal.Nombre(20), 0);
}

struct PageTexts : DumpButtons,
                   testing::WithParamInterface<std::tuple<const char*, const char*, int>> {};

TEST_P(PageTexts, ThatAreNoPageNumbersEndTheProgramBeforeAnyFrame) {
    const auto& [debut, fin, numero] = GetParam();
    const int avant = pod.journal.Total();
    LirePages(debut, fin);
    ASSERT_EQ(banc.Boites().size(), 1);
    EXPECT_TRUE(
        banc.Boites().front().startsWith(QStringLiteral("Run-time error '%1':").arg(numero)));
    EXPECT_EQ(banc.sorties, std::vector<int>{1});
    EXPECT_EQ(pod.journal.Total(), avant);
    EXPECT_TRUE(banc.ui().LireValeursPage->isEnabled());
}

std::string NomDesPages(const testing::TestParamInfo<PageTexts::ParamType>& info) {
    const auto& [debut, fin, numero] = info.param;
    return essai::NomDeCas(info.index, debut + std::string(" to ") + fin);
}

INSTANTIATE_TEST_SUITE_P(Texts, PageTexts,
                         testing::Values(std::tuple("abc", "1", 13), std::tuple("", "1", 13),
                                         std::tuple("1", "", 13), std::tuple("1", "1 2", 13),
                                         std::tuple("1", "40000", 6), std::tuple("-32769", "1", 6),
                                         std::tuple("32767.5", "1", 6)),
                         NomDesPages);

TEST_F(DumpButtons, APageNumberIsRoundedHalfToEven) {
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    LirePages("0.5", " 2.5 ");
    EXPECT_EQ(pod.journal.Nombre(20), 3 * 66);
    EXPECT_EQ(pod.journal.DeCode(20).front()[2], 0);
    EXPECT_EQ(pod.journal.DeCode(20).back()[2], 2);
}

}  // namespace
}  // namespace bornika
