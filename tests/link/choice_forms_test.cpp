#include <QApplication>
#include <QTimer>

#include "link/command_table.h"
#include "link/discovery_fixture.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;

TEST(FrmConnect, AClickWhileTheListIsRebuiltIsNoChoice) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        fiche.Veille.Batir([&] {
            const int trames = appareil.journal.Total();
            BancDeChoix::Cliquer(fiche, 0);
            EXPECT_EQ(appareil.journal.Total(), trames);
            EXPECT_TRUE(fiche.isVisible());
        });
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(b.etat().Connected);
}

TEST(FrmConnect, ChargementStandsDuringEveryListingAndFallsAfterwards) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    frmConnect fiche(b.banc.poste);
    int echanges = 0;
    int avecDrapeau = 0;
    b.bus.ReglerCadence(std::chrono::milliseconds(1), [&](std::chrono::nanoseconds) {
        ++echanges;
        if (fiche.Veille.EnConstruction()) ++avecDrapeau;
    });
    fiche.Charger();
    const int auChargement = echanges;
    EXPECT_GT(auChargement, 0);
    EXPECT_FALSE(fiche.Veille.EnConstruction());
    fiche.ui->ViewAll->setChecked(true);
    EXPECT_GT(echanges, auChargement);
    EXPECT_FALSE(fiche.Veille.EnConstruction());
    EXPECT_EQ(avecDrapeau, echanges);
}

TEST(FrmConnect, PointerShapeThatStoodBeforeComesBack) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    frmConnect fiche(b.banc.poste);
    FixerPointeurSouris(fiche, pointeur::fleche);
    Enumere(fiche, false);
    EXPECT_EQ(PointeurSouris(fiche), pointeur::fleche);
}

TEST(FrmConnect, CaptionsFollowTheLanguageOfTheList) {
    BancDeChoix b;
    b.banc.ecran.ui->ListeLangues->Choisir(1);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.windowTitle(), q("Select a logger"));
        EXPECT_EQ(fiche.ui->ViewAll->text(), q("View all"));
        EXPECT_EQ(fiche.ui->ExitEtalonnage->text(), q("Cancel"));
    });
}

TEST(FrmConnect, SpaceAndEnterOfTheKeypadChooseTooAndLettersDoNot) {
    for (const int touche : {int(Qt::Key_Space), int(Qt::Key_Enter)}) {
        BancDeChoix b;
        b.Attacher(Serie(1));
        b.Connexion([&](frmConnect& fiche) {
            fiche.ui->Listekrow->setCurrentRow(0);
            QTest::keyClick(fiche.ui->Listekrow, Qt::Key_K);
            EXPECT_TRUE(fiche.isVisible());
            QTest::keyClick(fiche.ui->Listekrow, Qt::Key(touche));
            EXPECT_FALSE(fiche.isVisible());
        });
        EXPECT_TRUE(b.etat().Connected);
    }
}

TEST(FrmConnect, TypeThatAnswersAfterASilentVersionIsListedUnderViewAllOnly) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(8));
    appareil.pannes.Ordonner({CMD_LIT_VERSION, GenrePanne::silence, 1, 1, 0, 0});
    b.Connexion([&](frmConnect& fiche) { EXPECT_EQ(fiche.ui->Listekrow->count(), 0); });
    EXPECT_EQ(appareil.journal.Nombre(CMD_LIT_NUMERO_SERIE), 0);
    EXPECT_FALSE(b.etat().TimeOut);
    EXPECT_EQ(b.etat().TypekPod, 1);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
        appareil.pannes.Ordonner({CMD_LIT_VERSION, GenrePanne::silence, 1, 1, 0, 0});
        fiche.ui->ViewAll->click();
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{QString()});
    });
}

