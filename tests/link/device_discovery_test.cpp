#include "link/device_discovery.h"

#include "link/command_table.h"
#include "link/discovery_fixture.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
namespace {

using simulateur::GenreAppel;
using simulateur::GenrePanne;

TEST(FrmConnect, ListsNameTypeVersionAndSerialNumber) {
    BancDeChoix b;
    b.Attacher(Serie(1234));
    b.Attacher(simulateur::KTide(maintenant)).ReglerNumeroSerie(77);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(BancDeChoix::Lignes(fiche)[0], q("k-Pod = 1 2-100-->1234"));
        EXPECT_TRUE(BancDeChoix::Lignes(fiche)[1].startsWith(q("k-Tide = 5 ")));
        EXPECT_TRUE(BancDeChoix::Lignes(fiche)[1].endsWith(q("-->77")));
        EXPECT_EQ(fiche.Veille.Nombre(), 2);
    });
}

TEST(FrmConnect, SerialNumberThatDoesNotFitIsLeftOut) {
    BancDeChoix b;
    b.Attacher(Serie(2147483648u));
    b.Attacher(Serie(2147483647u));
    b.Attacher(Serie(0));
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(BancDeChoix::Lignes(fiche),
                  (QStringList{q("k-Pod = 1 2-100"), q("k-Pod = 1 2-100-->2147483647"),
                               q("k-Pod = 1 2-100-->0")}));
    });
}

TEST(FrmConnect, CaptionsComeFromTheCatalogue) {
    BancDeChoix b;
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.windowTitle(), q("Connexion"));
        EXPECT_EQ(fiche.ui->ViewAll->text(), q("Tout voir"));
        EXPECT_EQ(fiche.ui->ExitEtalonnage->text(), q("Annuler"));
        EXPECT_FALSE(fiche.ui->ViewAll->isChecked());
    });
}

TEST(FrmConnect, NothingAttachedLeavesAnEmptyListAndOnlyCancel) {
    BancDeChoix b;
    b.etat().UsbID = 5;
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.ui->Listekrow->count(), 0);
        QTest::keyClick(fiche.ui->Listekrow, Qt::Key_Return);
        EXPECT_TRUE(fiche.isVisible());
        QTest::mouseClick(fiche.ui->ExitEtalonnage, Qt::LeftButton);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(b.etat().UsbID, 5);
    EXPECT_FALSE(b.etat().Connected);
}

TEST(FrmConnect, ClickOnALineChoosesThatLoggerAndCloses) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    auto& carte = b.Attacher(simulateur::KPod33(maintenant));
    b.Connexion([&](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 1); });
    EXPECT_FALSE(b.ouvertApres);
    EXPECT_EQ(b.etat().UsbID, carte.identite.usb);
    EXPECT_EQ(b.etat().TypekPod, 20);
    EXPECT_EQ(b.etat().NomKpod, q("k-Pod 33"));
    EXPECT_EQ(b.Version(), q("k-Pod 33 = 20 2-120"));
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.bus.PoigneesOuvertes(), 0);
}

TEST(FrmConnect, NamesOfTheZ907EditionFromTheFolder) {
    BancDeChoix b(q("Z907"));
    b.Attacher(simulateur::KPod33(maintenant));
    b.Connexion([&](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    EXPECT_EQ(b.etat().NomKpod, q("Z907FPT"));
    EXPECT_EQ(b.Version(), q("Z907FPT = 20 2-120"));
}

TEST(FrmConnect, SendsOnlyVersionAndSerialCommands) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect&) {});
    EXPECT_EQ(appareil.journal.Codes(), (std::vector<int>{9, 9, 6}));
    b.Connexion([&](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    EXPECT_EQ(appareil.journal.Codes(), (std::vector<int>{9, 9, 6, 9, 9, 6, 9, 9}));
}

TEST(FrmConnect, WithViewAllCheckedAClickDoesNothingAtAll) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->ViewAll->click();
        const int trames = appareil.journal.Total();
        const IdentifiantUsb avant = b.etat().UsbID;
        BancDeChoix::Cliquer(fiche, 0);
        QTest::keyClick(fiche.ui->Listekrow, Qt::Key_Return);
        EXPECT_EQ(appareil.journal.Total(), trames);
        EXPECT_EQ(b.etat().UsbID, avant);
        EXPECT_TRUE(fiche.isVisible());
        fiche.ui->ViewAll->click();
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(b.etat().Connected);
}

