// The form itself: its texts, its rows, its keys.

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "calibration/calibration_display.h"
#include "calibration/calibration_fixture.h"
#include "shell/captions.h"
#include "widgets/modal.h"
#include "widgets/toolkit_dialogs.h"

namespace bornika::essai {
namespace {

using Textes = std::vector<std::pair<const char*, const char*>>;

std::string Texte(const Etalonnage& fiche, const char* nom) {
    const auto* controle = fiche.findChild<QWidget*>(QString::fromLatin1(nom));
    return controle ? Clair(Caption(*controle)) : "no such control";
}

const Textes francais{
    {"LabelCapteurEtalonnage", "Capteur étalonné"},    {"ValeurCapteurEtalonnage", "--"},
    {"LabelDateEtalonnage", "Date d'étalonnage"},      {"ValeurDateEtalonnage", "--"},
    {"Labeltextepressionreelle_0", "Pression réelle"}, {"Labeltextepressionlue_0", "Pression lue"},
    {"EntrerEtalonnage", "Entrer en étalonnage"},      {"SortirEtalonnage", "Sortir d'étalonnage"},
    {"LireEtalonnage", "Lire l'étalonnage"},           {"Sortir", "Quitter"}};
const Textes anglais{{"LabelCapteurEtalonnage", "Calibrated sensor"},
                     {"LabelDateEtalonnage", "Calibration date"},
                     {"Labeltextepressionreelle_0", "Real pressure"},
                     {"Labeltextepressionlue_0", "Measured pressure"},
                     {"EntrerEtalonnage", "Start"},
                     {"SortirEtalonnage", "End"},
                     {"LireEtalonnage", "Read"},
                     {"Sortir", "Quit"}};

TEST(CalibrationForm, SpeaksTheLanguageOfTheMainForm) {
    for (const bool enFrancais : {true, false}) {
        BancEtalonnage banc(Firmware::Nouveau,
                            enFrancais ? QStringLiteral("Français") : QStringLiteral("English"));
        banc.Ouvrir();
        EXPECT_EQ(Clair(banc.fiche->windowTitle()), enFrancais ? "Etalonnage" : "Calibration");
        for (const auto& [nom, texte] : enFrancais ? francais : anglais)
            EXPECT_EQ(Texte(*banc.fiche, nom), texte) << nom;
    }
}

TEST(CalibrationForm, OpenedInAnyLanguageLeavesTheConfigurationAsItWas) {
    for (const QString& langue : {QStringLiteral("Français"), QStringLiteral("English")}) {
        BancEtalonnage banc(Firmware::Nouveau, langue);
        const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
        banc.Amener(Avance::PointDeux);
        banc.Cliquer(banc.f().SortirEtalonnage);
        EXPECT_TRUE(banc.etabli.Lire(QStringLiteral("config.xml")) == avant);
    }
}

TEST(CalibrationForm, LooksUpOneKeyForBothRowsAndTakesAMissingTextAsEmptyOnce) {
    BancEtalonnage banc;
    QByteArray contenu = banc.etabli.Lire(QStringLiteral("config.xml"));
    contenu.replace("<Cle>Labeltextepressionlue</Cle>", "<Cle>autre</Cle>");
    contenu.replace("<Cle>LireEtalonnage</Cle>", "<Cle>encore autre</Cle>");
    banc.etabli.Ecrire(QStringLiteral("config.xml"), contenu);
    banc.Ouvrir();
    EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionlue_0"), "");
    // The first row has made the entry, with the caption of the design.
    EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionlue_1"), "Pression lue");
    EXPECT_EQ(Texte(*banc.fiche, "LireEtalonnage"), "");
    banc.Ouvrir();
    EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionlue_0"), "Pression lue");
    EXPECT_EQ(Texte(*banc.fiche, "LireEtalonnage"), "Lire l'étalonnage");
}

TEST(CalibrationForm, OpensWithTheCaptionsOfItsDesignWhenTheCatalogueCannotBeRead) {
    BancEtalonnage banc;
    ASSERT_TRUE(QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml"))));
    banc.Ouvrir();
    EXPECT_EQ(Texte(*banc.fiche, "LabelCapteurEtalonnage"), "Capteur étalonné");
    EXPECT_EQ(Texte(*banc.fiche, "EntrerEtalonnage"), "Entrer en étalonnage");
    EXPECT_EQ(banc.Situation(), "start - read quit, 1 row, types 1, point 1");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(CalibrationForm, HasOneControlForEachMemberOfItsArrays) {
    BancEtalonnage banc;
    banc.Ouvrir();
    for (const char* nom :
         {"Labeltextepressionreelle", "ValeurPressionReelle", "Labelpressionreelle",
          "Labeltextepressionlue", "ValeurPressionLue", "Labelpressionlue"})
        for (const int rang : {0, 1}) {
            const QString objet = QStringLiteral("%1_%2").arg(QLatin1String(nom)).arg(rang);
            const auto* controle = banc.fiche->findChild<QWidget*>(objet);
            ASSERT_NE(controle, nullptr) << Clair(objet);
            EXPECT_EQ(Clair(CleDe(*controle)), nom);
        }
}

TEST(CalibrationForm, StartsWithTheUnitOfTheMainFormAndEmptyPressures) {
    BancEtalonnage banc;
    banc.ChoisirUnite(QStringLiteral("kPa"));
    banc.bus.Debrancher(banc.enregistreur.identite.usb);
    banc.Ouvrir();
    for (const int rang : {0, 1}) {
        const RangeePoint rangee = banc.fiche->Rangee(rang);
        EXPECT_EQ(rangee.Labelpressionreelle->text(), QStringLiteral("kPa"));
        EXPECT_EQ(rangee.Labelpressionlue->text(), QStringLiteral("kPa"));
        EXPECT_EQ(rangee.ValeurPressionReelle->text(), QString());
        EXPECT_EQ(rangee.ValeurPressionLue->text(), QString());
    }
}

TEST(CalibrationForm, StartedOverForgetsWhatItShowed) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointDeux);
    banc.f().Sortir->setEnabled(false);
    banc.bus.Debrancher(banc.enregistreur.identite.usb);
    ChargerEtalonnage(*banc.fiche);
    EXPECT_EQ(banc.Situation(), "start - read quit, 1 row, types 1, point 1");
    EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionreelle_0"), "Pression réelle");
    EXPECT_EQ(Texte(*banc.fiche, "ValeurCapteurEtalonnage"), "--");
    for (const int rang : {0, 1}) {
        const RangeePoint rangee = banc.fiche->Rangee(rang);
        EXPECT_EQ(rangee.Labelpressionreelle->text(), QStringLiteral("bar"));
        EXPECT_EQ(rangee.Labelpressionlue->text(), QStringLiteral("bar"));
        EXPECT_EQ(rangee.ValeurPressionReelle->text(), QString());
        EXPECT_EQ(rangee.ValeurPressionLue->text(), QString());
    }
}

TEST(CalibrationForm, ShowsTheSixControlsOfTheSecondRowTogether) {
    BancEtalonnage banc;
    banc.Ouvrir();
    for (const int mode : {1, 0, 1, 1, 0, 0}) {
        AffichePoints(*banc.fiche, mode);
        for (const QWidget* controle : banc.fiche->Rangee(1).Controles())
            EXPECT_EQ(controle->isVisible(), mode == 1) << Clair(controle->objectName());
        for (const QWidget* controle : banc.fiche->Rangee(0).Controles())
            EXPECT_TRUE(controle->isVisible());
        const bool numeros = mode == 1;
        EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionreelle_0"),
                  numeros ? "Pression réelle  1 " : "Pression réelle");
        EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionreelle_1"),
                  numeros ? "Pression réelle  2 " : "Pression réelle");
        EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionlue_0"),
                  numeros ? "Pression lue  1 " : "Pression lue");
        EXPECT_EQ(Texte(*banc.fiche, "Labeltextepressionlue_1"),
                  numeros ? "Pression lue  2 " : "Pression lue");
    }
}

