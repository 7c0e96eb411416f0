// The mock ports themselves, seen by the bare USB library: what a real kernel would answer.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

#include "simulator/presets.h"
#include "usb_mock/bare_usb.h"

namespace bornika {
namespace {

using essai::FicheUsb;
using essai::PanneUsb;
using testing::ElementsAre;
using testing::IsEmpty;
using Octets8 = std::vector<std::uint8_t>;

constexpr std::uint32_t maintenant = 1772719629;
const Octets8 trameVersion = {9, 0, 0, 0, 0, 0, 0, 0};

struct PortsMaquette : testing::Test {
    int Brancher(const FicheUsb& fiche = {}) {
        return banc->Brancher(fiche, simulateur::KPod2100(maintenant));
    }
    /// Begins with the library, opens the logger of that port and claims its interface.
    libusb_device_handle* Prendre(int port) {
        if (!usb) usb = std::make_unique<essai::UsbNu>();
        libusb_device_handle* poignee = usb->Ouvrir(banc->Adresse(port));
        EXPECT_NE(poignee, nullptr) << libusb_error_name(usb->erreur);
        EXPECT_EQ(libusb_claim_interface(poignee, 0), 0);
        return poignee;
    }
    Octets8 Attendu(int port, const Octets8& trame) {
        Octets8 reponse;
        banc->Regler(port, [&](auto& appareil) {
            reponse = appareil.enregistreur->Repondre(trame).Liste();
        });
        return reponse;
    }

