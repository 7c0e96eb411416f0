#include "logger/calibration_reading.h"

#include <gtest/gtest.h>

#include "logger/calibration_figures.h"
#include "logger/logger_fixture.h"

namespace bornika {

// The seven figures in the order in which they are told.
static bool operator==(const Etalonnage7& a, const Etalonnage7& b) {
    return a.valeur_etalonnage_bas == b.valeur_etalonnage_bas &&
           a.mesure_etalonnage_bas == b.mesure_etalonnage_bas &&
           a.valeur_etalonnage_haut == b.valeur_etalonnage_haut &&
           a.mesure_etalonnage_haut == b.mesure_etalonnage_haut &&
           a.correction_etalonnage == b.correction_etalonnage &&
           a.pente_etalonnage == b.pente_etalonnage && a.offset_etalonnage == b.offset_etalonnage;
}

static void PrintTo(const Etalonnage7& e, std::ostream* flux) {
    *flux << "bas " << e.valeur_etalonnage_bas << ',' << e.mesure_etalonnage_bas << " haut "
          << e.valeur_etalonnage_haut << ',' << e.mesure_etalonnage_haut << " correction "
          << e.correction_etalonnage << " pente " << e.pente_etalonnage << " offset "
          << e.offset_etalonnage;
}

}  // namespace bornika

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;

constexpr Etalonnage7 nul{};
constexpr Etalonnage7 ancien{1, 2, 3, 4, 5, 6, 7};

TEST(Etalonnage, OnePointIsAShift) {
    EXPECT_EQ(EtalonnageUnPoint({100, 104}), (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
}

TEST(Etalonnage, TwoPointsAreALine) {
    EXPECT_EQ(EtalonnageDeuxPoints({100, 100}, {900, 500}),
              (Etalonnage7{100, 100, 900, 500, 0, 2, -100}));
}

TEST(Etalonnage, AHighPairOfZerosIsNone) {
    EXPECT_EQ(EtalonnageDeuxPoints({100, 104}, {0, 0}), (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
}

TEST(Etalonnage, OneHighFigureSuffices) {
    EXPECT_EQ(EtalonnageDeuxPoints({100, 100}, {0, 200}),
              (Etalonnage7{100, 100, 0, 200, 0, -1, 200}));
}

TEST(Etalonnage, EqualMeasuresAreOnePoint) {
    EXPECT_EQ(EtalonnageDeuxPoints({100, 104}, {900, 104}),
              (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
}

TEST(Etalonnage, EqualReferencesGiveASlopeOfOne) {
    EXPECT_EQ(EtalonnageDeuxPoints({100, 104}, {100, 504}),
              (Etalonnage7{100, 104, 100, 504, 0, 1, -4}));
}

class LectureEtalonnage : public testing::Test {
  protected:
    BancEnregistreur banc;
    Etalonnage7& etalonnage = banc.ecran.etat.etalonnage;

    void SetUp() override {
        banc.enregistreur.ReglerEtalonnage(1, 0, 100, 104, 900, 504);
        etalonnage = ancien;
    }
    void Panne(GenrePanne genre, int occurrence = 1) {
        banc.enregistreur.pannes.Ordonner({26, genre, occurrence});
    }
    void EnCours(int point) {
        banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::modeEtalonnage, point);
    }
    bool LireCapteur(bool AncienFirmware) {
        banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
        banc.ecran.etat.Rapport.clear();
        return LireEtalonnageCapteur(banc.poste, AncienFirmware);
    }
    std::string Rapport() { return Clair(banc.ecran.etat.Rapport); }
    std::vector<int> Selecteurs() {
        std::vector<int> selecteurs;
        for (const auto& trame : banc.enregistreur.journal.DeCode(26)) {
            selecteurs.push_back(trame[1]);
        }
        return selecteurs;
    }
};

TEST_F(LectureEtalonnage, OldFirmwareHasOnePoint) {
    EXPECT_TRUE(LireCapteur(true));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "Etalonnage : -4.0000\r\n");
    EXPECT_EQ(Selecteurs(), std::vector<int>{0});
}

TEST_F(LectureEtalonnage, OldFirmwareSilentGivesZerosAndTheirLine) {
    Panne(GenrePanne::silence);
    EXPECT_TRUE(LireCapteur(true));
    EXPECT_EQ(etalonnage, nul);
    EXPECT_EQ(Rapport(), "Etalonnage : 0.0000\r\n");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
}

TEST_F(LectureEtalonnage, OldFirmwareWithAWrongEchoKeepsTheValuesAndWritesTheLine) {
    Panne(GenrePanne::mauvaisEcho);
    EXPECT_TRUE(LireCapteur(true));
    EXPECT_EQ(etalonnage, ancien);
    EXPECT_EQ(Rapport(), "Etalonnage : 5.0000\r\n");
}

TEST_F(LectureEtalonnage, OldFirmwareInCalibrationStops) {
    EnCours(1);
    EXPECT_FALSE(LireCapteur(true));
    EXPECT_EQ(etalonnage, ancien);
    EXPECT_EQ(Rapport(), "");
}

TEST_F(LectureEtalonnage, NewFirmwareReadsBothPoints) {
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 900, 504, 0, 2, -108}));
    EXPECT_EQ(Rapport(), "Etalonnage : 2.0000 X + -108.0000\r\n");
    EXPECT_EQ(Selecteurs(), (std::vector<int>{1, 2}));
}

TEST_F(LectureEtalonnage, NewFirmwareWithoutAHighPointShiftsOnly) {
    banc.enregistreur.ReglerEtalonnage(1, 0, 100, 104);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "Etalonnage : -4.0000\r\n");
}

