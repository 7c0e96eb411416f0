#include "logger/parameter_reading.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "logger/logger_fixture.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;

class LectureComplete : public SurFormulaire {
  protected:
    void SetUp() override { PreparerEnregistreur(enregistreur); }
    void Mode(int octet) { enregistreur.memoire.EcrireOctet(adresse::mode, octet); }
};

TEST_F(LectureComplete, SendsItsCommandsInTheirOrder) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(enregistreur.journal.Codes(),
              (std::vector<int>{9, 6, 28, 26, 26, 2, 17, 4, 8, 13, 14, 29, 29, 29, 29, 21, 22, 9}));
    std::vector<int> adresses;
    for (const auto& trame : enregistreur.journal.DeCode(29))
        adresses.push_back(trame[2]);
    EXPECT_EQ(adresses, (std::vector<int>{116, 112, 117, 125}));
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_FALSE(ecran.etat.TimeOut);
}

TEST_F(LectureComplete, OpensTheLinkAgainBehindTheCalibrationDate) {
    using simulateur::GenreAppel;
    Lire_Parametres(banc.poste);
    // Number of frames that had gone out at each opening of the pair of handles.
    std::vector<int> ouvertures;
    int ecrites = 0;
    for (const simulateur::Appel& appel : banc.bus.Appels()) {
        if (appel.genre == GenreAppel::ecrire) ++ecrites;
        if (appel.genre != GenreAppel::ouvrir) continue;
        if (ouvertures.empty() || ouvertures.back() != ecrites) ouvertures.push_back(ecrites);
    }
    // Start, calibration date (the third frame), four reads of the memory, pointers, version.
    EXPECT_EQ(ouvertures, (std::vector<int>{0, 3, 11, 12, 13, 14, 15, 17}));
}

TEST_F(LectureComplete, ShowsWhoTheLoggerIs) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Version->text()), "(1) 2.110");
    EXPECT_EQ(ecran.etat.VersionLogiciel, 2.11);
    EXPECT_EQ(Clair(ui.NumeroSerie->text()), "3405691582");
    EXPECT_EQ(Clair(ui.TensionPile->text()), "4.00 V.");
    EXPECT_EQ(ui.ProgressBar3->Minimum(), 111);
    EXPECT_EQ(ui.ProgressBar3->Maximum(), 158);
    EXPECT_EQ(ui.ProgressBar3->Valeur(), 150);
    EXPECT_EQ(ui.ProgressBar1->Maximum(), 540606);
}

TEST_F(LectureComplete, ShowsPeriodsAndDates) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.ProchaineMesure->text()), "05/03/2026 14:08:00");
    EXPECT_EQ(Clair(ui.ListePeriodeEchantillonage->Texte()), "1 minute");
    EXPECT_EQ(Clair(ui.NbMesures->text()), "12");
    EXPECT_EQ(ui.DTPicker1->date(), QDate(2026, 3, 1));
    EXPECT_EQ(ui.DTPicker2->time(), QTime(8, 15, 30));
    EXPECT_EQ(Clair(ui.DateCourante->text()), "05/03/2026 14:07:01");
    EXPECT_EQ(Clair(ui.PeriodeTrigger->Texte()), "1 seconde");
    // 60 s x 540606 behind the start.
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "11/03/2027 18:21:30");
    EXPECT_EQ(Clair(ui.DureeEnregistrement->text()), "375 Jour(s) 10 H 6 Mn ");
}

TEST_F(LectureComplete, ShowsModeAndThresholds) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.ListeEchelles->Texte()), "0 - 6 bar");
    EXPECT_EQ(Clair(ui.ListeUnites->Texte()), "bar");
    EXPECT_EQ(ecran.etat.Maxi, 6);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "1.5");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "3.0");
    EXPECT_TRUE(ui.AuDessus->isChecked());
    EXPECT_TRUE(ui.DeuxSeuils->isChecked());
    EXPECT_TRUE(ui.BufferNonTournant->isChecked());
    EXPECT_TRUE(ui.OneShot->isChecked());
    EXPECT_FALSE(ui.PressionAbsolue->isChecked());
}

TEST_F(LectureComplete, ShowsCommentAndPulseParameters) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Commentaire->text()), " Réseau nord  ");
    EXPECT_TRUE(ui.AMPM_1->isChecked());
    EXPECT_EQ(Clair(ui.CoefImpulsion->text()), "0.1");
    EXPECT_EQ(Clair(ui.UniteImpulsion->text()), "m³      ");
    EXPECT_EQ(ui.ListeTemps->Index(), 2);
}

