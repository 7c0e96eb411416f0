#include "logger/clock_correction.h"

#include <gtest/gtest.h>

#include "logger_bench.h"

namespace bornika::essai {
namespace {

TEST(SecondesPourHuit, ZeroIsNeutral) {
    EXPECT_EQ(SecondesPourHuit(0), 8.0);
}

TEST(SecondesPourHuit, TheTwoSignsHaveTheirOwnFormulas) {
    EXPECT_EQ(SecondesPourHuit(-2), 16.0);
    EXPECT_EQ(SecondesPourHuit(-4), 8 / 0.75);
    EXPECT_EQ(SecondesPourHuit(2), 4.0);
    EXPECT_DOUBLE_EQ(SecondesPourHuit(3).value(), 16.0 / 3);
}

TEST(SecondesPourHuit, OneAndMinusOneHaveNone) {
    EXPECT_FALSE(SecondesPourHuit(1).has_value());
    EXPECT_FALSE(SecondesPourHuit(-1).has_value());
}

class CorrectionTemps : public testing::Test {
  protected:
    BancEnregistreur banc;
    Ui::MainScreen& ui = banc.ui;

    void SetUp() override {
        ui.ValeurCorrection_0->setText(QStringLiteral("a"));
        ui.ValeurCorrection_1->setText(QStringLiteral("b"));
    }
    void LireStockee(std::int32_t ticks) {
        banc.enregistreur.memoire.EcrireDoubleMot(simulateur::adresse::correction,
                                                  static_cast<std::uint32_t>(ticks));
        Lire_Correction_Temps(banc.poste);
    }
    std::string Boites() {
        return Clair(ui.ValeurCorrection_0->text()) + "|" + Clair(ui.ValeurCorrection_1->text());
    }
};

TEST_F(CorrectionTemps, ShowsTicksAndSeconds) {
    struct {
        std::int32_t ticks;
        const char* boites;
    } const cas[] = {{0, "0|8.0000"},
                     {-2, "-2|16.0000"},
                     {2, "2|4.0000"},
                     {3, "3|5.3333"},
                     {100000, "100000|7.9999"},
                     {-100000, "-100000|8.0001"},
                     {2147483647, "2147483647|8.0000"},
                     {-2147483647 - 1, "-2147483648|8.0000"}};
    for (const auto& c : cas) {
        LireStockee(c.ticks);
        EXPECT_EQ(Boites(), c.boites);
    }
}

TEST_F(CorrectionTemps, OneAndMinusOneLeaveTheSecondsAsTheyWere) {
    LireStockee(1);
    EXPECT_EQ(Boites(), "1|b");
    LireStockee(-1);
    EXPECT_EQ(Boites(), "-1|b");
}

TEST_F(CorrectionTemps, OnlyTheFirstFourBytesCount) {
    for (int i = 4; i < 8; ++i) {
        banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::correction + i, 0xEE);
    }
    LireStockee(-2);
    EXPECT_EQ(Boites(), "-2|16.0000");
}

TEST_F(CorrectionTemps, UsesTheLocalesSeparator) {
    banc.ReglerSeparateur(QStringLiteral(","));
    LireStockee(3);
    EXPECT_EQ(Boites(), "3|5,3333");
}

TEST_F(CorrectionTemps, AFailedReadLeavesBothBoxes) {
    banc.enregistreur.pannes.Ordonner({29, simulateur::GenrePanne::silence});
    LireStockee(-2);
    EXPECT_EQ(Boites(), "a|b");
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(banc.etabli.dialogues.boites.size(), 1U);
}

TEST_F(CorrectionTemps, AStandingTimeOutLeavesBothBoxesWithoutAWord) {
    banc.ecran.etat.TimeOut = true;
    LireStockee(-2);
    EXPECT_EQ(Boites(), "a|b");
    EXPECT_TRUE(banc.etabli.dialogues.boites.empty());
}

TEST_F(CorrectionTemps, ReadsItsAddressAndClosesTheLink) {
    LireStockee(5);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(29),
              (std::vector<std::vector<std::uint8_t>>{{29, 0, 95, 32, 32, 32, 32, 32}}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