TEST(FrmConnect, WrongFirstByteIsListedUnderViewAllOnlyWithoutSerialNumber) {
    BancDeChoix b;
    auto& faux = b.Attacher(simulateur::MauvaisEchoVersion(maintenant));
    b.Attacher(Serie(8));
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->8")});
        QTest::mouseClick(fiche.ui->ViewAll, Qt::LeftButton, {},
                          QPoint(8, fiche.ui->ViewAll->height() / 2));
        EXPECT_EQ(BancDeChoix::Lignes(fiche), (QStringList{QString(), q("k-Pod = 1 2-100-->8")}));
        QTest::mouseClick(fiche.ui->ViewAll, Qt::LeftButton, {},
                          QPoint(8, fiche.ui->ViewAll->height() / 2));
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
    });
    EXPECT_EQ(faux.journal.Nombre(CMD_LIT_NUMERO_SERIE), 0);
}

TEST(FrmConnect, SilentLoggerIsSkippedWithoutABoxAndTheNextOneIsListed) {
    BancDeChoix b;
    b.Attacher(simulateur::Silencieux(maintenant));
    b.Attacher(Serie(8));
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
        fiche.ui->ViewAll->click();
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
    });
    EXPECT_TRUE(b.banc.dialogues.Boites().empty());
    EXPECT_EQ(b.bus.PoigneesOuvertes(), 0);
}

TEST(FrmConnect, SilenceAtTheSerialNumberUnlistsToo) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(8));
    b.Attacher(Serie(9));
    appareil.pannes.Ordonner({CMD_LIT_NUMERO_SERIE, GenrePanne::silence, 1, 1, 0, 0});
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->9")});
    });
}

TEST(FrmConnect, IdentifierIsAskedAgainForTheLine) {
    BancDeChoix b;
    b.Attacher(Serie(8));
    b.bus.ViderAppels();
    b.Connexion([&](frmConnect&) {});
    const auto& appels = b.bus.Appels();
    EXPECT_EQ(std::count_if(appels.begin(), appels.end(),
                            [](const auto& a) { return a.genre == GenreAppel::identifiant; }),
              2);
    EXPECT_EQ(std::count_if(appels.begin(), appels.end(),
                            [](const auto& a) { return a.genre == GenreAppel::compte; }),
              1);
}

TEST(FrmConnect, ReopeningPreselectsTheChosenLoggerAndDoesNotChooseIt) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    auto& second = b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.ui->Listekrow->currentRow(), -1);
        BancDeChoix::Cliquer(fiche, 1);
    });
    b.etat().Connected = false;
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.ui->Listekrow->currentRow(), 1);
        EXPECT_TRUE(fiche.ui->Listekrow->item(1)->isSelected());
        EXPECT_FALSE(b.etat().Connected);
        EXPECT_TRUE(fiche.isVisible());
        BancDeChoix::Cliquer(fiche, 1);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.etat().UsbID, second.identite.usb);
}

TEST(FrmConnect, ArrowsMoveAndEnterChooses) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    auto& second = b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->Listekrow->setFocus();
        fiche.ui->Listekrow->setCurrentRow(0);
        QTest::keyClick(fiche.ui->Listekrow, Qt::Key_Down);
        EXPECT_TRUE(fiche.isVisible());
        QTest::keyClick(fiche.ui->Listekrow, Qt::Key_Return);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(b.etat().UsbID, second.identite.usb);
}

TEST(FrmConnect, ItemValueOfZeroDoesNothingMore) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->Listekrow->item(0)->setData(Qt::UserRole, 0);
        const int trames = appareil.journal.Total();
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_TRUE(fiche.isVisible());
        EXPECT_EQ(appareil.journal.Total(), trames);
    });
    EXPECT_EQ(b.etat().UsbID, 0);
    EXPECT_FALSE(b.etat().Connected);
}

