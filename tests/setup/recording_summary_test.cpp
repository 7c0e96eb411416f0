#include "setup/recording_summary.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

class ResumeFrancais : public SurFormulaire {
  protected:
    void Seuils(const char* seuil1, const char* seuil2) {
        ui.Seuil1->setText(QString::fromLatin1(seuil1));
        ui.Seuil2->setText(QString::fromLatin1(seuil2));
    }
};

TEST_F(ResumeFrancais, TwoBlanksBeginEachSentence) {
    ui.UnSeuil->setChecked(true);
    ui.OneShot->setChecked(true);
    ecran.etat.ModeAvance = true;
    Donne_Resume(ecran);
    for (const QLabel* label : {ui.ResumeAcquisition, ui.ResumeBuffer, ui.ResumeSeuil,
                                ui.ResumePeriodeTrigger, ui.ResumeMonoCoup}) {
        EXPECT_TRUE(label->text().startsWith(QStringLiteral("  "))) << Clair(label->text());
        EXPECT_NE(label->text().at(2), QLatin1Char(' ')) << Clair(label->text());
    }
}

TEST_F(ResumeFrancais, AcquisitionNamesTheChosenPeriod) {
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 15 minutes");
}

TEST_F(ResumeFrancais, TheFreePeriodIsTheTypedTextAsItStands) {
    ui.ListePeriodeEchantillonage->Choisir(0);
    ui.DureeSaisie->setText(QStringLiteral("7.50"));
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 7.50 Seconde(s)");
    EXPECT_FALSE(ui.ResumeAcquisition->text().contains(ui.ListePeriodeEchantillonage->TexteA(0)));
}

TEST_F(ResumeFrancais, BufferSaysWhatBecomesOfOldValues) {
    ui.BufferNonTournant->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeBuffer->text()), "  Les anciennes valeurs ne seront pas écrasées");
    ui.BufferTournant->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeBuffer->text()), "  Les anciennes valeurs seront écrasées");
}

TEST_F(ResumeFrancais, WithoutAdvancedModeAThresholdIsNotMentioned) {
    ui.UnSeuil->setChecked(true);
    Seuils("2", "0");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition immédiate");
    EXPECT_EQ(Clair(ui.ResumePeriodeTrigger->text()), "");
}

TEST_F(ResumeFrancais, AdvancedModeWithoutThresholdStartsAtOnce) {
    ecran.etat.ModeAvance = true;
    Donne_Resume(ecran);
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition immédiate");
    EXPECT_EQ(Clair(ui.ResumePeriodeTrigger->text()), "");
}

TEST_F(ResumeFrancais, AdvancedModeTellsOneThreshold) {
    ecran.etat.ModeAvance = true;
    ui.UnSeuil->setChecked(true);
    ui.AuDessous->setChecked(true);
    Seuils("2", "0");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition au dessous de  2 bar");
    ui.AuDessus->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition au dessus de  2 bar");
}

TEST_F(ResumeFrancais, AdvancedModeTellsABandWithItsExactBlanks) {
    ecran.etat.ModeAvance = true;
    ui.DeuxSeuils->setChecked(true);
    ui.AuDessous->setChecked(true);
    Seuils("0", "5");
    Seuils("2", "5");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition entre 2 bar et 5 bar");
    ui.AuDessus->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition en dehors de 2 bar et de 5 bar");
}

TEST_F(ResumeFrancais, ThePeriodAfterTheTriggerNeedsAdvancedModeAndAThreshold) {
    ui.UnSeuil->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumePeriodeTrigger->text()), "");
    ecran.etat.ModeAvance = true;
    ui.PeriodeTrigger->Choisir(3);
    EXPECT_EQ(Clair(ui.ResumePeriodeTrigger->text()),
              "  Echantillonnage après trigger toutes les  1 seconde");
    ui.PasDeSeuil->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumePeriodeTrigger->text()), "");
}

