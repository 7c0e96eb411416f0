#include "shell/language_switch.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QSignalSpy>

#include "app/form_events.h"
#include "app/menu_events.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "support/fake_system.h"
#include "ui_main_screen.h"

namespace bornika::essai {

namespace {

const QString config = QStringLiteral("config.xml");
const QString francais = QStringLiteral("Français");
const QString anglais = QStringLiteral("English");

struct LanguageSwitch : testing::Test {
    essai::Etabli etabli;
    MainScreen ecran{etabli.systeme};
    Ui::MainScreen& ui = *ecran.ui;

    /// Makes a key unknown, in all languages or from a text of the file on.
    void Oublier(const QByteArray& cle, const QByteArray& aPartirDe = {}) {
        QByteArray fichier = etabli.Lire(config);
        const qsizetype debut = aPartirDe.isEmpty() ? 0 : fichier.lastIndexOf(aPartirDe);
        ASSERT_GE(debut, 0);
        QByteArray fin = fichier.mid(debut);
        ASSERT_TRUE(fin.contains("<Cle>" + cle + "</Cle>"));
        fin.replace("<Cle>" + cle + "</Cle>", "<Cle>oubli</Cle>");
        etabli.Ecrire(config, fichier.left(debut) + fin);
    }
    /// Gives a key another text in all languages.
    void Changer(const QByteArray& cle, const QByteArray& texte) {
        QByteArray fichier = etabli.Lire(config);
        const QByteArray marque = "<Cle>" + cle + "</Cle><Texte>";
        for (qsizetype i = 0; (i = fichier.indexOf(marque, i)) >= 0;) {
            i += marque.size();
            fichier.replace(i, fichier.indexOf("</Texte>", i) - i, texte);
        }
        etabli.Ecrire(config, fichier);
    }
};

}  // namespace

TEST_F(LanguageSwitch, FillsTheListsAndTheCaptionsAtTheStart) {
    ChangeTextes(ecran, anglais, true);
    EXPECT_EQ(ui.ListeLangues->Nombre(), 2);
    EXPECT_EQ(ecran.Langue(), anglais);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Nombre(), 19);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
    EXPECT_EQ(ui.ListeEchelles->Index(), 0);
    EXPECT_EQ(ui.ListeUnites->Texte(), QStringLiteral("bar"));
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("Read"));
    EXPECT_EQ(ui.Frame1->title(), QStringLiteral("Trigger"));
    EXPECT_EQ(ui.mnuFichier->title(), QStringLiteral("File"));
    EXPECT_EQ(ui.mnuconnect->text(), QStringLiteral("Select a logger"));
    EXPECT_EQ(ui.Label3->text(), QStringLiteral("Unit"));
}

TEST_F(LanguageSwitch, RaisesTheLanguageListsClickOnceAtTheStart) {
    const QSignalSpy clics(ui.ListeLangues, &ListeDeroulante::Clic);
    ChangeTextes(ecran, anglais, true);
    EXPECT_EQ(clics.count(), 1);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(clics.count(), 1);
}

TEST_F(LanguageSwitch, TakesTheFirstUnitForCountryCodesFrom3On) {
    ecran.etat.CodePays = 2;
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.ListeUnites->Index(), 1);
    ecran.etat.CodePays = 3;
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.ListeUnites->Index(), 0);
}

TEST_F(LanguageSwitch, BlanksACaptionAtTheFirstLookupOfItsKeyAndThenShowsTheDesignOne) {
    ChangeTextes(ecran, francais, true);
    EXPECT_EQ(ui.Check_advanced->text(), QStringLiteral("Options avancées"));
    Oublier("Check_advanced", "<Langue NOM=\"English\">");
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ui.Check_advanced->text(), QString());
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ui.Check_advanced->text(), QStringLiteral("Advanced Options"));
}

TEST_F(LanguageSwitch, AddsNoEntryForControlsWithoutCaption) {
    ChangeTextes(ecran, francais, true);
    ChangeTextes(ecran, anglais, false);
    const QByteArray fichier = etabli.Lire(config);
    for (const char* nom : {"Seuil1", "ListeUnites", "DTPicker1", "ProgressBar1", "Image1",
                            "ZoneIdentite", "PanneauService", "BarreMenus", "MainScreen"})
        EXPECT_FALSE(fichier.contains("<Cle>" + QByteArray(nom) + "</Cle>")) << nom;
}

