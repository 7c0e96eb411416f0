// The set-up is changed and written with real clicks on the whole program.

#include <gtest/gtest.h>

#include "app/program_fixture.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;

namespace adresse = simulateur::adresse;

struct WritingOnTheRoad : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPodReseauEau(maintenantSimule));

    void SetUp() override {
        ASSERT_TRUE(banc.Demarrer());
        banc.etabli.dialogues.OublierBoites();
    }
    void EcrireEnConfirmant() {
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Ok, QStringLiteral("écrasées"));
        BancProgramme::Cliquer(banc.ui().Ecrire);
    }
};

const QString ecrasees = QStringLiteral(" Les anciennes valeurs seront écrasées");
const QString terminee = QStringLiteral("Ecriture des paramètres terminée");

TEST_F(WritingOnTheRoad, AChangedCommentAndPeriodReachTheLogger) {
    BancProgramme::Cliquer(banc.ui().Check_advanced);
    BancProgramme::Taper(banc.ui().Commentaire, QStringLiteral("Quai 12"));
    banc.ui().ListePeriodeEchantillonage->Choisir(11);
    EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), QStringList({ecrasees, terminee}));
    EXPECT_EQ(pod.memoire.Texte(adresse::commentaire, 14), "Quai 12       ");
    EXPECT_EQ(pod.memoire.Mot(adresse::periodeStockage), 480);
    EXPECT_EQ(pod.NombreMesures(), 0);
    EXPECT_EQ(banc.ui().Commentaire->text(), QStringLiteral("Quai 12       "));
    EXPECT_TRUE(banc.ui().Ecrire->isEnabled());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(WritingOnTheRoad, ACancelKeepsTheRecordingAndClosingTheProgramClosesTheLink) {
    const int mesures = pod.NombreMesures();
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    BancProgramme::Cliquer(banc.ui().Ecrire);
    EXPECT_EQ(banc.Boites(), QStringList({ecrasees}));
    EXPECT_EQ(pod.NombreMesures(), mesures);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 2);
    BancProgramme::Cliquer(banc.ui().Sortir);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(WritingOnTheRoad, APeriodThatFitsNoFrameEndsTheProgramWithTheLoggerUntouched) {
    const int mesures = pod.NombreMesures();
    auto& liste = *banc.ui().ListePeriodeEchantillonage;
    liste.FixerDonnee(liste.Index(), 65536);
    EcrireEnConfirmant();
    ASSERT_EQ(banc.sorties, (std::vector<int>{1}));
    EXPECT_TRUE(banc.Boites().last().contains(QStringLiteral("Overflow")));
    EXPECT_EQ(pod.NombreMesures(), mesures);
    EXPECT_EQ(pod.journal.Nombre(1), 0);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(WritingOnTheRoad, LeavesTheWatchdogTimerRunning) {
    banc.programme->Timeur.start(1'000'000);
    EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), QStringList({ecrasees, terminee}));
    EXPECT_TRUE(banc.programme->Timeur.isActive());
    EXPECT_EQ(banc.programme->Timeur.interval(), 1'000'000);
}

TEST_F(WritingOnTheRoad, InTheMiddleOfADownloadEndsItWithItsFileStanding) {
    int tours = 0;
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 300) EcrireEnConfirmant();
    });
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    EXPECT_TRUE(banc.Boites().contains(terminee));
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    EXPECT_TRUE(banc.ui().Ecrire->isEnabled());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.sorties.empty());
    int lignes = 0;
    for (const QString& nom : banc.etabli.Fichiers())
        if (nom.endsWith(QStringLiteral(".txt")))
            lignes += static_cast<int>(banc.etabli.Lire(nom).count("\r\n"));
    EXPECT_GT(lignes, 100);
    EXPECT_LT(lignes, 400);
}

}  // namespace
}  // namespace bornika
