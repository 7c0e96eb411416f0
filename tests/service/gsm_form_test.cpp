#include "service/gsm_form.h"

#include <gtest/gtest.h>

#include "service/dialog_fixture.h"
#include "ui_gsm_form.h"
#include "widgets/controls.h"

namespace bornika::essai {
namespace {

struct FicheGsm : testing::Test {
    BancDialogue banc;

    void Montrer(const std::function<void(GSM&)>& geste) {
        banc.main = [&](QDialog& dialogue) { geste(dynamic_cast<GSM&>(dialogue)); };
        mnuGSM_Click(banc.ecran);
    }
    void Regler(const char* cle, const char* valeur) {
        banc.ecran.configuration.EcritConfig(QString::fromLatin1(valeur), QString::fromLatin1(cle));
    }
    std::string Reglage(const char* cle) {
        return Clair(
            banc.ecran.configuration.LitConfig(QString::fromLatin1(cle)).value_or(QString()));
    }
};

TEST_F(FicheGsm, ShowsTheStoredPulseValueAndUnit) {
    Regler("valeur_impulsion", "2.50");
    Regler("unite_impulsion", "2");
    Montrer([](GSM& fiche) {
        EXPECT_TRUE(fiche.isModal());
        EXPECT_EQ(Clair(fiche.ui->ValeurImpulsion->text()), "2.50");
        EXPECT_EQ(fiche.ui->ListeUniteImpulsion->Index(), 2);
        EXPECT_EQ(Clair(fiche.ui->ListeUniteImpulsion->Texte()), "Gallon");
    });
}

TEST_F(FicheGsm, OffersThreeUnitsWithTheirPlaceAsTheirCode) {
    Montrer([](GSM& fiche) {
        const ListeDeroulante& unites = *fiche.ui->ListeUniteImpulsion;
        ASSERT_EQ(unites.Nombre(), 3);
        const char* const noms[] = {"L", "m3", "Gallon"};
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(Clair(unites.TexteA(i)), noms[i]);
            EXPECT_EQ(unites.Donnee(i), i);
        }
    });
}

TEST_F(FicheGsm, ApplyStoresValueAndUnitAndCloses) {
    Montrer([](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral(" 0.125 "));
        fiche.ui->ListeUniteImpulsion->Choisir(1);
        BancDialogue::Cliquer(fiche.ui->Valider);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(Reglage("valeur_impulsion"), "0.125");
    EXPECT_EQ(Reglage("unite_impulsion"), "1");
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(FicheGsm, StoresAPointAndShowsTheSeparatorOfTheUser) {
    banc.etabli.systeme.regional.separateur = QStringLiteral(",");
    Montrer([](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("2,5"));
        BancDialogue::Cliquer(fiche.ui->Valider);
    });
    EXPECT_EQ(Reglage("valeur_impulsion"), "2.5");
    Montrer([](GSM& fiche) { EXPECT_EQ(Clair(fiche.ui->ValeurImpulsion->text()), "2,5"); });
}

TEST_F(FicheGsm, AValueThatIsNoNumberIsToldAndTheFormStays) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    for (const char* valeur : {"", "abc", "1,5", "1 000", "1E999"}) {
        banc.etabli.dialogues.OublierBoites();
        Montrer([&](GSM& fiche) {
            fiche.ui->ValeurImpulsion->setText(QString::fromLatin1(valeur));
            fiche.ui->ListeUniteImpulsion->Choisir(2);
            BancDialogue::Cliquer(fiche.ui->Valider);
            EXPECT_TRUE(fiche.isVisible()) << valeur;
            EXPECT_EQ(Clair(fiche.ui->ValeurImpulsion->text()), valeur);
        });
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U) << valeur;
        const auto& boite = banc.etabli.dialogues.Boites()[0];
        EXPECT_EQ(boite.icone, Icone::Exclamation);
        EXPECT_EQ(boite.boutons, Boutons::Ok);
        EXPECT_EQ(Clair(boite.titre), "k-Pod");
        EXPECT_EQ(Clair(boite.texte), "La valeur de l'impulsion est incorrecte");
    }
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(FicheGsm, AStoredUnitThatTheListDoesNotHaveStaysUntilOneIsChosen) {
    for (const char* unite : {"7", "-1", "0.5", "1E300"}) {
        Regler("unite_impulsion", unite);
        Montrer([&](GSM& fiche) {
            EXPECT_EQ(fiche.ui->ListeUniteImpulsion->Index(), -1) << unite;
            BancDialogue::Cliquer(fiche.ui->Valider);
            EXPECT_FALSE(fiche.isVisible());
        });
        EXPECT_EQ(Reglage("unite_impulsion"), unite);
    }
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(FicheGsm, SettingsThatTheConfigurationDoesNotHaveAreEmptyAndAreNotAdded) {
    QByteArray sans = banc.etabli.Lire(QStringLiteral("config.xml"));
    sans.replace("<valeur_impulsion>1</valeur_impulsion>", "");
    sans.replace("<unite_impulsion>0</unite_impulsion>", "");
    ASSERT_FALSE(sans.contains("_impulsion>"));
    banc.etabli.Ecrire(QStringLiteral("config.xml"), sans);
    Montrer([](GSM& fiche) {
        EXPECT_EQ(Clair(fiche.ui->ValeurImpulsion->text()), "");
        EXPECT_EQ(fiche.ui->ListeUniteImpulsion->Index(), 0);
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("3"));
        BancDialogue::Cliquer(fiche.ui->Valider);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), sans);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
}

TEST_F(FicheGsm, ThePresenceMessageShowsAndEnablesItsPeriod) {
    Montrer([](GSM& fiche) {
        auto& ui = *fiche.ui;
        const auto suit = [&](bool montree) {
            for (const QWidget* controle :
                 std::initializer_list<const QWidget*>{ui.Valeurheures, ui.LabelHeures}) {
                EXPECT_EQ(controle->isVisible(), montree) << Clair(controle->objectName());
                EXPECT_EQ(controle->isEnabled(), montree) << Clair(controle->objectName());
            }
        };
        EXPECT_FALSE(ui.Presence->isChecked());
        suit(false);
        QTest::mouseClick(ui.Presence, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        EXPECT_TRUE(ui.Presence->isChecked());
        suit(true);
        ui.Valeurheures->setText(QStringLiteral("24"));
        QTest::mouseClick(ui.Presence, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        suit(false);
        EXPECT_EQ(Clair(ui.Valeurheures->text()), "0");
        QTest::mouseClick(ui.Presence, Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
        EXPECT_EQ(Clair(ui.Valeurheures->text()), "0");
    });
}

TEST_F(FicheGsm, ItsLeaveButtonDoesNothingAndTheFrameCloses) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    Montrer([](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("9"));
        BancDialogue::Cliquer(fiche.ui->Sortir);
        EXPECT_TRUE(fiche.isVisible());
        fiche.ui->Sortir->setFocus();
        QTest::keyClick(fiche.ui->Sortir, Qt::Key_Space);
        EXPECT_TRUE(fiche.isVisible());
        fiche.close();
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
}

TEST_F(FicheGsm, BeginsAnewAtEachShowAndStoresNoTelephoneField) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    Montrer([](GSM& fiche) {
        for (QLineEdit* champ : {fiche.ui->PIN, fiche.ui->NumeroAppel1, fiche.ui->NumeroAppel2,
                                 fiche.ui->NumeroCentreAppel})
            champ->setText(QStringLiteral("0123456789"));
        BancDialogue::Cliquer(fiche.ui->Valider);
    });
    EXPECT_FALSE(banc.etabli.Lire(QStringLiteral("config.xml")).contains("0123456789"));
    Montrer([](GSM& fiche) {
        for (const QLineEdit* champ : {fiche.ui->PIN, fiche.ui->NumeroAppel1,
                                       fiche.ui->NumeroAppel2, fiche.ui->NumeroCentreAppel})
            EXPECT_EQ(Clair(champ->text()), "") << Clair(champ->objectName());
    });
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
}

TEST_F(FicheGsm, EnterAppliesAndEscapeLeaves) {
    Montrer([](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("3"));
        QTest::keyClick(fiche.ui->ValeurImpulsion, Qt::Key_Return);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(Reglage("valeur_impulsion"), "3");
    Montrer([](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("4"));
        QTest::keyClick(&fiche, Qt::Key_Escape);
        EXPECT_FALSE(fiche.isVisible());
    });
    EXPECT_EQ(Reglage("valeur_impulsion"), "3");
}

TEST_F(FicheGsm, SpeaksBothLanguagesFromTheDeliveredCatalogue) {
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    Montrer([](GSM& fiche) {
        EXPECT_EQ(Clair(fiche.windowTitle()), "Paramètres GSM");
        EXPECT_EQ(Clair(fiche.ui->Presence->text()), "Message de présence périodique");
    });
    banc.Parler(QStringLiteral("English"));
    Montrer([](GSM& fiche) {
        EXPECT_EQ(Clair(fiche.windowTitle()), "GSM parameters");
        EXPECT_EQ(Clair(fiche.ui->Presence->text()), "Periodic presence message");
        EXPECT_EQ(Clair(fiche.ui->LabelValeurImpulsion->text()), "Pulse value");
        EXPECT_EQ(Clair(fiche.ui->Sortir->text()), "Quit");
    });
    const QByteArray apres = banc.etabli.Lire(QStringLiteral("config.xml"));
    EXPECT_EQ(apres, avant);
}

}  // namespace
}  // namespace bornika::essai
