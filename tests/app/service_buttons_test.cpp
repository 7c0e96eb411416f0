// The service buttons with real clicks on the real form, in maintenance mode.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

#include "app/program_fixture.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using simulateur::GenrePanne;
using Trames = std::vector<std::vector<std::uint8_t>>;

struct ServiceButtons : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(EnregistreurSimule());

    void SetUp() override {
        banc.main = [](QDialog& dialogue) { BancProgramme::ChoisirLigne(dialogue, 0); };
        banc.Construire();
        banc.ecran().configuration.EcritConfig(QStringLiteral("True"),
                                               QStringLiteral("Maintenance"));
        ASSERT_TRUE(banc.programme->Demarrer());
        QCoreApplication::processEvents();
        ASSERT_TRUE(banc.ui().LireLaFlash->isVisible());
        ASSERT_TRUE(banc.ecran().etat.Connected);
        pod.journal.Vider();
    }
    static void Taper(QLineEdit* saisie, const char* texte) {
        BancProgramme::Taper(saisie, QString::fromLatin1(texte));
    }
    void Adresser(const char* page, const char* offset) {
        Taper(banc.ui().page, page);
        Taper(banc.ui().offset, offset);
    }
    void AttendreFinGenerale(const char* texte) {
        EXPECT_EQ(banc.sorties, std::vector<int>{1});
        ASSERT_EQ(banc.Boites(), QStringList{QString::fromLatin1(texte)});
        EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Critique);
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    }
};

const QString absent = QStringLiteral("k-Pod absent");
const std::vector<std::uint8_t> octetsMesure{0, 0, 0x65, 0x53, 0xF1, 0x00, 0xFE, 0x80};

TEST_F(ServiceButtons, ApplyCorrectionWritesWhatWasTypedAndLireShowsIt) {
    Taper(banc.ui().ValeurCorrection_1, "16");
    BancProgramme::Cliquer(banc.ui().CommandCorrection);
    EXPECT_EQ(pod.journal.DeCode(31), (Trames{{31, 0xFE, 0xFF, 0xFF, 0xFF, 0, 0, 0}}));
    EXPECT_EQ(banc.ui().ValeurCorrection_0->text(), QStringLiteral("-2.0000"));
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().ValeurCorrection_0->text(), QStringLiteral("-2"));
    EXPECT_EQ(banc.ui().ValeurCorrection_1->text(), QStringLiteral("16.0000"));
    EXPECT_EQ(banc.Boites(), QStringList());
}

TEST_F(ServiceButtons, ApplyCorrectionBeyondThirtyTwoBitsEndsTheProgram) {
    Taper(banc.ui().ValeurCorrection_1, "8.0000000001");
    BancProgramme::Cliquer(banc.ui().CommandCorrection);
    AttendreFinGenerale("Run-time error '6':\n\nOverflow");
    EXPECT_EQ(pod.journal.Total(), 0);
}

TEST_F(ServiceButtons, TheFlowTestGoesOnAndOffByItsButtons) {
    BancProgramme::Cliquer(banc.ui().TestDebitON);
    EXPECT_TRUE(pod.testDebit);
    BancProgramme::Cliquer(banc.ui().TestDebitOFF);
    EXPECT_FALSE(pod.testDebit);
    EXPECT_EQ(pod.journal.DeCode(20),
              (Trames{{20, 1, 32, 32, 32, 32, 32, 32}, {20, 0, 32, 32, 32, 32, 32, 32}}));
    EXPECT_FALSE(banc.ui().MnuFlowTest->isChecked());
}

TEST_F(ServiceButtons, TheFlowTestGoesOnAndOffByItsMenuEntry) {
    banc.ui().MnuFlowTest->trigger();
    EXPECT_TRUE(banc.ui().MnuFlowTest->isChecked());
    EXPECT_TRUE(pod.testDebit);
    banc.ui().MnuFlowTest->trigger();
    EXPECT_FALSE(banc.ui().MnuFlowTest->isChecked());
    EXPECT_FALSE(pod.testDebit);
    EXPECT_EQ(pod.journal.DeCode(20),
              (Trames{{20, 1, 32, 32, 32, 32, 32, 32}, {20, 0, 32, 32, 32, 32, 32, 32}}));
}

