#include "link/command_exchange.h"

#include "link/command_table.h"
#include "link/frames.h"
#include "link/link_fixture.h"
#include "simulator/presets.h"
#include "simulator/simulated_bus.h"

namespace bornika::essai {
namespace {

Tampon Plein() {
    Tampon buffer;
    buffer.fill(77);
    return buffer;
}

TEST(EnvoiEntete, SendsEightBytesAndDeliversTheReplyShiftedByOne) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{9, 1, 2, 3, 4, 5, 6, 7, 8}};
    Tampon buffer = Plein();
    EXPECT_TRUE(Envoi_Entete(b.poste, CMD_LIT_VERSION, buffer, 9, true));
    EXPECT_EQ(usb.appels, (QStringList{q("write 1: 9 0 0 0 0 0 0 0"), q("read 2: 9")}));
    EXPECT_EQ(buffer, (Tampon{77, 9, 1, 2, 3, 4, 5, 6, 7, 8, 77, 77, 77, 77, 77, 77, 77}));
}

TEST(EnvoiEntete, ExtracodeOfZeroAndNoneAreTheSameFrame) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{26}, {26}, {26}};
    Tampon buffer{};
    Envoi_Entete(b.poste, CMD_LIT_POINT_ETALONNAGE, buffer, 8, true);
    Envoi_Entete(b.poste, CMD_LIT_POINT_ETALONNAGE, buffer, 8, true, 0);
    Envoi_Entete(b.poste, CMD_LIT_POINT_ETALONNAGE, buffer, 8, true, 2);
    EXPECT_EQ(usb.appels.filter(q("write")),
              (QStringList{q("write 1: 26 0 0 0 0 0 0 0"), q("write 1: 26 0 0 0 0 0 0 0"),
                           q("write 1: 26 2 0 0 0 0 0 0")}));
}

TEST(EnvoiEntete, SilenceGivesFalseAndKeepsThePreviousReply) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    Tampon buffer = Plein();
    EXPECT_FALSE(Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, true));
    EXPECT_EQ(buffer, Plein());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.lien.ReadHandle, 0);
    ASSERT_EQ(b.dialogues.Boites().size(), 1u);
    EXPECT_EQ(b.dialogues.Boites()[0].texte, q("k-Pod absent"));
    EXPECT_EQ(b.dialogues.Boites()[0].titre, QString());
}

TEST(EnvoiEntete, SilenceWithoutErreurIsSilent) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    Tampon buffer{};
    EXPECT_FALSE(Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, false));
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(EnvoiEntete, TextNamesTheProductInThePresentLanguage) {
    for (const bool edition : {false, true}) {
        UsbDicte usb;
        Banc b(usb, edition ? q("Z907") : QString());
        for (const int type : {1, 19, 20, 5}) {
            b.ecran.etat.TypekPod = type;
            b.ecran.ui->ListeLangues->Choisir(type == 19 ? 1 : 0);
            b.ecran.etat.TimeOut = false;
            b.dialogues.OublierBoites();
            Tampon buffer{};
            Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, true);
            ASSERT_EQ(b.dialogues.Boites().size(), 1u);
            const QString carte = edition ? q("Z907FPT") : q("k-Pod 33");
            const QString attendu = type == 19             ? q("no ") + carte
                                    : type == 20           ? carte + q(" absent")
                                    : type == 1 && edition ? q("Z907PT absent")
                                                           : q("k-Pod absent");
            EXPECT_EQ(b.dialogues.Boites()[0].texte, attendu) << type;
        }
    }
}

TEST(EnvoiEntete, MoreBytesThanTheBufferHoldsIsAFault) {
    UsbDicte usb;
    Banc b(usb);
    Tampon buffer{};
    EXPECT_EQ(NumeroDeFaute([&] { Envoi_Entete(b.poste, 9, buffer, 17, false); }),
              numero_faute::indice);
}

TEST(EnvoiEntete, BufferHoldsSixteenBytesOfReply) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}};
    Tampon buffer = Plein();
    EXPECT_TRUE(Envoi_Entete(b.poste, 9, buffer, 16, false));
    EXPECT_EQ(buffer, (Tampon{77, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
}

TEST(EnvoiEntete, CodeOrArgumentBeyondAByteIsAFaultAndNothingIsSent) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    Tampon buffer{};
    for (const int valeur : {256, -1}) {
        EXPECT_EQ(NumeroDeFaute([&] { Envoi_Entete(b.poste, valeur, buffer, 8, false); }),
                  numero_faute::depassement);
        EXPECT_EQ(NumeroDeFaute([&] { Envoi_Entete(b.poste, 9, buffer, 8, false, valeur); }),
                  numero_faute::depassement);
    }
    EXPECT_TRUE(usb.appels.filter(q("write")).isEmpty());
}

TEST(EnvoiEntete, WrongEchoIsDeliveredAndLeftToTheCaller) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{200, 1, 2}};
    Tampon buffer{};
    EXPECT_TRUE(Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 3, true));
    EXPECT_EQ(buffer[1], 200);
    EXPECT_EQ(buffer[3], 2);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(EnvoiEntete, ShortReplyOverwritesTheRestWithZeros) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{4, 9}};
    Tampon buffer = Plein();
    EXPECT_TRUE(Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, true));
    EXPECT_EQ(buffer, (Tampon{77, 4, 9, 0, 0, 0, 0, 0, 0, 77, 77, 77, 77, 77, 77, 77, 77}));
}

