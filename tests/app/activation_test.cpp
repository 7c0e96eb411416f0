#include "app/activation.h"

#include <gtest/gtest.h>

#include <QMessageBox>

#include "app/program_fixture.h"
#include "service/splash_form.h"
#include "viewer/trace_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;

void Regler(BancProgramme& banc, const QByteArray& element, const QByteArray& valeur) {
    QByteArray texte = banc.etabli.Lire(QStringLiteral("config.xml"));
    const auto debut = texte.indexOf("<" + element + ">") + element.size() + 2;
    const auto fin = texte.indexOf("</" + element + ">");
    ASSERT_GT(fin, debut - 1);
    texte.replace(debut, fin - debut, valeur);
    banc.etabli.Ecrire(QStringLiteral("config.xml"), texte);
}

/// Gives a window the focus, as the operator or the end of another window would.
bool DevientActive(QWidget* fenetre) {
    if (fenetre == nullptr) return false;
    fenetre->activateWindow();
    return QTest::qWaitForWindowActive(fenetre);
}

TEST(Activation, ShowsTheSplashOnceAStartAndSetsItsTimerToTwoSeconds) {
    BancProgramme banc;
    Regler(banc, "Splash", "True");
    banc.Construire();
    banc.programme->activation.Activer();
    frmSplash* splash = banc.programme->activation.Splash();
    ASSERT_NE(splash, nullptr);
    EXPECT_TRUE(splash->isVisible());
    EXPECT_EQ(splash->Timer1.interval(), 2000);
    EXPECT_TRUE(splash->Timer1.isActive());
    EXPECT_TRUE(banc.ecran().etat.SplashAffiche);

    splash->close();
    banc.programme->activation.Activer();
    EXPECT_TRUE(banc.programme->activation.Splash() == nullptr ||
                !banc.programme->activation.Splash()->isVisible());
}

TEST(Activation, ShowsNoSplashWhenTheSettingIsFalse) {
    BancProgramme banc;
    Regler(banc, "Splash", "False");
    banc.Construire();
    banc.programme->activation.Activer();
    EXPECT_EQ(banc.programme->activation.Splash(), nullptr);
    EXPECT_FALSE(banc.ecran().etat.SplashAffiche);
}

TEST(Activation, ASplashTurnedOnLaterIsShownAtTheNextActivation) {
    BancProgramme banc;
    Regler(banc, "Splash", "False");
    banc.Construire();
    banc.programme->activation.Activer();
    Regler(banc, "Splash", "True");
    banc.programme->activation.Activer();
    ASSERT_NE(banc.programme->activation.Splash(), nullptr);
    EXPECT_TRUE(banc.programme->activation.Splash()->isVisible());
}

TEST(Activation, TheSplashIsAFormWhoseEndActivatesTheMainFormAgain) {
    BancProgramme banc;
    Regler(banc, "Splash", "True");
    ASSERT_TRUE(banc.Demarrer(-1));
    ASSERT_TRUE(DevientActive(banc.programme->activation.Splash()));
    EXPECT_EQ(banc.ecran().width(), 620);
    EXPECT_TRUE(banc.ecran().etat.SplashAffiche);
    Regler(banc, "Maintenance", "True");
    banc.ecran().etat.EnLecture = true;
    banc.programme->activation.Splash()->close();
    ASSERT_TRUE(DevientActive(&banc.ecran()));
    EXPECT_GE(banc.ecran().width(), 957);
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
    // There is no second splash.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(banc.programme->activation.Splash(), nullptr);
}

TEST(Activation, TheWidthFollowsTheMaintenanceSettingAtEachActivation) {
    BancProgramme banc;
    Regler(banc, "Splash", "False");
    banc.Construire();
    Regler(banc, "Maintenance", "False");
    banc.programme->activation.Activer();
    const int etroite = banc.ecran().width();
    EXPECT_FALSE(banc.ui().LireLaFlash->isVisibleTo(&banc.ecran()));
    Regler(banc, "Maintenance", "True");
    banc.programme->activation.Activer();
    EXPECT_GT(banc.ecran().width(), etroite);
    EXPECT_GE(banc.ecran().width(), 957);
    EXPECT_GE(etroite, 620);
    EXPECT_TRUE(banc.ui().LireLaFlash->isVisibleTo(&banc.ecran()));
    Regler(banc, "Maintenance", "False");
    banc.programme->activation.Activer();
    EXPECT_EQ(banc.ecran().width(), etroite);
}

