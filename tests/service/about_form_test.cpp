#include "service/about_form.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/version.h"
#include "service/dialog_fixture.h"
#include "ui_about_form.h"

namespace bornika::essai {
namespace {

struct FicheApropos : testing::Test {
    BancDialogue banc;

    void Montrer(const std::function<void(frmAbout&)>& geste) {
        banc.main = [&](QDialog& dialogue) { geste(dynamic_cast<frmAbout&>(dialogue)); };
        mnuApropos_Click(banc.ecran);
    }
};

TEST_F(FicheApropos, NamesTheProgramAndItsVersionTheSameInEveryLanguage) {
    for (const char* langue : {"Français", "English"}) {
        banc.Parler(QString::fromUtf8(langue));
        Montrer([](frmAbout& fiche) {
            EXPECT_TRUE(fiche.isModal());
            EXPECT_EQ(Clair(fiche.windowTitle()), "About BORNIKA k-Pod");
            EXPECT_EQ(Clair(fiche.ui->lblTitle->text()), "BORNIKA k-Pod");
            EXPECT_EQ(Clair(fiche.ui->lblVersion->text()),
                      std::string("Version ") + versionProgramme);
            EXPECT_FALSE(fiche.ui->lblDisclaimer->text().isEmpty());
            EXPECT_FALSE(fiche.ui->Image1->pixmap().isNull());
        });
    }
    EXPECT_EQ(banc.montres, 2);
}

TEST_F(FicheApropos, ShowsAVersionOfThreeNumbers) {
    Montrer([](frmAbout& fiche) {
        static const QRegularExpression forme(QStringLiteral("^Version \\d+\\.\\d+\\.\\d+$"));
        EXPECT_TRUE(forme.match(fiche.ui->lblVersion->text()).hasMatch());
    });
}

TEST_F(FicheApropos, LeavesByItsButtonByEnterAndByEscape) {
    Montrer([](frmAbout& fiche) {
        BancDialogue::Cliquer(fiche.ui->cmdOK);
        EXPECT_FALSE(fiche.isVisible());
    });
    for (const Qt::Key touche : {Qt::Key_Return, Qt::Key_Escape})
        Montrer([touche](frmAbout& fiche) {
            QTest::keyClick(&fiche, touche);
            EXPECT_FALSE(fiche.isVisible());
        });
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(FicheApropos, TellsThatThisMachineHasNoSystemInformation) {
    Montrer([](frmAbout& fiche) {
        BancDialogue::Cliquer(fiche.ui->cmdSysInfo);
        EXPECT_TRUE(fiche.isVisible());
    });
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Aucune);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(Clair(boite.titre), "");
    EXPECT_EQ(Clair(boite.texte), "System Information Is Unavailable At This Time");
}

}  // namespace
}  // namespace bornika::essai
