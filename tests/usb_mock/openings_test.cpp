// What a device may be like, and what may stand in the way of opening it.

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <cerrno>

#include "usb_mock/loggers_fixture.h"

namespace bornika {
namespace {

using essai::FicheUsb;
using essai::PanneUsb;
using essai::Trame;
using essai::version;

struct Ouvertures : essai::BancEnregistreurs {
    /// One logger like that, whose endpoints nobody has named.
    void Preparer(const FicheUsb& fiche) {
        reglages = {essai::ReglageDe(fiche)};
        port = Brancher(fiche);
    }
    bool EstEntendu() { return Echanger(version, 9) == Attendu(port, version); }
    int port = 0;
};

TEST_F(Ouvertures, TakeTheInterfaceFromADriverOfTheSystemAndGiveItBack) {
    Preparer({.pilote = true});
    ASSERT_EQ(usb().Compte(), 1);
    EXPECT_EQ(banc->Comptes().pilotes, 1) << "looking at it is no reason";
    Ouvrir();
    EXPECT_EQ(banc->Comptes().pilotes, 0);
    EXPECT_TRUE(EstEntendu());
    Fermer();
    EXPECT_EQ(banc->Comptes().pilotes, 1);
    Ouvrir();
    EXPECT_TRUE(EstEntendu());
}

TEST_F(Ouvertures, TakeTheEndpointsOfTheInterfaceThatIsNamedAmongSeveral) {
    Preparer({.interface = 2, .sortie = 0x04, .entree = 0x83});
    Ouvrir();
    EXPECT_TRUE(EstEntendu());
}

TEST_F(Ouvertures, SwitchTheInterfaceToTheSettingThatHasEndpoints) {
    Preparer({.interface = 1, .alternatif = 2});
    for (int fois = 0; fois < 2; ++fois) {
        Ouvrir();
        EXPECT_TRUE(EstEntendu());
        Fermer();
        EXPECT_EQ(banc->ComptesFermes().reclamations, 0);
    }
}

TEST_F(Ouvertures, AreNotTriedWhereTheInterfaceThatIsNamedIsMissing) {
    Preparer({});
    reglages.front().Interface = 3;
    EXPECT_EQ(usb().Compte(), 0);
    EXPECT_EQ(usb().Absence(), AbsenceUsb::SansPoints);
    EXPECT_EQ(banc->Comptes().demandes, 0);
}

TEST_F(Ouvertures, AreNotTriedForADeviceThatTheSystemHasNotConfigured) {
    Preparer({.sansConfiguration = true});
    EXPECT_EQ(usb().Compte(), 0);
    EXPECT_EQ(usb().Absence(), AbsenceUsb::SansPoints);
}

TEST_F(Ouvertures, CallALoggerByItsPlaceWhereTheSerialTextCannotBeRead) {
    Preparer({.serie = "4711", .serieIllisible = true});
    ASSERT_EQ(usb().Compte(), 1);
    const IdentifiantUsb id = usb().Identifiant(0);
    EXPECT_GE(id, 0x40000000);
    EXPECT_EQ(usb().Compte(), 1);
    EXPECT_EQ(usb().Identifiant(0), id);
    Ouvrir(id);
    EXPECT_TRUE(EstEntendu());
}

TEST_F(Ouvertures, FailForALoggerThatVanishedSinceItWasCounted) {
    Preparer({.serie = "4711"});
    ASSERT_EQ(usb().Compte(), 1);
    banc->Debrancher(port);
    EXPECT_EQ(usb().Ouvrir(4711), -1);
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    // What was counted stays as it was until the next count.
    EXPECT_EQ(usb().Identifiant(0), 4711);
    EXPECT_EQ(usb().Compte(), 0);
}

TEST_F(Ouvertures, LeadToTheNewPluggingInThoughHandlesOfTheOldOneAreStillOpen) {
    Preparer({.serie = "4711"});
    Ouvrir();
    const PoigneeUsb ancienne = ecriture;
    banc->Debrancher(port);
    banc->Rebrancher(port);
    ASSERT_EQ(usb().Compte(), 1);
    Ouvrir(4711);
    EXPECT_TRUE(EstEntendu());
    EXPECT_FALSE(usb().Ecrire(ancienne, version));
}

TEST_F(Ouvertures, LeadToTheNewPluggingInWithoutACountOnceTheOldOneIsKnownToBeLost) {
    Preparer({.serie = "4711"});
    Ouvrir();
    const PoigneeUsb ancienne = ecriture;
    banc->Debrancher(port);
    banc->Rebrancher(port);
    EXPECT_FALSE(usb().Ecrire(ancienne, version));
    Ouvrir(4711);
    EXPECT_TRUE(EstEntendu());
    EXPECT_FALSE(usb().Ecrire(ancienne, version));
}

TEST_F(Ouvertures, AreTriedAgainOnceTheLibraryCanBegin) {
    Preparer({});
    usb();
    rlimit avant{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &avant), 0);
    rlimit aucun = avant;
    aucun.rlim_cur = 0;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &aucun), 0);
    const int compte = usb().Compte();
    const std::uint32_t erreur = usb().DerniereErreur();
    const PoigneeUsb poignee = usb().Ouvrir(1);
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &avant), 0);
    EXPECT_EQ(compte, 0);
    EXPECT_NE(erreur, 0U);
    EXPECT_EQ(poignee, -1);
    EXPECT_EQ(usb().Absence(), AbsenceUsb::Aucune);
    EXPECT_EQ(usb().Compte(), 1);
    EXPECT_EQ(usb().DerniereErreur(), 0U);
    Ouvrir();
    EXPECT_TRUE(EstEntendu());
}

TEST_F(Ouvertures, DoNotHangOnALoggerThatNeverStopsTalking) {
    Preparer({});
    Ouvrir();
    banc->Ordonner(port, PanneUsb::bavardage);
    EXPECT_TRUE(usb().Ecrire(ecriture, version));
    const int avant = banc->Comptes().demandes;
    // Nobody has read the answer: what comes is dropped, but not for ever.
    EXPECT_TRUE(usb().Ecrire(ecriture, version));
    EXPECT_LE(banc->Comptes().demandes - avant, 20);
    Fermer();
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
}

}  // namespace
}  // namespace bornika
