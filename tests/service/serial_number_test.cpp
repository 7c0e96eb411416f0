#include "service/serial_number.h"

#include "link/device_identity.h"
#include "service/service_fixture.h"
#include "shell/language_switch.h"

namespace bornika::essai {
namespace {

class NumeroSerie : public SurPaillasse {
  protected:
    void Programmer(const char* texte) {
        ui.ValeurNumeroSerie->setText(QString::fromLatin1(texte));
        ProgNumeroSerie_Click(poste);
    }
    Trames Ecrites() const { return enregistreur.journal.DeCode(5); }
    /// One plain box with this text; nothing went to the logger, the link included.
    void AttendreRefus(const char* texte) {
        ASSERT_EQ(Boites().size(), 1U);
        EXPECT_EQ(Boites()[0].icone, Icone::Aucune);
        EXPECT_EQ(Boites()[0].boutons, Boutons::Ok);
        EXPECT_EQ(Boites()[0].titre, QStringLiteral("k-Pod 7"));
        EXPECT_EQ(Boites()[0].texte, QString::fromUtf8(texte));
        EXPECT_TRUE(enregistreur.lien.empty());
        EXPECT_EQ(enregistreur.journal.Total(), 0);
        etabli.dialogues.OublierBoites();
    }
};

using ProgNumeroSerie = NumeroSerie;

class RAZNumeroSerie : public NumeroSerie {
  protected:
    /// Clears the number, with an OK to the warning.
    void Remettre() {
        etabli.dialogues.AnnoncerQuestion(Reponse::Ok, QStringLiteral("sera inhibé"));
        RAZNumeroSerie_Click(poste);
    }
};

const char invalide[] = "Le n° de série n'est pas valide";
const char tropGrand[] = "Le n° de série est trop grand (> 32 bits)";

TEST_F(ProgNumeroSerie, SendsTheNumberHighByteFirst) {
    Programmer("16909060");
    EXPECT_EQ(Ecrites(), (Trames{{5, 1, 2, 3, 4, 32, 32, 32}}));
    EXPECT_EQ(LitNumeroSerieKpod(poste), QStringLiteral("16909060"));
}

TEST_F(ProgNumeroSerie, OpensTheLinkReadsEightBytesAndCloses) {
    Programmer("123456");
    EXPECT_EQ(Lectures(), std::vector<int>{8});
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    AttendreConversation();
}

TEST_F(ProgNumeroSerie, TakesNumbersUpToTheLargestOfThirtyTwoBits) {
    Programmer("0");
    Programmer("2147483647");
    EXPECT_EQ(Ecrites(),
              (Trames{{5, 0, 0, 0, 0, 32, 32, 32}, {5, 127, 255, 255, 255, 32, 32, 32}}));
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(LitNumeroSerieKpod(poste), QStringLiteral("2147483647"));
}

TEST_F(ProgNumeroSerie, RefusesALargerOne) {
    for (const char* texte : {"2147483648", "4294967296", "1e10"}) {
        Programmer(texte);
        AttendreRefus(tropGrand);
    }
}

TEST_F(ProgNumeroSerie, ComparesBeforeItRounds) {
    Programmer("2147483647.4");
    AttendreRefus(tropGrand);
    Programmer("2147483646.6");
    EXPECT_EQ(Ecrites(), (Trames{{5, 127, 255, 255, 255, 32, 32, 32}}));
}

TEST_F(ProgNumeroSerie, RoundsDecimalsHalfToEven) {
    for (const char* texte : {"12.5", "13.5", "12.51", " 12 ", "-0.5"})
        Programmer(texte);
    EXPECT_EQ(Ecrites(), (Trames{{5, 0, 0, 0, 12, 32, 32, 32},
                                 {5, 0, 0, 0, 14, 32, 32, 32},
                                 {5, 0, 0, 0, 13, 32, 32, 32},
                                 {5, 0, 0, 0, 12, 32, 32, 32},
                                 {5, 0, 0, 0, 0, 32, 32, 32}}));
}

TEST_F(ProgNumeroSerie, ReadsDecimalsAsTheUserWritesThem) {
    Programmer("12,5");
    AttendreRefus(invalide);
    etabli.systeme.regional.separateur = QStringLiteral(",");
    Programmer("12,5");
    EXPECT_EQ(Ecrites(), (Trames{{5, 0, 0, 0, 12, 32, 32, 32}}));
}

TEST_F(ProgNumeroSerie, RefusesWhatIsNoNumber) {
    for (const char* texte : {"", " ", "abc", "12a", "1 000", "-"}) {
        Programmer(texte);
        AttendreRefus(invalide);
    }
}

TEST_F(ProgNumeroSerie, SaysTheSameInEveryLanguageAndAsksNoCatalogue) {
    ChangeTextes(ecran, QStringLiteral("English"), true);
    const QByteArray avant = etabli.Lire(QStringLiteral("config.xml"));
    Programmer("abc");
    AttendreRefus(invalide);
    Programmer("2147483648");
    AttendreRefus(tropGrand);
    etabli.dialogues.AnnoncerQuestion(Reponse::Ok);
    RAZNumeroSerie_Click(poste);
    EXPECT_EQ(Boites().at(0).texte, QStringLiteral("Attention, le datalogger sera inhibé !"));
    EXPECT_EQ(etabli.Lire(QStringLiteral("config.xml")), avant);
}

TEST_F(ProgNumeroSerie, ANegativeNumberPassesTheChecksAndFaults) {
    for (const char* texte : {"-1", "-12345678", "-2147483648"})
        EXPECT_EQ(NumeroDeFaute([&] { Programmer(texte); }), numero_faute::depassement) << texte;
    EXPECT_EQ(NumeroDeFaute([&] { Programmer("-2147483649"); }), numero_faute::depassement);
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_TRUE(Boites().empty());
}

TEST_F(ProgNumeroSerie, WhatTheAnswerHoldsDoesNotCount) {
    Panne(5, GenrePanne::mauvaisEcho);
    Programmer("1");
    Panne(5, GenrePanne::reponseCourte, 1);
    Programmer("2");
    Panne(5, GenrePanne::bruit);
    Programmer("3");
    EXPECT_EQ(Ecrites().size(), 3U);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_TRUE(Boites().empty());
}

TEST_F(ProgNumeroSerie, ALoggerThatDoesNotAnswerIsTold) {
    ChaqueAbsence(
        5, [&] { Programmer("123"); },
        [&] { EXPECT_EQ(ui.ValeurNumeroSerie->text(), QStringLiteral("123")); });
}

TEST_F(ProgNumeroSerie, UnderAStandingTimeOutItIsSentAndNothingIsSaid) {
    ecran.etat.TimeOut = true;
    Programmer("7");
    EXPECT_EQ(Ecrites(), (Trames{{5, 0, 0, 0, 7, 32, 32, 32}}));
    EXPECT_TRUE(Lectures().empty());
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(RAZNumeroSerie, AsksAndThenClearsTheNumber) {
    enregistreur.ReglerNumeroSerie(123);
    etabli.dialogues.pendantBoite = [&](const auto&) {
        EXPECT_TRUE(enregistreur.lien.empty());
        EXPECT_EQ(enregistreur.journal.Total(), 0);
    };
    Remettre();
    ASSERT_EQ(Boites().size(), 1U);
    EXPECT_EQ(Boites()[0].icone, Icone::Critique);
    EXPECT_EQ(Boites()[0].boutons, Boutons::OkAnnuler);
    EXPECT_EQ(Boites()[0].titre, QStringLiteral("k-Pod 7"));
    EXPECT_EQ(Boites()[0].texte, QStringLiteral("Attention, le datalogger sera inhibé !"));
    EXPECT_EQ(enregistreur.journal.DeCode(15), (Trames{{15, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_TRUE(enregistreur.inhibe);
    EXPECT_EQ(Lectures(), std::vector<int>{1});
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(LitNumeroSerieKpod(poste), QStringLiteral("0"));
}

TEST_F(RAZNumeroSerie, CancelSendsNothing) {
    etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    RAZNumeroSerie_Click(poste);
    EXPECT_EQ(Boites().size(), 1U);
    EXPECT_TRUE(enregistreur.lien.empty());
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_FALSE(enregistreur.inhibe);
}

TEST_F(RAZNumeroSerie, WhatTheAnswerHoldsDoesNotCount) {
    Panne(15, GenrePanne::mauvaisEcho);
    Remettre();
    Panne(15, GenrePanne::bruit);
    Remettre();
    EXPECT_EQ(enregistreur.journal.Nombre(15), 2);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_EQ(Boites().size(), 2U);
}

TEST_F(RAZNumeroSerie, ALoggerThatDoesNotAnswerIsTold) {
    ChaqueAbsence(
        15, [&] { Remettre(); }, [] {}, 1);
}

class LireLesResets : public SurPaillasse {
  protected:
    static constexpr std::uint32_t date = 0x69A98F8D;  // 5 March 2026, 14:13:33

    void SetUp() override {
        SurPaillasse::SetUp();
        enregistreur.ReglerResets(date, 259);
        ecran.etat.VersionLogiciel = 2.11;
    }
    /// Chooses the logger's firmware and has the program read it, as at every choice of a logger.
    void Version(std::uint8_t haut, std::uint8_t bas) {
        enregistreur.identite.versionHaute = haut;
        enregistreur.identite.versionBasse = bas;
        bool ok = false;
        LitVersionKpod(poste, ok);
        ASSERT_TRUE(ok);
        enregistreur.journal.Vider();
    }
    void AttendreLus(const char* nombre, const char* dernier) {
        EXPECT_EQ(ui.NbReset->text(), QString::fromLatin1(nombre));
        EXPECT_EQ(ui.DateDernierReset->text(), QString::fromLatin1(dernier));
    }
};

TEST_F(LireLesResets, ShowsTheNumberAndTheDateOfTheLast) {
    Command2_Click(poste);
    EXPECT_EQ(enregistreur.journal.DeCode(29), (Trames{{29, 0, 7, 32, 32, 32, 32, 32}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(Lectures(), std::vector<int>{8});
    AttendreLus("259", "05/03/2026 14:13:33");
    AttendreConversation();
}

TEST_F(LireLesResets, ReadsTheFlashBelowVersion2096) {
    Version(20, 95);
    Command2_Click(poste);
    EXPECT_EQ(enregistreur.journal.DeCode(20), (Trames{{20, 0, 0, 0, 0, 32, 32, 32}}));
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    AttendreLus("259", "05/03/2026 14:13:33");
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(LireLesResets, ReadsTheInternalMemoryFromVersion2096On) {
    for (const auto& [haut, bas] : {std::pair{20, 96}, {20, 97}, {2, 110}, {12, 100}}) {
        Version(static_cast<std::uint8_t>(haut), static_cast<std::uint8_t>(bas));
        Command2_Click(poste);
        EXPECT_EQ(enregistreur.journal.Nombre(29), 1) << haut << '.' << bas;
        EXPECT_EQ(enregistreur.journal.Total(), 1);
    }
}

TEST_F(LireLesResets, ReadsTheFlashWhenNoVersionWasEverRead) {
    ecran.etat.VersionLogiciel = 0;
    Command2_Click(poste);
    EXPECT_EQ(enregistreur.journal.Nombre(20), 1);
}

TEST_F(LireLesResets, AShortAnswerCountsWithZerosBehind) {
    Panne(29, GenrePanne::reponseCourte, 2);
    Command2_Click(poste);
    AttendreLus("0", "01/01/1970 10:12:29");
    EXPECT_TRUE(Boites().empty());
}

TEST_F(LireLesResets, WithoutAnAnswerTheOperatorIsToldAndTheDecodingFaults) {
    ChaqueAbsence(
        29, [&] { EXPECT_EQ(NumeroDeFaute([&] { Command2_Click(poste); }), numero_faute::indice); },
        [&] { AttendreLus("--", "--"); });
}

TEST_F(LireLesResets, WithoutAnAnswerFromTheFlashTheyFaultAsWell) {
    ecran.etat.VersionLogiciel = 2.095;
    ChaqueAbsence(
        20, [&] { EXPECT_EQ(NumeroDeFaute([&] { Command2_Click(poste); }), numero_faute::indice); },
        [&] { AttendreLus("--", "--"); });
}

TEST_F(LireLesResets, UnderAStandingTimeOutTheyFaultWithoutAWord) {
    ecran.etat.TimeOut = true;
    EXPECT_EQ(NumeroDeFaute([&] { Command2_Click(poste); }), numero_faute::indice);
    EXPECT_TRUE(Boites().empty());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST(Resets, HaveTheirLowBytesFirst) {
    const Resets resets = ResetsDepuisOctets({1, 2, 3, 4, 5, 6, 99, 99});
    EXPECT_EQ(resets.date, 67305985);
    EXPECT_EQ(resets.nombre, 1541);
}

TEST(Resets, MayFillAllTheirBytes) {
    const Resets resets = ResetsDepuisOctets({255, 255, 255, 255, 255, 255});
    EXPECT_EQ(resets.date, 4294967295.0);
    EXPECT_EQ(resets.nombre, 65535);
}

TEST(Resets, NeedSixBytes) {
    EXPECT_EQ(NumeroDeFaute([] { ResetsDepuisOctets({1, 2, 3, 4, 5}); }), numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([] { ResetsDepuisOctets({}); }), numero_faute::indice);
}

}  // namespace
}  // namespace bornika::essai
