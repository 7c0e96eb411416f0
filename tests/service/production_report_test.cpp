#include "service/production_report.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "service/dialog_fixture.h"
#include "service/production_form.h"
#include "support/fault_number.h"
#include "support/limits.h"
#include "ui_production_form.h"

namespace bornika::essai {
namespace {

// 8-bit text: \xB0 is the degree sign, \xE9 e acute, \xE8 e grave.
constexpr char blocSansEnregistreur[] =
    " \r\n"
    "------------------------------------------\r\n"
    "05/03/2026 14:07:09\r\n"
    " \r\n"
    "N\xB0 de commande CDE-17\r\n"
    " \r\n"
    "Version : k-Pod--\r\n"
    "N\xB0 de s\xE9rie : --\r\n"
    "Date courante : --\r\n"
    "Tension pile : --\r\n"
    "Capteur : 0 - 16 bar\r\n"
    " \r\n"
    "resume 1\r\n"
    "resume 2\r\n"
    "resume 3\r\n"
    "resume 4\r\n"
    "resume 5\r\n"
    "Commentaires (14 caract\xE8res)\r\n"
    "FORAGE 3\r\n"
    " \r\n"
    "joint chang\xE9\r\n"
    " \r\n";

struct Rapport : testing::Test {
    BancDialogue banc;
    MainScreen& ecran = banc.ecran;
    Ui::MainScreen& ui = banc.ui;
    frmProduction fiche{ecran};