    std::unique_ptr<essai::BancUsb> banc = std::make_unique<essai::BancUsb>();
    std::unique_ptr<essai::UsbNu> usb;
};

TEST_F(PortsMaquette, ShowPluggedDevicesToTheUnmodifiedLibrary) {
    const int un = Brancher({.serie = "4711"});
    const int deux = Brancher();
    usb = std::make_unique<essai::UsbNu>();
    EXPECT_THAT(usb->Adresses(),
                testing::UnorderedElementsAre(banc->Adresse(un), banc->Adresse(deux)));
    EXPECT_THAT(usb->Adresses({.produit = 1}), IsEmpty());
}

TEST_F(PortsMaquette, ShowADevicePluggedLaterAndHideOneThatIsPulledOut) {
    usb = std::make_unique<essai::UsbNu>();
    EXPECT_THAT(usb->Adresses(), IsEmpty());
    const int port = Brancher();
    const int avant = banc->Adresse(port);
    EXPECT_THAT(usb->Adresses(), ElementsAre(avant));
    banc->Debrancher(port);
    EXPECT_EQ(banc->Adresse(port), 0);
    EXPECT_THAT(usb->Adresses(), IsEmpty());
    banc->Rebrancher(port);
    EXPECT_GT(banc->Adresse(port), avant);
    EXPECT_THAT(usb->Adresses(), ElementsAre(banc->Adresse(port)));
}

TEST_F(PortsMaquette, GiveTheTextOfTheSerialNumber) {
    libusb_device_handle* poignee = Prendre(Brancher({.serie = "4711"}));
    libusb_device_descriptor d{};
    ASSERT_EQ(libusb_get_device_descriptor(libusb_get_device(poignee), &d), 0);
    std::array<unsigned char, 32> texte{};
    EXPECT_EQ(libusb_get_string_descriptor_ascii(poignee, d.iSerialNumber, texte.data(), 32), 4);
    EXPECT_STREQ(reinterpret_cast<const char*>(texte.data()), "4711");
    EXPECT_EQ(libusb_get_string_descriptor_ascii(poignee, 7, texte.data(), 32), LIBUSB_ERROR_PIPE);
    libusb_close(poignee);
}

TEST_F(PortsMaquette, CarryFramesToTheSimulatedLoggerAndItsAnswersBack) {
    const int port = Brancher();
    libusb_device_handle* poignee = Prendre(port);
    const auto reponse = usb->Echanger(poignee, trameVersion);
    EXPECT_EQ(reponse.erreur, 0);
    EXPECT_FALSE(reponse.octets.empty());
    EXPECT_EQ(reponse.octets, Attendu(port, trameVersion));
    libusb_close(poignee);
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
    EXPECT_EQ(banc->Comptes().enCours, 0);
}

TEST_F(PortsMaquette, RefuseASecondClaimAndTransfersOfWhoHasNone) {
    const int port = Brancher();
    libusb_device_handle* premiere = Prendre(port);
    libusb_device_handle* seconde = usb->Ouvrir(banc->Adresse(port));
    ASSERT_NE(seconde, nullptr);
    EXPECT_EQ(libusb_claim_interface(seconde, 0), LIBUSB_ERROR_BUSY);
    EXPECT_NE(usb->Ecrire(seconde, trameVersion), LIBUSB_SUCCESS);
    EXPECT_EQ(banc->Comptes().reclamations, 1);
    EXPECT_EQ(banc->Comptes().refus, 2);
    EXPECT_EQ(libusb_release_interface(premiere, 0), 0);
    EXPECT_EQ(libusb_claim_interface(seconde, 0), 0);
    libusb_close(premiere);
    libusb_close(seconde);
    EXPECT_EQ(banc->ComptesFermes().reclamations, 0);
}

TEST_F(PortsMaquette, HaveADriverOfTheSystemInTheWayUntilItIsDetached) {
    const int port = Brancher({.pilote = true});
    usb = std::make_unique<essai::UsbNu>();
    libusb_device_handle* poignee = usb->Ouvrir(banc->Adresse(port));
    ASSERT_NE(poignee, nullptr);
    EXPECT_EQ(libusb_kernel_driver_active(poignee, 0), 1);
    EXPECT_EQ(libusb_claim_interface(poignee, 0), LIBUSB_ERROR_BUSY);
    EXPECT_NE(usb->Ecrire(poignee, trameVersion), LIBUSB_SUCCESS);
    EXPECT_EQ(libusb_detach_kernel_driver(poignee, 0), 0);
    EXPECT_EQ(libusb_kernel_driver_active(poignee, 0), 0);
    EXPECT_EQ(libusb_claim_interface(poignee, 0), 0);
    EXPECT_EQ(libusb_attach_kernel_driver(poignee, 0), LIBUSB_ERROR_BUSY);
    EXPECT_EQ(libusb_release_interface(poignee, 0), 0);
    EXPECT_EQ(libusb_attach_kernel_driver(poignee, 0), 0);
    EXPECT_EQ(banc->Comptes().pilotes, 1);
    libusb_close(poignee);
}

TEST_F(PortsMaquette, HaveEndpointsOnlyInTheAlternateSettingThatIsInForce) {
    const int port = Brancher({.alternatif = 1});
    libusb_device_handle* poignee = Prendre(port);
    EXPECT_NE(usb->Ecrire(poignee, trameVersion), LIBUSB_SUCCESS);
    EXPECT_NE(libusb_set_interface_alt_setting(poignee, 0, 2), LIBUSB_SUCCESS);
    EXPECT_EQ(libusb_set_interface_alt_setting(poignee, 0, 1), LIBUSB_SUCCESS);
    EXPECT_EQ(usb->Echanger(poignee, trameVersion).octets, Attendu(port, trameVersion));
    libusb_release_interface(poignee, 0);
    EXPECT_EQ(libusb_claim_interface(poignee, 0), 0);
    EXPECT_NE(usb->Ecrire(poignee, trameVersion), LIBUSB_SUCCESS) << "setting 0 again";
    libusb_close(poignee);
}

TEST_F(PortsMaquette, CutAnAnswerIntoPacketsAndEndATransferWhenItIsFull) {
    const int port = Brancher({.paquet = 8});
    libusb_device_handle* poignee = Prendre(port);
    ASSERT_EQ(usb->Ecrire(poignee, {10, 1}), 0);
    const auto dix = usb->Lire(poignee, 16);
    EXPECT_EQ(dix.erreur, 0);
    EXPECT_EQ(dix.octets.size(), 10U);
    ASSERT_EQ(usb->Ecrire(poignee, {10, 0}), 0);
    // Eight bytes are no short packet: the transfer waits for more than the first one.
    EXPECT_EQ(usb->Lire(poignee, 8).octets.size(), 8U);
    EXPECT_EQ(usb->Lire(poignee, 8).octets.size(), 2U);
    libusb_close(poignee);
}

TEST_F(PortsMaquette, OverflowABufferThatIsShorterThanThePacket) {
    libusb_device_handle* poignee = Prendre(Brancher());
    ASSERT_EQ(usb->Ecrire(poignee, trameVersion), 0);
    EXPECT_EQ(usb->Lire(poignee, 3).erreur, LIBUSB_ERROR_OVERFLOW);
    libusb_close(poignee);
}

TEST_F(PortsMaquette, StallUntilTheHaltIsCleared) {
    const int port = Brancher();
    libusb_device_handle* poignee = Prendre(port);
    banc->Ordonner(port, PanneUsb::calageEntree);
    EXPECT_EQ(usb->Echanger(poignee, trameVersion).erreur, LIBUSB_ERROR_PIPE);
    EXPECT_EQ(usb->Echanger(poignee, trameVersion).erreur, LIBUSB_ERROR_PIPE);
    EXPECT_EQ(libusb_clear_halt(poignee, FicheUsb{}.entree), 0);
    EXPECT_EQ(usb->Lire(poignee, 64).octets, Attendu(port, trameVersion));
    libusb_close(poignee);
}

TEST_F(PortsMaquette, LeaveASilentReadToItsTimeOut) {
    const int port = Brancher();
    libusb_device_handle* poignee = Prendre(port);
    banc->Ordonner(port, PanneUsb::retard);
    ASSERT_EQ(usb->Ecrire(poignee, trameVersion), 0);
    EXPECT_EQ(usb->Lire(poignee, 64, 20).erreur, LIBUSB_ERROR_TIMEOUT);
    EXPECT_EQ(banc->Comptes().abandons, 1);
    EXPECT_EQ(banc->Comptes().enCours, 0);
    banc->Liberer(port);
    EXPECT_EQ(usb->Lire(poignee, 64).octets, Attendu(port, trameVersion));
    libusb_close(poignee);
}

TEST_F(PortsMaquette, EndAWaitingReadWhenTheDeviceIsPulledOut) {
    const int port = Brancher();
    libusb_device_handle* poignee = Prendre(port);
    auto lecture = std::async(std::launch::async, [&] { return usb->Lire(poignee, 64, 60'000); });
    while (banc->Comptes().enCours == 0)
        std::this_thread::yield();
    banc->Debrancher(port);
    EXPECT_EQ(lecture.get().erreur, LIBUSB_ERROR_NO_DEVICE);
    EXPECT_EQ(usb->Ecrire(poignee, trameVersion), LIBUSB_ERROR_NO_DEVICE);
    libusb_close(poignee);
    EXPECT_EQ(banc->ComptesFermes().ouvertures, 0);
}

TEST_F(PortsMaquette, PullADeviceOutInAnExchangeThatWasOrderedSo) {
    const int port = Brancher();
    libusb_device_handle* poignee = Prendre(port);
    banc->Ordonner(port, {.genre = simulateur::GenrePanne::debranchement});
    EXPECT_EQ(usb->Echanger(poignee, trameVersion).erreur, LIBUSB_ERROR_NO_DEVICE);
    libusb_close(poignee);
    EXPECT_THAT(usb->Adresses(), IsEmpty());
}

TEST_F(PortsMaquette, RefuseToOpenADeviceWithoutRights) {
    const int port = Brancher();
    banc->OterDroits(port);
    usb = std::make_unique<essai::UsbNu>();
    EXPECT_EQ(usb->Ouvrir(banc->Adresse(port)), nullptr);
    EXPECT_EQ(usb->erreur, LIBUSB_ERROR_ACCESS);
}

}  // namespace
}  // namespace bornika
