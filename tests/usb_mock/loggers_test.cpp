// Which loggers are there, what they are called, and who has them open.

#include <gmock/gmock.h>

#include <cerrno>

#include "usb_mock/bare_usb.h"
#include "usb_mock/loggers_fixture.h"

namespace bornika {
namespace {

using essai::FicheUsb;
using essai::Trame;
using essai::version;
using testing::AllOf;
using testing::ElementsAre;
using testing::Ge;
using testing::Le;

constexpr IdentifiantUsb plusGrand = 2147483647;

struct Enregistreurs : essai::BancEnregistreurs {
    std::vector<IdentifiantUsb> Identifiants() {
        std::vector<IdentifiantUsb> ids;
        const int nombre = usb().Compte();
        for (int i = 0; i < nombre; ++i)
            ids.push_back(usb().Identifiant(i));
        return ids;
    }
};

TEST_F(Enregistreurs, AreNoneWhereNothingIsPluggedIn) {
    EXPECT_EQ(usb().Compte(), 0);
    EXPECT_EQ(usb().Identifiant(0), 0);
    EXPECT_EQ(usb().Absence(), AbsenceUsb::Aucune);
    EXPECT_EQ(usb().Ouvrir(4711), -1);
}

TEST_F(Enregistreurs, AreCalledByTheNumberOfTheirSerialText) {
    Brancher({.serie = "4711"});
    Brancher({.serie = "2147483647"});
    EXPECT_THAT(Identifiants(), ElementsAre(4711, plusGrand));
    EXPECT_EQ(usb().Identifiant(2), 0);
}

TEST_F(Enregistreurs, WithoutAUsableSerialNumberAreCalledByTheirPlace) {
    for (const char* serie : {"", "0", "2147483648", "K-12", "-5"})
        Brancher({.serie = serie});
    const auto ids = Identifiants();
    ASSERT_EQ(ids.size(), 5U);
    EXPECT_THAT(ids, testing::Each(AllOf(Ge(1), Le(plusGrand))));
    EXPECT_EQ(std::set<IdentifiantUsb>(ids.begin(), ids.end()).size(), 5U);
    EXPECT_EQ(Identifiants(), ids);
}

TEST_F(Enregistreurs, WithoutASerialNumberKeepTheirNameAtTheSamePlace) {
    const int port = Brancher();
    const auto avant = Identifiants();
    banc->Debrancher(port);
    EXPECT_EQ(usb().Compte(), 0);
    banc->Rebrancher(port);
    EXPECT_EQ(Identifiants(), avant);
}

TEST_F(Enregistreurs, WithTheSameSerialNumberGetDifferentNames) {
    const int premier = Brancher({.serie = "4711"});
    const int second = Brancher({.serie = "4711"});
    const auto ids = Identifiants();
    ASSERT_EQ(ids.size(), 2U);
    EXPECT_EQ(ids[0], 4711);
    EXPECT_NE(ids[1], 4711);
    EXPECT_THAT(ids[1], AllOf(Ge(1), Le(plusGrand)));
    // Each name leads to its own logger.
    banc->Regler(premier, [](auto& a) { a.enregistreur->identite.type = 1; });
    banc->Regler(second, [](auto& a) { a.enregistreur->identite.type = 5; });
    const Trame identite = {240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    Ouvrir(ids[0]);
    EXPECT_EQ(Echanger(identite, 6).at(2), 1);
    Ouvrir(ids[1]);
    EXPECT_EQ(Echanger(identite, 6).at(2), 5);
}

TEST_F(Enregistreurs, PluggedInLaterAreFoundAtTheNextCount) {
    Brancher({.serie = "1"});
    EXPECT_THAT(Identifiants(), ElementsAre(1));
    Brancher({.serie = "2"});
    EXPECT_THAT(Identifiants(), ElementsAre(1, 2));
}

TEST_F(Enregistreurs, PluggedInAgainUnderANewAddressAreTheSame) {
    const int port = Brancher({.serie = "4711"});
    Ouvrir();
    const PoigneeUsb ancienne = ecriture;
    const int adresse = banc->Adresse(port);
    banc->Debrancher(port);
    banc->Rebrancher(port);
    ASSERT_NE(banc->Adresse(port), adresse);
    EXPECT_THAT(Identifiants(), ElementsAre(4711));
    // The handles of before are dead, new ones work beside them.
    EXPECT_FALSE(usb().Ecrire(ancienne, version));
    Ouvrir();
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
    usb().Fermer(ancienne);
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Enregistreurs, PluggedInElsewhereAreOpenedWithoutACountBetween) {
    const int port = Brancher({.serie = "4711"});
    EXPECT_THAT(Identifiants(), ElementsAre(4711));
    banc->Debrancher(port);
    const int ailleurs = banc->Rebrancher(port, true);
    Ouvrir(4711);
    EXPECT_EQ(Echanger(version, 9), Attendu(ailleurs, version));
}

TEST_F(Enregistreurs, OfProductsThatNobodyAskedForAreLeftAlone) {
    Brancher({.produit = 0x0001, .serie = "1"});
    const int voulu = Brancher({.serie = "2"});
    Brancher({.produit = 0x0002, .serie = "3"});
    reglages.push_back(essai::ReglageDe({.produit = 0x0002}));
    EXPECT_THAT(Identifiants(), ElementsAre(2, 3));
    Ouvrir(2);
    EXPECT_EQ(Echanger(version, 9), Attendu(voulu, version));
}

TEST_F(Enregistreurs, AreNotLookedForWithoutAProduct) {
    Brancher();
    reglages.clear();
    EXPECT_EQ(usb().Compte(), 0);
    EXPECT_EQ(usb().Absence(), AbsenceUsb::SansReglage);
    EXPECT_EQ(banc->Comptes().demandes, 0);
}

TEST_F(Enregistreurs, ThatMayNotBeOpenedAreNotCountedAndTheReasonIsKnown) {
    const int ferme = Brancher({.serie = "1"});
    Brancher({.serie = "2"});
    banc->OterDroits(ferme);
    EXPECT_THAT(Identifiants(), ElementsAre(2));
    EXPECT_EQ(usb().Absence(), AbsenceUsb::SansDroits);
    EXPECT_EQ(usb().Ouvrir(1), -1);
}

TEST_F(Enregistreurs, MayUseAnotherInterfaceAndOtherEndpoints) {
    const FicheUsb fiche = {.interface = 2, .sortie = 0x04, .entree = 0x83};
    const int port = Brancher(fiche);
    reglages = {essai::ReglageDe(fiche)};
    reglages.front().Sortie = 0x04;
    reglages.front().Entree = 0x83;
    Ouvrir();
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

TEST_F(Enregistreurs, WithoutTheEndpointThatWasAskedForAreNotCountedAndTheReasonIsKnown) {
    Brancher({.serie = "1"});
    Brancher({.produit = 0x0002, .serie = "2"});
    reglages.front().Entree = 0x85;
    reglages.push_back(essai::ReglageDe({.produit = 0x0002}));
    EXPECT_THAT(Identifiants(), ElementsAre(2));
    EXPECT_EQ(usb().Absence(), AbsenceUsb::SansPoints);
    EXPECT_EQ(usb().Ouvrir(1), -1);
}

TEST_F(Enregistreurs, AreOpenedOnceForBothHandlesAndGivenBackWithTheLast) {
    const int port = Brancher();
    Ouvrir();
    EXPECT_NE(ecriture, lecture);
    EXPECT_EQ(banc->Comptes().ouvertures, 1);
    EXPECT_EQ(banc->Comptes().reclamations, 1);
    EXPECT_EQ(banc->Comptes().refus, 0);
    usb().Fermer(lecture);
    usb().Fermer(lecture);
    EXPECT_TRUE(usb().Ecrire(ecriture, version));
    lecture = ecriture;
    EXPECT_EQ(Lire(9), Attendu(port, version));
    usb().Fermer(ecriture);
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
    EXPECT_EQ(banc->ComptesFermes().reclamations, 0);
}

TEST_F(Enregistreurs, OfWhomAnotherProgramMakesUseAreNotOpened) {
    const int port = Brancher();
    essai::UsbNu autre;
    libusb_device_handle* poignee = autre.Ouvrir(banc->Adresse(port));
    ASSERT_EQ(libusb_claim_interface(poignee, 0), 0);
    ASSERT_EQ(usb().Compte(), 1);
    EXPECT_EQ(usb().Ouvrir(usb().Identifiant(0)), -1);
    EXPECT_EQ(usb().DerniereErreur(), static_cast<std::uint32_t>(EBUSY));
    libusb_close(poignee);
    ASSERT_EQ(banc->ComptesFermes().ouvertures, 0);
    Ouvrir();
    EXPECT_EQ(Echanger(version, 9), Attendu(port, version));
}

}  // namespace
}  // namespace bornika