TEST(CalibrationForm, KeepsItsSizeAndCutsNoTextInEitherState) {
    for (const QString& langue : {QStringLiteral("Français"), QStringLiteral("English")}) {
        BancEtalonnage banc(Firmware::Nouveau, langue);
        banc.ChoisirUnite(QStringLiteral("mbar"));
        banc.ui.ListeEchelles->Choisir(7);
        banc.enregistreur.ReglerEtalonnage(1000, 0x72, 1023, 1023, 1024, 1023);
        banc.Ouvrir();
        EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QStringLiteral("30000.0"));
        const QSize taille = banc.fiche->size();
        for (const int mode : {0, 1}) {
            AffichePoints(*banc.fiche, mode);
            QCoreApplication::processEvents();
            EXPECT_EQ(banc.fiche->size(), taille);
            for (const QWidget* controle : banc.fiche->findChildren<QWidget*>()) {
                if (!aCaption(*controle) || !controle->isVisible()) continue;
                EXPECT_LE(controle->sizeHint().width(), controle->width())
                    << Clair(controle->objectName());
            }
        }
    }
}

TEST(CalibrationForm, IsWalkedFromThePressuresToTheWayOut) {
    BancEtalonnage banc;
    banc.Amener(Avance::Repos);
    AffichePoints(*banc.fiche, 1);
    banc.f().ValeurPressionReelle_1->setEnabled(true);
    banc.f().SortirEtalonnage->setEnabled(true);
    EXPECT_TRUE(banc.f().ValeurPressionReelle_0->hasFocus());
    QStringList noms;
    for (int i = 0; i < 6; ++i) {
        noms << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(noms,
              QStringList({QStringLiteral("ValeurPressionReelle_0"),
                           QStringLiteral("ValeurPressionReelle_1"),
                           QStringLiteral("EntrerEtalonnage"), QStringLiteral("SortirEtalonnage"),
                           QStringLiteral("LireEtalonnage"), QStringLiteral("Sortir")}));
}

TEST(CalibrationForm, TypingAtOnceReplacesTheReferenceShown) {
    BancEtalonnage banc;
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 320, 316);
    banc.Ouvrir();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("7"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("7"));
}