TEST_F(LectureComplete, EndsWithFillLevelAndSummary) {
    ui.ResumeAcquisition->clear();
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.ValeurCapacite->text()), "66");
    EXPECT_EQ(ui.ProgressBar2->Maximum(), 66);
    EXPECT_EQ(Clair(ui.ResumeAcquisition->text()), "  Acquisition toutes les 1 minute");
    EXPECT_EQ(Clair(ui.ResumeMonoCoup->text()), "  Mode mono coup armé");
}

TEST_F(LectureComplete, KeepsTheCalibrationFigures) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ecran.etat.etalonnage.valeur_etalonnage_bas, 100);
    EXPECT_EQ(ecran.etat.etalonnage.mesure_etalonnage_haut, 904);
    EXPECT_EQ(ecran.etat.etalonnage.pente_etalonnage, 1);
    EXPECT_EQ(ecran.etat.etalonnage.offset_etalonnage, -4);
}

TEST_F(LectureComplete, FirmwareNumbersAreJoinedTexts) {
    struct {
        int haute, basse;
        double version;
        const char* texte;
        std::vector<int> selecteurs;
    } const cas[] = {{2, 89, 0.289, "(1) 2.89", {0}},
                     {2, 110, 2.11, "(1) 2.110", {1, 2}},
                     {20, 89, 2.089, "(1) 20.89", {0}},
                     {20, 90, 2.09, "(1) 20.90", {1, 2}},
                     {2, 100, 2.1, "(1) 2.100", {1, 2}}};
    for (const auto& c : cas) {
        SCOPED_TRACE(c.texte);
        enregistreur.identite.versionHaute = static_cast<std::uint8_t>(c.haute);
        enregistreur.identite.versionBasse = static_cast<std::uint8_t>(c.basse);
        enregistreur.journal.Vider();
        Lire_Parametres(banc.poste);
        EXPECT_EQ(ecran.etat.VersionLogiciel, c.version);
        EXPECT_EQ(Clair(ui.Version->text()), c.texte);
        std::vector<int> selecteurs;
        for (const auto& trame : enregistreur.journal.DeCode(26))
            selecteurs.push_back(trame[1]);
        EXPECT_EQ(selecteurs, c.selecteurs);
    }
}

TEST_F(LectureComplete, AnotherMemorySizeSetsCapacityAndBar) {
    enregistreur.identite.tailleMemoire = 2;
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ecran.etat.CapaciteMemoire, 270270);
    EXPECT_EQ(ui.ProgressBar1->Maximum(), 270270);
    enregistreur.identite.tailleMemoire = 3;
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ecran.etat.CapaciteMemoire, 270270);
}

TEST_F(LectureComplete, ABatteryOutsideTheBarLeavesItAndGoesOn) {
    Lire_Parametres(banc.poste);
    for (const auto& [lecture, texte] :
         {std::pair{90, "2.40 V."}, {200, "5.33 V."}, {0, ".00 V."}}) {
        enregistreur.ReglerBatterie(lecture);
        ui.NumeroSerie->clear();
        Lire_Parametres(banc.poste);
        EXPECT_EQ(ui.ProgressBar3->Valeur(), 150);
        EXPECT_EQ(Clair(ui.TensionPile->text()), texte);
        EXPECT_EQ(Clair(ui.NumeroSerie->text()), "3405691582");
    }
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(LectureComplete, AnUnknownPeriodLeavesTheChoiceAndTheEndUsesIt) {
    ui.ListePeriodeEchantillonage->Choisir(4);
    enregistreur.memoire.EcrireMot(adresse::periodeStockage, 481);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 4);
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "07/03/2026 14:25:36");
}

TEST_F(LectureComplete, AFreePeriodShowsItsNumber) {
    enregistreur.memoire.EcrireMot(adresse::periodeStockage, 600);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 0);
    EXPECT_EQ(Clair(ui.DureeSaisie->text()), "600");
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Donnee(0), 600);
    EXPECT_EQ(ecran.configuration.LitDureeSaisie(0), 600);
    // The end shown counts the free period's number as eighths, also here.
    EXPECT_EQ(Clair(ui.DerniereMesure->text()), "13/06/2027 14:53:00");
}

