#include "link/connect_hint.h"

#include "link/discovery_fixture.h"

namespace bornika::essai {
namespace {

QString Texte(const frmConnect& fiche) {
    return fiche.ui->LabelIndication->text();
}

TEST(IndicationPour, FollowsWhatIsListed) {
    EXPECT_EQ(IndicationPour({.branches = 2, .lignes = 1}), Indication::Choisir);
    EXPECT_EQ(IndicationPour({.branches = 2, .lignes = 2, .voirTout = true}), Indication::ToutVoir);
    EXPECT_EQ(IndicationPour({.branches = 1}), Indication::SansReponse);
    EXPECT_EQ(IndicationPour({.branches = 1, .voirTout = true}), Indication::SansReponse);
    EXPECT_EQ(IndicationPour({}), Indication::AucunBranche);
    EXPECT_EQ(IndicationPour({.voirTout = true}), Indication::AucunBranche);
}

TEST(IndicationPour, TellsOfMissingNumbersOnlyWhereNothingIsAttached) {
    EXPECT_EQ(IndicationPour({.absence = AbsenceUsb::SansReglage}), Indication::SansReglage);
    EXPECT_EQ(IndicationPour({.branches = 1, .lignes = 1, .absence = AbsenceUsb::SansReglage}),
              Indication::Choisir);
}

TEST(IndicationPour, TellsOfMissingRightsBesideLoggersThatAreListedToo) {
    EXPECT_EQ(IndicationPour({.absence = AbsenceUsb::SansDroits}), Indication::SansDroits);
    EXPECT_EQ(IndicationPour({.branches = 1, .lignes = 1, .absence = AbsenceUsb::SansDroits}),
              Indication::SansDroits);
}

TEST(IndicationPour, TellsOfMissingEndpointsBesideLoggersThatAreListedToo) {
    EXPECT_EQ(IndicationPour({.absence = AbsenceUsb::SansPoints}), Indication::SansPoints);
    EXPECT_EQ(IndicationPour({.branches = 1, .lignes = 1, .absence = AbsenceUsb::SansPoints}),
              Indication::SansPoints);
}

TEST(CleIndication, IsAnotherTextForEachHint) {
    QStringList cles;
    for (const Indication indication :
         {Indication::Choisir, Indication::ToutVoir, Indication::AucunBranche,
          Indication::SansReponse, Indication::SansReglage, Indication::SansDroits,
          Indication::SansPoints})
        cles << CleIndication(indication);
    EXPECT_EQ(cles.removeDuplicates(), 0);
}

TEST(ConnectHint, SaysWhereTheUsbNumbersAreEntered) {
    BancDeChoix b;
    b.bus.ReglerAbsence(AbsenceUsb::SansReglage);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(Texte(fiche), q("numéros USB :\n") + b.banc.ecran.configuration.Chemin());
        EXPECT_TRUE(fiche.ui->LabelIndication->isVisible());
    });
    EXPECT_TRUE(b.banc.dialogues.Boites().empty());
}

TEST(ConnectHint, SaysThatOneClickChoosesAndThatNoneDoesWhileAllIsViewed) {
    BancDeChoix b;
    b.Attacher(Serie(1));
    b.Connexion([](frmConnect& fiche) {
        EXPECT_EQ(Texte(fiche), q("un clic choisit"));
        fiche.ui->ViewAll->click();
        EXPECT_EQ(Texte(fiche), q("tout voir"));
        fiche.ui->ViewAll->click();
        EXPECT_EQ(Texte(fiche), q("un clic choisit"));
    });
}

TEST(ConnectHint, FollowsLoggersThatComeAndGo) {
    BancDeChoix b;
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(Texte(fiche), q("aucun"));
        auto& pod = b.Attacher(Serie(1));
        Regarder(fiche);
        EXPECT_EQ(Texte(fiche), q("un clic choisit"));
        b.bus.Debrancher(pod.identite.usb);
        Regarder(fiche);
        EXPECT_EQ(Texte(fiche), q("aucun"));
        b.Attacher(simulateur::Silencieux(maintenant));
        Regarder(fiche);
        EXPECT_EQ(Texte(fiche), q("sans réponse"));
    });
}

TEST(ConnectHint, NamesTheRuleAndTheScriptForALoggerThatCannotBeOpened) {
    BancDeChoix b;
    b.bus.ReglerAbsence(AbsenceUsb::SansDroits);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(Texte(fiche), q("règle udev 60-bornika.rules :\n") +
                                    b.banc.etabli.systeme.Chemin(q("install-udev-rule")));
    });
}

TEST(ConnectHint, NamesTheFileThatGivesALoggerEndpointsItLacks) {
    BancDeChoix b;
    b.bus.ReglerAbsence(AbsenceUsb::SansPoints);
    b.Connexion([&](frmConnect& fiche) {
        EXPECT_EQ(Texte(fiche), q("points d'accès :\n") + b.banc.ecran.configuration.Chemin());
    });
}

TEST(ConnectHint, TellsOfMissingRightsOnceInItsPlaceAndNeverInABox) {
    BancDeChoix b;
    b.Connexion([&](frmConnect& fiche) {
        // Plugged in without rights: the loggers that can be opened stay the same.
        b.bus.ReglerAbsence(AbsenceUsb::SansDroits);
        Regarder(fiche);
        EXPECT_EQ(Texte(fiche).count(q("60-bornika.rules")), 1);
        const auto chargements = b.banc.ecran.configuration.NombreChargements();
        for (int i = 0; i < 3; ++i)
            Regarder(fiche);
        EXPECT_EQ(b.banc.ecran.configuration.NombreChargements(), chargements);
        b.bus.ReglerAbsence(AbsenceUsb::Aucune);
        Regarder(fiche);
        EXPECT_EQ(Texte(fiche), q("aucun"));
    });
    EXPECT_TRUE(b.banc.dialogues.Boites().empty());
}

TEST(ConnectHint, SpeaksTheLanguageOfTheList) {
    BancDeChoix b;
    b.banc.ecran.ui->ListeLangues->Choisir(1);
    b.Connexion([](frmConnect& fiche) { EXPECT_EQ(Texte(fiche), q("none")); });
}

TEST(ConnectHint, WritesNothingIntoTheConfiguration) {
    BancDeChoix b;
    const QByteArray avant = b.banc.Configuration();
    for (const AbsenceUsb absence : {AbsenceUsb::Aucune, AbsenceUsb::SansReglage,
                                     AbsenceUsb::SansDroits, AbsenceUsb::SansPoints}) {
        b.bus.ReglerAbsence(absence);
        b.Connexion([](frmConnect&) {});
    }
    EXPECT_EQ(b.banc.Configuration(), avant);
}

TEST(ConnectHint, CanBeSelectedForThePathInIt) {
    BancDeChoix b;
    b.Connexion([](frmConnect& fiche) {
        EXPECT_TRUE(
            fiche.ui->LabelIndication->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    });
}

TEST(ConnectHint, IsWhollyReadableHoweverDeepTheFolderLies) {
    BancDeChoix b(q("a/rather/deep/folder/with/quite/a/long/name/in/which/somebody/keeps/it"));
    b.bus.ReglerAbsence(AbsenceUsb::SansReglage);
    b.Connexion([](frmConnect& fiche) {
        const QLabel& texte = *fiche.ui->LabelIndication;
        EXPECT_GE(texte.height(), texte.heightForWidth(texte.width()));
        EXPECT_LE(fiche.width(), 480);
    });
}

}  // namespace
}  // namespace bornika::essai
