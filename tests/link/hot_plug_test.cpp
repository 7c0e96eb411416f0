// Loggers that come and go while the list of loggers stands open.

#include <QDialog>

#include "link/command_table.h"
#include "link/discovery_fixture.h"

namespace bornika::essai {
namespace {

using simulateur::GenreAppel;

int Ligne(const frmConnect& fiche) {
    return fiche.ui->Listekrow->currentRow();
}

struct HotPlug : testing::Test {
    /// The calls of the interface since the last time, by kind.
    int Appels(GenreAppel genre) const {
        const auto& appels = b.bus.Appels();
        return static_cast<int>(
            std::count_if(appels.begin(), appels.end(),
                          [genre](const auto& appel) { return appel.genre == genre; }));
    }

    BancDeChoix b;
};

TEST_F(HotPlug, TheListLooksOnceASecondWhileItIsOpen) {
    frmConnect fiche(b.banc.poste);
    EXPECT_FALSE(fiche.Veille.Minuterie().isActive());
    fiche.Charger();
    EXPECT_TRUE(fiche.Veille.Minuterie().isActive());
    EXPECT_FALSE(fiche.Veille.Minuterie().isSingleShot());
    EXPECT_EQ(fiche.Veille.Minuterie().interval(), 1000);
}

TEST_F(HotPlug, ALoggerPluggedInAppearsAndOnePulledOutGoes) {
    auto& premier = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        b.Attacher(Serie(2));
        Regarder(fiche);
        EXPECT_EQ(BancDeChoix::Lignes(fiche),
                  (QStringList{q("k-Pod = 1 2-100-->1"), q("k-Pod = 1 2-100-->2")}));
        EXPECT_EQ(fiche.Veille.Nombre(), 2);
        b.bus.Debrancher(premier.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->2")});
        EXPECT_FALSE(fiche.Veille.EnConstruction());
        EXPECT_TRUE(fiche.isVisible());
    });
    EXPECT_FALSE(b.etat().Connected);
    EXPECT_EQ(b.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(b.banc.dialogues.Boites().empty());
}

TEST_F(HotPlug, ALoggerThatAppearedIsChosenByAClickLikeAnyOther) {
    IdentifiantUsb id = 0;
    b.Connexion([&](frmConnect& fiche) {
        id = b.Attacher(simulateur::KPod33(maintenant)).identite.usb;
        Regarder(fiche);
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.etat().UsbID, id);
    EXPECT_EQ(b.etat().NomKpod, q("k-Pod 33"));
}

TEST_F(HotPlug, NoLoggerIsAskedAnythingAsLongAsTheSameOnesAreThere) {
    auto& premier = b.Attacher(Serie(1));
    auto& second = b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        const int trames = premier.journal.Total() + second.journal.Total();
        QListWidgetItem* ligne = fiche.ui->Listekrow->item(0);
        b.bus.ViderAppels();
        for (int i = 0; i < 5; ++i)
            Regarder(fiche);
        EXPECT_EQ(premier.journal.Total() + second.journal.Total(), trames);
        EXPECT_EQ(fiche.ui->Listekrow->item(0), ligne);
        EXPECT_EQ(Appels(GenreAppel::compte), 5);
        EXPECT_EQ(Appels(GenreAppel::identifiant), 10);
        EXPECT_EQ(b.bus.Appels().size(), 15U);
    });
}

TEST_F(HotPlug, OneExchangedForAnotherIsSeenThoughTheirNumberIsTheSame) {
    auto& premier = b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        b.bus.Debrancher(premier.identite.usb);
        b.Attacher(Serie(2));
        Regarder(fiche);
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->2")});
    });
}

TEST_F(HotPlug, ASilentLoggerIsAskedOnceAndNotEverySecond) {
    b.Connexion([&](frmConnect& fiche) {
        auto& muet = b.Attacher(simulateur::Silencieux(maintenant));
        Regarder(fiche);
        const int trames = muet.journal.Total();
        EXPECT_GT(trames, 0);
        Regarder(fiche);
        EXPECT_EQ(muet.journal.Total(), trames);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 0);
    });
}

TEST_F(HotPlug, KeepsTheOperatorsLineWhenItsLoggerIsStillThere) {
    auto& premier = b.Attacher(Serie(1));
    b.Attacher(Serie(2));
    b.Attacher(Serie(3));
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->Listekrow->setFocus();
        fiche.ui->Listekrow->setCurrentRow(1);
        b.bus.Debrancher(premier.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), 0);
        EXPECT_EQ(fiche.ui->Listekrow->currentItem()->text(), q("k-Pod = 1 2-100-->2"));
        EXPECT_TRUE(fiche.ui->Listekrow->item(0)->isSelected());
        EXPECT_EQ(fiche.focusWidget(), fiche.ui->Listekrow);
    });
}

TEST_F(HotPlug, LeavesNoLineSelectedWhenThatLoggerIsGone) {
    b.Attacher(Serie(1));
    auto& second = b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->Listekrow->setCurrentRow(1);
        b.bus.Debrancher(second.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), -1);
        EXPECT_TRUE(fiche.ui->Listekrow->selectedItems().empty());
        QTest::keyClick(fiche.ui->Listekrow, Qt::Key_Return);
        EXPECT_TRUE(fiche.isVisible());
    });
    EXPECT_FALSE(b.etat().Connected);
}