TEST_F(ServiceButtons, TheMarkOfTheFlowTestIsInvertedAlsoWhenTheLoggerIsSilent) {
    pod.pannes.Ordonner({20, GenrePanne::silence});
    banc.ui().MnuFlowTest->trigger();
    EXPECT_TRUE(banc.ui().MnuFlowTest->isChecked());
    EXPECT_FALSE(pod.testDebit);
    EXPECT_EQ(banc.Boites(), QStringList{absent});
}

TEST_F(ServiceButtons, ReadFlashShowsBytesAndMeasure) {
    pod.flash.Ecrire(258, 16, octetsMesure);
    Adresser("258", "16");
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    EXPECT_EQ(pod.journal.DeCode(20), (Trames{{20, 1, 2, 0, 16, 32, 32, 32}}));
    EXPECT_EQ(banc.ui().resultat->text(), QStringLiteral(" 0 0 101 83 241 0 254 128"));
    EXPECT_EQ(banc.ui().ResultatMesure->text(),
              QStringLiteral("14/11/2023 22:13:20-640-10  bar-0"));
}

TEST_F(ServiceButtons, ReadFlashAtAnAddressThatIsNoneEndsTheProgram) {
    Adresser("abc", "0");
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    AttendreFinGenerale("Run-time error '13':\n\nType mismatch");
    EXPECT_EQ(pod.journal.Total(), 0);
}

TEST_F(ServiceButtons, ReadFlashAtAPageBeyondSixteenBitsEndsTheProgram) {
    Adresser("40000", "0");
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    AttendreFinGenerale("Run-time error '6':\n\nOverflow");
    EXPECT_EQ(pod.journal.Total(), 0);
}

TEST_F(ServiceButtons, WriteFlashEndsTheProgramAfterTheAnswer) {
    Adresser("3", "8");
    Taper(banc.ui().resultat, " 18 12 13 14 15 16 17 99");
    BancProgramme::Cliquer(banc.ui().EcrireLaFlash);
    AttendreFinGenerale("Run-time error '9':\n\nSubscript out of range");
    EXPECT_EQ(pod.journal.DeCode(18), (Trames{{18, 12, 13, 14, 15, 16, 17, 0}}));
    EXPECT_EQ(pod.journal.Nombre(19), 0);
    EXPECT_EQ(pod.journal.Total(), 1);
}

TEST_F(ServiceButtons, WriteFlashEndsTheProgramBeforeAnythingIsSentWhenItsBytesAreWrong) {
    const struct {
        const char* octets;
        const char* texte;
    } cas[] = {{" 18 12 13", "Run-time error '9':\n\nSubscript out of range"},
               {" 18 x 13 14 15 16 17 99", "Run-time error '13':\n\nType mismatch"},
               {" 18 256 13 14 15 16 17 99", "Run-time error '6':\n\nOverflow"}};
    for (const auto& c : cas) {
        banc.sorties.clear();
        banc.etabli.dialogues.OublierBoites();
        Taper(banc.ui().resultat, c.octets);
        BancProgramme::Cliquer(banc.ui().EcrireLaFlash);
        AttendreFinGenerale(c.texte);
    }
    EXPECT_EQ(pod.journal.Total(), 0);
}

TEST_F(ServiceButtons, AfterAFailureTheyReadNothingUntilLire) {
    pod.flash.Ecrire(0, 0, octetsMesure);
    pod.pannes.Ordonner({20, GenrePanne::silence});
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    EXPECT_EQ(banc.Boites(), QStringList{absent});

    // The logger answers again, but nobody listens, and nothing more is said.
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    EXPECT_EQ(banc.ui().resultat->text(), QString());
    BancProgramme::Cliquer(banc.ui().TestDebitON);
    Taper(banc.ui().ValeurCorrection_1, "16");
    BancProgramme::Cliquer(banc.ui().CommandCorrection);
    EXPECT_EQ(banc.Boites(), QStringList{absent});
    EXPECT_TRUE(banc.ecran().etat.TimeOut);

    BancProgramme::Cliquer(banc.ui().Lire);
    BancProgramme::Cliquer(banc.ui().LireLaFlash);
    EXPECT_EQ(banc.ui().resultat->text(), QStringLiteral(" 0 0 101 83 241 0 254 128"));
    EXPECT_EQ(banc.Boites(), QStringList{absent});
    EXPECT_FALSE(banc.ecran().etat.TimeOut);
}

