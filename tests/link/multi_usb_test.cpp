#include "link/multi_usb.h"

#include "link/link_fixture.h"

namespace bornika::essai {
namespace {

const std::vector<int> trame{1, 2, 3, 4, 5, 6, 7, 8};

TEST(OuvreUSB, ClosesFirstThenOpensWriteAndReadHandles) {
    UsbDicte usb;
    Banc b(usb);
    EXPECT_TRUE(b.lien.OuvreUSB(77));
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 0"), q("close 0"), q("close 0"), q("open 77 = 1"),
                                       q("open 77 = 2")}));
    EXPECT_EQ(b.lien.WriteHandle, 1);
    EXPECT_EQ(b.lien.ReadHandle, 2);
}

TEST(OuvreUSB, TwiceLeavesExactlyTwoHandles) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(77);
    usb.appels.clear();
    b.lien.OuvreUSB(77);
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 2"), q("close 2"), q("close 1"), q("open 77 = 3"),
                                       q("open 77 = 4")}));
}

TEST(OuvreUSB, OneFailedHandleGivesFalseAndUndoesNothing) {
    UsbDicte usb;
    Banc b(usb);
    usb.ouvertures = {-1, 5};
    EXPECT_FALSE(b.lien.OuvreUSB(1));
    EXPECT_EQ(b.lien.WriteHandle, -1);
    EXPECT_EQ(b.lien.ReadHandle, 5);
    usb.ouvertures = {6, -1};
    EXPECT_FALSE(b.lien.OuvreUSB(1));
    EXPECT_EQ(b.lien.WriteHandle, 6);
    EXPECT_EQ(b.lien.ReadHandle, -1);
    EXPECT_EQ(usb.appels.filter(q("close")).size(), 4);
}

TEST(OuvreUSB, DoesNotClearTimeOut) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.TimeOut = true;
    b.lien.OuvreUSB(1);
    EXPECT_TRUE(b.ecran.etat.TimeOut);
}

TEST(FermeUSB, CancelsThenClosesReadThenWrite) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    b.lien.FermeUSB();
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 2"), q("close 2"), q("close 1")}));
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_EQ(b.lien.WriteHandle, 0);
}

TEST(FermeUSB, WithNothingOpenClosesHandleZeroTwiceAndChangesNothing) {
    UsbDicte usb;
    Banc b(usb);
    b.ecran.etat.TimeOut = true;
    b.lien.FermeUSB();
    EXPECT_EQ(usb.appels, (QStringList{q("cancel 0"), q("close 0"), q("close 0")}));
    EXPECT_EQ(b.lien.ReadHandle, 0);
    EXPECT_TRUE(b.ecran.etat.TimeOut);
}

TEST(UsbWrite, SendsOnlyTheFirstElementsOfALongerArray) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    b.lien.UsbWrite(trame, 2);
    EXPECT_EQ(usb.appels, QStringList{q("write 1: 1 2")});
}

TEST(UsbWrite, TriesAgainUntilItSucceeds) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.ecritures = {false, false, true, true};
    b.lien.UsbWrite(trame, 8);
    EXPECT_EQ(usb.appels.filter(q("write")).size(), 3);
}

TEST(UsbWrite, GivesUpAfterThreeAttemptsAndTellsNobody) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.ecritures = {false, false, false, true};
    b.lien.UsbWrite(trame, 8);
    EXPECT_EQ(usb.appels.filter(q("write")).size(), 3);
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_TRUE(b.dialogues.Boites().empty());
    EXPECT_TRUE(b.horloge.pauses.empty());
}

TEST(UsbWrite, ValueOutsideAByteIsAFaultBeforeAnythingIsSent) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    for (const int valeur : {256, -1, 100000}) {
        const std::vector<int> mauvaise{1, 2, valeur};
        EXPECT_EQ(NumeroDeFaute([&] { b.lien.UsbWrite(mauvaise, 3); }), numero_faute::depassement);
        EXPECT_EQ(NumeroDeFaute([&] { b.lien.UsbWrite(mauvaise, 2); }), 0);
    }
    EXPECT_EQ(usb.appels.filter(q("write")).size(), 3);
}

TEST(UsbWrite, MoreElementsThanTheArrayHasIsAFault) {
    UsbDicte usb;
    Banc b(usb);
    EXPECT_EQ(NumeroDeFaute([&] { b.lien.UsbWrite(trame, 9); }), numero_faute::indice);
}