    void SetUp() override {
        fiche.Preparer();
        fiche.show();
        int i = 0;
        for (QLabel* resume : {ui.ResumeAcquisition, ui.ResumeBuffer, ui.ResumeSeuil,
                               ui.ResumePeriodeTrigger, ui.ResumeMonoCoup})
            resume->setText(QStringLiteral("resume %1").arg(++i));
        ui.ListeEchelles->Choisir(0);
        ui.Commentaire->setText(QStringLiteral("FORAGE 3"));
        fiche.ui->Commande->setText(QStringLiteral("CDE-17"));
        fiche.ui->Commentaires->setPlainText(QStringLiteral("joint changé"));
    }
    void Imprimer() { BancDialogue::Cliquer(fiche.ui->PrintReport); }
    QByteArray Journal(const char* nom = "CDE-17.log") {
        return banc.etabli.Lire(QString::fromLatin1(nom));
    }
    void Poser(const QByteArray& contenu) {
        banc.etabli.Ecrire(QStringLiteral("CDE-17.log"), contenu);
    }
    /// Fault of the operation itself, with its text.
    FauteExecution Faute() {
        return FauteDe([this] { PrintReport(fiche); });
    }
};

TEST_F(Rapport, IsTwentyTwoLinesOfWhatTheMainFormShows) {
    Imprimer();
    EXPECT_EQ(Journal(), blocSansEnregistreur);
    EXPECT_EQ(Journal().count("\r\n"), 22);
}

TEST_F(Rapport, OfALoggerThatWasReadNamesProductAndVersion) {
    ui.Version->setText(QStringLiteral("(1) 2.110"));
    ui.NumeroSerie->setText(QStringLiteral("12345"));
    ui.DateCourante->setText(QStringLiteral("05/03/2026 14:06:58"));
    ui.TensionPile->setText(QStringLiteral("3.60 V."));
    ui.ListeEchelles->Choisir(2);
    Imprimer();
    QByteArray attendu = blocSansEnregistreur;
    attendu.replace("k-Pod--", "k-Pod 2.110");
    attendu.replace("N\xB0 de s\xE9rie : --", "N\xB0 de s\xE9rie : 12345");
    attendu.replace("Date courante : --", "Date courante : 05/03/2026 14:06:58");
    attendu.replace("Tension pile : --", "Tension pile : 3.60 V.");
    attendu.replace("0 - 16 bar", "0 - 2.5 bar");
    EXPECT_EQ(Journal(), attendu);
}

TEST_F(Rapport, OfAProductWithoutANameHasTheVersionAlone) {
    ui.Version->setText(QStringLiteral("(14) 2.110"));
    Imprimer();
    QByteArray attendu = blocSansEnregistreur;
    attendu.replace("k-Pod--", " 2.110");
    EXPECT_EQ(Journal(), attendu);
}

TEST_F(Rapport, OfALoggerThatWasChosenAndNotReadShowsTheLabelAsItStands) {
    ui.Version->setText(QStringLiteral("k-Pod 33 = 20 2-120"));
    ecran.etat.TypekPod = 20;
    Imprimer();
    EXPECT_TRUE(Journal().contains("Version : k-Pod 33 k-Pod 33 = 20 2-120\r\n"));
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(Rapport, InAFolderOfTheOtherEditionBearsItsNames) {
    ASSERT_TRUE(QDir(banc.etabli.systeme.dossier).mkdir(QStringLiteral("Z907")));
    banc.etabli.systeme.dossier += QStringLiteral("/Z907");
    Imprimer();
    EXPECT_TRUE(Journal().contains("Version : Z907PT--\r\n"));
}

TEST_F(Rapport, SpeaksTheLanguageOfTheMainFormAtThatMoment) {
    banc.Parler(QStringLiteral("English"));
    fiche.Preparer();
    Imprimer();
    const QByteArray journal = Journal();
    for (const char* ligne :
         {"Order number CDE-17", "Version : k-Pod--", "Serial number : --", "Current date : --",
          "Battery voltage : --", "Sensor : 0 - 16 bar", "Comments (14 characters)"})
        EXPECT_TRUE(journal.contains(QByteArray("\r\n") + ligne + "\r\n")) << ligne;
}

TEST_F(Rapport, TakesTheDateFormOfTheUser) {
    banc.etabli.systeme.regional.dateCourte = QStringLiteral("M/d/yyyy");
    EXPECT_EQ(LireRapport(fiche).date, QStringLiteral("3/5/2026 14:07:09"));
}

TEST_F(Rapport, KeepsTheLinesOfACommentAndWritesWhatTheCodePageLacksAsAQuestionMark) {
    fiche.ui->Commentaires->setPlainText(QStringLiteral("un\ndeux Ω"));
    Imprimer();
    EXPECT_TRUE(Journal().endsWith("\r\n \r\nun\r\ndeux ?\r\n \r\n"));
}

TEST_F(Rapport, OfTheSameOrderStandsBehindTheLastOne) {
    Imprimer();
    fiche.show();
    fiche.ui->Commentaires->setPlainText(QStringLiteral("second"));
    Imprimer();
    QByteArray second = blocSansEnregistreur;
    second.replace("joint chang\xE9", "second");
    EXPECT_EQ(Journal(), blocSansEnregistreur + second);
}

TEST_F(Rapport, NeverTouchesWhatALogFileHeldAlready) {
    Poser("ligne sans fin");
    Imprimer();
    EXPECT_EQ(Journal(), QByteArray("ligne sans fin") + blocSansEnregistreur);
}

TEST_F(Rapport, TakesANameWithTheExtensionAnywhereInItAsItStands) {
    fiche.ui->Commande->setText(QStringLiteral("CDE.LOG.17"));
    Imprimer();
    EXPECT_TRUE(Journal("CDE.LOG.17").contains("N\xB0 de commande CDE.LOG.17\r\n"));
    EXPECT_FALSE(banc.etabli.Fichiers().contains(QStringLiteral("CDE.LOG.17.log")));
}

TEST_F(Rapport, HidesTheFormAndKeepsItsTexts) {
    Imprimer();
    EXPECT_FALSE(fiche.isVisible());
    EXPECT_EQ(fiche.ui->Commande->text(), QStringLiteral("CDE-17"));
    EXPECT_EQ(fiche.ui->Commentaires->toPlainText(), QStringLiteral("joint changé"));
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.etabli.dialogues.demandes.empty());
}

TEST_F(Rapport, SendsTheLoggerNothing) {
    EnregistreurSimule& enregistreur = banc.bus.Brancher(EnregistreurSimule());
    ecran.etat.UsbID = enregistreur.identite.usb;
    Imprimer();
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_TRUE(enregistreur.lien.empty());
}

TEST_F(Rapport, WithoutAnOrderNumberAsksForTheFile) {
    fiche.ui->Commande->clear();
    const QString choisi = banc.etabli.Chemin(QStringLiteral("a part.txt"));
    banc.etabli.dialogues.AnnoncerEnregistrement(choisi);
    Imprimer();
    ASSERT_EQ(banc.etabli.dialogues.demandes.size(), 1U);
    const DemandeFichier& demande = banc.etabli.dialogues.demandes[0];
    EXPECT_EQ(demande.titre, QString());
    EXPECT_EQ(demande.nom, QString());
    EXPECT_EQ(demande.suffixe, QString());
    EXPECT_EQ(demande.filtre, QStringLiteral("Log Files (*.LOG)|*.LOG"));
    EXPECT_EQ(demande.dossier, banc.etabli.systeme.dossier);
    EXPECT_FALSE(demande.plusieurs);
    EXPECT_TRUE(demande.ajout);
    QByteArray attendu = blocSansEnregistreur;
    attendu.replace("CDE-17", "");
    EXPECT_EQ(Journal("a part.txt"), attendu);
    EXPECT_FALSE(fiche.isVisible());
}

TEST_F(Rapport, WithoutAnOrderNumberAndWithoutAFileWritesNothing) {
    fiche.ui->Commande->clear();
    const QStringList avant = banc.etabli.Fichiers();
    banc.etabli.dialogues.AnnoncerEnregistrement(std::nullopt);
    banc.etabli.dialogues.AnnoncerEnregistrement(QString());
    Imprimer();
    Imprimer();
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
    EXPECT_EQ(banc.etabli.dialogues.demandes.size(), 2U);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(fiche.isVisible());
}

TEST_F(Rapport, AnEmptyPathIsToldAndNothingIsWritten) {
    EXPECT_FALSE(EcrireRapport(ecran, QString(), LireRapport(fiche)));
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Exclamation);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, QStringLiteral("k-Pod"));
    EXPECT_EQ(boite.texte, QStringLiteral("Vous devez saisir un n° de commande"));
}

