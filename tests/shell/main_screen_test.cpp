#include "shell/main_screen.h"

#include <gtest/gtest.h>

#include <QLayout>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>

#include "shell/captions.h"
#include "shell/family_rule.h"
#include "shell/window_width.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {
using essai::Etabli;

namespace {

// Every name that operations, texts and help lean on, by kind of control.
const char* const boutons[] = {"Sortir",
                               "Lire",
                               "Ecrire",
                               "LireValeurs",
                               "LireSD",
                               "VoirLesValeurs",
                               "DateDemarrage",
                               "CommandCorrection",
                               "LireLaFlash",
                               "EcrireLaFlash",
                               "LireEeprom",
                               "LireValeursPage",
                               "ProgNumeroSerie",
                               "RAZNumeroSerie",
                               "Command2",
                               "TestDebitON",
                               "TestDebitOFF",
                               "Test",
                               "LireValeurDetectionCapteur"};
const char* const listes[] = {"ListeLangues",   "ListePeriodeEchantillonage",
                              "PeriodeTrigger", "ListeEchelles",
                              "ListeUnites",    "ListeTemps"};
const char* const options[] = {"AMPM_0",     "AMPM_1",         "AuDessus",
                               "AuDessous",  "PasDeSeuil",     "UnSeuil",
                               "DeuxSeuils", "BufferTournant", "BufferNonTournant"};
const char* const cases[] = {"Check_advanced", "OneShot", "PressionAbsolue"};
const char* const cadres[] = {"Frame1",          "Frame2",          "Frame3",
                              "Frame4",          "Frame5",          "FrameTest",
                              "FrameCapteur",    "FrameFlash",      "FrameSerie",
                              "FramePrecaution", "FrameCorrection", "FrameFlowParameter"};
const char* const saisies[] = {"DureeSaisie",
                               "Seuil1",
                               "Seuil2",
                               "Commentaire",
                               "NbMesures",
                               "CoefImpulsion",
                               "UniteImpulsion",
                               "ValeurCorrection_0",
                               "ValeurCorrection_1",
                               "page",
                               "offset",
                               "resultat",
                               "PageDebut",
                               "PageFin",
                               "PageEcriture",
                               "BufferEcriture",
                               "PageLecture",
                               "BufferLecture",
                               "ValeurNumeroSerie",
                               "Valeurcodetest",
                               "Mesuretest",
                               "ValeurDetectionCapteur"};
const char* const etiquettes[] = {"Label1",
                                  "Label3",
                                  "LabelPeriodeEchantillonnage",
                                  "Label5",
                                  "Label8",
                                  "Label10",
                                  "LabelSeuil1",
                                  "LabelSeuil2",
                                  "LabelNumeroSerie",
                                  "LabelVersion",
                                  "LabelTensionPile",
                                  "LabelDateCourante",
                                  "LabelCommentaire",
                                  "LabelProchaineMesure",
                                  "LabelNbMesures",
                                  "Capacite",
                                  "Labelcorrection",
                                  "labelecart",
                                  "codetest",
                                  "ResultatTest",
                                  "LabelCoefImpulsion",
                                  "LabelUniteImpulsion",
                                  "LabelSlash",
                                  "Version",
                                  "NumeroSerie",
                                  "TensionPile",
                                  "ProchaineMesure",
                                  "DateCourante",
                                  "DerniereMesure",
                                  "ValeurCapacite",
                                  "NbReset",
                                  "DateDernierReset",
                                  "SDCardState",
                                  "Infos",
                                  "ResultatMesure",
                                  "ResumeAcquisition",
                                  "ResumeBuffer",
                                  "ResumeSeuil",
                                  "ResumePeriodeTrigger",
                                  "ResumeMonoCoup",
                                  "DureeEnregistrement",
                                  "LabelPage",
                                  "LabelOffset",
                                  "LabelResultat",
                                  "LabelPageDebut",
                                  "LabelPageFin",
                                  "LabelPageEcriture",
                                  "LabelBufferEcriture",
                                  "LabelPageLecture",
                                  "LabelBufferLecture",
                                  "LabelValeurNumeroSerie",
                                  "LabelNbReset",
                                  "LabelDateDernierReset",
                                  "LabelLangue",
                                  "Image1"};
const char* const entrees[] = {"mnuconnect",      "mnuEtalonnage", "mnurapport",  "nmuBootLoad",
                               "mnuChargeRapide", "mnuModeAvance", "MnuModeAide", "MnuSplash",
                               "MnuFlowTest",     "mnuGSM",        "mnuApropos"};
const char* const barres[] = {"ProgressBar1", "ProgressBar2", "ProgressBar3"};
const char* const dates[] = {"DTPicker1", "DTPicker2"};
const char* const menus[] = {"mnuFichier", "mnuOutils", "mnuOptions", "mnuAide"};

template <class Genre, class Noms>
void Verifier(QWidget& fiche, const Noms& noms) {
    for (const char* nom : noms)
        EXPECT_EQ(fiche.findChildren<Genre*>(QString::fromLatin1(nom)).size(), 1) << nom;
}

struct Ecran : testing::Test {
    Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;

