#include "shell/help_mode.h"

#include <gtest/gtest.h>

#include "app/menu_events.h"
#include "shell/captions.h"
#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {

namespace {

struct HelpMode : testing::Test {
    essai::Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;
    const QString francais = QStringLiteral("Français");
    const QString anglais = QStringLiteral("English");

    HelpMode() { ChangeTextes(ecran, francais, true); }
};

}  // namespace

TEST_F(HelpMode, GivesTheSixKindsOfControlsTheirHelpInTheLanguageAsked) {
    AfficheAide(ecran, anglais, true);
    EXPECT_EQ(ui.Lire->toolTip(), QStringLiteral("Reads the logger's parameters and shows them."));
    EXPECT_EQ(ui.ListeUnites->toolTip(), QStringLiteral("Unit in which the pressure is shown."));
    for (const QWidget* c : std::initializer_list<const QWidget*>{
             ui.Seuil1, ui.AuDessus, ui.OneShot, ui.DTPicker1, ui.page, ui.Ecrire})
        EXPECT_GT(c->toolTip().size(), 10) << c->objectName().toStdString();
}

TEST_F(HelpMode, LeavesOtherControlsAsTheyAre) {
    const auto autres = std::initializer_list<QWidget*>{ui.Version, ui.Frame1,     ui.ProgressBar1,
                                                        ui.Image1,  ui.mnuFichier, ui.ZoneResume};
    for (QWidget* c : autres)
        c->setToolTip(QStringLiteral("mine"));
    AfficheAide(ecran, francais, true);
    for (const QWidget* c : autres)
        EXPECT_EQ(c->toolTip(), QStringLiteral("mine")) << c->objectName().toStdString();
}

TEST_F(HelpMode, EmptiesEveryToolTipWhenItEnds) {
    for (QObject* c : ControlesDe(ecran))
        if (auto* widget = qobject_cast<QWidget*>(c)) widget->setToolTip(QStringLiteral("mine"));
    AfficheAide(ecran, francais, false);
    for (QObject* c : ControlesDe(ecran)) {
        const auto* widget = qobject_cast<QWidget*>(c);
        EXPECT_EQ(widget ? widget->toolTip() : QString(), QString())
            << c->objectName().toStdString();
    }
}

TEST_F(HelpMode, ReadsHiddenControlsTooAndSharesTheKeyOfAnArray) {
    ui.Frame5->hide();
    AfficheAide(ecran, francais, true);
    EXPECT_EQ(ui.AMPM_0->toolTip(), QStringLiteral("Format de l'heure de l'enregistreur."));
    EXPECT_EQ(ui.AMPM_1->toolTip(), ui.AMPM_0->toolTip());
}

TEST_F(HelpMode, TakesTheNameAsTheDefaultOfAMissingHelpText) {
    QByteArray fichier = etabli.Lire(QStringLiteral("config.xml"));
    fichier.replace("<Cle>AIDE_Seuil1</Cle>", "<Cle>autre</Cle>");
    etabli.Ecrire(QStringLiteral("config.xml"), fichier);
    AfficheAide(ecran, francais, true);
    EXPECT_EQ(ui.Seuil1->toolTip(), QString());
    AfficheAide(ecran, francais, true);
    EXPECT_EQ(ui.Seuil1->toolTip(), QStringLiteral("Seuil1"));
}

TEST_F(HelpMode, PutsTheProductsNameIntoHelpTexts) {
    QByteArray fichier = etabli.Lire(QStringLiteral("config.xml"));
    const QByteArray marque = "<Cle>AIDE_Lire</Cle><Texte>";
    ASSERT_TRUE(fichier.contains(marque));
    fichier.replace(marque, marque + "k-Pod: ");
    etabli.Ecrire(QStringLiteral("config.xml"), fichier);
    ecran.etat.TypekPod = 19;
    AfficheAide(ecran, anglais, true);
    EXPECT_TRUE(ui.Lire->toolTip().startsWith(QStringLiteral("k-Pod 33: ")));
}

TEST_F(HelpMode, GoesOnWithTheNextControlWhenALookupFails) {
    QByteArray fichier = etabli.Lire(QStringLiteral("config.xml"));
    fichier.replace("<Cle>AIDE_Lire</Cle>", "<Cle>autre</Cle>");
    // An entry without key: a fault of every lookup that finds nothing before it.
    fichier.insert(fichier.lastIndexOf("</Langue>"), "<Entree/>");
    etabli.Ecrire(QStringLiteral("config.xml"), fichier);
    ui.Lire->setToolTip(QStringLiteral("mine"));
    EXPECT_NO_THROW(AfficheAide(ecran, anglais, true));
    EXPECT_EQ(ui.Lire->toolTip(), QStringLiteral("mine"));
    for (const QWidget* c : std::initializer_list<const QWidget*>{
             ui.Ecrire, ui.Sortir, ui.ListeUnites, ui.Seuil1, ui.DTPicker2})
        EXPECT_GT(c->toolTip().size(), 10) << c->objectName().toStdString();
}

TEST_F(HelpMode, IsSwitchedByItsMenuEntryWithItsCheckMark) {
    BrancherMenus(ecran);
    ui.MnuModeAide->trigger();
    EXPECT_TRUE(ecran.etat.AideValide);
    EXPECT_TRUE(ui.MnuModeAide->isChecked());
    EXPECT_FALSE(ui.Lire->toolTip().isEmpty());
    ui.MnuModeAide->trigger();
    EXPECT_FALSE(ecran.etat.AideValide);
    EXPECT_FALSE(ui.MnuModeAide->isChecked());
    EXPECT_TRUE(ui.Lire->toolTip().isEmpty());
}

TEST_F(HelpMode, KeepsTheOldToolTipsThroughAChangeOfLanguage) {
    AfficheAide(ecran, francais, true);
    const QString avant = ui.Lire->toolTip();
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ui.Lire->toolTip(), avant);
    EXPECT_FALSE(avant.isEmpty());
}

}  // namespace bornika::essai
