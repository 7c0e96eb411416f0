// Which loggers the program sees, plugged into the ports of a real kernel.

#include <gmock/gmock.h>
#include <unistd.h>

#include "link/connect_form.h"
#include "link/device_discovery.h"
#include "ui_connect_form.h"
#include "usb_kernel/kernel_fixture.h"
#include "widgets/modal.h"

namespace bornika::essai {
namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

std::vector<IdentifiantUsb> Identifiants(InterfaceUsb& usb) {
    std::vector<IdentifiantUsb> tous;
    for (int i = 0; i < usb.Compte(); ++i)
        tous.push_back(usb.Identifiant(i));
    return tous;
}

TEST(KernelList, FollowsWhatIsPluggedInAndPulledOutWhileTheProgramRuns) {
    EnregistreursUsb usb({Reglage()});
    EXPECT_EQ(usb.Compte(), 0);
    AppareilUsbIp un(Fiche("1001"), simulateur::KPod2100(t0));
    AppareilUsbIp deux(Fiche("1002"), simulateur::KTide(t0));
    un.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 1));
    EXPECT_EQ(usb.Identifiant(0), 1001);
    deux.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 2));
    EXPECT_THAT(Identifiants(usb), UnorderedElementsAre(1001, 1002));
    un.Arracher();
    ASSERT_TRUE(AttendreCompte(usb, 1));
    EXPECT_EQ(usb.Identifiant(0), 1002);
    deux.Detacher();
    EXPECT_TRUE(AttendreCompte(usb, 0));
    EXPECT_EQ(usb.Absence(), AbsenceUsb::Aucune);
}

TEST(KernelList, FindsWhatWasPluggedInBeforeTheProgramStarted) {
    AppareilUsbIp appareil(Fiche("2147483647"), simulateur::KPod2100(t0));
    appareil.Brancher();
    // Seen by a first program, hence by the kernel.
    EnregistreursUsb avant({Reglage()});
    ASSERT_TRUE(AttendreCompte(avant, 1));
    EnregistreursUsb usb({Reglage()});
    EXPECT_THAT(Identifiants(usb), ElementsAre(2147483647));
}

TEST(KernelList, ShowsNameTypeVersionAndSerialNumberOfEachLogger) {
    auto premier = simulateur::AvecNumeroSerie(1234, t0);
    auto second = simulateur::KTide(t0);
    second->ReglerNumeroSerie(77);
    AppareilUsbIp un(Fiche("1001"), std::move(premier));
    AppareilUsbIp deux(Fiche("1002"), std::move(second));
    EnregistreursUsb usb({Reglage()});
    un.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 1));
    deux.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 2));
    BancPoste banc(usb, 0);
    QStringList lignes;
    ReglerMontreur([&](QDialog& dialogue) {
        const auto& liste = *dynamic_cast<frmConnect&>(dialogue).ui->Listekrow;
        for (int i = 0; i < liste.count(); ++i)
            lignes << liste.item(i)->text();
    });
    MontrerConnexion(banc.poste);
    ReglerMontreur({});
    ASSERT_EQ(lignes.size(), 2);
    EXPECT_EQ(lignes[0].toStdString(), "k-Pod = 1 2-100-->1234");
    EXPECT_TRUE(lignes[1].startsWith(QStringLiteral("k-Tide = 5 "))) << lignes[1].toStdString();
    EXPECT_TRUE(lignes[1].endsWith(QStringLiteral("-->77"))) << lignes[1].toStdString();
    EXPECT_EQ(AppareilsOuverts(), 0);
}

TEST(KernelList, KnowsALoggerWithoutANumberByItsPlace) {
    AppareilUsbIp appareil(Fiche("AB-12"), simulateur::KPod2100(t0));
    EnregistreursUsb usb({Reglage()});
    appareil.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 1));
    const IdentifiantUsb id = usb.Identifiant(0);
    EXPECT_GE(id, 1);
    appareil.Detacher();
    ASSERT_TRUE(AttendreCompte(usb, 0));
    appareil.Brancher();
    ASSERT_TRUE(AttendreCompte(usb, 1));
    EXPECT_EQ(usb.Identifiant(0), id);
}

TEST(KernelList, SaysThatTheRightsAreMissing) {
    AppareilUsbIp appareil(Fiche("1001"), simulateur::KPod2100(t0));
    EnregistreursUsb vue({Reglage()});
    appareil.Brancher();
    ASSERT_TRUE(AttendreCompte(vue, 1));
    EnregistreursUsb usb({Reglage()});
    constexpr uid_t quelconque = 65534;
    ASSERT_EQ(setegid(quelconque), 0);
    ASSERT_EQ(seteuid(quelconque), 0);
    const int compte = usb.Compte();
    const AbsenceUsb absence = usb.Absence();
    ASSERT_EQ(seteuid(0), 0);
    ASSERT_EQ(setegid(0), 0);
    EXPECT_EQ(compte, 0);
    EXPECT_EQ(absence, AbsenceUsb::SansDroits);
    // As soon as they are given the logger is there.
    EXPECT_EQ(usb.Compte(), 1);
    EXPECT_EQ(usb.Absence(), AbsenceUsb::Aucune);
}

}  // namespace
}  // namespace bornika::essai
