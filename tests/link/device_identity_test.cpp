#include "link/device_identity.h"

#include "link/command_table.h"
#include "link/link_fixture.h"
#include "support/case_names.h"

namespace bornika::essai {
namespace {

std::vector<std::uint8_t> Version(int type, int haut, int bas) {
    return {9,
            static_cast<std::uint8_t>(type),
            static_cast<std::uint8_t>(haut),
            7,
            static_cast<std::uint8_t>(bas),
            0,
            150,
            4,
            0};
}

TEST(LitVersionKpod, GivesNameTypeAndVersionAndClosesTheLink) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.UsbID = 42;
    usb.reponses = {Version(1, 2, 110)};
    bool ok = false;
    EXPECT_EQ(LitVersionKpod(b.poste, ok), q("k-Pod = 1 2-110"));
    EXPECT_TRUE(ok);
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 0"), q("close 0"), q("close 0"), q("open 42 = 1"),
                                       q("open 42 = 2"), q("write 1: 9 0 0 0 0 0 0 0"),
                                       q("read 2: 9"), q("cancel 2"), q("close 2"), q("close 1")}));
}

TEST(LitVersionKpod, NamesFollowTheEditionAndTheTable) {
    UsbDicte usb;
    Banc b(usb, q("Z907"));
    bool ok = false;
    usb.reponses = {Version(20, 2, 120), Version(14, 1, 0), Version(99, 1, 2)};
    EXPECT_EQ(LitVersionKpod(b.poste, ok), q("Z907FPT = 20 2-120"));
    EXPECT_EQ(LitVersionKpod(b.poste, ok), q(" = 14 1-0"));
    EXPECT_EQ(LitVersionKpod(b.poste, ok), q("Generic k-Row = 99 1-2"));
}

struct CasVersion {
    int haut;
    int bas;
    double numero;
};

void PrintTo(const CasVersion& cas, std::ostream* sortie) {
    *sortie << cas.haut << '-' << cas.bas;
}

class NumerosDeVersion : public testing::TestWithParam<CasVersion> {};

TEST_P(NumerosDeVersion, JoinTheDecimalTextsInThousandths) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {Version(1, GetParam().haut, GetParam().bas)};
    bool ok = false;
    LitVersionKpod(b.poste, ok);
    EXPECT_EQ(b.ecran.etat.VersionLogiciel, GetParam().numero);
}

INSTANTIATE_TEST_SUITE_P(Versions, NumerosDeVersion,
                         testing::Values(CasVersion{2, 110, 2.11}, CasVersion{2, 89, 0.289},
                                         CasVersion{2, 12, 0.212}, CasVersion{2, 120, 2.12},
                                         CasVersion{20, 89, 2.089}, CasVersion{20, 96, 2.096},
                                         CasVersion{20, 98, 2.098}, CasVersion{2, 112, 2.112},
                                         CasVersion{0, 0, 0.0}, CasVersion{255, 255, 255.255}),
                         nomDuCasImprime);

TEST(LitVersionKpod, LimitsCompareExactly) {
    UsbDicte usb;
    Banc b(usb);
    bool ok = false;
    usb.reponses = {Version(1, 2, 110), Version(1, 20, 89)};
    LitVersionKpod(b.poste, ok);
    EXPECT_GE(b.ecran.etat.VersionLogiciel, 2.11);
    EXPECT_FALSE(b.ecran.etat.VersionLogiciel < 2.11);
    LitVersionKpod(b.poste, ok);
    EXPECT_LE(b.ecran.etat.VersionLogiciel, 2.089);
}

TEST(LitVersionKpod, SilentDeviceLeavesTheVersionNumber) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.VersionLogiciel = 2.5;
    bool ok = false;
    EXPECT_EQ(LitVersionKpod(b.poste, ok), QString());
    EXPECT_FALSE(ok);
    EXPECT_EQ(b.ecran.etat.VersionLogiciel, 2.5);
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_TRUE(b.dialogues.Boites().empty());
    EXPECT_EQ(b.lien.ReadHandle, 0);
}

TEST(LitVersionKpod, WrongEchoGivesNothingAndNeverSetsOkFalse) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.VersionLogiciel = 2.5;
    usb.reponses = {{8, 1, 2, 3, 4, 5, 6, 7, 8}, {8, 1, 2, 3, 4, 5, 6, 7, 8}};
    bool ok = true;
    EXPECT_EQ(LitVersionKpod(b.poste, ok), QString());
    EXPECT_TRUE(ok);
    ok = false;
    EXPECT_EQ(LitVersionKpod(b.poste, ok), QString());
    EXPECT_FALSE(ok);
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.ecran.etat.VersionLogiciel, 2.5);
}