TEST(CalibrationForm, EnterInABoxStartsNothingAndOnAButtonPressesIt) {
    for (const auto touche : {Qt::Key_Return, Qt::Key_Enter}) {
        BancEtalonnage banc;
        banc.Ouvrir();
        banc.Taper(0, "5");
        QTest::keyClick(banc.f().ValeurPressionReelle_0, touche);
        EXPECT_EQ(banc.Codes(), std::vector<int>());
        EXPECT_TRUE(banc.fiche->isVisible());
        banc.f().LireEtalonnage->setFocus();
        QTest::keyClick(banc.f().LireEtalonnage, touche);
        EXPECT_EQ(banc.Codes(), (std::vector<int>{9, 28, 26, 26}));
    }
}

TEST(CalibrationForm, EscapeClosesIt) {
    BancEtalonnage banc;
    banc.Ouvrir();
    QTest::keyClick(banc.fiche.get(), Qt::Key_Escape);
    EXPECT_FALSE(banc.fiche->isVisible());
}

TEST(CalibrationForm, CannotBeLeftBetweenTheTwoBoxesOfAPoint) {
    BancEtalonnage banc;
    DialoguesQt boites;
    Systeme systeme{banc.etabli.horloge,     boites,     banc.bus,
                    banc.etabli.respiration, Regional{}, banc.etabli.systeme.dossier};
    MainScreen ecran(systeme);
    ecran.etat = banc.ecran.etat;
    ecran.ui->ListeEchelles->Ajouter(QStringLiteral("0 - 16 bar"));
    ecran.ui->ListeEchelles->Choisir(0);
    ecran.ui->ListeUnites->Ajouter(QStringLiteral("bar"));
    ecran.ui->ListeUnites->FixerDonnee(0, 10000);
    ecran.ui->ListeUnites->Choisir(0);
    MULTIUSB lien(ecran);
    Poste poste{ecran, lien};
    Etalonnage fiche(poste);
    ChargerEtalonnage(fiche);
    fiche.show();
    int vues = 0;
    QTimer geste;
    QObject::connect(&geste, &QTimer::timeout, [&] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (boite == nullptr) return;
        ++vues;
        // Through the window, as the mouse does it.
        QTest::mouseClick(fiche.windowHandle(), Qt::LeftButton, {},
                          fiche.ui->Sortir->mapTo(&fiche, fiche.ui->Sortir->rect().center()));
        EXPECT_TRUE(fiche.isVisible());
        boite->accept();
    });
    geste.start(0);
    fiche.ui->EntrerEtalonnage->click();
    geste.stop();
    EXPECT_EQ(vues, 2);
    QTest::mouseClick(fiche.windowHandle(), Qt::LeftButton, {},
                      fiche.ui->Sortir->mapTo(&fiche, fiche.ui->Sortir->rect().center()));
    EXPECT_FALSE(fiche.isVisible()) << "the same click leaves it afterwards";
}

TEST(CalibrationOpening, ReadsTheLoggerAnewEachTimeAndBeginsWithTheFirstPoint) {
    BancEtalonnage banc;
    int montree = 0;
    ReglerMontreur([&](QDialog& dialogue) {
        auto& fiche = dynamic_cast<Etalonnage&>(dialogue);
        EXPECT_TRUE(fiche.isModal());
        EXPECT_EQ(fiche.DeuxiemePoint, 0);
        EXPECT_EQ(fiche.ui->ValeurPressionReelle_0->text(),
                  montree == 0 ? QStringLiteral("0.0") : QStringLiteral("2.0"));
        ++montree;
        fiche.show();
        fiche.DeuxiemePoint = 1;
        fiche.close();
    });
    MontrerEtalonnage(banc.poste);
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 128, 130);
    MontrerEtalonnage(banc.poste);
    ReglerMontreur({});
    EXPECT_EQ(montree, 2);
    EXPECT_EQ(banc.Codes(), (std::vector<int>{9, 28, 26, 26, 9, 28, 26, 26}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

}  // namespace
}  // namespace bornika::essai
