// A whole calibration by the hand of an operator, and the pressures of the recording after it.
//
// The sensor is that of 0 - 16 bar, the unit is bar: 1024 points are 16 bar, 64 points are 1 bar.
//
// Two points. 2 bar are 128 points, and the sensor sees 130; 12 bar are 768, and it sees 750.
// Slope (768 - 128) / (750 - 130) = 640 / 620 = 32 / 31, so that a measure of m points counts as
// 128 + (m - 130) x 32 / 31:
//     130 ->  128                               = 128 points -> 128 / 64    =  2.000 bar
//     750 ->  128 + 620 x 32 / 31 = 128 + 640   = 768 points -> 768 / 64    = 12.000 bar
//     440 ->  128 + 310 x 32 / 31 = 128 + 320   = 448 points -> 448 / 64    =  7.000 bar
//     285 ->  128 + 155 x 32 / 31 = 128 + 160   = 288 points -> 288 / 64    =  4.500 bar
//       6 ->  128 - 124 x 32 / 31 = 128 - 128   =   0 points ->               0.000 bar
//    1023 ->  128 + 893 x 32 / 31 = 128 + 921.806... = 1049.806... -> 1049.806... / 64 = 16.403 bar
//       0 ->  128 - 130 x 32 / 31 = 128 - 134.193... = -6.193...   -> -0.0967...      = -0.097 bar
//
// One point. 5 bar are 320 points, and the sensor sees 316: 4 points are added to every measure.
//     316 -> 320 -> 320 / 64 = 5.000 bar
//     416 -> 420 -> 420 / 64 = 6.5625, in three decimals 6.563 bar
//       0 ->   4 ->   4 / 64 = 0.0625, in three decimals 0.063 bar

#include <gtest/gtest.h>

#include "app/program_fixture.h"
#include "calibration/calibration_form.h"
#include "simulator/measure.h"
#include "ui_calibration_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;
using Lignes = std::vector<std::pair<int, QByteArray>>;

simulateur::PtrEnregistreur AncienSansType(std::uint32_t maintenant) {
    auto pod = simulateur::KPodAncien(maintenant);
    pod->identite.type = 0;
    return pod;
}

struct CalibrationOnTheRoad : testing::Test {
    BancProgramme banc;
    EnregistreurSimule* pod = nullptr;

    void Commencer(simulateur::PtrEnregistreur enregistreur) {
        pod = &banc.bus.Brancher(std::move(enregistreur));
        ASSERT_TRUE(banc.Demarrer());
        BancProgramme::Cliquer(banc.ui().Lire);
        banc.etabli.dialogues.OublierBoites();
    }
    /// One measure a second; the last one ends the second before it and is not written itself.
    void Stocker(const std::vector<int>& points) {
        pod->ViderMesures();
        std::uint32_t seconde = maintenantSimule - 1000;
        for (const int point : points)
            pod->Stocker(simulateur::MesurePeriodique(seconde++, point));
        pod->Stocker(simulateur::MesurePeriodique(seconde, 500));
    }
    /// Opens the form from the menu, and lets the hand act on it.
    void Etalonner(const std::function<void(Etalonnage&)>& main) {
        banc.main = [&main](QDialog& dialogue) {
            auto* fiche = dynamic_cast<Etalonnage*>(&dialogue);
            ASSERT_NE(fiche, nullptr);
            QCoreApplication::processEvents();
            main(*fiche);
            BancProgramme::Cliquer(fiche->ui->Sortir);
            EXPECT_FALSE(fiche->isVisible());
        };
        banc.ui().mnuEtalonnage->trigger();
        banc.main = {};
    }
    /// Types a reference and takes the point: cord off, sensor at `points`, cord on.
    void PrendrePoint(Etalonnage& fiche, int rang, const char* pression, int points) {
        BancProgramme::Taper(fiche.Rangee(rang).ValeurPressionReelle,
                             QString::fromLatin1(pression));
        banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Débranchez le cordon USB"));
        banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("rebranchez le cordon USB"));
        int boites = 0;
        banc.etabli.dialogues.pendantBoite = [&](const auto&) {
            if (++boites == 1) {
                EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
                banc.bus.Debrancher(pod->identite.usb);
                pod->MettreSurCapteur(points);
            } else {
                banc.bus.Rebrancher(pod->identite.usb);
            }
        };
        BancProgramme::Cliquer(fiche.ui->EntrerEtalonnage);
        banc.etabli.dialogues.pendantBoite = {};
        EXPECT_EQ(boites, 2);
    }
    /// Points and pressure of each line of the recording.
    Lignes Telecharger() {
        banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
        BancProgramme::Cliquer(banc.ui().LireValeurs);
        Lignes lignes;
        for (const QByteArray& ligne : banc.etabli.Lire("2026-03-05-14-07-09.txt").split('\n')) {
            const QList<QByteArray> champs = ligne.split(';');
            if (champs.size() > 4 && !ligne.startsWith("Temps"))
                lignes.emplace_back(champs[2].toInt(), champs[3]);
        }
        return lignes;
    }
};