TEST(LitVersionKpod, ClearsTimeOutFirstAndSoDoesTheType) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {Version(1, 2, 110), Version(5, 2, 110)};
    bool ok = false;
    b.ecran.etat.TimeOut = true;
    EXPECT_FALSE(LitVersionKpod(b.poste, ok).isEmpty());
    b.ecran.etat.TimeOut = true;
    EXPECT_EQ(LitTypeKpod(b.poste), q("5"));
    EXPECT_FALSE(b.ecran.etat.TimeOut);
}

TEST(LitTypeKpod, TwiceMakesTwoConversationsThatBothClose) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {Version(19, 2, 112), Version(19, 2, 112)};
    EXPECT_EQ(LitTypeKpod(b.poste), q("19"));
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_EQ(LitTypeKpod(b.poste, true), q("19"));
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_EQ(usb.appels.filter(q("open")).size(), 4);
    EXPECT_EQ(usb.appels.last(), q("close 3"));
    EXPECT_EQ(b.ecran.etat.VersionLogiciel, 0);
}

TEST(LitTypeKpod, FailureGivesEmptyText) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {{6, 1, 2}};
    EXPECT_EQ(LitTypeKpod(b.poste), QString());
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_EQ(LitTypeKpod(b.poste), QString());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_TRUE(b.dialogues.Boites().empty());
    EXPECT_EQ(b.lien.ReadHandle, 0);
}

TEST(LitTypeKpod, AsksTheChosenLoggerForItsVersionAndCloses) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.UsbID = 42;
    usb.reponses = {Version(255, 2, 112)};
    EXPECT_EQ(LitTypeKpod(b.poste), q("255"));
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 0"), q("close 0"), q("close 0"), q("open 42 = 1"),
                                       q("open 42 = 2"), q("write 1: 9 0 0 0 0 0 0 0"),
                                       q("read 2: 9"), q("cancel 2"), q("close 2"), q("close 1")}));
}

TEST(LitNumeroSerieKpod, ReadsFourBytesHighFirst) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {{6, 99, 99, 1, 2, 3, 4, 0}, {6, 0, 0, 127, 255, 255, 255, 0}, {6}};
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), q("16909060"));
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), q("2147483647"));
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), q("0"));
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_EQ(usb.appels.filter(q("write"))[0], q("write 1: 6 0 0 0 0 0 0 0"));
    EXPECT_EQ(usb.appels.filter(q("read"))[0], q("read 2: 8"));
}

TEST(LitNumeroSerieKpod, AsksTheChosenLoggerAndCloses) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.UsbID = 42;
    usb.reponses = {{6, 0, 0, 0, 0, 0, 9, 0}};
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), q("9"));
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 0"), q("close 0"), q("close 0"), q("open 42 = 1"),
                                       q("open 42 = 2"), q("write 1: 6 0 0 0 0 0 0 0"),
                                       q("read 2: 8"), q("cancel 2"), q("close 2"), q("close 1")}));
}

TEST(LitNumeroSerieKpod, NumberBeyondThirtyOneBitsComesBackEmpty) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {{6, 0, 0, 128, 0, 0, 0, 0}, {6, 0, 0, 255, 255, 255, 255, 0}};
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), QString());
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), QString());
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_FALSE(b.ecran.etat.TimeOut);
}

TEST(LitNumeroSerieKpod, DoesNotClearTimeOutSoThatNothingIsRead) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.TimeOut = true;
    usb.reponses = {{6, 0, 0, 0, 0, 0, 1, 0}};
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), QString());
    EXPECT_TRUE(usb.appels.filter(q("read")).isEmpty());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.lien.ReadHandle, 0);
}

TEST(LitNumeroSerieKpod, WrongEchoAndSilenceGiveEmptyTextWithoutABox) {
    UsbDicte usb;
    Banc b(usb);
    usb.reponses = {{7, 0, 0, 0, 0, 0, 1, 0}};
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), QString());
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_EQ(LitNumeroSerieKpod(b.poste), QString());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

}  // namespace
}  // namespace bornika::essai