TEST_F(LanguageSwitch, KeepsTheComputedDurationAndNeverLooksItUp) {
    ui.DureeEnregistrement->setText(QStringLiteral("1 Jour(s) 1 H 1 Mn "));
    ChangeTextes(ecran, anglais, true);
    EXPECT_EQ(ui.DureeEnregistrement->text(), QStringLiteral("1 Jour(s) 1 H 1 Mn "));
    EXPECT_FALSE(etabli.Lire(config).contains("<Cle>DureeEnregistrement</Cle>"));
}

TEST_F(LanguageSwitch, OverwritesTheLabelsThatShowValues) {
    for (QLabel* valeur :
         {ui.Version, ui.NumeroSerie, ui.TensionPile, ui.DateCourante, ui.ProchaineMesure,
          ui.DerniereMesure, ui.ValeurCapacite, ui.Infos, ui.SDCardState, ui.ResultatMesure})
        valeur->setText(QStringLiteral("read before"));
    ChangeTextes(ecran, anglais, false);
    for (const QLabel* valeur : {ui.Version, ui.NumeroSerie, ui.TensionPile, ui.DateCourante,
                                 ui.ProchaineMesure, ui.DerniereMesure, ui.ValeurCapacite})
        EXPECT_EQ(valeur->text(), QStringLiteral("--")) << valeur->objectName().toStdString();
    for (const QLabel* valeur : {ui.Infos, ui.SDCardState, ui.ResultatMesure})
        EXPECT_EQ(valeur->text(), QString()) << valeur->objectName().toStdString();
}

TEST_F(LanguageSwitch, PutsTheProductsNameIntoCaptions) {
    Changer("Lire", "k-Pod, K-POD, k-pod et k-Pod");
    ecran.etat.TypekPod = 19;
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("k-Pod 33, K-POD, k-pod et k-Pod 33"));
    for (const std::int32_t type : {0, 1, 5}) {
        ecran.etat.TypekPod = type;
        ChangeTextes(ecran, francais, false);
        EXPECT_EQ(ui.Lire->text(), QStringLiteral("k-Pod, K-POD, k-pod et k-Pod")) << type;
    }
}

TEST_F(LanguageSwitch, PutsTheOtherEditionsNamesWhenTheFolderTellsIt) {
    Changer("Lire", "k-Pod");
    ASSERT_TRUE(QDir(etabli.systeme.dossier).mkdir(QStringLiteral("Z907")));
    etabli.Ecrire(QStringLiteral("Z907/config.xml"), etabli.Lire(config));
    Systeme systeme = etabli.systeme;
    systeme.dossier += QStringLiteral("/Z907");
    MainScreen autre(systeme);
    autre.etat.TypekPod = 1;
    ChangeTextes(autre, francais, false);
    EXPECT_EQ(autre.ui->Lire->text(), QStringLiteral("Z907PT"));
    autre.etat.TypekPod = 20;
    ChangeTextes(autre, francais, false);
    EXPECT_EQ(autre.ui->Lire->text(), QStringLiteral("Z907FPT"));
}

TEST_F(LanguageSwitch, RefreshesTheTextsThatLaterOperationsUse) {
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ecran.textes.TexteValeursStockees, QStringLiteral("Values stored in file"));
    EXPECT_EQ(ecran.textes.TexteEcritureTerminee, QStringLiteral("Parameters written"));
    EXPECT_EQ(ecran.textes.TexteLectureTerminee, QStringLiteral("Parameters read"));
    EXPECT_EQ(ecran.textes.TexteAbsent, QStringLiteral("k-Pod not found"));
    EXPECT_EQ(ecran.textes.TexteAuDessus, QStringLiteral("Above"));
    EXPECT_EQ(ecran.textes.TexteAuDessous, QStringLiteral("Below"));
    EXPECT_EQ(ecran.textes.TexteEnDehors, QStringLiteral("Outside"));
    EXPECT_EQ(ecran.textes.TexteEnDedans, QStringLiteral("Inside"));
}

