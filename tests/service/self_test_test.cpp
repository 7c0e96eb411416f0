#include "service/self_test.h"

#include "service/service_fixture.h"

namespace bornika::essai {
namespace {

class AutoTest : public SurPaillasse {
  protected:
    void Tester(std::uint8_t code, int points) {
        enregistreur.codeTest = code;
        enregistreur.pointsCapteur = points;
        Test_Click(poste);
    }
    void AttendreMontre(const char* code, const char* mesure) {
        EXPECT_EQ(ui.Valeurcodetest->text(), QString::fromLatin1(code));
        EXPECT_EQ(ui.Mesuretest->text(), QString::fromLatin1(mesure));
    }
};

TEST_F(AutoTest, ShowsCodeTwoWithItsMeasure) {
    Tester(2, 0x012C);
    EXPECT_EQ(enregistreur.journal.DeCode(29), (Trames{{29, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(Lectures(), std::vector<int>{8});
    AttendreMontre("2", "300");
    AttendreConversation();
}

TEST_F(AutoTest, ShowsEveryOtherCodeAlone) {
    for (const int code : {1, 0, 3, 255}) {
        ui.Mesuretest->setText(QStringLiteral("300"));
        Tester(static_cast<std::uint8_t>(code), 300);
        AttendreMontre(std::to_string(code).c_str(), "");
    }
}

TEST_F(AutoTest, EmptiesItsBoxesFirst) {
    // A logger that is gone shows what stands in the boxes before any answer.
    etabli.dialogues.pendantBoite = [&](const auto&) { AttendreMontre("", ""); };
    ui.Valeurcodetest->setText(QStringLiteral("2"));
    ui.Mesuretest->setText(QStringLiteral("300"));
    bus.Debrancher(enregistreur.identite.usb);
    Test_Click(poste);
    AttendreAbsent();
}

TEST_F(AutoTest, AsksForNoEcho) {
    Panne(29, GenrePanne::mauvaisEcho);
    Tester(2, 300);
    AttendreMontre("2", "300");
    EXPECT_TRUE(Boites().empty());
}

TEST_F(AutoTest, AShortAnswerCountsWithZerosBehind) {
    Panne(29, GenrePanne::reponseCourte, 3);
    Tester(2, 0x012C);
    AttendreMontre("2", "256");
    Panne(29, GenrePanne::reponseCourte, 1);
    Tester(2, 300);
    AttendreMontre("0", "");
    EXPECT_FALSE(ecran.etat.TimeOut);
}

TEST_F(AutoTest, LeavesItsBoxesEmptyWithoutAnAnswer) {
    ChaqueAbsence(
        29,
        [&] {
            ui.Valeurcodetest->setText(QStringLiteral("2"));
            ui.Mesuretest->setText(QStringLiteral("300"));
            Test_Click(poste);
        },
        [&] { AttendreMontre("", ""); });
}

TEST_F(AutoTest, UnderAStandingTimeOutItsBoxesStayEmptyAndNothingIsSaid) {
    ecran.etat.TimeOut = true;
    Tester(2, 300);
    AttendreMontre("", "");
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

class DetectionCapteur : public SurPaillasse {
  protected:
    void Lire() { LireValeurDetectionCapteur_Click(poste); }
    std::string Montree() const { return ui.ValeurDetectionCapteur->text().toStdString(); }
};

TEST_F(DetectionCapteur, ShowsItsValueLowByteFirst) {
    enregistreur.detectionCapteur = 0x012C;
    Lire();
    EXPECT_EQ(enregistreur.journal.DeCode(32), (Trames{{32, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(Lectures(), std::vector<int>{4});
    EXPECT_EQ(Montree(), "300");
    AttendreConversation();
}

TEST_F(DetectionCapteur, MayFillBothBytes) {
    enregistreur.detectionCapteur = 65535;
    Lire();
    EXPECT_EQ(Montree(), "65535");
}

TEST_F(DetectionCapteur, AShortAnswerCountsWithZerosBehind) {
    enregistreur.detectionCapteur = 0x012C;
    Panne(32, GenrePanne::reponseCourte, 1);
    Lire();
    EXPECT_EQ(Montree(), "44");
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_TRUE(Boites().empty());
}

TEST_F(DetectionCapteur, ShowsZeroWithoutAnAnswer) {
    ChaqueAbsence(
        32,
        [&] {
            ui.ValeurDetectionCapteur->setText(QStringLiteral("300"));
            Lire();
        },
        [&] { EXPECT_EQ(Montree(), "0"); });
}

TEST_F(DetectionCapteur, UnderAStandingTimeOutShowsZeroAndNothingIsSaid) {
    ecran.etat.TimeOut = true;
    Lire();
    EXPECT_EQ(Montree(), "0");
    EXPECT_EQ(enregistreur.journal.Nombre(32), 1);
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