TEST(Activation, EndsADownloadThatRuns) {
    BancProgramme banc;
    banc.Construire();
    banc.ecran().etat.EnLecture = true;
    banc.programme->activation.Activer();
    EXPECT_FALSE(banc.ecran().etat.EnLecture);
}

TEST(Activation, TheFirstShowOfTheProgramIsOne) {
    BancProgramme banc;
    Regler(banc, "Splash", "True");
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_TRUE(banc.ecran().etat.SplashAffiche);
}

struct Suivi : testing::Test {
    BancProgramme banc;
    int activations = 0;

    void SetUp() override { banc.Construire(); }
};

TEST_F(Suivi, TheFirstTimeAndTheReturnFromAnotherFormAreActivations) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    suivi.FenetreActive(&banc.ecran());
    EXPECT_EQ(activations, 1);
    Trace& trace = banc.programme->trace.Fiche();
    suivi.FenetreActive(&trace);
    suivi.FenetreActive(&banc.ecran());
    EXPECT_EQ(activations, 2);
}

TEST_F(Suivi, TheReturnFromABoxOrFromAnotherProgramIsNone) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    suivi.FenetreActive(&banc.ecran());
    QMessageBox boite;
    suivi.FenetreActive(&boite);
    suivi.FenetreActive(&banc.ecran());
    // Another program: no window of ours in between.
    suivi.FenetreActive(&banc.ecran());
    EXPECT_EQ(activations, 1);
}

TEST_F(Suivi, HearsOfTheWindowsByItself) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    banc.ecran().etat.SplashAffiche = true;
    banc.ecran().show();
    ASSERT_TRUE(DevientActive(&banc.ecran()));
    EXPECT_EQ(activations, 1);

    QMessageBox boite(QMessageBox::Information, QStringLiteral("k-Pod"), QStringLiteral("told"),
                      QMessageBox::Ok, &banc.ecran());
    boite.show();
    ASSERT_TRUE(DevientActive(&boite));
    boite.close();
    ASSERT_TRUE(DevientActive(&banc.ecran()));
    EXPECT_EQ(activations, 1);

    Trace& trace = banc.programme->trace.Fiche();
    trace.show();
    ASSERT_TRUE(DevientActive(&trace));
    ASSERT_TRUE(DevientActive(&banc.ecran()));
    EXPECT_EQ(activations, 2);
}

TEST_F(Suivi, TheReturnFromAFormThatWasDeletedIsAnActivationToo) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    suivi.FenetreActive(&banc.ecran());
    suivi.FenetreActive(&banc.programme->trace.Fiche());
    banc.programme->trace.Presente()->close();
    QCoreApplication::processEvents();
    suivi.FenetreActive(&banc.ecran());
    EXPECT_EQ(activations, 2);
}

TEST_F(Suivi, AHandOnTheMainFormActivatesItThoughTheWindowSystemSaysSoLater) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    banc.ecran().etat.SplashAffiche = true;
    banc.ecran().show();
    ASSERT_TRUE(DevientActive(&banc.ecran()));
    QWindow* cadre = banc.ecran().windowHandle();
    const QPoint bord(1, banc.ecran().height() - 1);
    QTest::mouseClick(cadre, Qt::LeftButton, {}, bord);
    EXPECT_EQ(activations, 1);

    Trace& trace = banc.programme->trace.Fiche();
    for (int attendues = 2; attendues <= 3; ++attendues) {
        suivi.FenetreActive(&trace);
        if (attendues == 2)
            QTest::mousePress(cadre, Qt::LeftButton, {}, bord);
        else
            QTest::keyPress(cadre, Qt::Key_Shift);
        EXPECT_EQ(activations, attendues);
        suivi.FenetreActive(&banc.ecran());
        EXPECT_EQ(activations, attendues);
    }
}

TEST_F(Suivi, TheFirstFormMayBeADialogOfTheStart) {
    SuiviActivation suivi(banc.ecran(), [this] { ++activations; });
    Trace& trace = banc.programme->trace.Fiche();
    suivi.FenetreActive(&trace);
    EXPECT_EQ(activations, 0);
    suivi.FenetreActive(&banc.ecran());
    EXPECT_EQ(activations, 1);
}

}  // namespace
}  // namespace bornika