TEST_F(Rapport, OnAFullDiskNamesTheFileAndLeavesTheFormShown) {
    ASSERT_TRUE(
        QFile::link(QStringLiteral("/dev/full"), banc.etabli.Chemin(QStringLiteral("CDE-17.log"))));
    const FauteExecution faute = Faute();
    EXPECT_EQ(faute.numero(), 61);
    EXPECT_TRUE(faute.texte().startsWith(banc.etabli.Chemin(QStringLiteral("CDE-17.log : "))))
        << Clair(faute.texte());
    EXPECT_TRUE(fiche.isVisible());
}

TEST_F(Rapport, OfADiskThatFillsUpInTheMiddleLeavesOnlyWholeBlocks) {
    Imprimer();
    fiche.show();
    const QByteArray avant = Journal();
    FauteExecution faute(0);
    {
        const TailleLimitee limite(static_cast<rlim_t>(avant.size()) + 100);
        faute = Faute();
    }
    EXPECT_EQ(faute.numero(), 70);
    EXPECT_EQ(Journal(), avant);
    EXPECT_TRUE(fiche.isVisible());
}

TEST_F(Rapport, OfAReadOnlyLogIsAClearFaultAndLeavesItAsItIs) {
    Poser("ancien\r\n");
    const QString journal = banc.etabli.Chemin(QStringLiteral("CDE-17.log"));
    ASSERT_TRUE(QFile::setPermissions(journal, QFile::ReadOwner | QFile::ReadOther));
    ASSERT_TRUE(QFile::setPermissions(banc.etabli.systeme.dossier,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner |
                                          QFile::ReadOther | QFile::ExeOther));
    FauteExecution faute(0);
    {
        const SansPrivilege ordinaire;
        faute = Faute();
    }
    EXPECT_EQ(faute.numero(), 70);
    EXPECT_TRUE(faute.texte().startsWith(journal)) << Clair(faute.texte());
    EXPECT_EQ(Journal(), "ancien\r\n");
    EXPECT_TRUE(fiche.isVisible());
}

