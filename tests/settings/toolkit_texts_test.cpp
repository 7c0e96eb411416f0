#include "settings/toolkit_texts.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>

#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"

namespace bornika::essai {
namespace {

const QString francais = QStringLiteral("Français");
const QString anglais = QStringLiteral("English");

QString Annuler() {
    return QCoreApplication::translate("QPlatformTheme", "Cancel");
}

struct ToolkitTexts : testing::Test {
    QTemporaryDir dossier;

    ~ToolkitTexts() override { TraduireOutils(anglais); }
    void Poser(const char* nom, const QByteArray& contenu) const {
        QFile fichier(dossier.filePath(QString::fromLatin1(nom)));
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(contenu);
    }
};

TEST_F(ToolkitTexts, FollowTheLanguageAndComeBack) {
    TraduireOutils(francais);
    EXPECT_EQ(Annuler(), QStringLiteral("Annuler"));
    TraduireOutils(francais);
    EXPECT_EQ(Annuler(), QStringLiteral("Annuler"));
    TraduireOutils(anglais);
    EXPECT_EQ(Annuler(), QStringLiteral("Cancel"));
}

TEST_F(ToolkitTexts, AreOnTheButtonsOfDialogs) {
    TraduireOutils(francais);
    const QDialogButtonBox boutons(QDialogButtonBox::Yes | QDialogButtonBox::Cancel);
    EXPECT_EQ(boutons.button(QDialogButtonBox::Yes)->text(), QStringLiteral("&Oui"));
    EXPECT_EQ(boutons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Annuler"));
}

TEST_F(ToolkitTexts, KnowALanguageByItsOwnNameAndItsEnglishOne) {
    for (const char* langue : {"Deutsch", "deutsch", "German"}) {
        TraduireOutils(anglais);
        TraduireOutils(QString::fromUtf8(langue));
        EXPECT_EQ(Annuler(), QStringLiteral("Abbrechen")) << langue;
    }
}

TEST_F(ToolkitTexts, KnowALanguageWhoseOwnNameHasItsCountryBehindIt) {
    TraduireOutils(QStringLiteral("Español"));
    EXPECT_EQ(Annuler(), QStringLiteral("Cancelar"));
}

TEST_F(ToolkitTexts, AreEnglishInALanguageThatIsNotThere) {
    for (const char* langue : {"Klingon", "Deut", ""}) {
        TraduireOutils(francais);
        TraduireOutils(QString::fromUtf8(langue));
        EXPECT_EQ(Annuler(), QStringLiteral("Cancel")) << langue;
    }
}

TEST_F(ToolkitTexts, AreEnglishWithoutTheFilesOfTheToolkit) {
    TraduireOutils(francais);
    TraduireOutils(francais, dossier.path());
    EXPECT_EQ(Annuler(), QStringLiteral("Cancel"));
    TraduireOutils(francais, dossier.filePath(QStringLiteral("absent")));
    EXPECT_EQ(Annuler(), QStringLiteral("Cancel"));
}

TEST_F(ToolkitTexts, AreEnglishWithADamagedFile) {
    Poser("qtbase_fr.qm", "no translation");
    TraduireOutils(francais, dossier.path());
    EXPECT_EQ(Annuler(), QStringLiteral("Cancel"));
}

TEST_F(ToolkitTexts, FollowTheLanguageOfTheMainForm) {
    Etabli etabli;
    MainScreen ecran(etabli.systeme);
    ChangeTextes(ecran, francais, true);
    EXPECT_EQ(Annuler(), QStringLiteral("Annuler"));
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(Annuler(), QStringLiteral("Cancel"));
}

}  // namespace
}  // namespace bornika::essai
