#include <gmock/gmock.h>

#include "exchange_support.h"
#include "simulator/presets.h"

namespace bornika::essai {
namespace {

using namespace simulateur;
using testing::ElementsAre;

EnregistreurSimule AvecId(IdentifiantUsb id) {
    Identite qui;
    qui.usb = id;
    return EnregistreurSimule(qui);
}

struct TwoLoggersOnABus : testing::Test {
    TwoLoggersOnABus() {
        un.ReglerNumeroSerie(111);
        deux.ReglerNumeroSerie(222);
    }
    BusSimule bus;
    EnregistreurSimule& un = bus.Brancher(AvecId(41));
    EnregistreurSimule& deux = bus.Brancher(AvecId(42));
};

constexpr std::initializer_list<int> litSerie = {6, 0, 0, 0, 0, 0, 0, 0};
constexpr std::initializer_list<int> litVersion = {9, 0, 0, 0, 0, 0, 0, 0};

TEST(SimulatedBus, WithoutLoggersThereIsNothingToOpen) {
    BusSimule bus;
    EXPECT_EQ(bus.Compte(), 0);
    EXPECT_EQ(bus.Identifiant(0), 0);
    EXPECT_EQ(bus.Ouvrir(1), -1);
    EXPECT_NE(bus.DerniereErreur(), 0U);
}

TEST_F(TwoLoggersOnABus, LoggersAreCountedAndNamedInTheOrderOfAttachment) {
    EXPECT_EQ(bus.Compte(), 2);
    EXPECT_EQ(bus.Identifiant(0), 41);
    EXPECT_EQ(bus.Identifiant(1), 42);
    EXPECT_EQ(bus.Identifiant(2), 0);
    EXPECT_EQ(bus.Identifiant(-1), 0);
}

TEST_F(TwoLoggersOnABus, AnIdentifierIsNeverSharedByTwoLoggers) {
    EXPECT_EQ(bus.Brancher(AvecId(41)).identite.usb, 43);
    EXPECT_EQ(bus.Brancher(AvecId(0)).identite.usb, 1);
}

TEST_F(TwoLoggersOnABus, TwoHandlesOfOneLoggerAreIndependent) {
    Ligne ligne(bus, 41);
    EXPECT_GT(ligne.ecriture, 0);
    EXPECT_GT(ligne.lecture, 0);
    EXPECT_NE(ligne.ecriture, ligne.lecture);
    bus.Fermer(ligne.lecture);
    EXPECT_EQ(bus.PoigneesOuvertes(41), 1);
    EXPECT_TRUE(ligne.Ecrire(litSerie));
    EXPECT_TRUE(ligne.Lire(8).empty()) << "the closed handle reads nothing";
}

TEST_F(TwoLoggersOnABus, TwoLoggersAnswerEachForThemselves) {
    Ligne a(bus, 41);
    Ligne b(bus, 42);
    a.Ecrire(litSerie);
    b.Ecrire(litSerie);
    EXPECT_EQ(b.Lire(8).at(6), 222);
    EXPECT_EQ(a.Lire(8).at(6), 111);
    EXPECT_EQ(un.journal.Nombre(6), 1);
    EXPECT_EQ(deux.journal.Nombre(6), 1);
}

TEST_F(TwoLoggersOnABus, AReadOfLessDropsTheRest) {
    Ligne ligne(bus, 41);
    EXPECT_EQ(ligne.Echange(litSerie, 3), Octets8({6, 0, 0}));
    EXPECT_TRUE(ligne.Lire(8).empty());
}

TEST_F(TwoLoggersOnABus, AReadOfMoreGivesWhatThereIsAndLeavesTheRestOfTheBuffer) {
    Ligne ligne(bus, 41);
    ligne.Ecrire({30, 0, 200, 7, 32, 32, 32, 32});
    ListeOctets place(8, 0xEE);
    EXPECT_EQ(bus.Lire(ligne.lecture, place), 4);
    EXPECT_EQ(place, Octets8({30, 0, 200, 7, 0xEE, 0xEE, 0xEE, 0xEE}));
}

TEST_F(TwoLoggersOnABus, AReadWithoutFrameBringsNothing) {
    Ligne ligne(bus, 41);
    EXPECT_TRUE(ligne.Lire(8).empty());
    EXPECT_NE(bus.DerniereErreur(), 0U);
}

TEST_F(TwoLoggersOnABus, RepliesNobodyReadAreLostWithTheLastHandle) {
    Ligne ligne(bus, 41);
    ligne.Ecrire(litSerie);
    ligne.Fermer();
    Ligne neuve(bus, 41);
    EXPECT_TRUE(neuve.Lire(8).empty());
    EXPECT_EQ(neuve.Echange(litVersion, 9).at(0), 9);
}

TEST_F(TwoLoggersOnABus, RepliesAreReadInTheirOrder) {
    Ligne ligne(bus, 41);
    ligne.Ecrire(litSerie);
    ligne.Ecrire(litVersion);
    EXPECT_EQ(ligne.Lire(8).at(0), 6);
    EXPECT_EQ(ligne.Lire(9).at(0), 9);
}

TEST_F(TwoLoggersOnABus, HandlesZeroAndMinusOneDoNoHarm) {
    for (const PoigneeUsb poignee : {0, -1, 777}) {
        ListeOctets place(8, 0);
        EXPECT_FALSE(bus.Ecrire(poignee, place));
        EXPECT_NE(bus.DerniereErreur(), 0U);
        EXPECT_EQ(bus.Lire(poignee, place), 0);
        bus.Annuler(poignee);
        bus.Fermer(poignee);
        EXPECT_EQ(bus.DerniereErreur(), 0U);
    }
    EXPECT_EQ(un.journal.Total(), 0);
}

TEST_F(TwoLoggersOnABus, AnUnpluggedLoggerLeavesTheCountAndFailsUntilItIsBackAndOpenedAgain) {
    Ligne ligne(bus, 41);
    bus.Debrancher(41);
    EXPECT_EQ(bus.Compte(), 1);
    EXPECT_EQ(bus.Identifiant(0), 42);
    EXPECT_FALSE(ligne.Ecrire(litSerie));
    EXPECT_TRUE(ligne.Lire(8).empty());
    EXPECT_EQ(bus.Ouvrir(41), -1);
    bus.Rebrancher(41);
    EXPECT_EQ(bus.Compte(), 2);
    EXPECT_FALSE(ligne.Ecrire(litSerie)) << "old handles stay dead";
    ligne.Fermer();
    Ligne neuve(bus, 41);
    EXPECT_EQ(neuve.Echange(litSerie, 8).at(6), 111);
    EXPECT_EQ(bus.PoigneesOuvertes(), 2);
}

TEST_F(TwoLoggersOnABus, AnUnplugLeavesTheOtherLoggerAlone) {
    Ligne ligne(bus, 42);
    bus.Debrancher(41);
    EXPECT_EQ(ligne.Echange(litSerie, 8).at(6), 222);
}

TEST_F(TwoLoggersOnABus, TheTraceShowsTheCallsInTheirOrder) {
    Ligne ligne(bus, 41);
    ligne.Echange(litVersion, 9);
    bus.Annuler(ligne.lecture);
    ligne.Fermer();
    std::vector<GenreAppel> genres;
    for (const Appel& appel : bus.Appels())
        genres.push_back(appel.genre);
    EXPECT_THAT(genres, ElementsAre(GenreAppel::ouvrir, GenreAppel::ouvrir, GenreAppel::ecrire,
                                    GenreAppel::lire, GenreAppel::annuler, GenreAppel::fermer,
                                    GenreAppel::fermer));
    const Appel lecture = bus.Appels().at(3);
    EXPECT_EQ(lecture.poignee, ligne.lecture);
    EXPECT_EQ(lecture.argument, 9);
    EXPECT_EQ(lecture.resultat, 9);
}

TEST_F(TwoLoggersOnABus, TheLoggerNotesItsOpensAndCloses) {
    std::int64_t instant = 5;
    bus.ReglerInstants([&instant] { return instant; });
    Ligne ligne(bus, 41);
    instant = 9;
    ligne.Fermer();
    ASSERT_EQ(un.lien.size(), 4U);
    EXPECT_TRUE(un.lien[0].ouverture);
    EXPECT_EQ(un.lien[1].instant, 5);
    EXPECT_FALSE(un.lien[2].ouverture);
    EXPECT_EQ(un.lien[2].poignee, ligne.lecture);
    EXPECT_EQ(un.lien[3].instant, 9);
    EXPECT_TRUE(deux.lien.empty());
}

TEST_F(TwoLoggersOnABus, TheJournalKeepsFramesWithTheirTimesUpToItsLimit) {
    std::int64_t instant = 100;
    bus.ReglerInstants([&instant] { return instant; });
    un.journal.ReglerLimite(2);
    Ligne ligne(bus, 41);
    for (int i = 0; i < 5; ++i) {
        ligne.Echange({10, i == 0 ? 1 : 0}, 10);
        instant += 50;
    }
    ASSERT_EQ(un.journal.Trames().size(), 2U);
    EXPECT_EQ(un.journal.Trames()[0].Liste(), Octets8({10, 1}));
    EXPECT_EQ(un.journal.Trames()[1].Liste(), Octets8({10, 0}));
    EXPECT_EQ(un.journal.Trames()[1].instant, 150);
    EXPECT_EQ(un.journal.Nombre(10), 5);
    EXPECT_EQ(un.journal.Total(), 5);
    EXPECT_THAT(un.journal.Codes(), ElementsAre(10, 10));
    EXPECT_EQ(un.journal.DeCode(10).size(), 2U);
    un.journal.Vider();
    EXPECT_EQ(un.journal.Total(), 0);
}

TEST_F(TwoLoggersOnABus, JournalsCanBeSilenced) {
    bus.TaireJournaux();
    Ligne ligne(bus, 41);
    ligne.Echange(litVersion, 9);
    EXPECT_TRUE(bus.Appels().empty());
    EXPECT_TRUE(un.journal.Trames().empty());
    EXPECT_EQ(un.journal.Nombre(9), 1);
}

TEST_F(TwoLoggersOnABus, ThePaceIsSleptInPiecesOfAMillisecondOrMore) {
    std::vector<std::chrono::nanoseconds> sommeils;
    bus.ReglerCadence(std::chrono::microseconds(300),
                      [&sommeils](std::chrono::nanoseconds duree) { sommeils.push_back(duree); });
    Ligne ligne(bus, 41);
    for (int i = 0; i < 100; ++i)
        ligne.Echange({10, 0}, 10);
    std::chrono::nanoseconds total{0};
    for (const auto sommeil : sommeils) {
        EXPECT_GE(sommeil, std::chrono::milliseconds(1));
        total += sommeil;
    }
    EXPECT_EQ(total, std::chrono::milliseconds(30));
    bus.ReglerCadence(std::chrono::nanoseconds(0));
    ligne.Echange({10, 0}, 10);
}

TEST_F(TwoLoggersOnABus, ErrorTextsAreThePlatformsOwnUnlessSet) {
    EXPECT_TRUE(bus.TexteErreur(5).endsWith(QStringLiteral("\r\n")));
    EXPECT_GT(bus.TexteErreur(5).size(), 2);
    bus.ReglerTexteErreur(5, QStringLiteral("x"));
    EXPECT_EQ(bus.TexteErreur(5), QStringLiteral("x"));
}

TEST_F(TwoLoggersOnABus, LoggersAreFoundByRankAndByIdentifier) {
    EXPECT_EQ(&bus.Enregistreur(1), &deux);
    EXPECT_EQ(bus.Chercher(41), &un);
    EXPECT_EQ(bus.Chercher(5), nullptr);
    EXPECT_THROW(bus.Enregistreur(2), std::out_of_range);
}

TEST(SimulatedBus, AWholeDownloadOverTheInterfaceGivesTheBytesOfTheFlash) {
    BusSimule bus;
    EnregistreurSimule& logger = bus.Brancher(KPodReseauEau(maintenant));
    Ligne ligne(bus, logger.identite.usb);
    ListeOctets reponse = ligne.Echange({10, 1}, 10);
    int rang = 0;
    while (reponse.at(1) != 1) {
        const MesureEnFlash attendue = logger.Stockee(rang++);
        ASSERT_TRUE(std::equal(attendue.begin(), attendue.end(), reponse.begin() + 2));
        reponse = ligne.Echange({10, 0}, 10);
    }
    EXPECT_EQ(rang + 1, logger.NombreMesures());
}

}  // namespace
}  // namespace bornika::essai