TEST_F(LectureEtalonnage, NewFirmwareWithEqualMeasuresShiftsOnly) {
    banc.enregistreur.ReglerEtalonnage(1, 0, 100, 104, 900, 104);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "Etalonnage : -4.0000\r\n");
}

TEST_F(LectureEtalonnage, NewFirmwareWithEqualReferencesHasASlopeOfOne) {
    banc.enregistreur.ReglerEtalonnage(1, 0, 100, 104, 100, 504);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 100, 504, 0, 1, -4}));
    EXPECT_EQ(Rapport(), "Etalonnage : 1.0000 X + -4.0000\r\n");
}

TEST_F(LectureEtalonnage, NewFirmwareSilentAtTheLowPointGivesZerosAndTheirLine) {
    Panne(GenrePanne::silence);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, nul);
    EXPECT_EQ(Rapport(), "Etalonnage : 0.0000\r\n");
    EXPECT_EQ(Selecteurs(), std::vector<int>{1});
}

TEST_F(LectureEtalonnage, NewFirmwareWithAWrongEchoAtTheLowPointKeepsAllAndWritesNoLine) {
    Panne(GenrePanne::mauvaisEcho);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, ancien);
    EXPECT_EQ(Rapport(), "");
    EXPECT_EQ(Selecteurs(), std::vector<int>{1});
}

TEST_F(LectureEtalonnage, NewFirmwareInItsFirstPointStops) {
    EnCours(1);
    EXPECT_FALSE(LireCapteur(false));
    EXPECT_EQ(etalonnage, ancien);
    EXPECT_EQ(Rapport(), "");
    EXPECT_EQ(Selecteurs(), std::vector<int>{1});
}

TEST_F(LectureEtalonnage, NewFirmwareSilentAtTheHighPointClearsItWithoutALine) {
    Panne(GenrePanne::silence, 2);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 0, 0, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "");
}

TEST_F(LectureEtalonnage, NewFirmwareWithAWrongEchoAtTheHighPointKeepsItsOldFigures) {
    Panne(GenrePanne::mauvaisEcho, 2);
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 3, 4, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "");
}

TEST_F(LectureEtalonnage, NewFirmwareInItsSecondPointStops) {
    EnCours(2);
    EXPECT_FALSE(LireCapteur(false));
    EXPECT_EQ(etalonnage, (Etalonnage7{100, 104, 3, 4, -4, 0, 0}));
    EXPECT_EQ(Rapport(), "");
}

TEST_F(LectureEtalonnage, FiguresAreWrittenWithTheLocalesSeparator) {
    banc.ReglerSeparateur(QStringLiteral(","));
    EXPECT_TRUE(LireCapteur(false));
    EXPECT_EQ(Rapport(), "Etalonnage : 2,0000 X + -108,0000\r\n");
}

}  // namespace
}  // namespace bornika::essai
