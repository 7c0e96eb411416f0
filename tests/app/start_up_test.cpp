#include "app/start_up.h"

#include <gtest/gtest.h>

#include <set>

#include "app/program_fixture.h"
#include "app/watchdog.h"
#include "support/case_names.h"

namespace bornika {
namespace {

using essai::BancProgramme;
using essai::maintenantSimule;

void Remplacer(BancProgramme& banc, const QByteArray& avant, const QByteArray& apres) {
    QByteArray texte = banc.etabli.Lire(QStringLiteral("config.xml"));
    ASSERT_TRUE(texte.contains(avant)) << avant.constData();
    banc.etabli.Ecrire(QStringLiteral("config.xml"), texte.replace(avant, apres));
}

TEST(StartWithoutADevice, CancellingTheEmptyListLeadsToTheProductSelection) {
    BancProgramme banc;
    int lignes = -1;
    banc.main = [&](QDialog& dialogue) {
        if (auto* liste = dialogue.findChild<QListWidget*>(QStringLiteral("Listekrow"))) {
            lignes = liste->count();
            BancProgramme::Cliquer(dialogue.findChild<QWidget*>(QStringLiteral("ExitEtalonnage")));
        } else {
            BancProgramme::Cliquer(dialogue.findChild<QWidget*>(QStringLiteral("TypekPod_3")));
            BancProgramme::Cliquer(dialogue.findChild<QWidget*>(QStringLiteral("Selection")));
        }
    };
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_EQ(lignes, 0);
    EXPECT_EQ(banc.montres, QStringList({QStringLiteral("bornika::frmConnect"),
                                         QStringLiteral("bornika::FormSelection")}));
    EXPECT_FALSE(banc.ecran().etat.Connected);
    EXPECT_EQ(banc.ecran().etat.TypekPod, 20);
    EXPECT_EQ(banc.ecran().windowTitle(), QStringLiteral("BORNIKA k-Pod 33"));
    EXPECT_TRUE(banc.ecran().isVisible());
}

TEST(StartWithADevice, TheChosenOneGivesCaptionAndFamilyAndNoProductSelectionIsShown) {
    BancProgramme banc;
    banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    EXPECT_EQ(banc.montres, QStringList({QStringLiteral("bornika::frmConnect")}));
    EXPECT_TRUE(banc.ecran().etat.Connected);
    EXPECT_EQ(banc.ecran().windowTitle(), QStringLiteral("BORNIKA k-Pod"));
    EXPECT_FALSE(banc.ui().LireValeurs->isHidden());
    EXPECT_TRUE(banc.ui().LireSD->isHidden());
}

TEST(Load, TheCaptionIsSetOnlyAfterTheDialogs) {
    BancProgramme banc;
    QString pendant;
    banc.main = [&](QDialog&) { pendant = banc.ecran().windowTitle(); };
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_FALSE(pendant.startsWith(QStringLiteral("BORNIKA ")));
    EXPECT_TRUE(banc.ecran().windowTitle().startsWith(QStringLiteral("BORNIKA ")));
}

TEST(Load, ShowsItsDialogsBeforeTheMainForm) {
    BancProgramme banc;
    std::vector<bool> visibles;
    banc.main = [&](QDialog&) { visibles.push_back(banc.ecran().isVisible()); };
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_EQ(visibles, std::vector<bool>({false, false}));
    EXPECT_TRUE(banc.ecran().isVisible());
}

TEST(Load, SendsNoCommandBeyondWhatTheDeviceListNeeds) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    std::set<int> codes;
    for (const auto& trame : pod.journal.Trames())
        codes.insert(trame.Code());
    EXPECT_EQ(codes, std::set<int>({6, 9}));
}

TEST(Load, SetsTheFormDefaults) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    auto& ui = banc.ui();
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 15);
    EXPECT_EQ(ui.PeriodeTrigger->Index(), 14);
    EXPECT_EQ(ui.ListeTemps->Index(), 1);
    EXPECT_EQ(ui.ListeTemps->Nombre(), 4);
    EXPECT_EQ(ui.ProgressBar1->Minimum(), 0);
    EXPECT_TRUE(ui.Lire->toolTip().isEmpty());
    EXPECT_TRUE(ui.BufferTournant->isChecked());
    EXPECT_TRUE(ui.DerniereMesure->isHidden());
    EXPECT_TRUE(ui.Label5->isHidden());
    EXPECT_TRUE(ui.PasDeSeuil->isChecked());
    EXPECT_TRUE(ui.AuDessus->isChecked());
    EXPECT_TRUE(ui.Frame1->isHidden());
    EXPECT_TRUE(ui.Frame3->isHidden());
    EXPECT_TRUE(ui.ProgressBar2->isHidden());
    EXPECT_EQ(ui.DureeSaisie->text(),
              QString::number(banc.ecran().configuration.LitDureeSaisie(0)));
    EXPECT_EQ(ui.AMPM_0->text(), QStringLiteral("12h"));
    EXPECT_EQ(ui.AMPM_1->text(), QStringLiteral("24h"));
    EXPECT_FALSE(banc.ecran().etat.AideValide);
    EXPECT_FALSE(ui.MnuModeAide->isChecked());
    EXPECT_FALSE(ui.mnuModeAvance->isChecked());
    EXPECT_EQ(ui.DTPicker1->date(), QDate(2026, 3, 5));
    EXPECT_EQ(ui.DTPicker2->time(), QTime(14, 7, 9));
}