TEST_F(ResumeFrancais, OneShotIsToldWithAThresholdWhateverTheMode) {
    ui.OneShot->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeMonoCoup->text()), "");
    ui.UnSeuil->setChecked(true);
    EXPECT_EQ(Clair(ui.ResumeMonoCoup->text()), "  Mode mono coup armé");
    ecran.etat.ModeAvance = true;
    Donne_Resume(ecran);
    EXPECT_EQ(Clair(ui.ResumeMonoCoup->text()), "  Mode mono coup armé");
    ui.OneShot->setChecked(false);
    EXPECT_EQ(Clair(ui.ResumeMonoCoup->text()), "");
}

/// Takes entries of the summary out of the catalogue.
void RetirerTextes(const Etabli& etabli) {
    QByteArray contenu = etabli.Lire(QStringLiteral("config.xml"));
    int rang = 0;
    for (const char* cle : {"Acquisition toutes les", "Les anciennes valeurs seront écrasées",
                            "Acquisition immédiate", "Acquisition au dessus de",
                            "Echantillonnage après trigger toutes les", "Mode mono coup armé"}) {
        contenu.replace(QByteArray(">") + cle + "<",
                        QByteArray(">retirée ") + QByteArray::number(++rang) + "<");
    }
    etabli.Ecrire(QStringLiteral("config.xml"), contenu);
}

TEST_F(ResumeFrancais, UnknownKeysGiveBlanksFirstAndTextsNext) {
    RetirerTextes(banc.etabli);
    Donne_Resume(ecran);
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  15 minutes");
    EXPECT_EQ(Clair(ui.ResumeBuffer->text()), " ");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), " ");
    Donne_Resume(ecran);
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 15 minutes");
    EXPECT_EQ(Clair(ui.ResumeBuffer->text()), "  Les anciennes valeurs seront écrasées");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition immédiate");
}

TEST_F(ResumeFrancais, AUnitChangeWritesItOnce) {
    RetirerTextes(banc.etabli);
    ui.ListeUnites->Choisir(0);
    // A second run would have found the text that the first one has added.
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), " ");
}

TEST_F(ResumeFrancais, APeriodChangeWritesItTwice) {
    RetirerTextes(banc.etabli);
    // The period after the trigger is chosen anew, which is a click of its own.
    ui.ListePeriodeEchantillonage->Choisir(4);
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition immédiate");
}

TEST_F(ResumeFrancais, LabelsAreWrittenInTheirOrder) {
    ui.UnSeuil->setChecked(true);
    ui.OneShot->setChecked(true);
    ecran.etat.ModeAvance = true;
    RetirerTextes(banc.etabli);
    Donne_Resume(ecran);
    // Each first lookup has added its entry at the end of the catalogue.
    const QByteArray contenu = banc.etabli.Lire(QStringLiteral("config.xml"));
    auto precedente = contenu.indexOf("Mode étalonnage en cours");
    ASSERT_GT(precedente, 0);
    for (const char* cle : {"Acquisition toutes les", "Les anciennes valeurs seront écrasées",
                            "Acquisition au dessus de", "Echantillonnage après trigger toutes les",
                            "Mode mono coup armé"}) {
        const auto place = contenu.lastIndexOf(cle);
        EXPECT_GT(place, precedente) << cle;
        precedente = place;
    }
}

TEST(ResumeAnglais, SentencesFollowTheLanguage) {
    BancEnregistreur banc(QStringLiteral("English"));
    Ui::MainScreen& ui = banc.ui;
    banc.ecran.etat.ModeAvance = true;
    ui.DeuxSeuils->setChecked(true);
    ui.AuDessus->setChecked(true);
    ui.Seuil2->setText(QStringLiteral("5"));
    ui.Seuil1->setText(QStringLiteral("2"));
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition every 15 minutes");
    EXPECT_EQ(Clair(ui.ResumeBuffer->text()), "  Old values will be overwritten");
    EXPECT_EQ(Clair(ui.ResumeSeuil->text()), "  Acquisition outside 2 bar and 5 bar");
}

}  // namespace
}  // namespace bornika::essai