    QString Depart(const char* nom) {
        return CaptionDeDepart(*ecran.findChild<QObject*>(QString::fromLatin1(nom)));
    }
    void Afficher() {
        ecran.show();
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents();
    }
};

}  // namespace

using MainScreenForm = Ecran;

TEST_F(MainScreenForm, HasEveryControlOnceByItsNameAndKind) {
    Verifier<QPushButton>(ecran, boutons);
    Verifier<ListeDeroulante>(ecran, listes);
    Verifier<QRadioButton>(ecran, options);
    Verifier<QCheckBox>(ecran, cases);
    Verifier<QGroupBox>(ecran, cadres);
    Verifier<QLineEdit>(ecran, saisies);
    Verifier<QLabel>(ecran, etiquettes);
    Verifier<QAction>(ecran, entrees);
    Verifier<QMenu>(ecran, menus);
    Verifier<BarreProgression>(ecran, barres);
    Verifier<QDateTimeEdit>(ecran, dates);
}

TEST_F(MainScreenForm, HasNoControlWithATextThatTheListsDoNotKnow) {
    const auto compte = [](const auto& noms) { return std::size(noms); };
    const std::size_t attendus = compte(boutons) + compte(options) + compte(cases) +
                                 compte(cadres) + compte(etiquettes) + compte(entrees) +
                                 compte(menus) - 1;  // the picture has no text
    const auto controles = ControlesDe(ecran);
    EXPECT_EQ(static_cast<std::size_t>(
                  std::ranges::count_if(controles, [](QObject* c) { return aCaption(*c); })),
              attendus);
}

TEST_F(MainScreenForm, CarriesItsDesignCaptions) {
    EXPECT_EQ(Depart("Sortir"), QStringLiteral("Quitter l'application"));
    EXPECT_EQ(Depart("DateDemarrage"), QStringLiteral("Démarrage immédiat"));
    EXPECT_EQ(Depart("CommandCorrection"), QStringLiteral("Apply Correction"));
    EXPECT_EQ(Depart("Command2"), QStringLiteral("Lire les resets"));
    EXPECT_EQ(Depart("Check_advanced"), QStringLiteral("Advanced Options"));
    EXPECT_EQ(Depart("LabelSeuil1"), QStringLiteral("Seuil 1 (bar)"));
    EXPECT_EQ(Depart("LabelSeuil2"), QStringLiteral("Seuil2 (bar)"));
    EXPECT_EQ(Depart("DeuxSeuils"), QStringLiteral("Bande"));
    EXPECT_EQ(Depart("FrameFlowParameter"), QStringLiteral("Flow Parameters"));
    EXPECT_EQ(Depart("FrameTest"), QStringLiteral("Auto Test"));
    EXPECT_EQ(Depart("LabelCommentaire"), QStringLiteral("Commentaires (14 caractères)"));
    const std::pair<const char*, const char*> autres[] = {
        {"OneShot", "Mono-coup"},
        {"PressionAbsolue", "Pression absolue"},
        {"AMPM_0", "12h"},
        {"AMPM_1", "24h"},
        {"AuDessus", "Au dessus"},
        {"AuDessous", "Au dessous"},
        {"PasDeSeuil", "Pas de seuil"},
        {"UnSeuil", "Seuil"},
        {"BufferTournant", "Buffer tournant"},
        {"BufferNonTournant", "Buffer non tournant"},
        {"TestDebitON", "Test Debit ON"},
        {"TestDebitOFF", "Test Debit OFF"},
        {"Test", "Test"},
        {"LireValeurDetectionCapteur", "Lire Valeur Detection Capteur"},
        {"codetest", "Code du test"},
        {"ResultatTest", "Mesure Test (points)"},
        {"Labelcorrection", "Time Correction (s)"},
        {"LabelCoefImpulsion", "Coefficient de l'impulsion"},
        {"LabelUniteImpulsion", "Unité de l'impulsion"},
        {"Label1", "Capteur"},
        {"LabelDateCourante", "Date courante"},
        {"Version", "--"}};
    for (const auto& [nom, caption] : autres)
        EXPECT_EQ(Depart(nom), QString::fromUtf8(caption)) << nom;
    EXPECT_EQ(ui.CoefImpulsion->text(), QStringLiteral("100"));
    EXPECT_EQ(ui.UniteImpulsion->text(), QStringLiteral("Gallon"));
}

