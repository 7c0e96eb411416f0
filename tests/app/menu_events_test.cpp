#include "app/menu_events.h"

#include <gtest/gtest.h>

#include "app/program_fixture.h"

namespace bornika {
namespace {

using essai::BancProgramme;

TEST(FastChargeMenu, FlipsItsMarkAndStoresOneOrZero) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    auto& configuration = banc.ecran().configuration;
    EXPECT_FALSE(banc.ui().mnuChargeRapide->isChecked());
    banc.ui().mnuChargeRapide->trigger();
    EXPECT_TRUE(banc.ui().mnuChargeRapide->isChecked());
    EXPECT_EQ(configuration.LitConfig(QStringLiteral("Charge_Rapide")), QStringLiteral("1"));
    banc.ui().mnuChargeRapide->trigger();
    EXPECT_FALSE(banc.ui().mnuChargeRapide->isChecked());
    EXPECT_EQ(configuration.LitConfig(QStringLiteral("Charge_Rapide")), QStringLiteral("0"));
}

TEST(FastChargeMenu, IsCheckedAtTheStartWhenTheSettingIsOne) {
    BancProgramme banc;
    banc.Construire();
    banc.ecran().configuration.EcritConfig(QStringLiteral("1"), QStringLiteral("Charge_Rapide"));
    ASSERT_TRUE(banc.programme->Demarrer());
    EXPECT_TRUE(banc.ui().mnuChargeRapide->isChecked());
}

/// Takes an element with its text out of the configuration; what is left of it.
QByteArray SansElement(BancProgramme& banc, const QByteArray& nom) {
    const QString fichier = QStringLiteral("config.xml");
    QByteArray texte = banc.etabli.Lire(fichier);
    const auto debut = texte.indexOf("<" + nom + ">");
    const auto fin = texte.indexOf("</" + nom + ">") + nom.size() + 3;
    texte.remove(debut, fin - debut);
    banc.etabli.Ecrire(fichier, texte);
    return texte;
}

TEST(MenuSwitches, FlipTheirMarkAndLeaveAFileWithoutTheirElementAlone) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    SansElement(banc, "Charge_Rapide");
    const QByteArray avant = SansElement(banc, "Splash");
    ASSERT_FALSE(avant.contains("Splash>") || avant.contains("Charge_Rapide>"));
    for (QAction* entree : {banc.ui().mnuChargeRapide, banc.ui().MnuSplash}) {
        const bool coche = entree->isChecked();
        entree->trigger();
        EXPECT_EQ(entree->isChecked(), !coche) << entree->objectName().toStdString();
        EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
    }
    EXPECT_TRUE(banc.sorties.empty());
}

TEST(SplashMenu, WritesTheWordsTrueAndFalse) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    for (int i = 0; i < 2; ++i) {
        banc.ui().MnuSplash->trigger();
        const QByteArray mot = banc.ui().MnuSplash->isChecked() ? "True" : "False";
        EXPECT_TRUE(banc.etabli.Lire(QStringLiteral("config.xml"))
                        .contains("<Splash>" + mot + "</Splash>"));
    }
}

TEST(SplashMenu, FlipsItsMarkAndStoresTrueOrFalse) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    auto& configuration = banc.ecran().configuration;
    EXPECT_EQ(banc.ui().MnuSplash->isChecked(), configuration.LitSplash());
    const bool avant = configuration.LitSplash();
    banc.ui().MnuSplash->trigger();
    EXPECT_EQ(banc.ui().MnuSplash->isChecked(), !avant);
    EXPECT_EQ(configuration.LitSplash(), !avant);
    banc.ui().MnuSplash->trigger();
    EXPECT_EQ(configuration.LitSplash(), avant);
}

TEST(SplashMenu, IsMarkedAtTheStartAccordingToTheSetting) {
    for (const bool voulu : {true, false}) {
        BancProgramme banc;
        banc.Construire();
        banc.ecran().configuration.EcritSplash(voulu);
        ASSERT_TRUE(banc.programme->Demarrer());
        EXPECT_EQ(banc.ui().MnuSplash->isChecked(), voulu);
    }
}

TEST(AdvancedModeMenu, IsThereUncheckedAndHasNoEffectOnTheState) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_FALSE(banc.ui().mnuModeAvance->isChecked());
    banc.ui().mnuModeAvance->trigger();
    EXPECT_FALSE(banc.ecran().etat.ModeAvance);
}

TEST(HelpMenu, InvertsHelpModeWithItsMarkAndToolTips) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    banc.ui().MnuModeAide->trigger();
    EXPECT_TRUE(banc.ecran().etat.AideValide);
    EXPECT_TRUE(banc.ui().MnuModeAide->isChecked());
    EXPECT_FALSE(banc.ui().Lire->toolTip().isEmpty());
    banc.ui().MnuModeAide->trigger();
    EXPECT_FALSE(banc.ecran().etat.AideValide);
    EXPECT_FALSE(banc.ui().MnuModeAide->isChecked());
    EXPECT_TRUE(banc.ui().Lire->toolTip().isEmpty());
}

TEST(LanguageList, AChoiceTranslatesStoresTheLanguageAndRunsTheSummary) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    auto& ui = banc.ui();
    ASSERT_EQ(ui.ListeLangues->TexteA(1), QStringLiteral("English"));
    ui.ListeLangues->Choisir(1);
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("Read"));
    EXPECT_EQ(banc.ecran().configuration.LitConfig(QStringLiteral("Langue")),
              QStringLiteral("English"));
    EXPECT_TRUE(ui.ResumeAcquisition->text().startsWith(QStringLiteral("  Acquisition every")))
        << ui.ResumeAcquisition->text().toStdString();
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
}

TEST(LanguageList, InHelpModeKeepsTheOldToolTips) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    banc.ui().MnuModeAide->trigger();
    const QString bulle = banc.ui().Lire->toolTip();
    banc.ui().ListeLangues->Choisir(1);
    EXPECT_EQ(banc.ui().Lire->toolTip(), bulle);
    banc.ui().MnuModeAide->trigger();
    banc.ui().MnuModeAide->trigger();
    EXPECT_NE(banc.ui().Lire->toolTip(), bulle);
}

}  // namespace
}  // namespace bornika
