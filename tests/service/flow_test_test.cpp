#include "service/flow_test.h"

#include <gtest/gtest.h>

#include "simulator/simulated_bus.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {
namespace {

using simulateur::GenreAppel;
using simulateur::GenrePanne;
using Trames = std::vector<std::vector<std::uint8_t>>;

const std::vector<std::uint8_t> marche{20, 1, 32, 32, 32, 32, 32, 32};
const std::vector<std::uint8_t> arret{20, 0, 32, 32, 32, 32, 32, 32};

class TestDebit : public testing::Test {
  protected:
    BusSimule bus;
    EnregistreurSimule& enregistreur = bus.Brancher(EnregistreurSimule());
    Etabli etabli{&bus};
    MainScreen ecran{etabli.systeme};
    MULTIUSB lien{ecran};
    Poste poste{ecran, lien};

    void SetUp() override { ecran.etat.UsbID = enregistreur.identite.usb; }
    void Panne(GenrePanne genre, int parametre = 0) {
        enregistreur.pannes.Ordonner({.code = 20, .genre = genre, .parametre = parametre});
    }
    std::vector<int> Lectures() const {
        std::vector<int> longueurs;
        for (const auto& appel : bus.Appels()) {
            if (appel.genre == GenreAppel::lire) longueurs.push_back(appel.argument);
        }
        return longueurs;
    }
    void AttendreAbsent() {
        EXPECT_EQ(etabli.dialogues.boites.size(), 1U);
        EXPECT_TRUE(ecran.etat.TimeOut);
        EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    }
};

TEST_F(TestDebit, SwitchesTheTestOnAndOff) {
    Test_Debit(poste, true);
    EXPECT_TRUE(enregistreur.testDebit);
    Test_Debit(poste, false);
    EXPECT_FALSE(enregistreur.testDebit);
    EXPECT_EQ(enregistreur.journal.DeCode(20), (Trames{marche, arret}));
    EXPECT_EQ(enregistreur.journal.Total(), 2);
}

TEST_F(TestDebit, OpensTheLinkReadsEightBytesAndCloses) {
    Test_Debit(poste, true);
    ASSERT_EQ(enregistreur.lien.size(), 4U);
    EXPECT_TRUE(enregistreur.lien[0].ouverture && enregistreur.lien[1].ouverture);
    EXPECT_EQ(Lectures(), std::vector<int>{8});
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(etabli.dialogues.boites.empty());
}

TEST_F(TestDebit, WhatTheAnswerHoldsDoesNotCount) {
    Panne(GenrePanne::mauvaisEcho);
    Test_Debit(poste, true);
    Panne(GenrePanne::reponseCourte, 3);
    Test_Debit(poste, false);
    Panne(GenrePanne::bruit);
    Test_Debit(poste, true);
    EXPECT_TRUE(enregistreur.testDebit);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_TRUE(etabli.dialogues.boites.empty());
}

TEST_F(TestDebit, ASilentLoggerIsTold) {
    Panne(GenrePanne::silence);
    Test_Debit(poste, true);
    AttendreAbsent();
    EXPECT_EQ(etabli.dialogues.boites[0].titre, QString());
    EXPECT_EQ(etabli.dialogues.boites[0].texte, ecran.Texte(QStringLiteral("k-Pod Absent")));
    EXPECT_FALSE(enregistreur.testDebit);
}

TEST_F(TestDebit, ALoggerThatIsGoneOrGoesIsTold) {
    Panne(GenrePanne::debranchement);
    Test_Debit(poste, true);
    AttendreAbsent();
    EXPECT_EQ(enregistreur.journal.Total(), 1);

    ecran.etat.TimeOut = false;
    etabli.dialogues.boites.clear();
    Test_Debit(poste, true);
    AttendreAbsent();
    EXPECT_EQ(enregistreur.journal.Total(), 1);
}

TEST_F(TestDebit, UnderAStandingTimeOutNoAnswerIsReadAndNothingIsSaid) {
    ecran.etat.TimeOut = true;
    Test_Debit(poste, true);
    EXPECT_EQ(enregistreur.journal.DeCode(20), Trames{marche});
    EXPECT_TRUE(Lectures().empty());
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_TRUE(etabli.dialogues.boites.empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(TestDebit, TheMenuSendsWhatItsMarkSays) {
    ecran.ui->MnuFlowTest->setChecked(true);
    MnuFlowTest_Click(poste);
    ecran.ui->MnuFlowTest->setChecked(false);
    MnuFlowTest_Click(poste);
    EXPECT_EQ(enregistreur.journal.DeCode(20), (Trames{marche, arret}));
}

}  // namespace
}  // namespace bornika::essai