TEST_F(Rapport, OfAnOrderNumberThatCannotBeAFileNameIsAClearFault) {
    const std::pair<QString, int> cas[] = {{QStringLiteral("2026/17"), 76},
                                           {QString(300, u'9'), 52}};
    for (const auto& [commande, numero] : cas) {
        fiche.ui->Commande->setText(commande);
        const QStringList avant = banc.etabli.Fichiers();
        const FauteExecution faute = Faute();
        EXPECT_EQ(faute.numero(), numero) << Clair(commande);
        EXPECT_TRUE(faute.texte().contains(commande + QStringLiteral(".log : ")));
        EXPECT_EQ(banc.etabli.Fichiers(), avant);
    }
}

TEST_F(Rapport, TakesStrangeOrderNumbersAsTheyStand) {
    for (const char* nom : {" ", "a:b*?", "..", "N\xC2\xB0 <17>", "-x"}) {
        const QString commande = QString::fromUtf8(nom);
        fiche.ui->Commande->setText(commande);
        EXPECT_EQ(Faute().numero(), 0) << nom;
        EXPECT_EQ(banc.etabli.Lire(commande + QStringLiteral(".log")).count("\r\n"), 22) << nom;
    }
}

TEST(TexteProduit, JoinsTheNameOfTheTypeAndTheVersion) {
    const auto texte = [](const char* version, bool drapeau = false) {
        return Clair(TexteProduit(QString::fromLatin1(version), 5, drapeau));
    };
    EXPECT_EQ(texte("(1) 2.110"), "k-Pod 2.110");
    EXPECT_EQ(texte("(20) 2.120"), "k-Pod 33 2.120");
    EXPECT_EQ(texte("(14) 2.110"), " 2.110");
    EXPECT_EQ(texte("(99) 1.0"), "Generic k-Row 1.0");
    EXPECT_EQ(texte("--"), "k-Pod--");
    EXPECT_EQ(texte("(1) 2.110", true), "Z907PT 2.110");
    EXPECT_EQ(texte("--", true), "Z907PT--");
    EXPECT_EQ(texte("(1) 2.1(b) x"), "k-Pod 2.1(b");
}

TEST(TexteProduit, KeepsATextOfAnyOtherFormBehindTheNameOfTheChosenType) {
    EXPECT_EQ(Clair(TexteProduit(QStringLiteral("k-Tide = 5 2-110"), 5, false)),
              "k-Tide k-Tide = 5 2-110");
    EXPECT_EQ(Clair(TexteProduit(QStringLiteral("k-Pod = 1 2-110"), 1, true)),
              "Z907PT k-Pod = 1 2-110");
    EXPECT_EQ(Clair(TexteProduit(QStringLiteral("(x) 1"), 1, false)), "k-Pod (x) 1");
    EXPECT_EQ(Clair(TexteProduit(QString(), 1, false)), "k-Pod ");
}

TEST(CheminJournal, AddsTheExtensionUnlessItOccursInAnyCase) {
    const auto chemin = [](const char* commande) {
        return Clair(CheminJournal(QStringLiteral("/p"), QString::fromLatin1(commande)));
    };
    EXPECT_EQ(chemin("17"), "/p/17.log");
    EXPECT_EQ(chemin("17.log"), "/p/17.log");
    EXPECT_EQ(chemin("17.LOG"), "/p/17.LOG");
    EXPECT_EQ(chemin("a.Logistique"), "/p/a.Logistique");
    EXPECT_EQ(chemin("17log"), "/p/17log.log");
    EXPECT_EQ(chemin("17.txt"), "/p/17.txt.log");
}

}  // namespace
}  // namespace bornika::essai