TEST(UsbWrite, StillSendsWhileTimeOutStands) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    b.ecran.etat.TimeOut = true;
    b.lien.UsbWrite(trame, 3);
    EXPECT_EQ(usb.appels, QStringList{q("write 1: 1 2 3")});
    EXPECT_TRUE(b.ecran.etat.TimeOut);
}

TEST(UsbRead, GivesTheBytesAndShowsNothing) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{9, 255, 0, 7}};
    EXPECT_EQ(b.lien.UsbRead(4, q("m"), true, false, q("t")), (Octets{9, 255, 0, 7}));
    EXPECT_EQ(usb.appels, QStringList{q("read 2: 4")});
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(UsbRead, AnswerLowersAFlagThatRoseWhileItWasWaitedFor) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{5}};
    usb.pendantLecture = [&] { b.ecran.etat.TimeOut = true; };
    EXPECT_EQ(b.lien.UsbRead(1, QString(), false, false, {}), Octets{5});
    EXPECT_FALSE(b.ecran.etat.TimeOut);
}

TEST(UsbRead, FourthArgumentHasNoEffect) {
    for (const bool quatrieme : {false, true}) {
        UsbDicte usb;
        Banc b(usb);
        b.lien.OuvreUSB(1);
        usb.reponses = {{1, 2}};
        EXPECT_EQ(b.lien.UsbRead(2, q("m"), true, quatrieme, {}), (Octets{1, 2}));
        EXPECT_EQ(b.lien.UsbRead(2, q("m"), true, quatrieme, {}), (Octets{0, 0}));
        EXPECT_EQ(b.dialogues.Boites().size(), 1u);
        EXPECT_EQ(b.lien.ReadHandle, 0);
    }
}

TEST(UsbRead, LengthBelowZeroIsAFaultAsItIsForAWrite) {
    UsbDicte usb;
    Banc b(usb);
    EXPECT_EQ(NumeroDeFaute([&] { b.lien.UsbRead(-1, QString(), false, false, {}); }),
              numero_faute::indice);
    EXPECT_EQ(NumeroDeFaute([&] { b.lien.UsbWrite(trame, -1); }), numero_faute::indice);
}

TEST(UsbRead, ShortReplyIsASuccessFilledWithZeros) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{9, 9, 9, 9, 9, 9, 9, 9}, {1, 2, 3}};
    b.lien.UsbRead(8, QString(), true, false, {});
    EXPECT_EQ(b.lien.UsbRead(8, QString(), true, false, {}), (Octets{1, 2, 3, 0, 0, 0, 0, 0}));
    EXPECT_FALSE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.lien.ReadHandle, 2);
}

TEST(UsbRead, WhileTimeOutStandsGivesZerosWithoutReachingTheDevice) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    usb.reponses = {{1, 2}};
    b.ecran.etat.TimeOut = true;
    EXPECT_EQ(b.lien.UsbRead(5, q("m"), true, false, {}), Octets(5, 0));
    EXPECT_TRUE(usb.appels.isEmpty());
    EXPECT_TRUE(b.dialogues.Boites().empty());
    EXPECT_EQ(b.lien.ReadHandle, 2);
}

TEST(UsbRead, SilenceClosesBothHandlesThenShowsTheBoxThenRaisesTheFlag) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.appels.clear();
    bool pendant = true;
    b.dialogues.pendantBoite = [&](const DialoguesNotes::Boite_&) {
        pendant = b.ecran.etat.TimeOut;
        EXPECT_EQ(b.lien.ReadHandle, 0);
        EXPECT_EQ(b.lien.WriteHandle, 0);
        usb.appels << q("box");
    };
    EXPECT_EQ(b.lien.UsbRead(3, q("parti"), true, false, q("Titre")), Octets(3, 0));
    EXPECT_EQ(usb.appels, (QStringList{q("read 2: 3"), q("close 2"), q("close 1"), q("box")}));
    EXPECT_FALSE(pendant);
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    ASSERT_EQ(b.dialogues.Boites().size(), 1u);
    EXPECT_EQ(b.dialogues.Boites()[0].icone, Icone::Aucune);
    EXPECT_EQ(b.dialogues.Boites()[0].boutons, Boutons::Ok);
    EXPECT_EQ(b.dialogues.Boites()[0].titre, q("Titre"));
    EXPECT_EQ(b.dialogues.Boites()[0].texte, q("parti"));
}