TEST_F(LanguageSwitch, RefreshesThresholdTextsOnlyForTheChosenNumberOfThresholds) {
    ui.PasDeSeuil->setChecked(true);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ecran.textes.TexteSeuil, QString());
    EXPECT_EQ(ecran.textes.TexteLimiteBasse, QString());
    ui.UnSeuil->setChecked(true);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ecran.textes.TexteSeuil, QStringLiteral("Valeur du seuil"));
    EXPECT_EQ(ecran.textes.TexteLimiteBasse, QString());
    ui.DeuxSeuils->setChecked(true);
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ecran.textes.TexteSeuil, QStringLiteral("Valeur du seuil"));
    EXPECT_EQ(ecran.textes.TexteLimiteBasse, QStringLiteral("Lower limit"));
    EXPECT_EQ(ecran.textes.TexteLimiteHaute, QStringLiteral("Upper limit"));
}

TEST_F(LanguageSwitch, NamesTheThresholdsWithTheUnit) {
    ui.UnSeuil->setChecked(true);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.LabelSeuil1->text(), QStringLiteral("Valeur du seuil (bar)"));
    EXPECT_EQ(ui.LabelSeuil2->text(), QStringLiteral("Seuil 2"));
    ui.DeuxSeuils->setChecked(true);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.LabelSeuil1->text(), QStringLiteral("Limite basse (bar)"));
    EXPECT_EQ(ui.LabelSeuil2->text(), QStringLiteral("Limite haute (bar)"));
    ui.PasDeSeuil->setChecked(true);
    ChangeTextes(ecran, francais, false);
    EXPECT_EQ(ui.LabelSeuil1->text(), QStringLiteral("Seuil 1"));
}

TEST_F(LanguageSwitch, GivesTheSenseOfTheTriggerItsOwnKeysBackWithTwoThresholds) {
    ui.DeuxSeuils->setChecked(true);
    ui.AuDessus->setText(QStringLiteral("Outside"));
    ChangeTextes(ecran, anglais, false);
    EXPECT_EQ(ui.AuDessus->text(), QStringLiteral("Above"));
    EXPECT_EQ(ui.AuDessous->text(), QStringLiteral("Below"));
}

TEST_F(LanguageSwitch, KeepsTheTimeFormatsFixedInEveryLanguage) {
    Changer("AMPM", "translated");
    for (const QString& langue : {francais, anglais}) {
        ChangeTextes(ecran, langue, false);
        EXPECT_EQ(ui.AMPM_0->text(), QStringLiteral("12h"));
        EXPECT_EQ(ui.AMPM_1->text(), QStringLiteral("24h"));
    }
}

TEST_F(LanguageSwitch, OpensWithoutAKnownLanguageAndIsRepairedByChoosingOne) {
    BrancherMenus(ecran);
    ChangeTextes(ecran, QStringLiteral("False"), true);
    EXPECT_EQ(ui.ListeLangues->Nombre(), 2);
    EXPECT_EQ(ui.ListeLangues->Index(), -1);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Nombre(), 0);
    EXPECT_TRUE(etabli.fautes.empty());
    ui.ListeLangues->Choisir(1);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
    EXPECT_EQ(ui.ListeUnites->Index(), 1);
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("Read"));
    EXPECT_TRUE(etabli.fautes.empty());
}

TEST_F(LanguageSwitch, ByHandResetsTheFormWritesTheSettingAndBuildsTheSummaryAgain) {
    BrancherFormulaire(ecran);
    BrancherMenus(ecran);
    ChangeTextes(ecran, francais, true);
    ecran.configuration.RemplitListe(francais, QStringLiteral("ListeTemps"), *ui.ListeTemps);
    ui.ListeTemps->setItemText(1, QStringLiteral("old language"));
    ui.ListePeriodeEchantillonage->Choisir(5);
    ui.ListeEchelles->Choisir(4);
    ui.ListeUnites->Choisir(2);
    ui.UnSeuil->setChecked(true);
    ui.Seuil1->setText(QStringLiteral("2"));
    ui.PressionAbsolue->setChecked(true);

    ui.ListeLangues->Choisir(1);

    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
    EXPECT_EQ(ui.ListeEchelles->Index(), 0);
    EXPECT_EQ(ui.ListeUnites->Index(), 1);
    EXPECT_EQ(ui.Seuil1->text(), QStringLiteral("0"));
    EXPECT_EQ(ui.Seuil2->text(), QStringLiteral("0"));
    EXPECT_FALSE(ui.PressionAbsolue->isChecked());
    EXPECT_EQ(ui.ListeTemps->TexteA(1), QStringLiteral("old language"));
    EXPECT_EQ(ecran.configuration.LitConfig(QStringLiteral("Langue")), anglais);
    EXPECT_EQ(ui.ResumeAcquisition->text(), QStringLiteral("  Acquisition every 1/8 second"));
    EXPECT_TRUE(etabli.fautes.empty());
}

