#include "service/flow_test.h"

#include "service/service_fixture.h"

namespace bornika::essai {
namespace {

const std::vector<std::uint8_t> marche{20, 1, 32, 32, 32, 32, 32, 32};
const std::vector<std::uint8_t> arret{20, 0, 32, 32, 32, 32, 32, 32};

using TestDebit = SurPaillasse;

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
    EXPECT_EQ(Lectures(), std::vector<int>{8});
    AttendreConversation();
}

TEST_F(TestDebit, WhatTheAnswerHoldsDoesNotCount) {
    Panne(20, GenrePanne::mauvaisEcho);
    Test_Debit(poste, true);
    Panne(20, GenrePanne::reponseCourte, 3);
    Test_Debit(poste, false);
    Panne(20, GenrePanne::bruit);
    Test_Debit(poste, true);
    EXPECT_TRUE(enregistreur.testDebit);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_TRUE(Boites().empty());
}

TEST_F(TestDebit, ASilentLoggerIsTold) {
    Panne(20, GenrePanne::silence);
    Test_Debit(poste, true);
    AttendreAbsent();
    EXPECT_FALSE(enregistreur.testDebit);
}

TEST_F(TestDebit, ALoggerThatDoesNotAnswerIsTold) {
    ChaqueAbsence(
        20, [&] { Test_Debit(poste, true); }, [] {});
}

TEST_F(TestDebit, UnderAStandingTimeOutNoAnswerIsReadAndNothingIsSaid) {
    ecran.etat.TimeOut = true;
    Test_Debit(poste, true);
    EXPECT_EQ(enregistreur.journal.DeCode(20), Trames{marche});
    EXPECT_TRUE(Lectures().empty());
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(TestDebit, TheMenuSendsWhatItsMarkSays) {
    ui.MnuFlowTest->setChecked(true);
    MnuFlowTest_Click(poste);
    ui.MnuFlowTest->setChecked(false);
    MnuFlowTest_Click(poste);
    EXPECT_EQ(enregistreur.journal.DeCode(20), (Trames{marche, arret}));
}

}  // namespace
}  // namespace bornika::essai
