#include "logger/set_up_frames.h"

#include <gtest/gtest.h>

#include "link/frames.h"
#include "logger/logger_fixture.h"
#include "logger/set_up_form.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

/// A form on the scale of 16 bar, in bar, without threshold.
class TramesDuFormulaire : public SurFormulaire {
  protected:
    void SetUp() override {
        banc.ChoisirUnite(QStringLiteral("bar"));
        ui.AuDessous->setChecked(true);
        ui.BufferNonTournant->setChecked(true);
    }
    int Mode() { return TrameMode(ModeSaisi(ecran))[1]; }
    Octets Seuils() {
        const Octets trame = TrameMode(ModeSaisi(ecran));
        return {trame.begin() + 2, trame.begin() + 6};
    }
    void PoserSeuils(const char* seuil1, const char* seuil2) {
        ui.Seuil1->setText(QString::fromLatin1(seuil1));
        ui.Seuil2->setText(QString::fromLatin1(seuil2));
    }
    void PoserDebut(const QDate& date, const QTime& heure) {
        ui.DTPicker1->setDateTime(QDateTime(date, QTime(1, 2, 3), Qt::UTC));
        ui.DTPicker2->setDateTime(QDateTime(QDate(2000, 6, 6), heure, Qt::UTC));
    }
};

TEST(OctetMode, HasABitForEachChoice) {
    EXPECT_EQ(OctetMode({}), 0);
    EXPECT_EQ(OctetMode({.seuils = 1}), 1);
    EXPECT_EQ(OctetMode({.seuils = 2}), 2);
    EXPECT_EQ(OctetMode({.auDessus = true}), 4);
    EXPECT_EQ(OctetMode({.bufferTournant = true}), 8);
    EXPECT_EQ(OctetMode({.oneShot = true}), 16);
    EXPECT_EQ(OctetMode({.pressionAbsolue = true}), 128);
    EXPECT_EQ(OctetMode({2, true, true, true, true}), 158);
}

TEST(ModeDeOctet, GivesBackEveryChoice) {
    for (int octet = 0; octet < 256; ++octet) {
        if ((octet & 0x63) != 0 && (octet & 0x63) != 1 && (octet & 0x63) != 2) continue;
        EXPECT_EQ(OctetMode(ModeDeOctet(octet)), octet);
    }
}

TEST(ModeDeOctet, TakesTwoThresholdsWhereBothBitsAreSet) {
    EXPECT_EQ(ModeDeOctet(3), (ModeEnregistrement{.seuils = 2}));
    EXPECT_EQ(ModeDeOctet(0x60), ModeEnregistrement{});  // bits without a meaning
}

/// 16 bar, in bar.
constexpr EchellePression seizeBars{0, 16};

ReglageMode ReglageEnBar(double seuil1, double seuil2) {
    return {.mode = {.seuils = 2, .auDessus = true},
            .seuil1 = seuil1,
            .seuil2 = seuil2,
            .limites = seizeBars,
            .coefficient = 10000,
            .echelle = 7,
            .unite = 6,
            .chargeRapide = true};
}

TEST(TramesDeValeurs, CarryTheModeWithoutAForm) {
    ReglageMode reglage = ReglageEnBar(4, 8);
    EXPECT_EQ(TrameMode(reglage), (Octets{3, 6, 1, 0, 2, 0, 0x76, 1}));
    reglage.coefficient = 10000000;  // thousandths of a bar
    reglage.seuil1 = 1500;
    reglage.seuil2 = 16001;
    reglage.chargeRapide = false;
    EXPECT_EQ(TrameMode(reglage), (Octets{3, 6, 0, 96, 4, 0, 0x76, 0}));
    reglage.mode.pressionAbsolue = true;
    reglage.seuil1 = 0;
    EXPECT_EQ(TrameMode(reglage), (Octets{3, 134, 0, 66, 4, 0, 0x76, 0}));
}

TEST(TramesDeValeurs, AUnitWithoutCoefficientIsAFault) {
    ReglageMode reglage = ReglageEnBar(4, 8);
    reglage.coefficient = 0;
    EXPECT_EQ(NumeroDeFaute([&] { TrameMode(reglage); }), numero_faute::divisionParZero);
    reglage = ReglageEnBar(4, 8);
    reglage.limites = {16, 16};
    EXPECT_EQ(NumeroDeFaute([&] { TrameMode(reglage); }), numero_faute::depassement);
}