TEST_F(LectureComplete, AFreePeriodWinsOverAnEntryOfTheSameNumber) {
    ui.ListePeriodeEchantillonage->Choisir(0);
    ui.DureeSaisie->setText(QStringLiteral("8"));
    ui.ListePeriodeEchantillonage->Choisir(15);
    enregistreur.memoire.EcrireMot(adresse::periodeStockage, 8);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ui.ListePeriodeEchantillonage->Index(), 0);
}

TEST_F(LectureComplete, APeriodAfterTheTriggerThatIsNotOfferedLeavesTheLongestOne) {
    enregistreur.memoire.EcrireMot(adresse::periodeTrigger, 481);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ui.PeriodeTrigger->Index(), ui.PeriodeTrigger->Nombre() - 1);
    EXPECT_EQ(Clair(ui.PeriodeTrigger->Texte()), "1 minute");
}

TEST_F(LectureComplete, AnUnknownScaleOrUnitLeavesTheChoice) {
    Lire_Parametres(banc.poste);
    enregistreur.memoire.EcrireOctet(adresse::echelle, 0xFE);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.ListeEchelles->Texte()), "0 - 6 bar");
    EXPECT_EQ(Clair(ui.ListeUnites->Texte()), "bar");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST_F(LectureComplete, ErasedThresholdsDoNotEndTheProgram) {
    enregistreur.memoire.EcrireMot(adresse::seuil1, 65535);
    enregistreur.memoire.EcrireMot(adresse::seuil2, 65535);
    enregistreur.memoire.EcrireOctet(adresse::echelle, 0x02);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_EQ(Clair(ui.Commentaire->text()), " Réseau nord  ");
    EXPECT_EQ(Clair(ui.ValeurCapacite->text()), "66");
    // Typed input still ends in the general failure.
    ui.Seuil1->setText(QStringLiteral("40000"));
    EXPECT_EQ(banc.etabli.fautes, std::vector<int>{numero_faute::depassement});
}

TEST_F(LectureComplete, AbsoluteThresholdsAreLowerByOneAtmosphere) {
    Mode(128 + 1);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(ui.PressionAbsolue->isChecked());
    EXPECT_EQ(Clair(ui.Seuil1->text()), "0.5");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "2.0");
    Mode(1);
    Lire_Parametres(banc.poste);
    EXPECT_FALSE(ui.PressionAbsolue->isChecked());
}

TEST_F(LectureComplete, AnAbsoluteThresholdBelowOneAtmosphereIsNegative) {
    Mode(128 + 1);
    enregistreur.memoire.EcrireMot(adresse::seuil1, 0);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "-1.0");
}

TEST_F(LectureComplete, ABandThatStandsOnTheFormDragsTheThresholdsThatAreRead) {
    enregistreur.memoire.EcrireMot(adresse::seuil1, 512);
    enregistreur.memoire.EcrireMot(adresse::seuil2, 256);
    ASSERT_TRUE(ui.PasDeSeuil->isChecked());
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "3.0");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "1.5");
    // The first reading has chosen the band: its rule now holds the boxes while they are filled.
    ASSERT_TRUE(ui.DeuxSeuils->isChecked());
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "1.5");
    EXPECT_EQ(Clair(ui.Seuil2->text()), "1.5");
}

TEST_F(LectureComplete, ThresholdsAreUncorrected) {
    enregistreur.ReglerEtalonnage(1, 0, 100, 400);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Seuil1->text()), "1.5");
}

TEST_F(LectureComplete, TheModeByteChoosesItsControls) {
    Mode(0);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(ui.PasDeSeuil->isChecked());
    EXPECT_TRUE(ui.AuDessous->isChecked());
    EXPECT_TRUE(ui.BufferNonTournant->isChecked());
    Mode(1 + 8);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(ui.UnSeuil->isChecked());
    EXPECT_TRUE(ui.BufferTournant->isChecked());
    Mode(1 + 2 + 4);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(ui.DeuxSeuils->isChecked());
    EXPECT_TRUE(ui.AuDessus->isChecked());
}

TEST_F(LectureComplete, AClearBitLeavesOneShotAsItIs) {
    ui.OneShot->setChecked(true);
    Mode(0);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(ui.OneShot->isChecked());
    ui.OneShot->setChecked(false);
    Lire_Parametres(banc.poste);
    EXPECT_FALSE(ui.OneShot->isChecked());
}