TEST_F(CalibrationOnTheRoad, WithTwoPointsIsInThePressuresOfTheNextRecording) {
    Commencer(simulateur::KPod2100(maintenantSimule));
    Etalonner([this](Etalonnage& fiche) {
        PrendrePoint(fiche, 0, "2", 130);
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Oui);
        BancProgramme::Cliquer(fiche.ui->SortirEtalonnage);
        PrendrePoint(fiche, 1, "12", 750);
        BancProgramme::Cliquer(fiche.ui->SortirEtalonnage);
        EXPECT_EQ(fiche.ui->ValeurPressionReelle_0->text(), QStringLiteral("2.0"));
        EXPECT_EQ(fiche.ui->ValeurPressionLue_0->text(), QStringLiteral("2.0"));
        EXPECT_EQ(fiche.ui->ValeurPressionReelle_1->text(), QStringLiteral("12.0"));
        EXPECT_EQ(fiche.ui->ValeurPressionLue_1->text(), QStringLiteral("11.7"));
        EXPECT_EQ(fiche.ui->ValeurDateEtalonnage->text(), QStringLiteral("05/03/2026 14:07:09"));
    });
    Stocker({130, 750, 440, 285, 6, 1023, 0});
    EXPECT_EQ(Telecharger(), (Lignes{{130, "2"},
                                     {750, "12"},
                                     {440, "7"},
                                     {285, "4.5"},
                                     {6, "0"},
                                     {1023, "16.403"},
                                     {0, "-0.097"}}));
    EXPECT_TRUE(banc.sorties.empty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(CalibrationOnTheRoad, WithOnePointShiftsThePressuresOfTheNextRecording) {
    Commencer(simulateur::KPod2100(maintenantSimule));
    Etalonner([this](Etalonnage& fiche) {
        PrendrePoint(fiche, 0, "5", 316);
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Non);
        BancProgramme::Cliquer(fiche.ui->SortirEtalonnage);
        EXPECT_FALSE(fiche.ui->ValeurPressionReelle_1->isVisible());
    });
    Stocker({316, 416, 0});
    EXPECT_EQ(Telecharger(), (Lignes{{316, "5"}, {416, "6.563"}, {0, "0.063"}}));
}

TEST_F(CalibrationOnTheRoad, OfOldFirmwareShiftsThePressuresToo) {
    Commencer(AncienSansType(maintenantSimule));
    Etalonner([this](Etalonnage& fiche) {
        // The first click only fills the hidden second box.
        BancProgramme::Cliquer(fiche.ui->EntrerEtalonnage);
        EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
        PrendrePoint(fiche, 0, "5", 316);
        BancProgramme::Cliquer(fiche.ui->SortirEtalonnage);
        EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 2U) << "no question";
    });
    Stocker({316, 416, 0});
    EXPECT_EQ(Telecharger(), (Lignes{{316, "5"}, {416, "6.563"}, {0, "0.063"}}));
}

TEST_F(CalibrationOnTheRoad, OpensAsOftenAsItIsAskedForAndReadsTheLoggerEachTime) {
    Commencer(simulateur::KPod2100(maintenantSimule));
    for (int fois = 0; fois < 3; ++fois) {
        pod->journal.Vider();
        Etalonner([](Etalonnage& fiche) {
            EXPECT_TRUE(fiche.ui->EntrerEtalonnage->isEnabled());
            EXPECT_FALSE(fiche.ui->SortirEtalonnage->isEnabled());
            EXPECT_EQ(fiche.DeuxiemePoint, 0);
        });
        EXPECT_EQ(pod->journal.Codes(), (std::vector<int>{9, 28, 26, 26}));
    }
    EXPECT_EQ(banc.montres.count(QStringLiteral("bornika::Etalonnage")), 3);
}

TEST_F(CalibrationOnTheRoad, SaysThatTheLoggerIsAbsentAndComesUpAllTheSame) {
    Commencer(simulateur::KPod2100(maintenantSimule));
    banc.bus.Debrancher(pod->identite.usb);
    Etalonner([this](Etalonnage& fiche) {
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte, QStringLiteral("k-Pod absent"));
        banc.bus.Rebrancher(pod->identite.usb);
        fiche.ui->ValeurPressionReelle_1->setText(QStringLiteral("0"));
        PrendrePoint(fiche, 0, "5", 316);
    });
    EXPECT_EQ(pod->memoire.Mot(simulateur::adresse::referenceBas), 320);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(CalibrationOnTheRoad, LeftBetweenTwoPointsSaysSoAtTheNextReading) {
    Commencer(simulateur::KPod2100(maintenantSimule));
    Etalonner([this](Etalonnage& fiche) {
        PrendrePoint(fiche, 0, "2", 130);
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Oui);
        BancProgramme::Cliquer(fiche.ui->SortirEtalonnage);
    });
    banc.etabli.dialogues.OublierBoites();
    BancProgramme::Cliquer(banc.ui().Lire);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte,
              QStringLiteral("Mode étalonnage en cours"));
}

TEST_F(CalibrationOnTheRoad, OpenedInTheMiddleOfADownloadLeavesItsFileStanding) {
    Commencer(simulateur::KPodReseauEau(maintenantSimule));
    int tours = 0;
    banc.etabli.respiration.ReglerEvenements([&] {
        if (++tours == 300)
            Etalonner([](Etalonnage& fiche) {
                EXPECT_EQ(fiche.ui->ValeurPressionReelle_1->text(), QStringLiteral("12.8"));
            });
        QCoreApplication::processEvents();
    });
    const auto lignes = Telecharger();
    EXPECT_EQ(banc.montres.count(QStringLiteral("bornika::Etalonnage")), 1);
    EXPECT_GT(lignes.size(), 200U);
    EXPECT_TRUE(banc.etabli.Lire("2026-03-05-14-07-09.err").endsWith("End Parity Control"));
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.sorties.empty());
}

}  // namespace
}  // namespace bornika