TEST(FrmConnect, CancelWithoutAnEarlierChoiceLeavesTheLastLoggerAsked) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    auto& dernier = b.Attacher(simulateur::KTide(maintenant));
    b.Connexion(
        [&](frmConnect& fiche) { QTest::mouseClick(fiche.ui->ExitEtalonnage, Qt::LeftButton); });
    EXPECT_EQ(b.etat().UsbID, dernier.identite.usb);
    EXPECT_EQ(b.etat().TypekPod, 5);
    EXPECT_TRUE(b.Version().startsWith(q("k-Tide")));
    EXPECT_FALSE(b.etat().Connected);
}

TEST(FrmConnect, CancelRestoresTheIdentifierButNotTheType) {
    BancDeChoix b;
    auto& premier = b.Attacher(Serie(1));
    b.Attacher(simulateur::KTide(maintenant));
    b.Connexion([&](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    b.Connexion([&](frmConnect& fiche) { QTest::keyClick(&fiche, Qt::Key_Escape); });
    EXPECT_EQ(b.etat().UsbID, premier.identite.usb);
    EXPECT_EQ(b.etat().TypekPod, 5);
    EXPECT_EQ(b.etat().NomKpod, q("k-Pod"));
    EXPECT_TRUE(b.etat().Connected);
}

TEST(FrmConnect, HourglassStandsDuringTheListingAndGoesAfterwards) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    frmConnect fiche(b.banc.poste);
    int pendant = -1;
    b.bus.ReglerCadence(std::chrono::milliseconds(1),
                        [&](std::chrono::nanoseconds) { pendant = PointeurSouris(fiche); });
    fiche.Charger();
    EXPECT_EQ(pendant, pointeur::sablier);
    EXPECT_EQ(PointeurSouris(fiche), pointeur::defaut);
}

TEST(FrmConnect, EveryShowListsAnew) {
    BancDeChoix b;
    auto& premier = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) { EXPECT_EQ(fiche.ui->Listekrow->count(), 1); });
    b.Attacher(Serie(2));
    b.bus.Debrancher(premier.identite.usb);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->2")});
    });
}

TEST(FrmConnect, LoggerPulledOutBeforeTheClickIsChosenWithoutAName) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        b.bus.Debrancher(appareil.identite.usb);
        BancDeChoix::Cliquer(fiche, 0);
    });
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.etat().TypekPod, 0);
    EXPECT_EQ(b.etat().NomKpod, q("Generic k-Row"));
    EXPECT_TRUE(b.etat().TimeOut);
    EXPECT_TRUE(b.banc.etabli.fautes.empty());
}

