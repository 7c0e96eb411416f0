#include <gtest/gtest.h>

#include "app/program_fixture.h"
#include "service/about_form.h"
#include "service/gsm_form.h"
#include "service/production_form.h"
#include "shell/window_width.h"
#include "ui_about_form.h"
#include "ui_gsm_form.h"
#include "ui_production_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;

const QString journal = QStringLiteral("CDE-17.log");

/// The program with a logger that was chosen, its small dialogs opened from the menus.
struct SmallDialogs : testing::Test {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2110(maintenantSimule));

    void SetUp() override { ASSERT_TRUE(banc.Demarrer()); }

    /// Chooses a menu entry; the hand works on the form that opens.
    template <class Fiche>
    void Ouvrir(QAction* entree, const std::function<void(Fiche&)>& geste) {
        int vues = 0;
        banc.main = [&](QDialog& dialogue) {
            ++vues;
            geste(dynamic_cast<Fiche&>(dialogue));
        };
        ASSERT_TRUE(entree->isEnabled());
        entree->trigger();
        EXPECT_EQ(vues, 1);
    }
    void EcrireRapport(const char* commande = "CDE-17") {
        Ouvrir<frmProduction>(banc.ui().mnurapport, [&](frmProduction& fiche) {
            fiche.ui->Commande->setText(QString::fromLatin1(commande));
            fiche.ui->Commentaires->setPlainText(QStringLiteral("bon"));
            BancProgramme::Cliquer(fiche.ui->PrintReport);
        });
    }
};

TEST_F(SmallDialogs, TheReportTellsWhatTheMainFormShowsAfterAReading) {
    BancProgramme::Cliquer(banc.ui().Lire);
    const int trames = pod.journal.Total();
    EcrireRapport();
    EXPECT_EQ(pod.journal.Total(), trames);
    QList<QByteArray> lignes = banc.etabli.Lire(journal).split('\n');
    ASSERT_EQ(lignes.size(), 23);
    for (QByteArray& ligne : lignes)
        ligne.chop(1);
    const auto latin = [](const QLabel* etiquette) { return etiquette->text().toLatin1(); };
    const auto& ui = banc.ui();
    EXPECT_EQ(lignes[4], "N\xB0 de commande CDE-17");
    EXPECT_EQ(lignes[6], "Version : k-Pod 2.110");
    EXPECT_EQ(lignes[7], "N\xB0 de s\xE9rie : " + latin(ui.NumeroSerie));
    EXPECT_NE(ui.NumeroSerie->text(), QStringLiteral("--"));
    EXPECT_EQ(lignes[8], "Date courante : " + latin(ui.DateCourante));
    EXPECT_EQ(lignes[9], "Tension pile : " + latin(ui.TensionPile));
    EXPECT_TRUE(lignes[9].endsWith(" V."));
    EXPECT_EQ(lignes[10], "Capteur : " + ui.ListeEchelles->Texte().toLatin1());
    EXPECT_EQ(lignes[12], latin(ui.ResumeAcquisition));
    EXPECT_FALSE(lignes[12].isEmpty());
    EXPECT_EQ(lignes[13], latin(ui.ResumeBuffer));
    EXPECT_EQ(lignes[14], latin(ui.ResumeSeuil));
    EXPECT_EQ(lignes[15], latin(ui.ResumePeriodeTrigger));
    EXPECT_EQ(lignes[16], latin(ui.ResumeMonoCoup));
    EXPECT_EQ(lignes[18], ui.Commentaire->text().toLatin1());
    EXPECT_EQ(lignes[20], "bon");
}

TEST_F(SmallDialogs, TheReportOfALoggerThatWasNotReadIsNoFault) {
    const QString version = banc.ui().Version->text();
    ASSERT_FALSE(version.contains(QLatin1Char(')')));
    EcrireRapport();
    EXPECT_TRUE(banc.etabli.Lire(journal).contains("Version : k-Pod " + version.toLatin1() + "\r"));
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(SmallDialogs, AReportThatCannotBeWrittenEndsTheProgramAndNamesTheFile) {
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), banc.etabli.Chemin(journal)));
    EcrireRapport();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_TRUE(boite.texte.startsWith(QStringLiteral("Run-time error '61':")));
    EXPECT_TRUE(boite.texte.contains(banc.etabli.Chemin(journal)));
    EXPECT_EQ(banc.sorties, std::vector<int>{1});
}

TEST_F(SmallDialogs, AnOrderNumberWithASlashIsAClearFaultAndMakesNoFile) {
    const QStringList avant = banc.etabli.Fichiers();
    EcrireRapport("2026/17");
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(banc.etabli.dialogues.Boites()[0].texte.startsWith(
        QStringLiteral("Run-time error '76':\n\n") +
        banc.etabli.Chemin(QStringLiteral("2026/17.log"))));
    EXPECT_EQ(banc.etabli.Fichiers(), avant);
}

TEST_F(SmallDialogs, TheReportKeepsOrderAndCommentForTheNextLogger) {
    EcrireRapport();
    Ouvrir<frmProduction>(banc.ui().mnurapport, [&](frmProduction& fiche) {
        EXPECT_EQ(fiche.ui->Commande->text(), QStringLiteral("CDE-17"));
        EXPECT_EQ(fiche.ui->Commentaires->toPlainText(), QStringLiteral("bon"));
        BancProgramme::Cliquer(fiche.ui->PrintReport);
    });
    EXPECT_EQ(banc.etabli.Lire(journal).count("------------------------------------------\r\n"), 2);
}

TEST_F(SmallDialogs, TheGsmSettingsAreReachedInMaintenanceAndStored) {
    EXPECT_FALSE(banc.ui().mnuGSM->isVisible());
    FixerLargeur(banc.ecran(), true);
    ASSERT_TRUE(banc.ui().mnuGSM->isVisible());
    Ouvrir<GSM>(banc.ui().mnuGSM, [](GSM& fiche) {
        fiche.ui->ValeurImpulsion->setText(QStringLiteral("2.5"));
        BancProgramme::Cliquer(fiche.ui->Valider);
    });
    EXPECT_EQ(banc.ecran().configuration.LitConfig(QStringLiteral("valeur_impulsion")),
              QStringLiteral("2.5"));
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(SmallDialogs, TheAboutBoxOpensAndCloses) {
    Ouvrir<frmAbout>(banc.ui().mnuApropos, [](frmAbout& fiche) {
        EXPECT_EQ(fiche.windowTitle(), QStringLiteral("About BORNIKA k-Pod"));
        BancProgramme::Cliquer(fiche.ui->cmdOK);
        EXPECT_FALSE(fiche.isVisible());
    });
}

}  // namespace
}  // namespace bornika
