// Single frames through the USB stack of a real kernel: both kinds of endpoints, and what goes
// wrong below the frames.

#include <cerrno>
#include <chrono>
#include <thread>

#include "usb_kernel/kernel_fixture.h"

namespace bornika::essai {
namespace {

using Octets = std::vector<std::uint8_t>;

// Command 9 asks for the version, command 8 whether a card is in.
const Octets versionDemandee = {9, 0, 0, 0, 0, 0, 0, 0};
const Octets carteDemandee = {8, 0, 0, 0, 0, 0, 0, 0};

Octets Attendue(const Octets& trame) {
    return simulateur::KPod2100(t0)->Repondre(trame).Liste();
}

/// One logger on a port of the kernel, opened as the program does: a handle for each direction.
class KernelFrames : public testing::Test {
  protected:
    void Ouvrir(FicheUsb fiche = Fiche(std::to_string(idBranche)), int delai = delaiSansFin) {
        usb = std::make_unique<EnregistreursUsb>(std::vector{Reglage(delai)});
        appareil = std::make_unique<AppareilUsbIp>(std::move(fiche), simulateur::KPod2100(t0));
        appareil->Brancher();
        ASSERT_TRUE(AttendreCompte(*usb, 1));
        sortie = usb->Ouvrir(idBranche);
        entree = usb->Ouvrir(idBranche);
        ASSERT_GT(sortie, 0);
        ASSERT_GT(entree, 0);
    }
    void TearDown() override {
        usb->Fermer(entree);
        usb->Fermer(sortie);
        EXPECT_EQ(AppareilsOuverts(), 0);
    }
    void Ordonner(PanneUsb panne) {
        appareil->Avec([panne](AppareilMaquette& maquette) { maquette.Ordonner(panne); });
    }
    Octets Recue(std::size_t longueur) {
        Octets place(longueur);
        place.resize(static_cast<std::size_t>(usb->Lire(entree, place)));
        return place;
    }
    /// The answer, read with its own length as the program does.
    Octets Echanger(const Octets& trame) {
        EXPECT_TRUE(usb->Ecrire(sortie, trame));
        return Recue(Attendue(trame).size());
    }

    std::unique_ptr<EnregistreursUsb> usb;
    std::unique_ptr<AppareilUsbIp> appareil;
    PoigneeUsb sortie = 0;
    PoigneeUsb entree = 0;
};

TEST_F(KernelFrames, GoThroughInterruptEndpointsInSmallPacketsToo) {
    FicheUsb fiche = Fiche(std::to_string(idBranche));
    fiche.interruption = true;
    fiche.paquet = 8;
    fiche.sortie = 0x02;
    fiche.entree = 0x83;
    ASSERT_NO_FATAL_FAILURE(Ouvrir(fiche));
    EXPECT_EQ(Echanger(versionDemandee), Attendue(versionDemandee));
    EXPECT_EQ(Echanger(carteDemandee), Attendue(carteDemandee));
}

TEST_F(KernelFrames, AStalledEndpointIsSetFree) {
    ASSERT_NO_FATAL_FAILURE(Ouvrir());
    Ordonner(PanneUsb::calageEntree);
    EXPECT_TRUE(Echanger(versionDemandee).empty());
    EXPECT_EQ(usb->DerniereErreur(), static_cast<std::uint32_t>(EPIPE));
    EXPECT_EQ(Echanger(versionDemandee), Attendue(versionDemandee));
    Ordonner(PanneUsb::calageSortie);
    EXPECT_FALSE(usb->Ecrire(sortie, versionDemandee));
    EXPECT_EQ(Echanger(versionDemandee), Attendue(versionDemandee));
}

TEST_F(KernelFrames, ALateAnswerIsNotTakenForTheNextOne) {
    ASSERT_NO_FATAL_FAILURE(Ouvrir(Fiche(std::to_string(idBranche)), ReglageUsb::delaiParDefaut));
    EXPECT_EQ(Echanger(versionDemandee), Attendue(versionDemandee));
    const int avant = appareil->Retraits();
    Ordonner(PanneUsb::retard);
    EXPECT_TRUE(Echanger(versionDemandee).empty());
    EXPECT_EQ(usb->DerniereErreur(), static_cast<std::uint32_t>(ETIMEDOUT));
    EXPECT_EQ(appareil->Retraits(), avant + 1);
    appareil->Avec([](AppareilMaquette& maquette) { maquette.Liberer(); });
    EXPECT_EQ(Echanger(carteDemandee), Attendue(carteDemandee));
}

TEST_F(KernelFrames, AnotherProgramWaitsUntilTheLoggerIsGivenBack) {
    ASSERT_NO_FATAL_FAILURE(Ouvrir());
    EnregistreursUsb autre({Reglage()});
    EXPECT_EQ(autre.Compte(), 1);
    EXPECT_EQ(autre.Ouvrir(idBranche), -1);
    EXPECT_EQ(autre.DerniereErreur(), static_cast<std::uint32_t>(EBUSY));
    EXPECT_EQ(Echanger(versionDemandee), Attendue(versionDemandee));
    usb->Fermer(sortie);
    EXPECT_EQ(autre.Ouvrir(idBranche), -1);
    usb->Fermer(entree);
    const PoigneeUsb poignee = autre.Ouvrir(idBranche);
    EXPECT_GT(poignee, 0);
    autre.Fermer(poignee);
}

TEST_F(KernelFrames, AReadThatWaitsEndsAsSoonAsTheCableIsPulled) {
    constexpr std::chrono::milliseconds avant{300};
    ASSERT_NO_FATAL_FAILURE(Ouvrir());
    const auto debut = std::chrono::steady_clock::now();
    std::thread main([&] {
        std::this_thread::sleep_for(avant);
        appareil->Arracher();
    });
    EXPECT_TRUE(Recue(12).empty());
    const auto duree = std::chrono::steady_clock::now() - debut;
    main.join();
    EXPECT_EQ(usb->DerniereErreur(), static_cast<std::uint32_t>(ENODEV));
    EXPECT_GE(duree, avant);
    EXPECT_LT(duree, std::chrono::milliseconds(delaiSansFin));
    EXPECT_FALSE(usb->Ecrire(sortie, versionDemandee));
}

}  // namespace
}  // namespace bornika::essai