TEST_F(LectureComplete, TheTriggerFrameFollowsOptionsAndThreshold) {
    for (const bool coche : {false, true}) {
        for (const int octet : {0, 1, 2}) {
            ui.Check_advanced->setChecked(coche);
            Mode(octet);
            Lire_Parametres(banc.poste);
            EXPECT_EQ(!ui.Frame1->isHidden(), coche && octet != 0) << octet;
        }
    }
}

TEST_F(LectureComplete, TheCardIsToldForEveryProduct) {
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.SDCardState->text()), "Carte SD présente");
    EXPECT_EQ(ui.SDCardState->palette().color(QPalette::WindowText), QColor(Qt::black));
    enregistreur.cartePresente = false;
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.SDCardState->text()), "Carte SD absente");
    EXPECT_EQ(ui.SDCardState->palette().color(QPalette::WindowText), QColor(Qt::red));
}

TEST_F(LectureComplete, AnyOtherTimeFormatThanZeroIs24Hours) {
    for (const int octet : {0, 1, 255}) {
        enregistreur.memoire.EcrireOctet(adresse::formatHeure, octet);
        Lire_Parametres(banc.poste);
        EXPECT_EQ(ui.AMPM_1->isChecked(), octet != 0);
        EXPECT_EQ(ui.AMPM_0->isChecked(), octet == 0);
    }
}

TEST_F(LectureComplete, TimeBasesAreFoundByExactNumber) {
    for (const auto& [base, index] :
         {std::pair{1.0F, 0}, {60.0F, 1}, {3600.0F, 2}, {86400.0F, 3}, {120.0F, 3}, {0.5F, 3}}) {
        enregistreur.memoire.EcrireFlottant(adresse::tempsDebit, base);
        Lire_Parametres(banc.poste);
        EXPECT_EQ(ui.ListeTemps->Index(), index);
    }
}

TEST_F(LectureComplete, ACommentOfBlanksStaysBlanks) {
    enregistreur.ReglerCommentaire("");
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.Commentaire->text()), std::string(14, ' '));
}

TEST_F(LectureComplete, PulseWeightIsWrittenWithTheLocalesSeparator) {
    banc.ReglerSeparateur(QStringLiteral(","));
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(ui.CoefImpulsion->text()), "0,1");
    EXPECT_EQ(Clair(ui.Seuil1->text()), "1,5");
}

TEST_F(LectureComplete, AStartOnALeapDayIsShownAsThatDay) {
    // The logger counts 29 February as 1 March.
    enregistreur.memoire.EcrireDoubleMot(adresse::demarrage, 1709294400U);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(ui.DTPicker1->date(), QDate(2024, 2, 29));
    EXPECT_EQ(ui.DTPicker2->time(), QTime(12, 0));
}

TEST_F(LectureComplete, StaleTimeOutIsCleared) {
    ecran.etat.TimeOut = true;
    Lire_Parametres(banc.poste);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_EQ(Clair(ui.NumeroSerie->text()), "3405691582");
}

TEST_F(LectureComplete, TheButtonReadsIdentityParametersAndCorrection) {
    enregistreur.identite.type = 5;
    enregistreur.memoire.EcrireDoubleMot(adresse::correction, 2);
    bool inactif = false;
    QObject::connect(ui.ListeEchelles, &ListeDeroulante::Clic, &ecran,
                     [&] { inactif = !ui.Lire->isEnabled(); });
    ui.Commentaire->setFocus();
    Lire(banc.poste);
    EXPECT_TRUE(inactif);
    EXPECT_TRUE(ui.Lire->isEnabled());
    EXPECT_EQ(ecran.focusWidget(), ui.Lire);
    EXPECT_EQ(ecran.etat.TypekPod, 5);
    EXPECT_EQ(Clair(ui.Version->text()), "(5) 2.110");
    EXPECT_EQ(Clair(ui.ValeurCorrection_0->text()), "2");
    const std::vector<int> codes = enregistreur.journal.Codes();
    EXPECT_EQ(std::vector<int>(codes.begin(), codes.begin() + 4), (std::vector<int>{9, 9, 9, 6}));
    EXPECT_EQ(codes.back(), 29);
}

TEST_F(LectureComplete, WithoutAChosenLoggerTheButtonSendsNothing) {
    ecran.etat.Connected = false;
    Lire(banc.poste);
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_TRUE(banc.bus.Appels().empty());
    EXPECT_TRUE(ui.Lire->isEnabled());
    EXPECT_EQ(ecran.focusWidget(), ui.Lire);
}

}  // namespace
}  // namespace bornika::essai
