#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>

#include "shell/captions.h"
#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "shell/window_width.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {
namespace {

/// The main form in maintenance mode, in each language.
class ServicePanel : public testing::TestWithParam<const char*> {
  protected:
    Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;

    void SetUp() override {
        ChangeTextes(ecran, QString::fromUtf8(GetParam()), true);
        FixerLargeur(ecran, true);
        ecran.show();
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
    }
};

TEST_P(ServicePanel, FitsIntoTheWideWindowAndAnOrdinaryScreen) {
    EXPECT_EQ(ecran.width(), 957);
    EXPECT_LE(ecran.height(), 768);
    EXPECT_LE(ui.FramePrecaution->geometry().bottom(), ui.PanneauService->height());
}

TEST_P(ServicePanel, CutsNoCaptionOff) {
    for (QWidget* controle : ui.PanneauService->findChildren<QWidget*>()) {
        if (!aCaption(*controle) || Caption(*controle).isEmpty()) continue;
        const QSize voulue = controle->minimumSizeHint();
        EXPECT_GE(controle->width(), voulue.width()) << controle->objectName().toStdString();
        EXPECT_GE(controle->height(), voulue.height()) << controle->objectName().toStdString();
    }
}

TEST_P(ServicePanel, HasRoomForEveryValueThatItShows) {
    const auto tient = [](const QWidget& saisie, const char* texte) {
        // A text box keeps a few pixels on each side of its text.
        return saisie.fontMetrics().horizontalAdvance(QString::fromLatin1(texte)) <=
               saisie.width() - 8;
    };
    EXPECT_TRUE(tient(*ui.resultat, " 255 255 255 255 255 255 255 255"));
    EXPECT_LE(ui.ResultatMesure->fontMetrics()
                  .boundingRect(QRect(0, 0, ui.ResultatMesure->width(), 1000), Qt::TextWordWrap,
                                QStringLiteral("31/12/2037 23:59:59-1023-29970.703  mbar-65535"))
                  .height(),
              ui.ResultatMesure->height());
    EXPECT_TRUE(tient(*ui.Valeurcodetest, "255"));
    EXPECT_TRUE(tient(*ui.Mesuretest, "65535"));
    EXPECT_TRUE(tient(*ui.ValeurDetectionCapteur, "65535"));
    EXPECT_TRUE(tient(*ui.ValeurNumeroSerie, "2147483647"));
    EXPECT_TRUE(tient(*ui.NbReset, "65535"));
    EXPECT_TRUE(tient(*ui.DateDernierReset, "31/12/2037 23:59:59"));
    EXPECT_TRUE(tient(*ui.ValeurCorrection_0, "-2147483648.0000"));
    EXPECT_TRUE(tient(*ui.ValeurCorrection_1, "12345678.0000"));
    for (const QWidget* adresse : {ui.page, ui.offset, ui.PageDebut, ui.PageFin, ui.PageEcriture,
                                   ui.BufferEcriture, ui.PageLecture, ui.BufferLecture})
        EXPECT_TRUE(tient(*adresse, "32767")) << adresse->objectName().toStdString();
}

TEST_P(ServicePanel, HoldsItsControlsInTitledGroups) {
    const auto dans = [](const QGroupBox* cadre, std::initializer_list<QWidget*> controles) {
        EXPECT_FALSE(cadre->title().isEmpty()) << cadre->objectName().toStdString();
        for (const QWidget* controle : controles)
            EXPECT_TRUE(cadre->isAncestorOf(controle)) << controle->objectName().toStdString();
    };
    dans(ui.FrameTest, {ui.Test, ui.Valeurcodetest, ui.Mesuretest});
    dans(ui.FrameCapteur, {ui.LireValeurDetectionCapteur, ui.ValeurDetectionCapteur, ui.TestDebitON,
                           ui.TestDebitOFF});
    dans(ui.FrameFlash,
         {ui.page, ui.offset, ui.resultat, ui.ResultatMesure, ui.LireLaFlash, ui.PageDebut,
          ui.PageFin, ui.LireValeursPage, ui.LireEeprom, ui.PageEcriture, ui.BufferLecture});
    dans(ui.FrameSerie,
         {ui.ValeurNumeroSerie, ui.ProgNumeroSerie, ui.NbReset, ui.DateDernierReset, ui.Command2});
    dans(ui.FrameCorrection, {ui.ValeurCorrection_0, ui.ValeurCorrection_1, ui.CommandCorrection});
}

TEST_P(ServicePanel, SetsWhatCannotBeUndoneApartBelowAllElse) {
    for (const QWidget* bouton : {ui.EcrireLaFlash, ui.RAZNumeroSerie})
        EXPECT_TRUE(ui.FramePrecaution->isAncestorOf(bouton)) << bouton->objectName().toStdString();
    EXPECT_FALSE(ui.FramePrecaution->title().isEmpty());
    EXPECT_EQ(ui.FramePrecaution->findChildren<QPushButton*>().size(), 2);
    const auto ecart = [](const QWidget* haut, const QWidget* bas) {
        return bas->geometry().top() - haut->geometry().bottom();
    };
    EXPECT_GT(ecart(ui.FrameCorrection, ui.FramePrecaution),
              ecart(ui.FrameSerie, ui.FrameCorrection));
}

TEST_P(ServicePanel, IsWalkedByTheTabKeyFromTheTopToTheBottom) {
    const QWidget* const chemin[] = {ui.Test,
                                     ui.Valeurcodetest,
                                     ui.Mesuretest,
                                     ui.LireValeurDetectionCapteur,
                                     ui.ValeurDetectionCapteur,
                                     ui.TestDebitON,
                                     ui.TestDebitOFF,
                                     ui.page,
                                     ui.offset,
                                     ui.resultat,
                                     ui.LireLaFlash,
                                     ui.PageDebut,
                                     ui.PageFin,
                                     ui.LireValeursPage,
                                     ui.LireEeprom,
                                     ui.PageEcriture,
                                     ui.BufferEcriture,
                                     ui.PageLecture,
                                     ui.BufferLecture,
                                     ui.ValeurNumeroSerie,
                                     ui.ProgNumeroSerie,
                                     ui.Command2,
                                     ui.ValeurCorrection_1,
                                     ui.ValeurCorrection_0,
                                     ui.CommandCorrection,
                                     ui.EcrireLaFlash,
                                     ui.RAZNumeroSerie};
    QStringList attendus;
    for (const QWidget* controle : chemin)
        attendus << controle->objectName();
    ecran.activateWindow();
    ui.Test->setFocus();
    QStringList suivis;
    for (qsizetype i = 0; i < attendus.size(); ++i) {
        ASSERT_NE(ecran.focusWidget(), nullptr);
        suivis << ecran.focusWidget()->objectName();
        QTest::keyClick(ecran.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(suivis, attendus);
    EXPECT_FALSE(ui.PanneauService->isAncestorOf(ecran.focusWidget()));
}

TEST_P(ServicePanel, PutsEachBoxOfTheClockBehindItsOwnCaption) {
    EXPECT_EQ(ui.Labelcorrection->y() > ui.labelecart->y(),
              ui.ValeurCorrection_1->y() > ui.ValeurCorrection_0->y());
    EXPECT_FALSE(ui.labelecart->text().isEmpty());
    EXPECT_LT(ui.labelecart->geometry().right(), ui.ValeurCorrection_0->x());
    EXPECT_LT(ui.Labelcorrection->geometry().right(), ui.ValeurCorrection_1->x());
}

INSTANTIATE_TEST_SUITE_P(Languages, ServicePanel, testing::Values("Français", "English"),
                         [](const auto& langue) { return std::string(langue.param).substr(0, 2); });

}  // namespace
}  // namespace bornika::essai