TEST_F(MainScreenForm, HoldsEachSetUpControlInItsFrame) {
    for (QWidget* c : std::initializer_list<QWidget*>{
             ui.ListeEchelles, ui.ListeUnites, ui.ListePeriodeEchantillonage, ui.DureeSaisie,
             ui.DTPicker1, ui.DTPicker2, ui.AMPM_0, ui.AMPM_1, ui.DureeEnregistrement,
             ui.DerniereMesure, ui.Label5})
        EXPECT_TRUE(ui.Frame5->isAncestorOf(c)) << c->objectName().toStdString();
    for (QWidget* c : std::initializer_list<QWidget*>{
             ui.Seuil1, ui.Seuil2, ui.LabelSeuil1, ui.LabelSeuil2, ui.AuDessus, ui.AuDessous,
             ui.OneShot, ui.PeriodeTrigger, ui.PressionAbsolue})
        EXPECT_TRUE(ui.Frame1->isAncestorOf(c)) << c->objectName().toStdString();
    for (QWidget* c : {ui.PasDeSeuil, ui.UnSeuil, ui.DeuxSeuils})
        EXPECT_TRUE(ui.Frame3->isAncestorOf(c));
    for (QWidget* c : {ui.BufferTournant, ui.BufferNonTournant})
        EXPECT_TRUE(ui.Frame2->isAncestorOf(c));
    EXPECT_TRUE(ui.Frame4->isAncestorOf(ui.Commentaire));
    for (QWidget* c : std::initializer_list<QWidget*>{ui.CoefImpulsion, ui.UniteImpulsion,
                                                      ui.ListeTemps, ui.LabelCoefImpulsion,
                                                      ui.LabelUniteImpulsion, ui.LabelSlash})
        EXPECT_TRUE(ui.FrameFlowParameter->isAncestorOf(c)) << c->objectName().toStdString();
    for (QWidget* c :
         std::initializer_list<QWidget*>{ui.NbMesures, ui.DateDemarrage, ui.Check_advanced})
        for (QWidget* cadre : {ui.Frame1, ui.Frame2, ui.Frame3, ui.Frame4, ui.Frame5})
            EXPECT_FALSE(cadre->isAncestorOf(c)) << c->objectName().toStdString();
}

TEST_F(MainScreenForm, OffersOnlyWhatItCanDo) {
    FixerLargeur(ecran, true);  // what is hidden is disabled too
    for (const QPushButton* bouton :
         {ui.Lire, ui.Ecrire, ui.LireEeprom, ui.LireValeursPage, ui.LireValeurs, ui.LireSD,
          ui.VoirLesValeurs, ui.DateDemarrage, ui.Sortir, ui.CommandCorrection, ui.LireLaFlash,
          ui.EcrireLaFlash, ui.TestDebitON, ui.TestDebitOFF, ui.ProgNumeroSerie, ui.RAZNumeroSerie,
          ui.Command2, ui.Test, ui.LireValeurDetectionCapteur})
        EXPECT_TRUE(bouton->isEnabled()) << bouton->objectName().toStdString();
    for (const QAction* entree :
         {ui.mnuEtalonnage, ui.nmuBootLoad, ui.mnurapport, ui.mnuGSM, ui.mnuApropos})
        EXPECT_TRUE(entree->isEnabled() && !entree->isCheckable())
            << entree->objectName().toStdString();
    for (const QAction* entree :
         {ui.mnuChargeRapide, ui.mnuModeAvance, ui.MnuModeAide, ui.MnuSplash, ui.MnuFlowTest})
        EXPECT_TRUE(entree->isEnabled() && entree->isCheckable() && !entree->isChecked())
            << entree->objectName().toStdString();
}