TEST_F(LanguageSwitch, GoesOnWithTheNextControlWhenALookupFails) {
    ChangeTextes(ecran, francais, true);
    ui.Lire->setText(QStringLiteral("kept"));
    Oublier("Lire", "<Langue NOM=\"English\">");
    // An entry without key: a fault of every lookup that finds nothing before it.
    QByteArray fichier = etabli.Lire(config);
    fichier.insert(fichier.lastIndexOf("</Langue>"), "<Entree/>");
    etabli.Ecrire(config, fichier);
    EXPECT_NO_THROW(ChangeTextes(ecran, anglais, false));
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("kept"));
    EXPECT_EQ(ui.Ecrire->text(), QStringLiteral("Write"));
    EXPECT_EQ(ui.Sortir->text(), QStringLiteral("Quit"));
    EXPECT_EQ(ui.LabelNbMesures->text(), QStringLiteral("Measures before trigger"));
    EXPECT_EQ(ui.mnuApropos->text(), QStringLiteral("About"));
    EXPECT_EQ(etabli.Lire(config), fichier);
}

TEST_F(LanguageSwitch, LooksUpTheControlsInTheirOrderThenTheTextsOfLaterOperations) {
    QByteArray fichier = etabli.Lire(config);
    const qsizetype debut = fichier.indexOf("<Messages>");
    fichier.replace(debut, fichier.indexOf("</Messages>") - debut,
                    "<Messages><Langue NOM=\"Français\"><E><K>base</K><T/></E></Langue>");
    etabli.Ecrire(config, fichier);
    ui.DeuxSeuils->setChecked(true);
    QStringList attendues{QStringLiteral("base")};
    for (const QObject* controle : ControlesDe(ecran))
        if (aCaption(*controle) && controle != ui.DureeEnregistrement &&
            !attendues.contains(CleDe(*controle)))
            attendues << CleDe(*controle);
    EXPECT_TRUE(attendues.contains(QStringLiteral("AMPM")));
    for (const char* cle : {"Valeurs stockées dans le fichier", "Ecriture des paramètres terminées",
                            "Lecture des paramètres terminées", "k-Pod absent", "Limite basse",
                            "Limite Haute", "Au dessus", "Au dessous", "En dehors", "En dedans"})
        attendues << QString::fromUtf8(cle);

    ChangeTextes(ecran, francais, false);

    QStringList trouvees;
    const QString apres = QString::fromUtf8(etabli.Lire(config));
    for (qsizetype i = 0; (i = apres.indexOf(QLatin1String("<K>"), i)) >= 0; i += 3)
        trouvees << apres.mid(i + 3, apres.indexOf(QLatin1String("</K>"), i) - i - 3);
    EXPECT_EQ(trouvees, attendues);
}

TEST_F(LanguageSwitch, GivesOperationsTheTextOfTheLanguageAndProductOfTheMoment) {
    ChangeTextes(ecran, francais, true);
    EXPECT_EQ(ecran.Texte(QStringLiteral("k-Pod Absent")), QStringLiteral("k-Pod absent"));
    ui.ListeLangues->Choisir(1);
    ecran.etat.TypekPod = 20;
    EXPECT_EQ(ecran.Texte(QStringLiteral("k-Pod Absent")), QStringLiteral("k-Pod 33 not found"));
    ecran.Texte(QStringLiteral("Nouvelle"), QStringLiteral("New"));
    EXPECT_EQ(ecran.Texte(QStringLiteral("Nouvelle")), QStringLiteral("New"));
}

TEST_F(LanguageSwitch, LeavesTheFormUsableWhenTheFileIsGone) {
    ChangeTextes(ecran, francais, true);
    ui.Lire->setText(QStringLiteral("kept"));
    // Without the lists' own fault: the walk meets a file that has gone.
    QObject::connect(ui.ListeUnites, &ListeDeroulante::Clic,
                     [this] { QFile::remove(etabli.Chemin(config)); });
    // The walk ignores it; the texts of later operations do not.
    EXPECT_THROW(ChangeTextes(ecran, anglais, false), FauteExecution);
    EXPECT_EQ(ui.Lire->text(), QStringLiteral("kept"));
    EXPECT_TRUE(ecran.updatesEnabled());
}

}  // namespace bornika::essai
