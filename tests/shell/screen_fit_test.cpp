#include "shell/screen_fit.h"

#include <gtest/gtest.h>

#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "shell/main_screen.h"
#include "shell/window_width.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {
namespace {

/// The main form with all its frames and the service panel, on a screen with room for some of it.
class LowScreen : public testing::Test {
  protected:
    Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;

    void Montrer(int limite) {
        ui.ListePeriodeEchantillonage->Ajouter(QStringLiteral("1"));
        ui.ListePeriodeEchantillonage->Ajouter(QStringLiteral("2"));
        ui.ListePeriodeEchantillonage->Choisir(0);
        FixerLargeur(ecran, true);
        ui.ZoneDefilement->LimiterHauteur(limite);
        ecran.show();
        Attendre();
    }
    static void Attendre() {
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
    }
    bool EstDansLaFenetre(QWidget* controle) const {
        return ecran.rect().contains(QRect(controle->mapTo(&ecran, QPoint()), controle->size()));
    }
    int Defilement() const { return ui.ZoneDefilement->verticalScrollBar()->value(); }
    void Rouler(QWidget* controle) {
        const QPointF centre = controle->rect().center();
        QWheelEvent roue(centre, controle->mapToGlobal(centre), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(controle, &roue);
    }
};

TEST_F(LowScreen, WithRoomForAllShowsNoScrollBar) {
    Montrer(2000);
    EXPECT_EQ(ecran.width(), 957);
    EXPECT_FALSE(ui.ZoneDefilement->verticalScrollBar()->isVisible());
    EXPECT_EQ(ui.ZoneDefilement->viewport()->size(), ui.ZoneCentrale->size());
    EXPECT_TRUE(EstDansLaFenetre(ui.Ecrire));
    EXPECT_TRUE(EstDansLaFenetre(ui.RAZNumeroSerie));
}

TEST_F(LowScreen, IsNeverExceededAndCutsNothingOffAtTheSide) {
    Montrer(500);
    EXPECT_EQ(ecran.height(), 500 + ui.BarreMenus->height());
    EXPECT_TRUE(ui.ZoneDefilement->verticalScrollBar()->isVisible());
    EXPECT_GE(ui.ZoneDefilement->viewport()->width(), ui.ZoneCentrale->width());
    EXPECT_FALSE(EstDansLaFenetre(ui.RAZNumeroSerie));
}

TEST_F(LowScreen, ScrollsToWhateverTheTabKeyReaches) {
    Montrer(500);
    ecran.activateWindow();
    ui.CommandCorrection->setFocus();
    QTest::keyClick(ui.CommandCorrection, Qt::Key_Tab);
    QTest::keyClick(ui.EcrireLaFlash, Qt::Key_Tab);
    EXPECT_TRUE(ui.RAZNumeroSerie->hasFocus());
    EXPECT_TRUE(EstDansLaFenetre(ui.RAZNumeroSerie));
}

TEST_F(LowScreen, TheWheelScrollsAndChangesNoSettingThatItPassesOver) {
    ui.Frame5->show();
    Montrer(500);
    const QDateTime date = ui.DTPicker1->dateTime();
    for (QWidget* controle : std::initializer_list<QWidget*>{ui.ListePeriodeEchantillonage,
                                                             ui.DTPicker1, ui.DTPicker2}) {
        ui.ZoneDefilement->verticalScrollBar()->setValue(0);
        Rouler(controle);
        EXPECT_GT(Defilement(), 0) << controle->objectName().toStdString();
    }
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 0);
    EXPECT_EQ(ui.DTPicker1->dateTime(), date);
}

TEST_F(LowScreen, WithRoomForAllTheWheelChoosesInAList) {
    Montrer(2000);
    Rouler(ui.ListePeriodeEchantillonage);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
}

TEST_F(LowScreen, FollowsTheFramesThatComeAndGo) {
    for (QWidget* cadre : {ui.Frame1, ui.Frame3, ui.Frame5})
        cadre->hide();
    FixerLargeur(ecran, false);
    ui.ZoneDefilement->LimiterHauteur(500);
    ecran.show();
    Attendre();
    const int basse = ecran.height();
    EXPECT_LT(basse, 500);
    EXPECT_EQ(ecran.width(), 620);
    for (QWidget* cadre : {ui.Frame1, ui.Frame3, ui.Frame5})
        cadre->show();
    Attendre();
    EXPECT_EQ(ecran.height(), 500 + ui.BarreMenus->height());
    for (QWidget* cadre : {ui.Frame1, ui.Frame3, ui.Frame5})
        cadre->hide();
    Attendre();
    EXPECT_EQ(ecran.height(), basse);
    EXPECT_EQ(ecran.width(), 620);
}

TEST_F(LowScreen, FollowsThemInOnePassOfTheEventsSoThatNobodySeesItTooLow) {
    for (QWidget* cadre : {ui.Frame1, ui.Frame3, ui.Frame5})
        cadre->hide();
    FixerLargeur(ecran, false);
    ecran.show();
    Attendre();
    const int basse = ecran.height();
    for (QWidget* cadre : {ui.Frame1, ui.Frame3, ui.Frame5})
        cadre->show();
    QCoreApplication::processEvents();
    EXPECT_GT(ecran.height(), basse + 200);
    EXPECT_FALSE(ui.ZoneDefilement->verticalScrollBar()->isVisible());
}

TEST_F(LowScreen, IsTheOneThatTheFormStandsOn) {
    const int hauteur = ecran.screen()->availableGeometry().height();
    TenirDansEcran(ecran);
    ui.ZoneEnregistreur->setMinimumHeight(2 * hauteur);
    ecran.show();
    Attendre();
    // A title bar and the desktop's bar have room beside it.
    EXPECT_LT(ecran.height(), hauteur - 60);
    EXPECT_GT(ecran.height(), hauteur - 100);
}

}  // namespace
}  // namespace bornika::essai