TEST_F(MainScreenForm, ShowsItsPicture) {
    EXPECT_FALSE(ui.Image1->pixmap().isNull());
    EXPECT_FALSE(aCaption(*ui.Image1));
    for (const char* nom : {"main", "splash", "about", "icon"})
        EXPECT_FALSE(QPixmap(QStringLiteral(":/images/%1.png").arg(QLatin1String(nom))).isNull())
            << nom;
}

TEST_F(MainScreenForm, StartsWithItsSetUpFramesHidden) {
    for (QWidget* cadre :
         {ui.Frame1, ui.Frame2, ui.Frame3, ui.Frame4, ui.Frame5, ui.FrameFlowParameter})
        EXPECT_TRUE(cadre->isHidden()) << cadre->objectName().toStdString();
    EXPECT_FALSE(ui.Check_advanced->isChecked());
}

TEST_F(MainScreenForm, ChoosesOneOptionOfEachGroupWithoutTouchingTheOthers) {
    for (QRadioButton* option :
         {ui.AMPM_0, ui.AuDessus, ui.PasDeSeuil, ui.BufferTournant, ui.AMPM_1, ui.AuDessous})
        option->setChecked(true);
    ui.DeuxSeuils->setChecked(true);
    EXPECT_TRUE(ui.AMPM_1->isChecked());
    EXPECT_FALSE(ui.AMPM_0->isChecked());
    EXPECT_TRUE(ui.AuDessous->isChecked());
    EXPECT_FALSE(ui.AuDessus->isChecked());
    EXPECT_TRUE(ui.DeuxSeuils->isChecked());
    EXPECT_FALSE(ui.PasDeSeuil->isChecked());
    EXPECT_TRUE(ui.BufferTournant->isChecked());
}

TEST_F(MainScreenForm, GivesControlsOfAnArrayOneKey) {
    EXPECT_EQ(CleDe(*ui.AMPM_0), QStringLiteral("AMPM"));
    EXPECT_EQ(CleDe(*ui.AMPM_1), QStringLiteral("AMPM"));
    EXPECT_EQ(CleDe(*ui.ValeurCorrection_0), QStringLiteral("ValeurCorrection"));
    EXPECT_EQ(CleDe(*ui.ValeurCorrection_1), QStringLiteral("ValeurCorrection"));
    EXPECT_EQ(CleDe(*ui.Seuil1), QStringLiteral("Seuil1"));
}

TEST_F(MainScreenForm, WalksNoPartThatTheToolkitMadeInsideAControl) {
    for (QObject* controle : ControlesDe(ecran)) {
        EXPECT_FALSE(controle->objectName().startsWith(QLatin1String("qt_")));
        EXPECT_EQ(ecran.findChildren<QObject*>(controle->objectName()).size(), 1)
            << controle->objectName().toStdString();
    }
}

TEST_F(MainScreenForm, KeepsAnAmpersandOfATextAsACharacter) {
    for (QObject* controle : std::initializer_list<QObject*>{ui.Lire, ui.Infos, ui.Frame1,
                                                             ui.mnuFichier, ui.mnuconnect}) {
        FixerCaption(*controle, QStringLiteral("A & B && C&"));
        EXPECT_EQ(Caption(*controle), QStringLiteral("A & B && C&"))
            << controle->objectName().toStdString();
    }
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("A && B &&&& C&&"));
    EXPECT_EQ(ui.Infos->text(), QStringLiteral("A & B && C&"));
}

TEST_F(MainScreenForm, TakesNoMoreOfACommentThanALoggerKeeps) {
    ui.Frame4->show();
    Afficher();
    QTest::keyClicks(ui.Commentaire, QStringLiteral("FORAGE NORD 3 BIS"));
    EXPECT_EQ(ui.Commentaire->text(), QStringLiteral("FORAGE NORD 3 "));
}

