// The road of a technician whose logger records to a card: choose it, import its files, look.

#include <gtest/gtest.h>

#include <QDir>

#include "app/demo_bus.h"
#include "app/program_fixture.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;
using essai::nomSelonHorloge;

const QChar nul = u'\0';

struct CardRoad : testing::Test {
    BancProgramme banc;

    void SetUp() override {
        for (auto& enregistreur : simulateur::FamilleDemo(maintenantSimule))
            banc.bus.Brancher(std::move(enregistreur));
        PoserCarteDeDemonstration(banc.etabli.systeme);
        banc.etabli.respiration.ReglerPas(std::chrono::milliseconds(5));
    }
    /// Starts with the k-Pod 33 of the demo family, or with another line of the list.
    void Demarrer(int ligne = 2) { ASSERT_TRUE(banc.Demarrer(ligne)); }
    QString Carte() { return banc.etabli.Chemin(QStringLiteral("CARD")); }
    void Importer(const QString& choix) {
        banc.etabli.dialogues.AnnoncerOuverture(choix);
        BancProgramme::Cliquer(banc.ui().LireSD);
    }
};

TEST_F(CardRoad, ChooseImportTwoFilesAndSeeOneCurve) {
    Demarrer();
    EXPECT_TRUE(banc.ui().LireSD->isVisible());
    EXPECT_TRUE(banc.ui().LireSD->isEnabled());
    EXPECT_FALSE(banc.ui().LireValeurs->isVisible());
    Importer(Carte() + nul + QStringLiteral("LOG00001.TXT") + nul + QStringLiteral("LOG00002.TXT"));

    const QByteArray fichier = banc.etabli.Lire(nomSelonHorloge + QStringLiteral(".txt"));
    EXPECT_EQ(fichier, banc.etabli.Lire(QStringLiteral("CARD/LOG00001.TXT")) +
                           banc.etabli.Lire(QStringLiteral("CARD/LOG00002.TXT")));
    EXPECT_EQ(banc.ecran().windowTitle(), Carte());
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].titre, QStringLiteral("k-Pod 33"));
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].texte,
              QStringLiteral("Valeurs stockées dans le fichier ") + nomSelonHorloge +
                  QStringLiteral(".txt"));

    Trace* trace = banc.programme->trace.Presente();
    ASSERT_NE(trace, nullptr);
    EXPECT_TRUE(trace->isVisible());
    EXPECT_FALSE(trace->ui->TChart1->isHidden());
    EXPECT_EQ(trace->modele.Serie(0).Nombre(), fichier.count("\r\n") - 2);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST_F(CardRoad, AFileThatCannotBeReadEndsTheProgramInGoodOrder) {
    Demarrer();
    Importer(Carte() + QStringLiteral("/GONE.TXT"));
    EXPECT_EQ(banc.sorties, std::vector<int>({1}));
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].icone, Icone::Critique);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].texte,
              QStringLiteral("Run-time error '53':\n\nGONE.TXT : File not found"));
    EXPECT_TRUE(banc.etabli.Fichiers().filter(nomSelonHorloge).isEmpty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST_F(CardRoad, TheLogOfStartsAndACancelLeaveTheFormAsItWas) {
    Demarrer();
    const QString titre = banc.ecran().windowTitle();
    Importer(Carte() + QStringLiteral("/STARTLOG.TXT"));
    banc.etabli.dialogues.AnnoncerOuverture(std::nullopt);
    BancProgramme::Cliquer(banc.ui().LireSD);
    EXPECT_EQ(banc.etabli.dialogues.demandes.size(), 2U);
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.ecran().windowTitle(), titre);
    EXPECT_EQ(banc.programme->trace.Presente(), nullptr);
}

TEST_F(CardRoad, AFolderNamedAsTheLogOfStartsStopsTheImportToo) {
    Demarrer();
    const QDir programme(banc.etabli.systeme.dossier);
    ASSERT_TRUE(programme.mkdir(QStringLiteral("startlog")));
    banc.etabli.Ecrire(QStringLiteral("startlog/LOG00001.TXT"),
                       banc.etabli.Lire(QStringLiteral("CARD/LOG00001.TXT")));
    Importer(programme.filePath(QStringLiteral("startlog/LOG00001.TXT")));
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    EXPECT_TRUE(banc.etabli.Fichiers().filter(nomSelonHorloge).isEmpty());
    EXPECT_EQ(banc.programme->trace.Presente(), nullptr);
}

