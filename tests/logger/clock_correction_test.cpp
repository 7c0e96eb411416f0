#include "logger/clock_correction.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"
#include "support/fault_number.h"

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

TEST(TicksPourSecondes, IsTheInverseOfTheSecondsOfASlowOrAFastClock) {
    struct {
        double secondes;
        std::int32_t ticks;
    } const cas[] = {{8, 0},    {4, 1},           {16, -2},        {1, 0},
                     {-8, 0},   {8.0001, -80001}, {7.9999, 79999}, {5.3333, 2},
                     {1e9, -1}, {0.001, 0},       {8 / 0.75, -4},  {-0.5, 0}};
    for (const auto& c : cas) {
        EXPECT_EQ(TicksPourSecondes(c.secondes), c.ticks) << c.secondes;
    }
}

TEST(TicksPourSecondes, RoundsHalfToEven) {
    // 1 / x is exactly -1.5, -2.5, -3.5 and 0.5.
    EXPECT_EQ(TicksPourSecondes(23.999999999999996), -2);
    EXPECT_EQ(TicksPourSecondes(13.333333333333334), -2);
    EXPECT_EQ(TicksPourSecondes(11.2), -4);
    EXPECT_EQ(TicksPourSecondes(2.6666666666666665), 0);
}

TEST(TicksPourSecondes, AnIntervalBeyondThirtyTwoBitsIsAnOverflow) {
    for (const double secondes : {8.0000000001, 7.9999999999, 1e-308, -1e-310})
        EXPECT_EQ(essai::NumeroDeFaute([&] { TicksPourSecondes(secondes); }),
                  numero_faute::depassement)
            << secondes;
    // The nearest ones that still fit.
    EXPECT_GT(TicksPourSecondes(7.99999997), 200'000'000);
    EXPECT_LT(TicksPourSecondes(8.00000003), -200'000'000);
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
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
}

TEST_F(CorrectionTemps, AStandingTimeOutLeavesBothBoxesWithoutAWord) {
    banc.ecran.etat.TimeOut = true;
    LireStockee(-2);
    EXPECT_EQ(Boites(), "a|b");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(CorrectionTemps, ReadsItsAddressAndClosesTheLink) {
    LireStockee(5);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(29),
              (std::vector<std::vector<std::uint8_t>>{{29, 0, 95, 32, 32, 32, 32, 32}}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

using Trames = std::vector<std::vector<std::uint8_t>>;

class AppliquerCorrection : public CorrectionTemps {
  protected:
    EnregistreurSimule& enregistreur = banc.enregistreur;

    void Appliquer(const char* secondes) {
        ui.ValeurCorrection_1->setText(QString::fromLatin1(secondes));
        CommandCorrection_Click(banc.poste);
    }
    std::int32_t Stockee() const {
        return static_cast<std::int32_t>(
            enregistreur.memoire.DoubleMot(simulateur::adresse::correction));
    }
    void Panne(simulateur::GenrePanne genre, int parametre = 0) {
        enregistreur.pannes.Ordonner({.code = 31, .genre = genre, .parametre = parametre});
    }
    /// The box "k-Pod absent" was shown once, the flag stands, the link is closed.
    void AttendreAbsent() {
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].texte), "k-Pod absent");
        EXPECT_EQ(Clair(banc.etabli.dialogues.Boites()[0].titre), "");
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    }
};

