#include "setup/duration_rules.h"

#include <gtest/gtest.h>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

class Duree : public SurFormulaire {
  protected:
    void Choisir(int index) { ui.ListePeriodeEchantillonage->Choisir(index); }
    void Saisir(const char* texte) { ui.DureeSaisie->setText(QString::fromLatin1(texte)); }
    std::string Saisie() { return Clair(ui.DureeSaisie->text()); }
};

TEST_F(Duree, OneSecondFillsTheMemoryInAsManySecondsAsItHolds) {
    Choisir(4);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(4), 8);
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "6 Jour(s) 6 H 10 Mn ");
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "11/03/2026 20:17:15");
}

TEST_F(Duree, TheEndFollowsStartDateAndStartTime) {
    Choisir(4);
    ui.DTPicker1->setDateTime(QDateTime(QDate(2025, 1, 2), QTime(22, 22), Qt::UTC));
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "08/01/2025 20:17:15");
    ui.DTPicker2->setDateTime(QDateTime(QDate(1999, 9, 9), QTime(0, 0, 0), Qt::UTC));
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "08/01/2025 06:10:06");
}

TEST_F(Duree, APeriodOfAnHourEndsBeyond2038) {
    Choisir(18);
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "22525 Jour(s) 6 H 0 Mn ");
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "05/11/2087 20:07:09");
}

TEST_F(Duree, NothingChosenIsADurationOfZero) {
    Choisir(-1);
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "0 Jour(s) 0 H 0 Mn ");
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "05/03/2026 14:07:09");
    EXPECT_TRUE(ui.DureeSaisie->isHidden());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Duree, APeriodOfZeroIsADurationOfZero) {
    ui.ListePeriodeEchantillonage->FixerDonnee(5, 0);
    Choisir(5);
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "0 Jour(s) 0 H 0 Mn ");
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "05/03/2026 14:07:09");
}

TEST_F(Duree, ADurationBeyond32BitsIsAnOverflow) {
    ui.ListePeriodeEchantillonage->FixerDonnee(5, 31784);
    Choisir(5);
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::depassement});
}

TEST_F(Duree, TheFreePeriodShowsItsBox) {
    EXPECT_TRUE(ui.DureeSaisie->isHidden());
    Choisir(0);
    EXPECT_FALSE(ui.DureeSaisie->isHidden());
    EXPECT_EQ(Saisie(), "60");
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "375 Jour(s) 10 H 6 Mn ");
    Choisir(1);
    EXPECT_TRUE(ui.DureeSaisie->isHidden());
}

TEST_F(Duree, AFreePeriodOfSixtyIsStoredAsSixtyAndAsSixHundredInTheFile) {
    Choisir(0);
    Saisir("61");
    Saisir("60");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 60);
    EXPECT_EQ(ecran.configuration.LitDureeSaisie(0), 60);
}

TEST_F(Duree, OnlyTheFirstLanguageKeepsTheFreePeriod) {
    Choisir(0);
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    Saisir("61");
    const QByteArray apres = banc.etabli.Lire(QStringLiteral("config.xml"));
    EXPECT_EQ(apres.count(">610<"), avant.count(">610<") + 1);
    EXPECT_EQ(apres.count(">600<"), avant.count(">600<") - 1);
}

TEST_F(Duree, TheValueOfTheFreeEntryIsTheFilesUntilTheFirstChange) {
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 600);
    Choisir(0);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 600);
}

TEST_F(Duree, TypedPeriodsAreHeldBetweenOneAndAnHour) {
    banc.MontrerOptions();
    Choisir(0);
    struct {
        const char* saisi;
        const char* montre;
        int garde;
    } const cas[] = {{"0", "1", 1},      {"3601", "3600", 3600},   {"abc", "1", 1},
                     {"", "1", 1},       {"-5", "1", 1},           {"3600", "3600", 3600},
                     {"0.99", "1", 1},   {"3600.4", "3600", 3600}, {"1,5", "1", 1},
                     {"120", "120", 120}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.saisi);
        Saisir("77");
        Saisir(c.saisi);
        EXPECT_EQ(Saisie(), c.montre);
        EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), c.garde);
        EXPECT_EQ(ecran.configuration.LitDureeSaisie(0), c.garde);
        EXPECT_EQ(Clair(ui.ResumeAcquisition->text()),
                  std::string("  Acquisition toutes les ") + c.montre + " Seconde(s)");
    }
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Duree, ACorrectionHandsTheBoxBackWithItsTextSelected) {
    banc.MontrerOptions();
    Choisir(0);
    for (const char* saisi : {"0", "3601", "x"}) {
        SCOPED_TRACE(saisi);
        ui.Commentaire->setFocus();
        Saisir("50");
        EXPECT_NE(ecran.focusWidget(), ui.DureeSaisie);
        Saisir(saisi);
        EXPECT_EQ(ecran.focusWidget(), ui.DureeSaisie);
        EXPECT_EQ(ui.DureeSaisie->selectedText(), ui.DureeSaisie->text());
    }
}

