#include "setup/threshold_rules.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

class Seuils : public SurFormulaire {
  protected:
    void Un(const char* texte) { ui.Seuil1->setText(QString::fromLatin1(texte)); }
    void Deux(const char* texte) { ui.Seuil2->setText(QString::fromLatin1(texte)); }
    std::string Un() { return Clair(ui.Seuil1->text()); }
    std::string Deux() { return Clair(ui.Seuil2->text()); }
};

TEST_F(Seuils, AreHeldAtTheTopOfTheScaleAsWholeNumbers) {
    struct {
        const char* saisi;
        const char* montre;
    } const cas[] = {{"16", "16"},     {"16.4", "16.4"}, {"16.5", "16.5"}, {"16.51", "16"},
                     {"17", "16"},     {"300", "16"},    {"-5", "-5"},     {"-300", "-300"},
                     {"2.25", "2.25"}, {" 3 ", " 3 "},   {"32767", "16"},  {"1E2", "16"}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.saisi);
        Un(c.saisi);
        Deux(c.saisi);
        EXPECT_EQ(Un(), c.montre);
        EXPECT_EQ(Deux(), c.montre);
    }
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Seuils, TheLimitIsThatOfTheUnit) {
    banc.ChoisirUnite(QStringLiteral("psi"));
    Un("232.1");
    EXPECT_EQ(Un(), "232.1");
    Un("233");
    EXPECT_EQ(Un(), "232.1");
}

TEST_F(Seuils, TheLimitIsWrittenWithTheLocalesSeparator) {
    banc.ReglerSeparateur(QStringLiteral(","));
    banc.ChoisirUnite(QStringLiteral("psi"));
    Un("240");
    EXPECT_EQ(Un(), "232,1");
    Un("2.5");
    EXPECT_EQ(Un(), "0");
}

TEST_F(Seuils, ASmallScaleTurnsWhatRoundsUpIntoItsLimitOnce) {
    ecran.etat.Maxi = 0.6;
    Un("0.5");
    EXPECT_EQ(Un(), "0.5");
    Un("0.51");
    EXPECT_EQ(Un(), "0.6");
    Un("0.6");
    EXPECT_EQ(Un(), "0.6");
}

TEST_F(Seuils, ANumberBeyondSixteenBitsIsAnOverflow) {
    Un("40000");
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::depassement});
    banc.etabli.fautes.clear();
    Deux("-32769");
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::depassement});
}

TEST_F(Seuils, ALimitBeyondSixteenBitsEndsInTheSameOverflow) {
    banc.ChoisirUnite(QStringLiteral("mbar"));
    ecran.etat.Maxi = 40;
    Un("39000");
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::depassement});
}

TEST_F(Seuils, ALoneSignStaysAndTheSummaryIsLeftAlone) {
    for (QLineEdit* boite : {ui.Seuil1, ui.Seuil2}) {
        ui.ResumeAcquisition->setText(QStringLiteral("ancien"));
        boite->setText(QStringLiteral("-"));
        EXPECT_EQ(Clair(boite->text()), "-");
        EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "ancien");
        boite->setText(QStringLiteral("-5"));
        EXPECT_EQ(Clair(boite->text()), "-5");
        EXPECT_NE(Clair(ui.ResumeAcquisition->text()), "ancien");
    }
}

TEST_F(Seuils, WhatIsNoNumberBecomesZeroSelected) {
    ui.UnSeuil->setChecked(true);
    for (const char* saisi : {"", "abc", "+", "--", "1 2"}) {
        SCOPED_TRACE(saisi);
        Un("3");
        ui.Commentaire->setFocus();
        ui.ResumeAcquisition->setText(QStringLiteral("ancien"));
        Un(saisi);
        EXPECT_EQ(Un(), "0");
        EXPECT_EQ(Clair(ui.Seuil1->selectedText()), "0");
        EXPECT_EQ(ecran.focusWidget(), ui.Seuil1);
        // The correction is a change of its own, which refreshes the summary.
        EXPECT_NE(Clair(ui.ResumeAcquisition->text()), "ancien");
    }
}