TEST_F(MainScreenForm, TellsThatItIsBeingClosed) {
    const QSignalSpy fermeture(&ecran, &MainScreen::Fermeture);
    ecran.close();
    EXPECT_TRUE(ecran.etat.EnFermeture);
    EXPECT_EQ(fermeture.count(), 1);
}

using WindowWidth = Ecran;

TEST_F(WindowWidth, IsNarrowOrWideAtEachCall) {
    FixerLargeur(ecran, true);
    Afficher();
    EXPECT_EQ(ecran.width(), 957);
    FixerLargeur(ecran, false);
    EXPECT_EQ(ecran.width(), 620);
    FixerLargeur(ecran, true);
    EXPECT_EQ(ecran.width(), 957);
}

TEST_F(WindowWidth, KeepsTheServiceControlsOutOfReachUnlessInMaintenance) {
    Afficher();
    FixerLargeur(ecran, false);
    EXPECT_FALSE(ui.page->isVisible());
    EXPECT_FALSE(ui.LireLaFlash->isVisible());
    QWidget* saisie = ui.DateDemarrage;
    for (int i = 0; i < 200; ++i) {
        saisie = saisie->nextInFocusChain();
        EXPECT_FALSE(saisie->isVisible() && ui.PanneauService->isAncestorOf(saisie));
    }
    FixerLargeur(ecran, true);
    EXPECT_TRUE(ui.page->isVisible());
    for (const char* nom : {"FrameTest", "LireLaFlash", "PageEcriture", "ValeurNumeroSerie",
                            "ValeurCorrection_1", "TestDebitON", "ValeurDetectionCapteur"})
        EXPECT_TRUE(
            ui.PanneauService->isAncestorOf(ecran.findChild<QWidget*>(QString::fromLatin1(nom))))
            << nom;
}

TEST_F(WindowWidth, OffersTheGsmSettingsInMaintenanceAlone) {
    EXPECT_FALSE(ui.mnuGSM->isVisible());
    FixerLargeur(ecran, true);
    EXPECT_TRUE(ui.mnuGSM->isVisible());
    EXPECT_TRUE(ui.mnuOutils->actions().contains(ui.mnuGSM));
    FixerLargeur(ecran, false);
    EXPECT_FALSE(ui.mnuGSM->isVisible());
}

TEST_F(WindowWidth, LetsNoTextOfAValueWidenTheForm) {
    FixerLargeur(ecran, false);
    Afficher();
    const QString long_(300, u'W');
    for (QLabel* etiquette : {ui.Infos, ui.ResumeAcquisition, ui.Version, ui.DateCourante,
                              ui.SDCardState, ui.NumeroSerie})
        etiquette->setText(long_);
    Afficher();
    EXPECT_EQ(ecran.width(), 620);
}

TEST_F(WindowWidth, ShowsTheWholeSetUpOnAnOrdinaryScreen) {
    for (QWidget* cadre :
         {ui.Frame1, ui.Frame2, ui.Frame3, ui.Frame4, ui.Frame5, ui.FrameFlowParameter})
        cadre->show();
    ecran.etat.TypekPod = 20;
    AppliqueFamille(ecran);
    FixerLargeur(ecran, false);
    Afficher();
    EXPECT_EQ(ecran.width(), 620);
    EXPECT_LE(ecran.height(), 860);
    const int haute = ecran.height();
    for (QWidget* cadre :
         {ui.Frame1, ui.Frame2, ui.Frame3, ui.Frame4, ui.Frame5, ui.FrameFlowParameter})
        cadre->hide();
    FixerLargeur(ecran, false);
    EXPECT_LT(ecran.height(), haute - 200);
}

TEST(ApplicationState, TakesTheCapacityOfTheThreeKnownSizeCodes) {
    EtatApplication etat;
    EXPECT_EQ(etat.CapaciteMemoire, 540606);
    AppliquerTaille(etat, 1);
    EXPECT_EQ(etat.CapaciteMemoire, 135135);
    AppliquerTaille(etat, 2);
    EXPECT_EQ(etat.CapaciteMemoire, 270270);
    for (const int inconnu : {3, 0, -1, 5})
        AppliquerTaille(etat, inconnu);
    EXPECT_EQ(etat.CapaciteMemoire, 270270);
    AppliquerTaille(etat, 4);
    EXPECT_EQ(etat.CapaciteMemoire, 540606);
}

}  // namespace bornika::essai