TEST_F(Duree, FractionsAreShownButStoredHalfToEven) {
    Choisir(0);
    Saisir("2.5");
    EXPECT_EQ(Saisie(), "2.5");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 2);
    EXPECT_TRUE(banc.etabli.Lire(QStringLiteral("config.xml")).contains(">20<"));
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "15 Jour(s) 15 H 25 Mn ");
}

TEST_F(Duree, TheSeparatorIsTheLocales) {
    banc.ReglerSeparateur(QStringLiteral(","));
    Choisir(0);
    Saisir("3,5");
    EXPECT_EQ(Saisie(), "3,5");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 4);
    Saisir("3.5");
    EXPECT_EQ(Saisie(), "1");
}

TEST_F(Duree, ChangesOfTheHiddenBoxAreIgnored) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    Saisir("abc");
    EXPECT_EQ(Saisie(), "abc");
    Saisir("9999");
    EXPECT_EQ(Saisie(), "9999");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 600);
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
}

TEST_F(Duree, ABoxInAHiddenFrameStillCountsAsShown) {
    ui.Frame5->setVisible(false);
    Choisir(0);
    Saisir("30");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 30);
}

TEST_F(Duree, ThePeriodAfterTheTriggerIsTheSamplingPeriodOrShorter) {
    Choisir(15);
    ASSERT_EQ(ui.PeriodeTrigger->Nombre(), 15);
    EXPECT_EQ(ui.PeriodeTrigger->Index(), 14);
    for (int i = 0; i < 15; ++i) {
        EXPECT_EQ(ui.PeriodeTrigger->TexteA(i), ui.ListePeriodeEchantillonage->TexteA(i + 1));
        EXPECT_EQ(ui.PeriodeTrigger->Donnee(i), ui.ListePeriodeEchantillonage->Donnee(i + 1));
    }
}

TEST_F(Duree, TheFreePeriodAndTheFirstOneLeaveOneEntryAfterTheTrigger) {
    for (const int position : {0, 1}) {
        SCOPED_TRACE(position);
        Choisir(position);
        ASSERT_EQ(ui.PeriodeTrigger->Nombre(), 1);
        EXPECT_EQ(ui.PeriodeTrigger->Index(), 0);
        EXPECT_EQ(Clair(ui.PeriodeTrigger->TexteA(0)), "1/8 seconde");
        EXPECT_EQ(ui.PeriodeTrigger->Donnee(0), 1);
    }
}

TEST_F(Duree, TheFreePeriodIsNeverOfferedAfterTheTrigger) {
    for (int i = 0; i < ui.ListePeriodeEchantillonage->Nombre(); ++i) {
        Choisir(i);
        EXPECT_EQ(ui.PeriodeTrigger->findText(ui.ListePeriodeEchantillonage->TexteA(0)), -1);
    }
}

TEST_F(Duree, ChoosingAPeriodRefreshesTheSummary) {
    ui.ResumeAcquisition->clear();
    Choisir(4);
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 1 seconde");
    ui.ResumeAcquisition->clear();
    ui.PeriodeTrigger->Choisir(0);
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 1 seconde");
}

TEST_F(Duree, StartingNowTakesThePresentDateAndTime) {
    Choisir(4);
    ui.DTPicker1->setDateTime(QDateTime(QDate(2020, 1, 1), QTime(1, 1), Qt::UTC));
    ui.DTPicker2->setDateTime(QDateTime(QDate(2020, 1, 1), QTime(1, 1), Qt::UTC));
    ui.DateDemarrage->click();
    EXPECT_EQ(ui.DTPicker1->date(), QDate(2026, 3, 5));
    EXPECT_EQ(ui.DTPicker2->time(), QTime(14, 7, 9));
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "11/03/2026 20:17:15");
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "6 Jour(s) 6 H 10 Mn ");
}

TEST_F(Duree, StartingNowCountsTheFreeEntryInEighthsToo) {
    Choisir(0);
    ui.DateDemarrage->click();
    // 600 / 8 x 540606 s behind the start, while the duration is that of 60 s.
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "17/06/2027 20:44:39");
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "375 Jour(s) 10 H 6 Mn ");
}

TEST_F(Duree, StartingNowWithNothingChosenIsNoFault) {
    Choisir(-1);
    ui.DateDemarrage->click();
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "05/03/2026 14:07:09");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

}  // namespace
}  // namespace bornika::essai