TEST_F(Seuils, ACorrectedBoxThatIsDisabledDoesNotTakeTheFocus) {
    ui.UnSeuil->setChecked(true);
    ui.Seuil1->setEnabled(false);
    ui.AuDessous->setFocus();
    Un("300");
    EXPECT_EQ(Un(), "16");
    EXPECT_NE(ecran.focusWidget(), ui.Seuil1);
    EXPECT_EQ(Clair(ui.Seuil1->selectedText()), "16");
}

TEST_F(Seuils, WithTwoThresholdsTheLowerDragsTheUpperAlong) {
    ui.DeuxSeuils->setChecked(true);
    Deux("5");
    Un("3");
    EXPECT_EQ(Deux(), "5");
    Un("7");
    EXPECT_EQ(Un(), "7");
    EXPECT_EQ(Deux(), "7");
    EXPECT_EQ(ecran.focusWidget(), ui.Seuil1);
    EXPECT_EQ(Clair(ui.Seuil1->selectedText()), "7");
}

TEST_F(Seuils, WithTwoThresholdsTheUpperDragsTheLowerAlong) {
    ui.DeuxSeuils->setChecked(true);
    Deux("5");
    Un("3");
    Deux("2");
    EXPECT_EQ(Un(), "2");
    EXPECT_EQ(Deux(), "2");
    EXPECT_EQ(ecran.focusWidget(), ui.Seuil2);
    EXPECT_EQ(Clair(ui.Seuil2->selectedText()), "2");
}

TEST_F(Seuils, ClearingTheUpperOneDragsTheLowerOneToZero) {
    ui.DeuxSeuils->setChecked(true);
    Deux("5");
    Un("3");
    Deux("");
    EXPECT_EQ(Deux(), "0");
    EXPECT_EQ(Un(), "0");
}

TEST_F(Seuils, TheDragComparesWholeNumbers) {
    ui.DeuxSeuils->setChecked(true);
    Deux("2.1");
    Un("2.4");
    EXPECT_EQ(Un(), "2.4");
    EXPECT_EQ(Deux(), "2.1");
}

TEST_F(Seuils, TheTopIsDraggedAlongCorrected) {
    ui.DeuxSeuils->setChecked(true);
    Deux("5");
    Un("300");
    EXPECT_EQ(Un(), "16");
    EXPECT_EQ(Deux(), "16");
}

TEST_F(Seuils, WithOneThresholdNothingIsDragged) {
    ui.UnSeuil->setChecked(true);
    Deux("2");
    Un("7");
    EXPECT_EQ(Deux(), "2");
    Deux("1");
    EXPECT_EQ(Un(), "7");
}

TEST_F(Seuils, AnUnfinishedOtherBoxIsNotCompared) {
    ui.DeuxSeuils->setChecked(true);
    Deux("-");
    Un("7");
    EXPECT_EQ(Un(), "7");
    EXPECT_EQ(Deux(), "-");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Seuils, WithoutAUnitTheLimitIsZero) {
    ui.ListeUnites->Choisir(-1);
    Un("3");
    EXPECT_EQ(Un(), "0");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Seuils, GettingTheFocusSelectsTheWholeText) {
    ui.DeuxSeuils->setChecked(true);
    Deux("14.5");
    Un("12.5");
    ecran.show();
    QApplication::setActiveWindow(&ecran);
    QApplication::processEvents();
    for (QLineEdit* boite : {ui.Seuil1, ui.Seuil2}) {
        ui.AuDessous->setFocus();
        boite->deselect();
        boite->setFocus(Qt::OtherFocusReason);
        QApplication::processEvents();
        EXPECT_EQ(boite->selectedText(), boite->text());
    }
    EXPECT_EQ(Clair(ui.Seuil2->selectedText()), "14.5");
}

TEST_F(Seuils, NoThresholdHidesItsFrame) {
    ui.UnSeuil->setChecked(true);
    EXPECT_FALSE(ui.Frame1->isHidden());
    ui.PressionAbsolue->setChecked(true);
    ui.ResumeAcquisition->clear();
    ui.PasDeSeuil->setChecked(true);
    EXPECT_TRUE(ui.Frame1->isHidden());
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
    EXPECT_TRUE(ui.PressionAbsolue->isChecked());
}