TEST(LitVersion, AsksWithTwelveBytesAndReadsSix) {
    BancDeChoix b;
    auto& appareil = b.Attacher(simulateur::Simple(20, 2, 120, maintenant));
    appareil.identite.versionMilieu = 7;
    b.bus.ViderAppels();
    bool estKpod = false;
    QString texte;
    LitVersion(b.banc.poste, appareil.identite.usb, estKpod, texte);
    ASSERT_EQ(appareil.journal.Trames().size(), 1u);
    EXPECT_EQ(appareil.journal.Trames()[0].Liste(),
              (std::vector<std::uint8_t>{240, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_TRUE(estKpod);
    EXPECT_EQ(b.bus.PoigneesOuvertes(), 0);
    std::vector<int> lectures;
    for (const auto& appel : b.bus.Appels())
        if (appel.genre == GenreAppel::lire) lectures.push_back(appel.argument);
    EXPECT_EQ(lectures, std::vector<int>{6});
}

TEST(LitVersion, TextOrdersTheBytesOfTheReply) {
    UsbDicte usb;
    Banc b(usb);
    bool estKpod = false;
    QString texte;
    usb.reponses = {{1, 2, 19, 34, 56, 0}, {0, 3, 5, 1, 2, 0}};
    LitVersion(b.poste, 9, estKpod, texte);
    EXPECT_EQ(texte, q("k-Pod 33 ( 19) 2.5634"));
    EXPECT_TRUE(estKpod);
    LitVersion(b.poste, 9, estKpod, texte);
    EXPECT_EQ(texte, q("k-Tide ( 5) 3.21"));
    EXPECT_FALSE(estKpod);
    EXPECT_EQ(usb.appels.filter(q("open 9")).size(), 4);
    EXPECT_EQ(b.lien.ReadHandle, 0);
}

TEST(LitVersion, KnowsTheThreeLoggerModels) {
    UsbDicte usb;
    Banc b(usb);
    for (const std::uint8_t type : {1, 19, 20, 2, 14, 99}) {
        usb.reponses = {{240, 1, type, 0, 0, 0}};
        bool estKpod = type == 2;
        QString texte;
        LitVersion(b.poste, 9, estKpod, texte);
        EXPECT_EQ(estKpod, type == 1 || type == 19 || type == 20) << int(type);
    }
}

TEST(LitVersion, SilentLoggerShowsNoMessage) {
    UsbDicte usb;
    Banc b(usb);
    bool estKpod = true;
    QString texte;
    LitVersion(b.poste, 9, estKpod, texte);
    EXPECT_EQ(texte, q("Generic k-Row ( 0) 0.00"));
    EXPECT_FALSE(estKpod);
    EXPECT_TRUE(b.dialogues.Boites().empty());
}

TEST(FormSelection, ShowsThePairOfTheEditionAndTheLoadChoosesTheFirst) {
    for (const bool edition : {false, true}) {
        BancDeChoix b(edition ? q("Z907") : QString());
        b.Selection([&](FormSelection& fiche) {
            EXPECT_EQ(fiche.windowTitle(), q("Product Selection"));
            EXPECT_EQ(fiche.ui->TypekPod_0->isVisible(), edition);
            EXPECT_EQ(fiche.ui->TypekPod_1->isVisible(), edition);
            EXPECT_EQ(fiche.ui->TypekPod_2->isVisible(), !edition);
            EXPECT_EQ(fiche.ui->TypekPod_3->isVisible(), !edition);
            QTest::mouseClick(fiche.ui->Selection, Qt::LeftButton);
            EXPECT_FALSE(fiche.isVisible());
        });
        EXPECT_EQ(b.etat().TypekPod, 1);
        EXPECT_EQ(b.etat().NomKpod, edition ? q("Z907PT") : q("k-Pod"));
        EXPECT_FALSE(b.etat().Connected);
    }
}

TEST(FormSelection, ClosingByTheFrameKeepsWhatTheLoadChose) {
    BancDeChoix b;
    b.Selection([](FormSelection&) {});
    EXPECT_TRUE(b.ouvertApres);
    EXPECT_EQ(b.etat().TypekPod, 1);
    EXPECT_EQ(b.etat().NomKpod, q("k-Pod"));
}

TEST(FormSelection, SecondOptionIsTheCardModelAndTheFirstCanBeTakenBack) {
    for (const bool edition : {false, true}) {
        BancDeChoix b(edition ? q("Z907") : QString());
        b.Selection([&](FormSelection& fiche) {
            QRadioButton& carte = edition ? *fiche.ui->TypekPod_1 : *fiche.ui->TypekPod_3;
            QTest::mouseClick(&carte, Qt::LeftButton, {}, QPoint(8, carte.height() / 2));
            EXPECT_EQ(b.etat().TypekPod, 20);
            EXPECT_EQ(b.etat().NomKpod, edition ? q("Z907FPT") : q("k-Pod 33"));
            QRadioButton& premier = edition ? *fiche.ui->TypekPod_0 : *fiche.ui->TypekPod_2;
            QTest::mouseClick(&premier, Qt::LeftButton, {}, QPoint(8, premier.height() / 2));
            EXPECT_EQ(b.etat().TypekPod, 1);
        });
    }
}

TEST(FormSelection, CaptionsOfTheOptionsStandAsTheyAre) {
    BancDeChoix b;
    b.Selection([](FormSelection& fiche) {
        EXPECT_EQ(fiche.ui->TypekPod_0->text(), q("Z907PT"));
        EXPECT_EQ(fiche.ui->TypekPod_1->text(), q("Z907FPT"));
        EXPECT_EQ(fiche.ui->TypekPod_2->text(), q("k-Pod"));
        EXPECT_EQ(fiche.ui->TypekPod_3->text(), q("k-Pod-33"));
        EXPECT_EQ(fiche.ui->Selection->text(), q("Please select your product"));
    });
}

}  // namespace
}  // namespace bornika::essai