TEST(Load, AnUnpressedDateDemarrageIsNotClicked) {
    // Its click would take the present time; the clock has moved on since the pickers were set.
    BancProgramme banc;
    banc.main = [&](QDialog&) {
        banc.etabli.horloge.instant = banc.etabli.horloge.instant.addDays(1);
    };
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_EQ(banc.ui().DTPicker1->date(), QDate(2026, 3, 5));
    EXPECT_FALSE(banc.ui().DateDemarrage->isDown());
}

struct Taille {
    QByteArray texte;
    double capacite;
};

class SizeSetting : public testing::TestWithParam<Taille> {};

TEST_P(SizeSetting, SetsTheCapacityForItsThreeCodesAndLeavesItOtherwise) {
    BancProgramme banc;
    Remplacer(banc, "<Taille>4</Taille>", GetParam().texte);
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_EQ(banc.ecran().etat.CapaciteMemoire, GetParam().capacite);
    EXPECT_EQ(banc.ui().ProgressBar1->Maximum(), GetParam().capacite);
}

INSTANTIATE_TEST_SUITE_P(Codes, SizeSetting,
                         testing::Values(Taille{"<Taille>1</Taille>", 135135},
                                         Taille{"<Taille>2</Taille>", 270270},
                                         Taille{"<Taille>4</Taille>", 540606},
                                         Taille{"<Taille>3</Taille>", 540606}, Taille{"", 540606},
                                         Taille{"<Taille>abc</Taille>", 540606},
                                         Taille{"<Taille>99999999999</Taille>", 540606}),
                         [](const auto& cas) {
                             QByteArray valeur = cas.param.texte;
                             valeur.replace("Taille>", "");
                             return essai::NomDeCas(cas.index, valeur.toStdString());
                         });

TEST(Load, AMissingLanguageOpensWithNoneSelectedAndChoosingOneRepairsAllLists) {
    BancProgramme banc;
    const QByteArray texte = banc.etabli.Lire(QStringLiteral("config.xml"));
    const auto debut = texte.indexOf("<Langue>");
    const auto fin = texte.indexOf("</Langue>", debut) + 9;
    banc.etabli.Ecrire(QStringLiteral("config.xml"), texte.left(debut) + texte.mid(fin));
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_TRUE(banc.sorties.empty());
    auto& ui = banc.ui();
    EXPECT_EQ(ui.ListeLangues->Index(), -1);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Nombre(), 0);
    ui.ListeLangues->Choisir(0);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 1);
    EXPECT_EQ(ui.ListeEchelles->Index(), 0);
    EXPECT_EQ(ui.ListeUnites->Index(), 1);
    EXPECT_TRUE(banc.sorties.empty());
}