TEST_F(Seuils, ANoThresholdClickOfAnOptionThatIsNotSetClearsAbsolutePressure) {
    ui.UnSeuil->setChecked(true);
    ui.PressionAbsolue->setChecked(true);
    PasDeSeuil_Click(ecran);
    EXPECT_FALSE(ui.PressionAbsolue->isChecked());
}

TEST_F(Seuils, OneThresholdShowsOneBoxWithItsCaptions) {
    ui.DeuxSeuils->setChecked(true);
    ui.ResumeAcquisition->clear();
    ui.UnSeuil->setChecked(true);
    EXPECT_FALSE(ui.Frame1->isHidden());
    EXPECT_TRUE(ui.LabelSeuil2->isHidden());
    EXPECT_TRUE(ui.Seuil2->isHidden());
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "Valeur du seuil (bar)");
    EXPECT_EQ(Clair(ui.AuDessous->text()), "Au dessous");
    EXPECT_EQ(Clair(ui.AuDessus->text()), "Au dessus");
    EXPECT_EQ(ecran.focusWidget(), ui.Seuil1);
    EXPECT_EQ(ui.Seuil1->selectedText(), ui.Seuil1->text());
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
}

TEST_F(Seuils, TwoThresholdsShowBothBoxesWithTheirCaptions) {
    ui.UnSeuil->setChecked(true);
    ui.ResumeAcquisition->clear();
    ui.DeuxSeuils->setChecked(true);
    EXPECT_FALSE(ui.Frame1->isHidden());
    EXPECT_FALSE(ui.LabelSeuil2->isHidden());
    EXPECT_FALSE(ui.Seuil2->isHidden());
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "Limite basse (bar)");
    EXPECT_EQ(Clair(ui.LabelSeuil2->text()), "Limite haute (bar)");
    EXPECT_EQ(Clair(ui.AuDessous->text()), "En dedans");
    EXPECT_EQ(Clair(ui.AuDessus->text()), "En dehors");
    EXPECT_EQ(ecran.focusWidget(), ui.Seuil2);
    EXPECT_EQ(ui.Seuil2->selectedText(), ui.Seuil2->text());
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
}

TEST_F(Seuils, TheChoiceOfTwoIgnoresEveryFault) {
    QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml")));
    ecran.textes.TexteEnDedans = QStringLiteral("dedans");
    ui.DeuxSeuils->setChecked(true);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_FALSE(ui.Frame1->isHidden());
    EXPECT_EQ(Clair(ui.AuDessous->text()), "dedans");
    EXPECT_EQ(ecran.focusWidget(), ui.Seuil2);
}

TEST_F(Seuils, TheChoiceOfTwoGoesOnBehindTheTextThatFails) {
    QByteArray contenu = banc.etabli.Lire(QStringLiteral("config.xml"));
    contenu.replace(">Limite basse<", ">retirée<");
    banc.etabli.Ecrire(QStringLiteral("config.xml"), contenu);
    // A folder in the way of the new file: the missing entry cannot be added.
    ASSERT_TRUE(
        QDir(banc.etabli.systeme.dossier)
            .mkdir(
                QStringLiteral(".bornika-%1-config.xml.tmp").arg(QApplication::applicationPid())));
    ecran.textes.TexteLimiteBasse = QStringLiteral("gardé");
    ecran.textes.TexteLimiteHaute = QStringLiteral("vieux");
    ui.DeuxSeuils->setChecked(true);
    EXPECT_EQ(Clair(ui.LabelSeuil1->text()), "gardé (bar)");
    EXPECT_EQ(Clair(ui.LabelSeuil2->text()), "Limite haute (bar)");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Seuils, TheChoiceOfOneDoesNotIgnoreThem) {
    QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml")));
    ui.UnSeuil->setChecked(true);
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::objetAbsent});
}

TEST_F(Seuils, SenseAndOneShotRefreshTheSummary) {
    ui.UnSeuil->setChecked(true);
    ui.ResumeAcquisition->clear();
    ui.AuDessous->setChecked(true);
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
    ui.ResumeAcquisition->clear();
    ui.AuDessus->setChecked(true);
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
    ui.ResumeAcquisition->clear();
    ui.OneShot->setChecked(true);
    EXPECT_FALSE(ui.ResumeAcquisition->text().isEmpty());
}

}  // namespace
}  // namespace bornika::essai