TEST_F(AppliquerCorrection, SendsTheFourBytesLowByteFirstAndStoresThem) {
    Appliquer("16");
    EXPECT_EQ(enregistreur.journal.DeCode(31), (Trames{{31, 0xFE, 0xFF, 0xFF, 0xFF, 0, 0, 0}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(Stockee(), -2);
    EXPECT_EQ(Boites(), "-2.0000|16");
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(AppliquerCorrection, EightIsNoCorrectionAndFourIsOneTick) {
    banc.enregistreur.memoire.EcrireDoubleMot(simulateur::adresse::correction, 77);
    Appliquer("8");
    EXPECT_EQ(Stockee(), 0);
    EXPECT_EQ(Boites(), "0.0000|8");
    Appliquer("4");
    EXPECT_EQ(Stockee(), 1);
    EXPECT_EQ(Boites(), "1.0000|4");
    EXPECT_EQ(enregistreur.journal.DeCode(31),
              (Trames{{31, 0, 0, 0, 0, 0, 0, 0}, {31, 1, 0, 0, 0, 0, 0, 0}}));
}

TEST_F(AppliquerCorrection, OneSecondInEightIsWrittenAsNoCorrection) {
    banc.enregistreur.memoire.EcrireDoubleMot(simulateur::adresse::correction, 77);
    Appliquer("1");
    EXPECT_EQ(Stockee(), 0);
    EXPECT_EQ(Boites(), "0.0000|1");
}

TEST_F(AppliquerCorrection, EachByteHasItsPlace) {
    Appliquer("8.0000003");
    const std::int32_t ticks = TicksPourSecondes(8.0000003);
    EXPECT_LT(ticks, -0x01000000);
    EXPECT_EQ(Stockee(), ticks);
    const auto bits = static_cast<std::uint32_t>(ticks);
    const auto octet = [&](unsigned i) { return static_cast<std::uint8_t>(bits >> (8 * i)); };
    EXPECT_EQ(enregistreur.journal.DeCode(31),
              (Trames{{31, octet(0), octet(1), octet(2), octet(3), 0, 0, 0}}));
}

TEST_F(AppliquerCorrection, AsksForOneByteOfAnswer) {
    banc.bus.ViderAppels();
    Appliquer("16");
    int lectures = 0;
    for (const auto& appel : banc.bus.Appels()) {
        if (appel.genre != simulateur::GenreAppel::lire) continue;
        ++lectures;
        EXPECT_EQ(appel.argument, 1);
    }
    EXPECT_EQ(lectures, 1);
}

TEST_F(AppliquerCorrection, WhatIsNoNumberOrNoughtIsPassedOverWithoutAWord) {
    for (const char* texte : {"", " ", "abc", "0", " 0.000 ", "-0", "16 s", "1,5", "-"}) {
        Appliquer(texte);
        EXPECT_EQ(Boites(), std::string("a|") + texte);
    }
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_TRUE(enregistreur.lien.empty());
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(AppliquerCorrection, UsesTheLocalesSeparatorBothWays) {
    banc.ReglerSeparateur(QStringLiteral(","));
    Appliquer("10,5");
    EXPECT_EQ(Boites(), "-4,0000|10,5");
    EXPECT_EQ(Stockee(), -4);
    Appliquer("10.5");
    EXPECT_EQ(enregistreur.journal.Nombre(31), 1);
}

TEST_F(AppliquerCorrection, AnIntervalThatDoesNotFitIsAFaultAndNothingIsSent) {
    EXPECT_THROW(Appliquer("8.0000000001"), FauteExecution);
    EXPECT_EQ(Boites(), "a|8.0000000001");
    EXPECT_TRUE(enregistreur.lien.empty());
}

TEST_F(AppliquerCorrection, ASlowClockWrittenAndReadBackShowsTheSameSeconds) {
    Appliquer("16");
    Lire_Correction_Temps(banc.poste);
    EXPECT_EQ(Boites(), "-2|16.0000");
}

TEST_F(AppliquerCorrection, AFastClockReadBackShowsTheApproximationOfItsInterval) {
    Appliquer("7.9");
    EXPECT_EQ(Boites(), "79.0000|7.9");
    Lire_Correction_Temps(banc.poste);
    EXPECT_EQ(Boites(), "79|7.8987");
}

TEST_F(AppliquerCorrection, ASilentLoggerIsToldAndTheFirstBoxKeepsTheNewInterval) {
    Panne(simulateur::GenrePanne::silence);
    Appliquer("16");
    AttendreAbsent();
    EXPECT_EQ(Boites(), "-2.0000|16");
    EXPECT_EQ(Stockee(), 0);
}

TEST_F(AppliquerCorrection, ALoggerPulledOutBeforeOrDuringTheExchangeIsToldTheSameWay) {
    banc.bus.Debrancher(enregistreur.identite.usb);
    Appliquer("16");
    AttendreAbsent();
    EXPECT_EQ(Boites(), "-2.0000|16");
    EXPECT_EQ(enregistreur.journal.Total(), 0);

    banc.bus.Rebrancher(enregistreur.identite.usb);
    banc.etabli.dialogues.OublierBoites();
    banc.ecran.etat.TimeOut = false;
    Panne(simulateur::GenrePanne::debranchement);
    Appliquer("4");
    AttendreAbsent();
    EXPECT_EQ(Boites(), "1.0000|4");
    EXPECT_EQ(enregistreur.journal.Total(), 1);
}

TEST_F(AppliquerCorrection, WhatTheAnswerHoldsDoesNotCount) {
    for (const auto genre : {simulateur::GenrePanne::mauvaisEcho, simulateur::GenrePanne::bruit}) {
        Panne(genre);
        Appliquer("16");
        EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
    }
    EXPECT_EQ(Stockee(), -2);
}

TEST_F(AppliquerCorrection, AnAnswerCutToNothingIsASilentLogger) {
    Panne(simulateur::GenrePanne::reponseCourte);
    Appliquer("16");
    AttendreAbsent();
    EXPECT_EQ(Stockee(), -2);
}

TEST_F(AppliquerCorrection, UnderAStandingTimeOutTheFrameLeavesAndNoAnswerIsRead) {
    banc.ecran.etat.TimeOut = true;
    banc.bus.ViderAppels();
    Appliquer("16");
    EXPECT_EQ(enregistreur.journal.Nombre(31), 1);
    for (const auto& appel : banc.bus.Appels()) {
        EXPECT_NE(appel.genre, simulateur::GenreAppel::lire);
    }
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