TEST(EnvoiEntete, WhileTimeOutStandsItFailsWithoutReadingAndWithoutABox) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    b.ecran.etat.TimeOut = true;
    usb.reponses = {{4, 9}};
    Tampon buffer = Plein();
    EXPECT_FALSE(Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, true));
    EXPECT_EQ(buffer, Plein());
    EXPECT_TRUE(usb.appels.filter(q("read")).isEmpty());
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(EnvoiEntete, LoggerPulledOutBetweenTwoCommandsIsLostAtTheSecond) {
    BusSimule bus;
    Banc b(bus);
    const IdentifiantUsb id = bus.Brancher(simulateur::KPod2100(1700000000)).identite.usb;
    b.lien.OuvreUSB(id);
    Tampon buffer{};
    EXPECT_TRUE(Envoi_Entete(b.poste, CMD_LIT_VERSION, buffer, 9, true));
    EXPECT_EQ(buffer[1], CMD_LIT_VERSION);
    bus.Debrancher(id);
    EXPECT_FALSE(Envoi_Entete(b.poste, CMD_LIT_VERSION, buffer, 9, true));
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_EQ(b.lien.WriteHandle, 0);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    ASSERT_EQ(b.dialogues.Boites().size(), 1u);
    EXPECT_EQ(b.dialogues.Boites()[0].texte, q("k-Pod absent"));
}

TEST(EnvoiEntete, DoesNotOpenOrCloseTheLink) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{4}};
    Tampon buffer{};
    Envoi_Entete(b.poste, CMD_LIT_MODE, buffer, 8, true);
    EXPECT_TRUE(usb.appels.filter(q("open")).isEmpty());
    EXPECT_TRUE(usb.appels.filter(q("close")).isEmpty());
}

TEST(EchangeDirect, GivesTheReplyUnshifted) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{10, 0, 3}};
    EXPECT_EQ(EchangeDirect(b.poste, TrameLitMesures(true), longueurTrameMesures, 10),
              (Octets{10, 0, 3, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(usb.appels, (QStringList{q("write 1: 10 1"), q("read 2: 10")}));
}

TEST(EchangeDirect, SilenceGivesZerosAndTheCataloguesText) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    EXPECT_EQ(EchangeDirect(b.poste, TrameForceContexte(), longueurTrame, 1), Octets(1, 0));
    ASSERT_EQ(b.dialogues.Boites().size(), 1u);
    EXPECT_EQ(b.dialogues.Boites()[0].texte, q("k-Pod absent"));
    EXPECT_EQ(b.dialogues.Boites()[0].titre, QString());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    b.ecran.etat.TimeOut = false;
    EchangeDirect(b.poste, TrameForceContexte(), longueurTrame, 1, false);
    EXPECT_EQ(b.dialogues.Boites().size(), 1u);
}

TEST(LireReponse, ReadsWithoutSendingAndSpeaksOfALostLogger) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{1, 2}};
    EXPECT_EQ(LireReponse(b.poste, 3), (Octets{1, 2, 0}));
    EXPECT_EQ(usb.appels, QStringList{q("read 2: 3")});
    EXPECT_EQ(LireReponse(b.poste, 3, false), Octets(3, 0));
    EXPECT_TRUE(b.dialogues.Boites().empty());
    b.ecran.etat.TimeOut = false;
    EXPECT_EQ(LireReponse(b.poste, 3), Octets(3, 0));
    ASSERT_EQ(b.dialogues.Boites().size(), 1u);
    EXPECT_EQ(b.dialogues.Boites()[0].texte, q("k-Pod absent"));
    EXPECT_TRUE(b.ecran.etat.TimeOut);
}

TEST(ModeByte, BitsStandAtTheirPlaces) {
    EXPECT_EQ(mode::unSeuil, 1);
    EXPECT_EQ(mode::deuxSeuils, 2);
    EXPECT_EQ(mode::auDessus, 4);
    EXPECT_EQ(mode::bufferTournant, 8);
    EXPECT_EQ(mode::oneShot, 16);
    EXPECT_EQ(mode::pressionAbsolue, 128);
}

TEST(ScaleByte, HoldsScaleAndUnitAndIsRoundedHalfToEvenInReading) {
    for (int echelle = 0; echelle < 16; ++echelle)
        for (int unite = 0; unite < 8; ++unite) {
            const int octet = OctetEchelle(echelle, unite);
            EXPECT_EQ(EchelleDeOctet(octet), echelle);
            EXPECT_EQ(UniteDeOctet(octet), unite);
        }
    EXPECT_EQ(EchelleDeOctet(OctetEchelle(2, 8)), 2);
    EXPECT_EQ(EchelleDeOctet(OctetEchelle(3, 8)), 4);
    EXPECT_EQ(EchelleDeOctet(OctetEchelle(3, 9)), 4);
}

}  // namespace
}  // namespace bornika::essai
