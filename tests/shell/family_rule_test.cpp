#include "shell/family_rule.h"

#include <gtest/gtest.h>

#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {

namespace {

struct AppliqueFamilleRule : testing::Test {
    essai::Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;

    void Appliquer(std::int32_t type) {
        ecran.etat.TypekPod = type;
        AppliqueFamille(ecran);
    }
    void AttendreCarte() {
        for (const QWidget* montre :
             std::initializer_list<const QWidget*>{ui.LireSD, ui.SDCardState, ui.AMPM_0, ui.AMPM_1})
            EXPECT_FALSE(montre->isHidden()) << montre->objectName().toStdString();
        for (const QWidget* cache : std::initializer_list<const QWidget*>{
                 ui.LireValeurs, ui.Label8, ui.DureeEnregistrement, ui.ProgressBar1, ui.Capacite,
                 ui.ValeurCapacite})
            EXPECT_TRUE(cache->isHidden()) << cache->objectName().toStdString();
    }
    void AttendreFlash() {
        for (const QWidget* cache :
             std::initializer_list<const QWidget*>{ui.LireSD, ui.SDCardState, ui.AMPM_0, ui.AMPM_1})
            EXPECT_TRUE(cache->isHidden()) << cache->objectName().toStdString();
        for (const QWidget* montre : std::initializer_list<const QWidget*>{
                 ui.LireValeurs, ui.Label8, ui.DureeEnregistrement, ui.ProgressBar1, ui.Capacite,
                 ui.ValeurCapacite})
            EXPECT_FALSE(montre->isHidden()) << montre->objectName().toStdString();
    }
};

}  // namespace

TEST_F(AppliqueFamilleRule, Type20HidesTheDownloadButtonAndShowsTheTimeFormat) {
    Appliquer(20);
    EXPECT_TRUE(ui.LireValeurs->isHidden());
    EXPECT_FALSE(ui.AMPM_0->isHidden());
    EXPECT_FALSE(ui.AMPM_1->isHidden());
}

TEST_F(AppliqueFamilleRule, FollowsTheTypeInBothDirections) {
    Appliquer(19);
    AttendreCarte();
    Appliquer(1);
    AttendreFlash();
    Appliquer(20);
    AttendreCarte();
}

TEST_F(AppliqueFamilleRule, TakesEveryOtherTypeAsAFlashLogger) {
    for (const std::int32_t type : {0, 1, 2, 5, 14, 18, 21, 99}) {
        Appliquer(type);
        AttendreFlash();
    }
}

TEST_F(AppliqueFamilleRule, PutsTheVisibleReadButtonAtThePlaceOfTheOther) {
    ecran.show();
    for (const std::int32_t type : {20, 1, 19}) {
        Appliquer(type);
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
        EXPECT_NE(ui.LireValeurs->isVisible(), ui.LireSD->isVisible());
        EXPECT_EQ(ui.LireValeurs->geometry(), ui.LireSD->geometry());
        EXPECT_GT(ui.LireSD->x(), ui.Ecrire->geometry().right());
        EXPECT_LT(ui.LireSD->geometry().right(), ui.VoirLesValeurs->x());
    }
}

TEST_F(AppliqueFamilleRule, LeavesTheFlowParametersAsTheyStand) {
    ui.FrameFlowParameter->setVisible(true);
    Appliquer(1);
    EXPECT_FALSE(ui.FrameFlowParameter->isHidden());
    ui.FrameFlowParameter->setVisible(false);
    Appliquer(20);
    EXPECT_TRUE(ui.FrameFlowParameter->isHidden());
}

}  // namespace bornika::essai
