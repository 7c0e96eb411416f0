#include "shell/form_captions.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "shell/captions.h"
#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {
namespace {

/// A form with one control of each kind that a small dialog has.
struct Fiche : testing::Test {
    Etabli etabli;
    MainScreen ecran{etabli.systeme};
    QWidget fiche;
    QLabel LabelPIN{QStringLiteral("dessin PIN"), &fiche};
    QCheckBox Presence{QStringLiteral("dessin presence"), &fiche};
    QPushButton Nouveau{QStringLiteral("dessin neuf"), &fiche};
    QLineEdit PIN{QStringLiteral("1234"), &fiche};

    void SetUp() override {
        LabelPIN.setObjectName(QStringLiteral("LabelPIN"));
        Presence.setObjectName(QStringLiteral("Presence"));
        Nouveau.setObjectName(QStringLiteral("Nouveau"));
        PIN.setObjectName(QStringLiteral("PIN"));
        RetenirCaptions(fiche);
        ChangeTextes(ecran, QStringLiteral("English"), true);
    }
};

}  // namespace

using FormCaptions = Fiche;

TEST_F(FormCaptions, GivesEachControlTheTextOfItsNameInTheLanguageOfTheMainForm) {
    TraduireFiche(fiche, ecran);
    EXPECT_EQ(LabelPIN.text(), QStringLiteral("PIN code"));
    EXPECT_EQ(Presence.text(), QStringLiteral("Periodic presence message"));
    ecran.ui->ListeLangues->Choisir(0);
    TraduireFiche(fiche, ecran);
    EXPECT_EQ(LabelPIN.text(), QStringLiteral("Code PIN"));
}

TEST_F(FormCaptions, AnUnknownNameIsAddedWithTheCaptionOfTheDesignAndShowsFromTheNextTimeOn) {
    TraduireFiche(fiche, ecran);
    EXPECT_EQ(Nouveau.text(), QString());
    EXPECT_TRUE(etabli.Lire(QStringLiteral("config.xml")).contains("dessin neuf"));
    TraduireFiche(fiche, ecran);
    EXPECT_EQ(Nouveau.text(), QStringLiteral("dessin neuf"));
}

TEST_F(FormCaptions, TheCaptionOfTheDesignIsTheDefaultWhateverTheControlShowsNow) {
    TraduireFiche(fiche, ecran);
    ASSERT_EQ(Nouveau.text(), QString());
    ecran.ui->ListeLangues->Choisir(0);
    for (int i = 0; i < 2; ++i)
        TraduireFiche(fiche, ecran);
    EXPECT_EQ(Nouveau.text(), QStringLiteral("dessin neuf"));
}

TEST_F(FormCaptions, AControlWithoutACaptionIsNotLookedUp) {
    TraduireFiche(fiche, ecran);
    EXPECT_EQ(PIN.text(), QStringLiteral("1234"));
    EXPECT_FALSE(etabli.Lire(QStringLiteral("config.xml")).contains("<Cle>PIN</Cle>"));
}

TEST_F(FormCaptions, AFaultLeavesAControlAsItIsAndTheFormGoesOn) {
    ASSERT_TRUE(QFile::remove(etabli.Chemin(QStringLiteral("config.xml"))));
    EXPECT_NO_THROW(TraduireFiche(fiche, ecran));
    EXPECT_EQ(LabelPIN.text(), QStringLiteral("dessin PIN"));
    EXPECT_EQ(Presence.text(), QStringLiteral("dessin presence"));
}

}  // namespace bornika::essai