TEST(TramesDeValeurs, CarryStartAndClockWithoutAForm) {
    EXPECT_EQ(TrameDemarrage({.periode = 28800, .debut = 0x69CCD422}),
              (Octets{1, 105, 204, 212, 34, 112, 128, 0}));
    // One day and a half behind the origin.
    EXPECT_EQ(TrameHorloge({.periode = 16, .maintenant = 25570.5}),
              (Octets{7, 0, 1, 250, 64, 0, 16, 32}));
}

TEST(TramesDeValeurs, HoldNoDateBeforeTheOriginAndNoPeriodOfThreeBytes) {
    EXPECT_EQ(NumeroDeFaute([] { TrameDemarrage({.periode = 8, .debut = -1}); }),
              numero_faute::depassement);
    EXPECT_EQ(NumeroDeFaute([] { TrameHorloge({.periode = 65536, .maintenant = 25570}); }),
              numero_faute::depassement);
    EXPECT_EQ(NumeroDeFaute([] { TrameHorloge({.periode = 8, .maintenant = 25568}); }),
              numero_faute::depassement);
}

TEST(PressionDuSeuil, IsTheNumberTypedWithTheSeparatorOfTheUser) {
    const Regional virgule{QStringLiteral(","), QStringLiteral("dd/MM/yyyy")};
    EXPECT_EQ(PressionDuSeuil(u"1,5", virgule), 1.5);
    EXPECT_EQ(PressionDuSeuil(u"1.5", virgule), 0);
    EXPECT_EQ(PressionDuSeuil(u" -2 ", Regional{}), -2);
}

TEST_F(TramesDuFormulaire, TheModeByteFollowsEachControl) {
    const auto bits = [&] { return Mode(); };
    EXPECT_EQ(bits(), 0);
    ui.UnSeuil->setChecked(true);
    EXPECT_EQ(bits(), 1);
    ui.DeuxSeuils->setChecked(true);
    EXPECT_EQ(bits(), 2);
    ui.AuDessus->setChecked(true);
    EXPECT_EQ(bits(), 6);
    ui.BufferTournant->setChecked(true);
    EXPECT_EQ(bits(), 14);
    ui.OneShot->setChecked(true);
    EXPECT_EQ(bits(), 30);
    ui.PressionAbsolue->setChecked(true);
    EXPECT_EQ(bits(), 158);
    ui.PasDeSeuil->setChecked(true);
    EXPECT_EQ(bits(), 156);
}

TEST_F(TramesDuFormulaire, WithoutThresholdThePointsOfZeroAreThoseOfTheScale) {
    ui.ListeEchelles->Choisir(6);  // -1 to 9 bar: 102.4 points
    ui.PasDeSeuil->setChecked(true);
    EXPECT_EQ(TrameMode(ModeSaisi(ecran)), (Octets{3, 0, 0, 102, 0, 102, 0x61, 0}));
}

TEST_F(TramesDuFormulaire, BothThresholdsGoInEachOfTheThreeModes) {
    PoserSeuils("4", "8");
    for (QRadioButton* option : {ui.PasDeSeuil, ui.UnSeuil, ui.DeuxSeuils}) {
        option->setChecked(true);
        EXPECT_EQ(Seuils(), (Octets{1, 0, 2, 0})) << Clair(option->objectName());
    }
}

TEST_F(TramesDuFormulaire, AThresholdThatIsNoNumberGoesAsZeroWithoutAWord) {
    ui.ListeEchelles->Choisir(6);
    PoserSeuils("-", "-");
    ASSERT_EQ(Clair(ui.Seuil1->text()), "-");
    EXPECT_EQ(Seuils(), (Octets{0, 102, 0, 102}));
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(PressionDuSeuil(u"abc", ecran.systeme.regional), 0);
    EXPECT_EQ(PressionDuSeuil(u"", ecran.systeme.regional), 0);
}

TEST_F(TramesDuFormulaire, ThresholdsAreHeldWithinTheScale) {
    PoserSeuils("-5", "16.4");  // the box lets whole numbers up to the limit pass
    EXPECT_EQ(Seuils(), (Octets{0, 0, 4, 0}));
}

