#include "retrieval/flash_service.h"

#include <gtest/gtest.h>

#include "platform/fault.h"
#include "retrieval/retrieval_fixture.h"
#include "support/fault_number.h"

namespace bornika::essai {
using simulateur::GenrePanne;

namespace {

using Trames = std::vector<std::vector<std::uint8_t>>;

struct FlashParLesControles : testing::Test {
    BancLecture banc;
    Ui::MainScreen& ui = banc.ui;
    EnregistreurSimule& enregistreur = banc.enregistreur;

    void SetUp() override {
        ui.ListeEchelles->Choisir(ui.ListeEchelles->findText(QStringLiteral("0 - 16 bar")));
        ASSERT_EQ(banc.ecran.etat.Maxi, 16);
    }
    void Adresser(const char* page, const char* offset) {
        ui.page->setText(QString::fromLatin1(page));
        ui.offset->setText(QString::fromLatin1(offset));
    }
    void Mettre(int page, int offset, const std::vector<std::uint8_t>& octets) {
        enregistreur.flash.Ecrire(page, offset, octets);
    }
    void Panne(int code, GenrePanne genre, int parametre = 0) {
        enregistreur.pannes.Ordonner({.code = code, .genre = genre, .parametre = parametre});
    }
    std::string Resultat() const { return Clair(ui.resultat->text()); }
    std::string Mesure() const { return Clair(ui.ResultatMesure->text()); }
    int Lectures() const {
        int lectures = 0;
        for (const auto& appel : banc.bus.Appels())
            if (appel.genre == simulateur::GenreAppel::lire) ++lectures;
        return lectures;
    }
    void AttendreAbsent() {
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
        EXPECT_EQ(banc.etabli.dialogues.Boites()[0].texte,
                  banc.ecran.Texte(QStringLiteral("k-Pod Absent")));
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    }
};

struct LectureFlash : FlashParLesControles {
    void Lire(const char* page = "3", const char* offset = "8") {
        Adresser(page, offset);
        LireLaFlash(banc.poste);
    }
    int FauteDe(const char* page, const char* offset) {
        return NumeroDeFaute([&] { Lire(page, offset); });
    }
};

struct EcritureFlash : FlashParLesControles {
    int Ecrire(const char* octets, const char* page = "3", const char* offset = "8") {
        Adresser(page, offset);
        ui.resultat->setText(QString::fromLatin1(octets));
        return NumeroDeFaute([&] { EcrireLaFlash(banc.poste); });
    }
};

// A measure of 640 points at t0, with the flags of its parity set: 10 bar on the stand's scale.
const std::vector<std::uint8_t> mesure{0, 0, 0x65, 0x53, 0xF1, 0x00, 0xFE, 0x80};

}  // namespace

TEST(TexteOctets, PutsOneBlankInFrontOfEachNumber) {
    EXPECT_EQ(Clair(TexteOctets(Octets{0, 7, 255})), " 0 7 255");
    EXPECT_EQ(Clair(TexteOctets({})), "");
}

TEST(ValeursDuTexte, TakesTheEightElementsBehindTheFirst) {
    const Regional regional;
    const Octets attendues{1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(ValeursDuTexte(QStringLiteral(" 1 2 3 4 5 6 7 8"), regional), attendues);
    EXPECT_EQ(ValeursDuTexte(QStringLiteral("99 1 2 3 4 5 6 7 8"), regional), attendues);
    EXPECT_EQ(ValeursDuTexte(QStringLiteral(" 1 2 3 4 5 6 7 8 9 x"), regional), attendues);
}

TEST(ValeursDuTexte, RoundsHalfToEvenAndFollowsTheLocalesSeparator) {
    Regional regional;
    regional.separateur = QStringLiteral(",");
    EXPECT_EQ(ValeursDuTexte(QStringLiteral(" 2,5 3,5 -1 300 5 6 7 8"), regional),
              (Octets{2, 4, -1, 300, 5, 6, 7, 8}));
}

TEST(ValeursDuTexte, FaultsAtTheFirstElementThatIsMissingOrNoNumber) {
    const Regional regional;
    const auto faute = [&](const char* texte) {
        return NumeroDeFaute([&] { ValeursDuTexte(QString::fromLatin1(texte), regional); });
    };
    for (const char* texte : {"", " ", " 1 2 3 4 5 6 7", "1 2 3 4 5 6 7 8"})
        EXPECT_EQ(faute(texte), *texte == ' ' && texte[1] == 0 ? numero_faute::typeIncompatible
                                                               : numero_faute::indice)
            << texte;
    for (const char* texte : {" 1 x", "  1 2 3 4 5 6 7 8", " 1  2 3 4 5 6 7 8", " 1 2,5 3"})
        EXPECT_EQ(faute(texte), numero_faute::typeIncompatible) << texte;
    for (const char* texte : {" 40000", " 1 2 3 4 5 6 7 32768", " -32769"})
        EXPECT_EQ(faute(texte), numero_faute::depassement) << texte;
}

TEST_F(LectureFlash, ShowsTheBytesAndTheMeasureThatTheyAre) {
    Mettre(3, 8, mesure);
    Lire();
    EXPECT_EQ(Resultat(), " 0 0 101 83 241 0 254 128");
    EXPECT_EQ(Mesure(), "14/11/2023 22:13:20-640-10  bar-0");
    EXPECT_EQ(enregistreur.journal.DeCode(20), (Trames{{20, 0, 3, 0, 8, 32, 32, 32}}));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(LectureFlash, ShowsTheFractionOfAPulseAsItStands) {
    std::vector<std::uint8_t> impulsion = mesure;
    impulsion[0] = 3;
    impulsion[1] = 7;
    Mettre(3, 8, impulsion);
    Lire();
    EXPECT_EQ(Resultat(), " 3 7 101 83 241 0 254 128");
    EXPECT_EQ(Mesure(), "14/11/2023 22:13:20-640-10  bar-775");
}

TEST_F(LectureFlash, NumbersFollowTheLocaleAndTheChosenUnit) {
    banc.etabli.systeme.regional.separateur = QStringLiteral(",");
    std::vector<std::uint8_t> octets = mesure;
    octets[7] = 0x81;
    Mettre(3, 8, octets);
    Lire();
    EXPECT_EQ(Mesure(), "14/11/2023 22:13:20-641-10,016  bar-0");
    ui.ListeUnites->Choisir(ui.ListeUnites->findText(QStringLiteral("psi")));
    Lire();
    EXPECT_EQ(Mesure().substr(0, 24), "14/11/2023 22:13:20-641-");
    EXPECT_EQ(Mesure().substr(Mesure().find("  ")), "  psi-0");
}

TEST_F(LectureFlash, TheDateFollowsTheLocale) {
    banc.etabli.systeme.regional.dateCourte = QStringLiteral("M/d/yyyy");
    Mettre(3, 8, mesure);
    Lire();
    EXPECT_EQ(Mesure(), "11/14/2023 22:13:20-640-10  bar-0");
}

TEST_F(LectureFlash, ThePressureIsCorrectedButNeverAbsolute) {
    Mettre(3, 8, mesure);
    ui.PressionAbsolue->setChecked(true);
    banc.ecran.etat.etalonnage.valeur_etalonnage_bas = 64;
    Lire();
    EXPECT_EQ(Mesure(), "14/11/2023 22:13:20-640-11  bar-0");
}

TEST_F(LectureFlash, AnErasedCellKeepsTheLowerBytesOfItsTimeOnly) {
    Lire("4000", "0");
    EXPECT_EQ(Resultat(), " 255 255 255 255 255 255 255 255");
    // 255 x 65536 + 255 x 256 + 255 seconds; the top byte would overflow.
    EXPECT_EQ(Mesure(), "14/07/1970 04:20:15-1023-15.984  bar-65535");
}

TEST_F(LectureFlash, AnyOffsetIsLeftToTheLogger) {
    Lire("1", "526");
    Lire("1", "3");
    EXPECT_EQ(enregistreur.journal.DeCode(20),
              (Trames{{20, 0, 1, 2, 14, 32, 32, 32}, {20, 0, 1, 0, 3, 32, 32, 32}}));
}

TEST_F(LectureFlash, AddressesAreSixteenBitsRoundedHalfToEven) {
    Lire("32767", " 2.5 ");
    Lire("-0.5", "3.5");
    EXPECT_EQ(enregistreur.journal.DeCode(20),
              (Trames{{20, 127, 255, 0, 2, 32, 32, 32}, {20, 0, 0, 0, 4, 32, 32, 32}}));
}

TEST_F(LectureFlash, AnAddressThatIsNoNumberOrTooLargeIsAFaultAndNothingChanges) {
    ui.resultat->setText(QStringLiteral("x"));
    ui.ResultatMesure->setText(QStringLiteral("y"));
    for (const char* texte : {"abc", "", " ", "1,5"}) {
        EXPECT_EQ(FauteDe(texte, "0"), numero_faute::typeIncompatible) << texte;
        EXPECT_EQ(FauteDe("0", texte), numero_faute::typeIncompatible) << texte;
    }
    for (const char* texte : {"40000", "32767.5", "-40000", "1E9", "-1"}) {
        EXPECT_EQ(FauteDe(texte, "0"), numero_faute::depassement) << texte;
        EXPECT_EQ(FauteDe("0", texte), numero_faute::depassement) << texte;
    }
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_EQ(Resultat() + Mesure(), "xy");
}

TEST_F(LectureFlash, WithoutAUnitTheRestIsShownAllTheSame) {
    Mettre(3, 8, mesure);
    ui.ListeUnites->Choisir(-1);
    Lire();
    EXPECT_EQ(Resultat(), " 0 0 101 83 241 0 254 128");
    EXPECT_EQ(Mesure(), "14/11/2023 22:13:20-640-0  -0");
}

TEST_F(LectureFlash, ASilentLoggerEmptiesTheBytesAndLeavesAMeasureOfZeros) {
    Mettre(3, 8, mesure);
    Lire();
    Panne(20, GenrePanne::silence);
    Lire();
    EXPECT_EQ(Resultat(), "");
    EXPECT_EQ(Mesure(), "01/01/1970 00:00:00-0-0  bar-0");
    AttendreAbsent();
}

TEST_F(LectureFlash, ALoggerThatGoesOrIsGoneIsToldTheSameWay) {
    Panne(20, GenrePanne::debranchement);
    Lire();
    EXPECT_EQ(Resultat(), "");
    AttendreAbsent();

    banc.ecran.etat.TimeOut = false;
    banc.etabli.dialogues.OublierBoites();
    Lire();
    EXPECT_EQ(Resultat(), "");
    EXPECT_EQ(Mesure(), "01/01/1970 00:00:00-0-0  bar-0");
    AttendreAbsent();
    EXPECT_EQ(enregistreur.journal.Total(), 1);
}

TEST_F(LectureFlash, WithoutAChosenLoggerSaysSo) {
    banc.ecran.etat.UsbID = 0;
    Lire();
    EXPECT_EQ(Resultat(), "");
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    AttendreAbsent();
}

TEST_F(LectureFlash, AShortAnswerIsFilledWithZeros) {
    Mettre(3, 8, mesure);
    Panne(20, GenrePanne::reponseCourte, 3);
    Lire();
    EXPECT_EQ(Resultat(), " 0 0 101 0 0 0 0 0");
    EXPECT_EQ(Mesure(), "12/09/2023 06:06:56-0-0  bar-0");
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
}

TEST_F(LectureFlash, ThereIsNoEchoToTest) {
    Mettre(3, 8, mesure);
    Panne(20, GenrePanne::mauvaisEcho);
    Lire();
    EXPECT_NE(Resultat(), "");
    EXPECT_EQ(Resultat().substr(Resultat().find(" 101")), " 101 83 241 0 254 128");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(LectureFlash, UnderAStandingTimeOutNoAnswerIsReadAndNothingIsSaid) {
    Mettre(3, 8, mesure);
    banc.ecran.etat.TimeOut = true;
    Lire();
    EXPECT_EQ(Lectures(), 0);
    EXPECT_EQ(Resultat(), "");
    EXPECT_EQ(Mesure(), "01/01/1970 00:00:00-0-0  bar-0");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST_F(EcritureFlash, SendsSevenValuesAndEndsOnItsFaultBeforeTheMemoryIsWritten) {
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(enregistreur.journal.DeCode(18), (Trames{{18, 12, 13, 14, 15, 16, 17, 0}}));
    EXPECT_EQ(enregistreur.journal.Nombre(19), 0);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(EcritureFlash, TheFirstValueTakesThePlaceOfTheCode) {
    // Command 31 answers one byte too.
    EXPECT_EQ(Ecrire(" 31 2 0 0 0 0 0 8"), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.DeCode(31), (Trames{{31, 2, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
}

TEST_F(EcritureFlash, WhatStandsInFrontOfTheFirstBlankIsNotSent) {
    EXPECT_EQ(Ecrire("77 18 12 13 14 15 16 17 99"), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.DeCode(18), (Trames{{18, 12, 13, 14, 15, 16, 17, 0}}));
}

TEST_F(EcritureFlash, WhatAReadHasLeftCanBeSentAsItStands) {
    std::vector<std::uint8_t> octets = mesure;
    octets[0] = 18;
    Mettre(3, 8, octets);
    Adresser("3", "8");
    LireLaFlash(banc.poste);
    EXPECT_EQ(NumeroDeFaute([&] { EcrireLaFlash(banc.poste); }), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.DeCode(18), (Trames{{18, 0, 0x65, 0x53, 0xF1, 0, 0xFE, 0}}));
}

TEST_F(EcritureFlash, FewerThanEightValuesAreASubscriptFaultBeforeTheLinkIsOpened) {
    for (const char* octets : {"", " 1", " 1 2 3 4 5 6 7", "1 2 3 4 5 6 7 8"})
        EXPECT_EQ(Ecrire(octets), numero_faute::indice) << octets;
    EXPECT_TRUE(enregistreur.lien.empty());
}

TEST_F(EcritureFlash, AValueThatIsNoNumberIsATypeFault) {
    EXPECT_EQ(Ecrire(" 18 12 x 14 15 16 17 99"), numero_faute::typeIncompatible);
    EXPECT_EQ(Ecrire(" 18  12 13 14 15 16 17"), numero_faute::typeIncompatible);
    EXPECT_TRUE(enregistreur.lien.empty());
}

TEST_F(EcritureFlash, AValueThatIsNoByteIsAnOverflowAndNothingIsSent) {
    EXPECT_EQ(Ecrire(" 18 256 13 14 15 16 17 99"), numero_faute::depassement);
    EXPECT_EQ(Ecrire(" 18 -1 13 14 15 16 17 99"), numero_faute::depassement);
    EXPECT_EQ(Ecrire(" 18 40000 13 14 15 16 17 99"), numero_faute::depassement);
    EXPECT_EQ(enregistreur.journal.Total(), 0);
}

TEST_F(EcritureFlash, TheEighthValueIsNeverSentSoItMayBeAnyNumber) {
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 999"), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.Nombre(18), 1);
}

TEST_F(EcritureFlash, AnAddressThatIsNoNumberOrTooLargeIsAFault) {
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99", "abc"), numero_faute::typeIncompatible);
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99", "3", "40000"), numero_faute::depassement);
    EXPECT_TRUE(enregistreur.lien.empty());
}

TEST_F(EcritureFlash, ASilentLoggerIsToldAndThereIsNoFault) {
    Panne(18, GenrePanne::silence);
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), 0);
    AttendreAbsent();
    EXPECT_EQ(Clair(ui.resultat->text()), " 18 12 13 14 15 16 17 99");
}

TEST_F(EcritureFlash, AFirstValueThatIsNoCommandMeetsASilentLogger) {
    EXPECT_EQ(Ecrire(" 0 0 101 83 241 0 254 128"), 0);
    AttendreAbsent();
}

TEST_F(EcritureFlash, ALoggerThatGoesOrIsGoneIsToldTheSameWay) {
    Panne(18, GenrePanne::debranchement);
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), 0);
    AttendreAbsent();

    banc.ecran.etat.TimeOut = false;
    banc.etabli.dialogues.OublierBoites();
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), 0);
    AttendreAbsent();
    EXPECT_EQ(enregistreur.journal.Total(), 1);
}

TEST_F(EcritureFlash, AWrongEchoIsAnAnswerToo) {
    Panne(18, GenrePanne::mauvaisEcho);
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), numero_faute::indice);
    EXPECT_EQ(enregistreur.journal.Nombre(19), 0);
}

TEST_F(EcritureFlash, UnderAStandingTimeOutItEndsWithoutAWordAndWithoutAFault) {
    banc.ecran.etat.TimeOut = true;
    EXPECT_EQ(Ecrire(" 18 12 13 14 15 16 17 99"), 0);
    EXPECT_EQ(enregistreur.journal.Nombre(18), 1);
    EXPECT_EQ(Lectures(), 0);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

}  // namespace bornika::essai