TEST_F(HotPlug, SelectsNothingThatTheOperatorHasNotSelected) {
    b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        b.Attacher(Serie(2));
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), -1);
        b.Attacher(Serie(3));
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), -1);
        EXPECT_TRUE(fiche.ui->Listekrow->selectedItems().empty());
    });
}

TEST_F(HotPlug, TakesTheLineThatTheKeyboardStartsFromForNoSelection) {
    b.Attacher(Serie(1));
    b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        // As the toolkit does when the list gets the focus.
        fiche.ui->Listekrow->setCurrentRow(0, QItemSelectionModel::NoUpdate);
        b.Attacher(Serie(3));
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), 0);
        EXPECT_TRUE(fiche.ui->Listekrow->selectedItems().empty());
    });
}

TEST_F(HotPlug, TheLoggerChosenBeforeIsSelectedThoughAnotherOneWasThereFirst) {
    auto& premier = b.Attacher(Serie(1));
    b.Attacher(Serie(2));
    b.Connexion([](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 0); });
    b.bus.Debrancher(premier.identite.usb);
    b.Connexion([&](frmConnect& fiche) {
        fiche.ui->Listekrow->setCurrentRow(0, QItemSelectionModel::NoUpdate);
        b.bus.Rebrancher(premier.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(fiche.ui->Listekrow->selectedItems(),
                  QList<QListWidgetItem*>{fiche.ui->Listekrow->item(0)});
        EXPECT_EQ(fiche.ui->Listekrow->item(0)->text(), q("k-Pod = 1 2-100-->1"));
    });
}

TEST_F(HotPlug, TheLoggerChosenBeforeIsSelectedAgainWhenItComesBack) {
    b.Attacher(Serie(1));
    auto& second = b.Attacher(Serie(2));
    b.Connexion([](frmConnect& fiche) { BancDeChoix::Cliquer(fiche, 1); });
    b.Connexion([&](frmConnect& fiche) {
        b.bus.Debrancher(second.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), -1);
        b.bus.Rebrancher(second.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(Ligne(fiche), 1);
    });
    EXPECT_TRUE(b.etat().Connected);
    EXPECT_EQ(b.etat().UsbID, second.identite.usb);
}

TEST_F(HotPlug, FollowsTheCheckBoxThatShowsAll) {
    b.Connexion([&](frmConnect& fiche) {
        b.Attacher(simulateur::MauvaisEchoVersion(maintenant));
        Regarder(fiche);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 0);
        fiche.ui->ViewAll->click();
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
        b.Attacher(simulateur::MauvaisEchoVersion(maintenant));
        Regarder(fiche);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 2);
    });
}

TEST_F(HotPlug, APressedMouseButtonChoosesNoLoggerThatSlippedUnderIt) {
    auto& premier = b.Attacher(Serie(1));
    b.Attacher(Serie(2));
    b.Connexion([&](frmConnect& fiche) {
        QWidget* vue = fiche.ui->Listekrow->viewport();
        const QPoint ou =
            fiche.ui->Listekrow->visualItemRect(fiche.ui->Listekrow->item(0)).center();
        QTest::mousePress(vue, Qt::LeftButton, {}, ou);
        b.bus.Debrancher(premier.identite.usb);
        Regarder(fiche);
        QTest::mouseRelease(vue, Qt::LeftButton, {}, ou);
        EXPECT_TRUE(fiche.isVisible());
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_TRUE(b.etat().Connected);
}

TEST_F(HotPlug, NeverLooksInTheMiddleOfAnExchange) {
    b.Attacher(Serie(1));
    b.Connexion([&](frmConnect& fiche) {
        int regards = 0;
        b.bus.ReglerCadence(std::chrono::milliseconds(1), [&](std::chrono::nanoseconds) {
            ++regards;
            b.bus.ViderAppels();
            Regarder(fiche);
            EXPECT_EQ(Appels(GenreAppel::compte), 0);
        });
        b.Attacher(Serie(2));
        Regarder(fiche);
        EXPECT_EQ(regards, 6);
        fiche.ui->ViewAll->click();
        EXPECT_EQ(regards, 12);
        fiche.ui->ViewAll->click();
        BancDeChoix::Cliquer(fiche, 0);
        EXPECT_EQ(regards, 20);
    });
    EXPECT_TRUE(b.etat().Connected);
}

TEST_F(HotPlug, WaitsUntilADialogThatStandsAboveIsClosed) {
    b.Connexion([&](frmConnect& fiche) {
        b.Attacher(Serie(1));
        QDialog dessus(&fiche);
        dessus.setModal(true);
        dessus.show();
        Regarder(fiche);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 0);
        dessus.close();
        Regarder(fiche);
        EXPECT_EQ(fiche.ui->Listekrow->count(), 1);
    });
}

TEST_F(HotPlug, ALoggerPulledOutWhileItIsAskedIsGoneAtTheNextLook) {
    b.Connexion([&](frmConnect& fiche) {
        auto& premier = b.Attacher(Serie(1));
        b.Attacher(Serie(2));
        premier.pannes.Ordonner(
            {CMD_LIT_NUMERO_SERIE, simulateur::GenrePanne::debranchement, 1, 1, 0, 0});
        Regarder(fiche);
        Regarder(fiche);
        EXPECT_EQ(BancDeChoix::Lignes(fiche), QStringList{q("k-Pod = 1 2-100-->2")});
        EXPECT_EQ(fiche.Veille.Nombre(), 1);
    });
    EXPECT_EQ(b.bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