TEST(UsbRead, SilenceWithoutErreurShowsNoBoxAndAsksForNoMessage) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    int demandes = 0;
    const std::function<QString()> message = [&] {
        ++demandes;
        return q("x");
    };
    b.lien.UsbRead(3, message, false, false, {});
    EXPECT_TRUE(b.dialogues.Boites().empty());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    b.ecran.etat.TimeOut = false;
    b.dialogues.AnnoncerInformation(q("x"));
    b.lien.UsbRead(3, message, true, false, {});
    EXPECT_EQ(demandes, 1);
}

TEST(UsbRead, FailedOpenShowsItselfHere) {
    UsbDicte usb;
    Banc b(usb);
    usb.ouvertures = {-1, -1};
    b.lien.OuvreUSB(1);
    b.lien.UsbWrite(trame, 8);
    EXPECT_EQ(usb.appels.filter(q("write -1")).size(), 3);
    b.lien.UsbRead(8, QString(), false, false, {});
    EXPECT_TRUE(b.ecran.etat.TimeOut);
    EXPECT_EQ(b.lien.ReadHandle, 0);
}

TEST(UsbRead, LostLinkLivesAgainOnceTheFlagIsLoweredAndItIsOpened) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    b.lien.UsbRead(2, QString(), false, false, {});
    usb.reponses = {{1, 2}};
    b.lien.OuvreUSB(1);
    EXPECT_EQ(b.lien.UsbRead(2, QString(), false, false, {}), (Octets{0, 0}));
    b.ecran.etat.TimeOut = false;
    b.lien.OuvreUSB(1);
    EXPECT_EQ(b.lien.UsbRead(2, QString(), false, false, {}), (Octets{1, 2}));
    EXPECT_FALSE(b.ecran.etat.TimeOut);
}

TEST(UsbRead, ReplyOfLengthZeroIsADeadDevice) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.reponses = {{1, 2, 3}};
    EXPECT_EQ(b.lien.UsbRead(0, QString(), false, false, {}), Octets());
    EXPECT_TRUE(b.ecran.etat.TimeOut);
}

TEST(TexteErreurWin, IsTheTextLessItsLineEnd) {
    UsbDicte usb;
    Banc b(usb);
    usb.texteErreur = q("Gone\r\n");
    EXPECT_EQ(b.lien.TexteErreurWin(5), q("Gone"));
    usb.texteErreur = q("a\r\n");
    EXPECT_EQ(b.lien.TexteErreurWin(5), q("a"));
    for (const char* court : {"", "x", "\r\n"}) {
        usb.texteErreur = q(court);
        EXPECT_EQ(b.lien.TexteErreurWin(5), QString());
    }
    usb.texteErreur = QString(500, u'x');
    EXPECT_EQ(b.lien.TexteErreurWin(5).size(), 126);
}

TEST(TraceErreurUSB, AsksForATextOnlyForRealErrorsAndShowsNothing) {
    UsbDicte usb;
    Banc b(usb);
    for (const std::uint32_t code : {0u, 997u}) {
        usb.erreur = code;
        b.lien.TraceErreurUSB(q("UsbWrite"));
    }
    EXPECT_EQ(usb.textesDemandes, 0);
    usb.erreur = 19;
    b.lien.TraceErreurUSB(q("UsbWrite"));
    EXPECT_EQ(usb.textesDemandes, 1);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(TraceErreurUSB, IsAskedOnceAfterAWriteWhateverItsAttemptsAndOnceAfterARead) {
    UsbDicte usb;
    Banc b(usb);
    b.lien.OuvreUSB(1);
    usb.erreur = 19;
    usb.ecritures = {false, false, false};
    b.lien.UsbWrite(trame, 8);
    EXPECT_EQ(usb.textesDemandes, 1);
    usb.reponses = {{1}};
    b.lien.UsbRead(1, QString(), false, false, {});
    EXPECT_EQ(usb.textesDemandes, 2);
    b.lien.UsbRead(1, QString(), false, false, {});
    EXPECT_EQ(usb.textesDemandes, 3);
    b.lien.UsbRead(1, QString(), false, false, {});
    EXPECT_EQ(usb.textesDemandes, 3) << "no read was made";
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

}  // namespace
}  // namespace bornika::essai