TEST_F(TramesDuFormulaire, ThresholdPointsAreRoundedHalfToEven) {
    PoserSeuils("0.0078125", "0.0234375");  // 0.5 and 1.5 points
    EXPECT_EQ(Seuils(), (Octets{0, 0, 0, 2}));
    PoserSeuils("0.0390625", "0.0390624");  // 2.5 points, and 2.499 to three decimals
    EXPECT_EQ(Seuils(), (Octets{0, 2, 0, 2}));
}

TEST_F(TramesDuFormulaire, AnAbsoluteThresholdLiesOneAtmosphereHigher) {
    PoserSeuils("0", "1");
    ui.PressionAbsolue->setChecked(true);
    EXPECT_EQ(Seuils(), (Octets{0, 66, 0, 130}));  // 65.536 and 129.536
}

TEST_F(TramesDuFormulaire, ThresholdsAreTakenInTheUnitOfTheForm) {
    banc.ChoisirUnite(QStringLiteral("mbar"));
    PoserSeuils("4000", "8000");
    EXPECT_EQ(Seuils(), (Octets{1, 0, 2, 0}));
    EXPECT_EQ(TrameMode(ModeSaisi(ecran))[6], 2);
}

TEST_F(TramesDuFormulaire, ThresholdsAreTakenWithTheSeparatorOfTheUser) {
    banc.ReglerSeparateur(QStringLiteral(","));
    PoserSeuils("0,5", "12,5");
    EXPECT_EQ(Seuils(), (Octets{0, 32, 3, 32}));
}

TEST_F(TramesDuFormulaire, TheCalibrationDoesNotMoveThresholds) {
    ecran.etat.etalonnage = {100, 50, 900, 800, 0, 1.1, 30};
    PoserSeuils("4", "8");
    EXPECT_EQ(Seuils(), (Octets{1, 0, 2, 0}));
}

TEST_F(TramesDuFormulaire, ThresholdsKeepTheirTextsInTheBoxes) {
    PoserSeuils("4.123", "8.456");
    TrameMode(ModeSaisi(ecran));
    EXPECT_EQ(Clair(ui.Seuil1->text()), "4.123");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "8.456");
}

TEST_F(TramesDuFormulaire, ScaleAndUnitShareOneByteAndTheFastChargeHasTheLast) {
    ui.ListeEchelles->Choisir(7);
    ui.ListeUnites->Choisir(6);
    EXPECT_EQ(TrameMode(ModeSaisi(ecran))[6], 0x76);
    EXPECT_EQ(TrameMode(ModeSaisi(ecran))[7], 0);
    ui.mnuChargeRapide->setChecked(true);
    EXPECT_EQ(TrameMode(ModeSaisi(ecran))[7], 1);
}

TEST_F(TramesDuFormulaire, TheStartIsTheDateOfOnePickerAtTheTimeOfTheOther) {
    PoserDebut(QDate(2026, 4, 1), QTime(8, 15, 30));
    ui.ListePeriodeEchantillonage->Choisir(18);
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran)), (Octets{1, 105, 204, 212, 34, 112, 128, 0}));
}

TEST_F(TramesDuFormulaire, ALeapYearCountsOneDayMoreAfterFebruary) {
    PoserDebut(QDate(2028, 2, 29), QTime(0, 0));
    const Octets fevrier = TrameDemarrage(DemarrageSaisi(ecran));
    PoserDebut(QDate(2028, 3, 1), QTime(0, 0));
    const Octets mars = TrameDemarrage(DemarrageSaisi(ecran));
    EXPECT_EQ(fevrier, (Octets{1, 109, 103, 58, 0, 28, 32, 0}));
    EXPECT_EQ(mars, (Octets{1, 109, 104, 139, 128, 28, 32, 0}));
}

TEST_F(TramesDuFormulaire, TheFirstAndTheLastSecondOfTheCount) {
    PoserDebut(QDate(1970, 1, 1), QTime(0, 0));
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran))[4], 0);
    PoserDebut(QDate(1969, 12, 31), QTime(23, 59, 59));
    EXPECT_EQ(NumeroDeFaute([&] { TrameDemarrage(DemarrageSaisi(ecran)); }),
              numero_faute::depassement);
    PoserDebut(QDate(2038, 1, 19), QTime(3, 14, 7));
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran)), (Octets{1, 127, 255, 255, 255, 28, 32, 0}));
}

