#include "link/memory_access.h"

#include <gtest/gtest.h>

#include "retrieval/retrieval_fixture.h"
#include "support/case_names.h"
#include "support/fault_number.h"

namespace bornika::essai {

namespace {

using Trame = std::vector<std::uint8_t>;

struct BancMemoire : BancLecture {
    /// The frame that the logger has seen last.
    Trame Derniere() const { return enregistreur.journal.Trames().back().Liste(); }
    void Taire(int code) {
        enregistreur.pannes.Ordonner({.code = code, .genre = simulateur::GenrePanne::silence});
    }
    bool AbsentDit() const {
        return etabli.dialogues.Boites().size() == 1 &&
               etabli.dialogues.Boites()[0].texte ==
                   const_cast<MainScreen&>(ecran).Texte(QStringLiteral("k-Pod Absent")) &&
               etabli.dialogues.Boites()[0].titre.isEmpty();
    }
};

}  // namespace

TEST(MemoireFlash, ReadSendsPageAndOffsetAndGivesEightBytes) {
    BancMemoire banc;
    const std::vector<std::uint8_t> valeurs{1, 2, 3, 4, 5, 6, 7, 8};
    banc.enregistreur.flash.Ecrire(0x123, 16, valeurs);
    EXPECT_EQ(Memoire_Flash(banc.poste, true, 0x123, 16), (Octets{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(banc.Derniere(), (Trame{20, 1, 0x23, 0, 16, 32, 32, 32}));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(MemoireFlash, AnyOffsetIsLeftToTheLogger) {
    BancMemoire banc;
    Memoire_Flash(banc.poste, true, 1, 526);
    EXPECT_EQ(banc.Derniere(), (Trame{20, 0, 1, 2, 14, 32, 32, 32}));
    Memoire_Flash(banc.poste, true, 1, 3);
    EXPECT_EQ(banc.Derniere(), (Trame{20, 0, 1, 0, 3, 32, 32, 32}));
}

TEST(MemoireFlash, AFailedReadGivesNothingShowsTheTextAndCloses) {
    BancMemoire banc;
    banc.Taire(20);
    EXPECT_TRUE(Memoire_Flash(banc.poste, true, 1, 0).empty());
    EXPECT_TRUE(banc.AbsentDit());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(MemoireFlash, DoesNotClearTimeOutAndThenReachesNoAnswer) {
    BancMemoire banc;
    banc.ecran.etat.TimeOut = true;
    EXPECT_TRUE(Memoire_Flash(banc.poste, true, 1, 0).empty());
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(MemoireFlash, WriteSendsTheFirstSevenValuesAndFaultsBeforeTheSecondFrame) {
    BancMemoire banc;
    EXPECT_EQ(essai::NumeroDeFaute([&] {
                  Memoire_Flash(banc.poste, false, 5, 8, {18, 12, 13, 14, 15, 16, 17, 99});
              }),
              numero_faute::indice);
    EXPECT_EQ(banc.enregistreur.journal.Total(), 1);
    EXPECT_EQ(banc.Derniere(), (Trame{18, 12, 13, 14, 15, 16, 17, 0}));
    EXPECT_EQ(banc.enregistreur.journal.Nombre(19), 0);
}

TEST(MemoireFlash, TheFirstByteOfAWriteIsTheFirstValueNotTheCode) {
    BancMemoire banc;
    // Command 15 answers one byte too, so that the write goes on to its fault.
    EXPECT_THROW(Memoire_Flash(banc.poste, false, 5, 8, {15, 2, 3, 4, 5, 6, 7, 8}), FauteExecution);
    EXPECT_EQ(banc.Derniere(), (Trame{15, 2, 3, 4, 5, 6, 7, 0}));
}

TEST(MemoireFlash, AWriteWithoutAnswerClosesAndEndsWithoutFault) {
    BancMemoire banc;
    banc.Taire(18);
    EXPECT_TRUE(Memoire_Flash(banc.poste, false, 5, 8, {18, 2, 3, 4, 5, 6, 7, 8}).empty());
    EXPECT_TRUE(banc.AbsentDit());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(MemoireFlash, AWriteOfTooFewValuesIsASubscriptFaultBeforeAnyFrame) {
    BancMemoire banc;
    EXPECT_THROW(Memoire_Flash(banc.poste, false, 5, 8, {18, 2, 3}), FauteExecution);
    EXPECT_EQ(banc.enregistreur.journal.Total(), 0);
}

TEST(EcritEEpromInterne, WritesWaitsFiftyMillisecondsAndGivesTheStoredByte) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    EXPECT_EQ(EcritEEpromInterne(banc.poste, 0x102, 77), 77);
    EXPECT_EQ(banc.Derniere(), (Trame{30, 1, 2, 77, 32, 32, 32, 32}));
    EXPECT_EQ(banc.etabli.horloge.pauses, (std::vector<int>{50}));
    EXPECT_EQ(banc.enregistreur.memoire.Octet(0x102), 77);
    EXPECT_EQ(banc.PoigneesOuvertes(), 2);
}

TEST(EcritEEpromInterne, NeverOpensTheLink) {
    BancMemoire banc;
    EXPECT_EQ(EcritEEpromInterne(banc.poste, 1, 5), 0);
    EXPECT_TRUE(banc.enregistreur.lien.empty());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_TRUE(banc.AbsentDit());
}

TEST(EcritEEpromInterne, ASilentLoggerGivesZeroAndClosesTheLink) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    banc.Taire(30);
    EXPECT_EQ(EcritEEpromInterne(banc.poste, 300, 77), 0);
    EXPECT_TRUE(banc.AbsentDit());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(EcritEEpromInterne, GivesThePositionThreeOfWhateverCame) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    banc.enregistreur.pannes.Ordonner(
        {.code = 30, .genre = simulateur::GenrePanne::reponseCourte, .parametre = 3});
    EXPECT_EQ(EcritEEpromInterne(banc.poste, 300, 77), 0);
    banc.enregistreur.pannes.Ordonner({.code = 30, .genre = simulateur::GenrePanne::bruit});
    EXPECT_EQ(EcritEEpromInterne(banc.poste, 300, 77), 77 ^ ((0xA5 + 37 * 3) & 0xFF));
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
}

TEST(LitEEpromInterne, WithOuvrirOpensReadsAndCloses) {
    BancMemoire banc;
    banc.enregistreur.memoire.EcrireTexte(300, 8, "abcdefgh");
    EXPECT_EQ(LitEEpromInterne(banc.poste, 300, true),
              (Octets{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'}));
    EXPECT_EQ(banc.Derniere(), (Trame{29, 1, 44, 32, 32, 32, 32, 32}));
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(LitEEpromInterne, WithoutOuvrirLeavesTheLinkOpenAfterAGoodAnswer) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    EXPECT_EQ(LitEEpromInterne(banc.poste, 0, false).size(), 8U);
    EXPECT_EQ(banc.PoigneesOuvertes(), 2);
}

TEST(LitEEpromInterne, WithoutOuvrirClosesTheLinkOnAnError) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    banc.Taire(29);
    EXPECT_TRUE(LitEEpromInterne(banc.poste, 0, false).empty());
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.AbsentDit());
}

TEST(LitEEpromInterne, WithoutOuvrirOnAClosedLinkGivesNothing) {
    BancMemoire banc;
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("k-Pod not found"));
    EXPECT_TRUE(LitEEpromInterne(banc.poste, 0, false).empty());
    EXPECT_TRUE(banc.enregistreur.lien.empty());
}

TEST(ForceContexte, SendsItsFrameAndWaitsASecond) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    ForceContexte(banc.poste);
    EXPECT_EQ(banc.Derniere(), (Trame{99, 32, 32, 32, 32, 32, 32, 32}));
    EXPECT_EQ(banc.etabli.horloge.pauses, (std::vector<int>{1000}));
    EXPECT_EQ(banc.enregistreur.contextesForces, 1);
    EXPECT_EQ(banc.PoigneesOuvertes(), 2);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
}

TEST(ForceContexte, NeverOpensTheLink) {
    BancMemoire banc;
    ForceContexte(banc.poste);
    EXPECT_TRUE(banc.enregistreur.lien.empty());
    EXPECT_TRUE(banc.AbsentDit());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
}

TEST(ForceContexte, ASilentLoggerIsToldAndTheLinkIsClosed) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    banc.Taire(99);
    ForceContexte(banc.poste);
    EXPECT_TRUE(banc.AbsentDit());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.PoigneesOuvertes(), 0);
}

TEST(MemoryAnswers, AreReadInTheirLength) {
    BancMemoire banc;
    const auto longueurs = [&] {
        std::vector<int> lues;
        for (const auto& appel : banc.bus.Appels())
            if (appel.genre == simulateur::GenreAppel::lire) lues.push_back(appel.argument);
        return lues;
    };
    banc.bus.ViderAppels();
    Memoire_Flash(banc.poste, true, 1, 0);
    LitEEpromInterne(banc.poste, 0, true);
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    EcritEEpromInterne(banc.poste, 300, 5);
    ForceContexte(banc.poste);
    EXPECT_THROW(Memoire_Flash(banc.poste, false, 1, 0, {18, 2, 3, 4, 5, 6, 7, 8}), FauteExecution);
    EXPECT_EQ(longueurs(), (std::vector<int>{8, 8, 4, 1, 1}));
}

TEST(MemoryPauses, StandBetweenTheFrameAndItsAnswer) {
    BancMemoire banc;
    banc.bus.ReglerInstants([&] { return banc.etabli.horloge.instant.toMSecsSinceEpoch(); });
    std::vector<qint64> reponses;
    banc.bus.ReglerCadence(std::chrono::milliseconds(1), [&](std::chrono::nanoseconds) {
        reponses.push_back(banc.etabli.horloge.instant.toMSecsSinceEpoch());
    });
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    EcritEEpromInterne(banc.poste, 300, 5);
    ForceContexte(banc.poste);
    const auto& trames = banc.enregistreur.journal.Trames();
    ASSERT_EQ(trames.size(), 2U);
    ASSERT_EQ(reponses.size(), 2U);
    EXPECT_EQ(reponses[0] - trames[0].instant, 50);
    EXPECT_EQ(trames[1].instant, reponses[0]);
    EXPECT_EQ(reponses[1] - trames[1].instant, 1000);
}

class OutOfRange : public testing::TestWithParam<int> {};

TEST_P(OutOfRange, AddressesAreAnOverflowAndNothingIsSent) {
    BancMemoire banc;
    const int adresse = GetParam();
    const auto attendre = [](auto&& operation) {
        EXPECT_EQ(essai::NumeroDeFaute(operation), numero_faute::depassement);
    };
    attendre([&] { Memoire_Flash(banc.poste, true, adresse, 0); });
    attendre([&] { Memoire_Flash(banc.poste, true, 0, adresse); });
    attendre([&] { LitEEpromInterne(banc.poste, adresse, true); });
    attendre([&] { EcritEEpromInterne(banc.poste, adresse, 1); });
    EXPECT_EQ(banc.enregistreur.journal.Total(), 0);
}

INSTANTIATE_TEST_SUITE_P(Addresses, OutOfRange, testing::Values(-1, 65536), nomDuCasImprime);

TEST(EcritEEpromInterne, AValueThatIsNoByteIsAnOverflowAndNothingIsSent) {
    BancMemoire banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    EXPECT_THROW(EcritEEpromInterne(banc.poste, 1, 256), FauteExecution);
    EXPECT_THROW(EcritEEpromInterne(banc.poste, 1, -1), FauteExecution);
    EXPECT_EQ(banc.enregistreur.journal.Total(), 0);
}

}  // namespace bornika::essai