TEST(Load, AListOfFewerPeriodsThanTheDefaultsKeepsItsFirstSelection) {
    BancProgramme banc;
    QByteArray texte = banc.etabli.Lire(QStringLiteral("config.xml"));
    const auto fin = texte.indexOf("</ListePeriode>");
    qsizetype coupe = texte.indexOf("<ListePeriode>");
    for (int i = 0; i < 10; ++i)
        coupe = texte.indexOf("</Ligne>", coupe) + 8;
    ASSERT_LT(coupe, fin);
    banc.etabli.Ecrire(QStringLiteral("config.xml"), texte.remove(coupe, fin - coupe));
    ASSERT_TRUE(banc.Demarrer(-1));
    EXPECT_TRUE(banc.sorties.empty());
    EXPECT_EQ(banc.ui().ListePeriodeEchantillonage->Nombre(), 10);
    EXPECT_EQ(banc.ui().ListePeriodeEchantillonage->Index(), 1);
}

TEST(Load, AMissingConfigurationIsTheGeneralFailure) {
    BancProgramme banc;
    QFile::remove(banc.etabli.Chemin(QStringLiteral("config.xml")));
    EXPECT_FALSE(banc.Demarrer(-1));
    ASSERT_FALSE(banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte,
              QStringLiteral("Run-time error '91':\n\nObject variable not set"));
    ASSERT_FALSE(banc.sorties.empty());
    EXPECT_EQ(banc.sorties.front(), 1);
}

TEST(Load, AMalformedConfigurationIsTheGeneralFailureAndStaysAsItIs) {
    BancProgramme banc;
    banc.etabli.Ecrire(QStringLiteral("config.xml"), "<Configuration><Langue>");
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("Run-time error '91'"));
    EXPECT_FALSE(banc.Demarrer(-1));
    ASSERT_FALSE(banc.sorties.empty());
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")),
              QByteArray("<Configuration><Langue>"));
}

TEST(FamilyRule, ConnectingToTheOtherFamilySwitchesTheControlsBothWays) {
    BancProgramme banc;
    banc.bus.Brancher(simulateur::KPodType19(maintenantSimule));
    banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    banc.bus.Brancher(simulateur::KPod33(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer(0));
    auto& ui = banc.ui();
    for (const int ligne : {0, 1, 2, 1}) {
        banc.main = [ligne](QDialog& dialogue) { BancProgramme::ChoisirLigne(dialogue, ligne); };
        ui.mnuconnect->trigger();
        const bool carte = ligne != 1;
        EXPECT_EQ(ui.LireValeurs->isHidden(), carte) << ligne;
        EXPECT_EQ(ui.LireSD->isHidden(), !carte);
        EXPECT_EQ(ui.Label8->isHidden(), carte);
        EXPECT_EQ(ui.DureeEnregistrement->isHidden(), carte);
        EXPECT_EQ(ui.ProgressBar1->isHidden(), carte);
        EXPECT_EQ(ui.Capacite->isHidden(), carte);
        EXPECT_EQ(ui.ValeurCapacite->isHidden(), carte);
        EXPECT_EQ(ui.SDCardState->isHidden(), !carte);
        EXPECT_EQ(ui.AMPM_0->isHidden(), !carte);
        EXPECT_EQ(ui.AMPM_1->isHidden(), !carte);
    }
}

TEST(Connect, ReadsTheParametersOfTheChosenLogger) {
    BancProgramme banc;
    banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    EXPECT_FALSE(banc.ui().Version->text().startsWith(QLatin1Char('(')));
    banc.ui().mnuconnect->trigger();
    EXPECT_EQ(banc.ui().Version->text(), QStringLiteral("(1) 2.100"));
}

TEST(Connect, WithTimeOutSetShowsCaptionAndFamilyButReadsNothing) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    banc.main = [&](QDialog&) {
        banc.ecran().etat.TimeOut = true;
        banc.ecran().etat.TypekPod = 20;
        banc.ecran().etat.NomKpod = QStringLiteral("another");
        pod.journal.Vider();
    };
    banc.ui().mnuconnect->trigger();
    EXPECT_EQ(pod.journal.Total(), 0);
    EXPECT_EQ(banc.ecran().windowTitle(), QStringLiteral("BORNIKA another"));
    EXPECT_TRUE(banc.ui().LireValeurs->isHidden());
}