TEST_F(TramesDuFormulaire, TheFreePeriodGoesAsTheNumberOfItsEntry) {
    ui.ListePeriodeEchantillonage->FixerDonnee(0, 77);
    ui.ListePeriodeEchantillonage->Choisir(0);
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran))[5], 0);
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran))[6], 77);
    EXPECT_EQ(TrameHorloge(HorlogeSaisie(ecran))[6],
              1);  // the only entry on offer after the trigger
}

TEST_F(TramesDuFormulaire, APeriodBeyondTwoBytesIsAFault) {
    ui.ListePeriodeEchantillonage->FixerDonnee(15, 65535);
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran))[5], 255);
    EXPECT_EQ(TrameDemarrage(DemarrageSaisi(ecran))[6], 255);
    ui.ListePeriodeEchantillonage->FixerDonnee(15, 65536);
    EXPECT_EQ(NumeroDeFaute([&] { TrameDemarrage(DemarrageSaisi(ecran)); }),
              numero_faute::depassement);
    ui.PeriodeTrigger->FixerDonnee(14, 65536);
    EXPECT_EQ(NumeroDeFaute([&] { TrameHorloge(HorlogeSaisie(ecran)); }),
              numero_faute::depassement);
}

TEST_F(TramesDuFormulaire, AListWithoutAChoiceIsAFaultAndNotAZero) {
    ui.PeriodeTrigger->Choisir(-1);
    EXPECT_EQ(NumeroDeFaute([&] { TrameHorloge(HorlogeSaisie(ecran)); }),
              numero_faute::entreeAbsente);
    ui.ListeUnites->Choisir(-1);
    EXPECT_EQ(NumeroDeFaute([&] { TrameMode(ModeSaisi(ecran)); }), numero_faute::entreeAbsente);
}

TEST_F(TramesDuFormulaire, TheClockIsTheComputersWithThePeriodAfterTheTrigger) {
    banc.etabli.horloge.instant = QDateTime(QDate(2026, 12, 31), QTime(23, 59, 59), Qt::UTC);
    ui.PeriodeTrigger->Choisir(3);
    EXPECT_EQ(TrameHorloge(HorlogeSaisie(ecran)), (Octets{7, 107, 54, 236, 127, 0, 8, 32}));
}

TEST_F(TramesDuFormulaire, ALongCommentLosesWhatStandsBeyondFourteenCharacters) {
    ui.Commentaire->setMaxLength(20);
    ui.Commentaire->setText(QStringLiteral("ABCDEFGHIJKLMNOPQRST"));
    EXPECT_EQ(TrameEcritCommentaire(1, CommentaireSaisi(ecran)),
              (Octets{11, 'A', 'B', 'C', 'D', 'E', 'F', 'G'}));
    EXPECT_EQ(TrameEcritCommentaire(2, CommentaireSaisi(ecran)),
              (Octets{12, 'H', 'I', 'J', 'K', 'L', 'M', 'N'}));
}

TEST_F(TramesDuFormulaire, AShortCommentIsFilledWithBlanks) {
    ui.Commentaire->setText(QStringLiteral("abc"));
    EXPECT_EQ(TrameEcritCommentaire(1, CommentaireSaisi(ecran)),
              (Octets{11, 'a', 'b', 'c', 32, 32, 32, 32}));
    EXPECT_EQ(TrameEcritCommentaire(2, CommentaireSaisi(ecran)),
              (Octets{12, 32, 32, 32, 32, 32, 32, 32}));
    ui.Commentaire->setText({});
    EXPECT_EQ(TrameEcritCommentaire(1, CommentaireSaisi(ecran)),
              (Octets{11, 32, 32, 32, 32, 32, 32, 32}));
}

TEST_F(TramesDuFormulaire, ACharacterOfACommentIsOneByte) {
    ui.Commentaire->setText(QStringLiteral("é€ž°→\U0001F600Z"));
    EXPECT_EQ(TrameEcritCommentaire(1, CommentaireSaisi(ecran)),
              (Octets{11, 0xE9, 0x80, 0x9E, 0xB0, '?', '?', 'Z'}));
}

}  // namespace
}  // namespace bornika::essai