TEST_F(CardRoad, TheRecordingIsWholeAndTheCaptionSetWhileTheBoxStandsAndTheCurveComesAfter) {
    Demarrer();
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
    int boites = 0;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        ++boites;
        EXPECT_EQ(banc.etabli.Lire(nomSelonHorloge + QStringLiteral(".txt")),
                  banc.etabli.Lire(QStringLiteral("CARD/LOG00002.TXT")));
        EXPECT_EQ(banc.ecran().windowTitle(), Carte() + QStringLiteral("/LOG00002.TXT"));
        EXPECT_EQ(banc.programme->trace.Presente(), nullptr);
    };
    Importer(Carte() + QStringLiteral("/LOG00002.TXT"));
    EXPECT_EQ(boites, 1);
    EXPECT_NE(banc.programme->trace.Presente(), nullptr);
}

TEST_F(CardRoad, TheNextImportTakesThePlaceOfTheCurveThatIsShown) {
    Demarrer();
    for (const char* nom : {"LOG00001.TXT", "LOG00002.TXT"}) {
        const QString fichier = QStringLiteral("CARD/") + QString::fromLatin1(nom);
        banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Valeurs stockées"));
        Importer(banc.etabli.Chemin(fichier));
        EXPECT_EQ(banc.programme->trace.Presente()->modele.Serie(0).Nombre(),
                  banc.etabli.Lire(fichier).count("\r\n") - 1)
            << nom;
    }
}

TEST(CardWithoutItsLogger, IsImportedForTheProductThatWasChosenByHand) {
    BancProgramme banc;
    PoserCarteDeDemonstration(banc.etabli.systeme);
    banc.main = [](QDialog& dialogue) {
        if (auto* quitter = dialogue.findChild<QWidget*>(QStringLiteral("ExitEtalonnage"))) {
            BancProgramme::Cliquer(quitter);
            return;
        }
        BancProgramme::Cliquer(dialogue.findChild<QWidget*>(QStringLiteral("TypekPod_3")));
        BancProgramme::Cliquer(dialogue.findChild<QWidget*>(QStringLiteral("Selection")));
    };
    ASSERT_TRUE(banc.Demarrer(-1));
    ASSERT_TRUE(banc.ui().LireSD->isVisible());
    banc.etabli.dialogues.AnnoncerOuverture(
        banc.etabli.Chemin(QStringLiteral("CARD/LOG00001.TXT")));
    BancProgramme::Cliquer(banc.ui().LireSD);
    EXPECT_EQ(banc.etabli.Lire(nomSelonHorloge + QStringLiteral(".txt")),
              banc.etabli.Lire(QStringLiteral("CARD/LOG00001.TXT")));
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites()[0].titre, QStringLiteral("k-Pod 33"));
    EXPECT_NE(banc.programme->trace.Presente(), nullptr);
}

TEST_F(CardRoad, TheTwoFamiliesSendEachOtherAway) {
    // A card logger of an old version is read by cable, a flash logger of a new one by its card.
    banc.bus.Brancher(simulateur::Simple(19, 2, 100, maintenantSimule));
    banc.bus.Brancher(simulateur::KPod2110(maintenantSimule));
    Demarrer(4);
    BancProgramme::Cliquer(banc.ui().LireSD);
    banc.main = [](QDialog& dialogue) { BancProgramme::ChoisirLigne(dialogue, 5); };
    banc.ui().mnuconnect->trigger();
    const std::size_t avant = banc.etabli.dialogues.Boites().size();
    BancProgramme::Cliquer(banc.ui().LireValeurs);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), avant + 1);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte,
              QStringLiteral("Vous devez lire les données avec le cordon USB"));
    EXPECT_EQ(banc.etabli.dialogues.Boites().back().texte,
              QStringLiteral("Vous devez lire les données depuis la carte SD"));
    EXPECT_TRUE(banc.etabli.dialogues.demandes.empty());
    EXPECT_TRUE(banc.etabli.Fichiers().filter(nomSelonHorloge).isEmpty());
}

}  // namespace
}  // namespace bornika