TEST(FrmConnect, ItsFrameLeavesLikeCancel) {
    BancDeChoix b;
    auto& premier = b.Attacher(Serie(1));
    b.Attacher(simulateur::KTide(maintenant));
    b.Connexion([](frmConnect& fiche) { fiche.close(); });
    EXPECT_FALSE(b.ouvertApres);
    EXPECT_FALSE(b.etat().Connected);
    b.Connexion([](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    b.Connexion([](frmConnect& fiche) { fiche.close(); });
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.etat().UsbID, premier.identite.usb);
}

TEST(FrmConnect, VersionNumberStaysThatOfTheLastLoggerAsked) {
    BancDeChoix b;
    b.Attacher(simulateur::KPod2110(maintenant));
    b.Attacher(simulateur::KPod33(maintenant));
    b.Connexion([](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    EXPECT_EQ(b.etat().VersionLogiciel, 2.11);
    b.Connexion([](frmConnect& fiche) { fiche.reject(); });
    EXPECT_EQ(b.etat().VersionLogiciel, 2.12);
    EXPECT_EQ(b.Version(), q("k-Pod 33 = 20 2-120"));
}

TEST(FrmConnect, EmptyLineIsNotClickedAndTheListDropsItsOldLines) {
    BancDeChoix b;
    auto& appareil = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        Enumere(fiche, false);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
        b.bus.Debrancher(appareil.identite.usb);
        Enumere(fiche, false);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 0);
        EXPECT_EQ(fiche.Veille.Nombre(), 0);
        Listekrow_Click(fiche);
        EXPECT_TRUE(fiche.isVisible());
    });
    EXPECT_FALSE(b.etat().Connected);
}

TEST(ChoiceForms, AreModalAndStandInFrontOfTheMainFormOnceThatIsShown) {
    for (const bool montre : {false, true}) {
        BancDeChoix b;
        MainScreen& ecran = b.banc.ecran;
        ecran.setVisible(montre);
        b.Connexion([&](frmConnect& fiche) {
            EXPECT_TRUE(fiche.isModal());
            EXPECT_EQ(fiche.parentWidget(), montre ? &ecran : nullptr);
        });
        b.Selection([&](FormSelection& fiche) {
            EXPECT_TRUE(fiche.isModal());
            EXPECT_EQ(fiche.parentWidget(), montre ? &ecran : nullptr);
        });
    }
}

TEST(ChoiceForms, WithoutAHandInBetweenTheCallWaitsUntilTheFormIsClosed) {
    BancDeChoix b;
    ReglerMontreur({});
    bool montree = false;
    QTimer::singleShot(0, &b.banc.ecran, [&] {
        QWidget* fiche = QApplication::activeModalWidget();
        montree = dynamic_cast<frmConnect*>(fiche) && fiche->isVisible();
        if (fiche) fiche->close();
    });
    MontrerConnexion(b.banc.poste);
    EXPECT_TRUE(montree);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(FormSelection, EveryShowStartsWithTheFirstProductAgain) {
    BancDeChoix b;
    b.Selection([&](FormSelection& fiche) {
        fiche.ui->TypekPod_3->click();
        fiche.ui->Selection->click();
    });
    EXPECT_EQ(b.etat().TypekPod, 20);
    b.Selection([&](FormSelection& fiche) {
        EXPECT_TRUE(fiche.ui->TypekPod_2->isChecked());
        EXPECT_FALSE(fiche.ui->TypekPod_3->isChecked());
        EXPECT_EQ(b.etat().TypekPod, 1);
    });
}

TEST(FormSelection, EachOptionCarriesItsOwnEditionWhateverTheFolder) {
    struct Option {
        int type;
        const char* nom;
    };
    const Option options[] = {{1, "Z907PT"}, {20, "Z907FPT"}, {1, "k-Pod"}, {20, "k-Pod 33"}};
    for (const bool edition : {false, true}) {
        BancDeChoix b(edition ? q("Z907") : QString());
        FormSelection fiche(b.banc.ecran);
        for (int index = 0; index < 4; ++index) {
            TypekPod_Click(fiche, index);
            EXPECT_EQ(b.etat().TypekPod, options[index].type) << index;
            EXPECT_EQ(b.etat().NomKpod, q(options[index].nom)) << index;
        }
    }
}

}  // namespace
}  // namespace bornika::essai