TEST(Connect, ACancelWithNoDeviceStillReadsAndTellsThatItIsAbsent) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    banc.etabli.dialogues.OublierBoites();
    banc.ui().mnuconnect->trigger();
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().texte, QStringLiteral("k-Pod absent"));
    EXPECT_EQ(banc.etabli.dialogues.Boites().front().titre, QString());
}

TEST(Connected, StaysTrueAfterTheLinkWasLost) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    banc.bus.Debrancher(pod.identite.usb);
    banc.etabli.dialogues.AnnoncerInformation(QStringLiteral("k-Pod absent"));
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_TRUE(banc.ecran().etat.TimeOut);
    EXPECT_TRUE(banc.ecran().etat.Connected);
}

TEST(Leaving, SortirSendsNoCommandAndSavesNothing) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    pod.journal.Vider();
    const QByteArray avant = banc.etabli.Lire(QStringLiteral("config.xml"));
    BancProgramme::Cliquer(banc.ui().Sortir);
    EXPECT_FALSE(banc.ecran().isVisible());
    EXPECT_EQ(pod.journal.Total(), 0);
    EXPECT_EQ(banc.etabli.Lire(QStringLiteral("config.xml")), avant);
    EXPECT_TRUE(banc.ecran().etat.EnFermeture);
}

TEST(Leaving, SortirAndTheFrameCloseTheLink) {
    for (const bool bouton : {true, false}) {
        BancProgramme banc;
        EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
        ASSERT_TRUE(banc.Demarrer());
        banc.programme->lien.OuvreUSB(pod.identite.usb);
        ASSERT_EQ(banc.bus.PoigneesOuvertes(), 2);
        if (bouton)
            BancProgramme::Cliquer(banc.ui().Sortir);
        else
            banc.ecran().close();
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
        EXPECT_EQ(banc.programme->lien.WriteHandle, 0);
    }
}

TEST(Leaving, ClosingTheFrameWithNothingOpenClosesHandleZeroHarmlessly) {
    BancProgramme banc;
    ASSERT_TRUE(banc.Demarrer(-1));
    banc.bus.ViderAppels();
    banc.ecran().close();
    EXPECT_TRUE(banc.sorties.empty());
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(banc.programme->lien.ReadHandle, 0);
}

TEST(Watchdog, SetsTimeOutClosesTheReadHandleAndDisablesItself) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    banc.programme->lien.OuvreUSB(pod.identite.usb);
    QTimer timeur;
    timeur.start(1'000'000);
    Timeur(banc.programme->poste, timeur);
    EXPECT_TRUE(banc.ecran().etat.TimeOut);
    EXPECT_EQ(banc.programme->lien.ReadHandle, 0);
    EXPECT_NE(banc.programme->lien.WriteHandle, 0);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 1);
    EXPECT_FALSE(timeur.isActive());
}

TEST(Watchdog, TheProgramsOwnTimerHasIntervalZeroAndIsNeverArmed) {
    BancProgramme banc;
    banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    BancProgramme::Cliquer(banc.ui().Lire);
    EXPECT_EQ(banc.programme->Timeur.interval(), 0);
    EXPECT_FALSE(banc.programme->Timeur.isActive());
}

TEST(Picture, AClickOnTheMainFormsPictureDoesNothing) {
    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(simulateur::KPod2100(maintenantSimule));
    ASSERT_TRUE(banc.Demarrer());
    pod.journal.Vider();
    BancProgramme::Cliquer(banc.ui().Image1);
    EXPECT_EQ(pod.journal.Total(), 0);
    EXPECT_TRUE(banc.ecran().isVisible());
}

}  // namespace
}  // namespace bornika