TEST_F(ServiceButtons, SayThatAPulledOutLoggerIsAbsentAndNothingEnds) {
    banc.bus.Debrancher(pod.identite.usb);
    Taper(banc.ui().ValeurCorrection_1, "4");
    Taper(banc.ui().ValeurNumeroSerie, "4");
    for (QPushButton* bouton :
         {banc.ui().CommandCorrection, banc.ui().TestDebitON, banc.ui().TestDebitOFF,
          banc.ui().LireLaFlash, banc.ui().EcrireLaFlash, banc.ui().Test,
          banc.ui().LireValeurDetectionCapteur, banc.ui().ProgNumeroSerie}) {
        banc.ecran().etat.TimeOut = false;
        banc.etabli.dialogues.OublierBoites();
        if (bouton == banc.ui().EcrireLaFlash)
            Taper(banc.ui().resultat, " 18 12 13 14 15 16 17 99");
        BancProgramme::Cliquer(bouton);
        EXPECT_EQ(banc.Boites(), QStringList{absent}) << bouton->objectName().toStdString();
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    }
    EXPECT_EQ(pod.journal.Total(), 0);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(ServiceButtons, TheSelfTestShowsItsCodeAndMeasure) {
    pod.codeTest = 2;
    pod.pointsCapteur = 300;
    BancProgramme::Cliquer(banc.ui().Test);
    EXPECT_EQ(pod.journal.DeCode(29), (Trames{{29, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(banc.ui().Valeurcodetest->text(), QStringLiteral("2"));
    EXPECT_EQ(banc.ui().Mesuretest->text(), QStringLiteral("300"));
    pod.codeTest = 1;
    BancProgramme::Cliquer(banc.ui().Test);
    EXPECT_EQ(banc.ui().Valeurcodetest->text(), QStringLiteral("1"));
    EXPECT_EQ(banc.ui().Mesuretest->text(), QString());
    EXPECT_EQ(banc.Boites(), QStringList());
}

TEST_F(ServiceButtons, TheDetectionOfTheSensorShowsItsValue) {
    pod.detectionCapteur = 0x012C;
    BancProgramme::Cliquer(banc.ui().LireValeurDetectionCapteur);
    EXPECT_EQ(pod.journal.DeCode(32), (Trames{{32, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(banc.ui().ValeurDetectionCapteur->text(), QStringLiteral("300"));
    pod.pannes.Ordonner({32, GenrePanne::silence});
    BancProgramme::Cliquer(banc.ui().LireValeurDetectionCapteur);
    EXPECT_EQ(banc.ui().ValeurDetectionCapteur->text(), QStringLiteral("0"));
    EXPECT_EQ(banc.Boites(), QStringList{absent});
}

TEST_F(ServiceButtons, AProgrammedSerialNumberIsShownByLire) {
    Taper(banc.ui().ValeurNumeroSerie, "2147483647");
    BancProgramme::Cliquer(banc.ui().ProgNumeroSerie);
    EXPECT_EQ(pod.journal.DeCode(5), (Trames{{5, 127, 255, 255, 255, 32, 32, 32}}));
    EXPECT_EQ(pod.journal.Total(), 1);
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().NumeroSerie->text(), QStringLiteral("2147483647"));
    EXPECT_EQ(banc.Boites(), QStringList());
}

TEST_F(ServiceButtons, ASerialNumberThatIsNoneOrTooLargeIsTold) {
    Taper(banc.ui().ValeurNumeroSerie, "abc");
    BancProgramme::Cliquer(banc.ui().ProgNumeroSerie);
    Taper(banc.ui().ValeurNumeroSerie, "2147483648");
    BancProgramme::Cliquer(banc.ui().ProgNumeroSerie);
    EXPECT_EQ(banc.Boites(),
              (QStringList{QStringLiteral("Le n° de série n'est pas valide"),
                           QStringLiteral("Le n° de série est trop grand (> 32 bits)")}));
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].titre, banc.ecran().etat.NomKpod);
    EXPECT_EQ(pod.journal.Total(), 0);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(ServiceButtons, ANegativeSerialNumberEndsTheProgramUnsent) {
    Taper(banc.ui().ValeurNumeroSerie, "-1");
    BancProgramme::Cliquer(banc.ui().ProgNumeroSerie);
    AttendreFinGenerale("Run-time error '6':\n\nOverflow");
    EXPECT_EQ(pod.journal.Total(), 0);
}

TEST_F(ServiceButtons, TheSerialNumberIsClearedAfterOkAlone) {
    pod.ReglerNumeroSerie(123);
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Ok);
    BancProgramme::Cliquer(banc.ui().RAZNumeroSerie);
    EXPECT_EQ(pod.journal.Total(), 0);
    BancProgramme::Cliquer(banc.ui().RAZNumeroSerie);
    EXPECT_EQ(pod.journal.DeCode(15), (Trames{{15, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_TRUE(pod.inhibe);
    ASSERT_EQ(banc.Boites().size(), 2);
    EXPECT_EQ(banc.Boites()[1], QStringLiteral("Attention, le datalogger sera inhibé !"));
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.ui().NumeroSerie->text(), QStringLiteral("0"));
}

TEST_F(ServiceButtons, TheResetsAreReadFromWhereTheFirmwareKeepsThem) {
    pod.ReglerResets(1772719629, 3);
    BancProgramme::Cliquer(banc.ui().Command2);
    EXPECT_EQ(pod.journal.DeCode(29), (Trames{{29, 0, 7, 32, 32, 32, 32, 32}}));
    EXPECT_EQ(banc.ui().NbReset->text(), QStringLiteral("3"));
    EXPECT_EQ(banc.ui().DateDernierReset->text(), QStringLiteral("05/03/2026 14:07:09"));

    pod.identite.versionHaute = 20;
    pod.identite.versionBasse = 95;
    BancProgramme::Cliquer(banc.ui().Lire);
    banc.ui().NbReset->clear();
    pod.journal.Vider();
    BancProgramme::Cliquer(banc.ui().Command2);
    EXPECT_EQ(pod.journal.DeCode(20), (Trames{{20, 0, 0, 0, 0, 32, 32, 32}}));
    EXPECT_EQ(pod.journal.Total(), 1);
    EXPECT_EQ(banc.ui().NbReset->text(), QStringLiteral("3"));
}

TEST_F(ServiceButtons, TheResetsOfASilentLoggerEndTheProgram) {
    pod.pannes.Ordonner({29, GenrePanne::silence});
    BancProgramme::Cliquer(banc.ui().Command2);
    EXPECT_EQ(banc.Boites(),
              (QStringList{absent, QStringLiteral("Run-time error '9':\n\nSubscript out "
                                                  "of range")}));
    EXPECT_EQ(banc.sorties, std::vector<int>{1});
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(banc.ui().NbReset->text(), QStringLiteral("--"));
}

TEST(ServicePanelOfTheProgram, IsOutOfReachWithoutMaintenance) {
    BancProgramme banc;
    banc.bus.Brancher(EnregistreurSimule());
    ASSERT_TRUE(banc.Demarrer());
    for (const QPushButton* bouton :
         {banc.ui().CommandCorrection, banc.ui().TestDebitON, banc.ui().LireLaFlash,
          banc.ui().EcrireLaFlash, banc.ui().Test, banc.ui().LireValeurDetectionCapteur,
          banc.ui().ProgNumeroSerie, banc.ui().RAZNumeroSerie, banc.ui().Command2})
        EXPECT_FALSE(bouton->isVisible());
    EXPECT_TRUE(banc.ui().MnuFlowTest->isEnabled());
}

}  // namespace
}  // namespace bornika
