// What the form shows of a logger, and what it keeps of it.

#include <gtest/gtest.h>

#include "calibration/calibration_fixture.h"
#include "logger/parameter_reading.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;
using simulateur::GenrePanne;

const QString sansValeur = QStringLiteral("--");

TEST(CalibrationReading, ShowsDateSensorAndBothPairs) {
    BancEtalonnage banc;
    banc.enregistreur.ReglerEtalonnage(0x69A98E0D, 0x31, 128, 130, 768, 750);
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurDateEtalonnage->text(), QStringLiteral("05/03/2026 14:07:09"));
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("0 - 6 bar"));
    // On the 16 bar of the main form: 128, 130, 768 and 750 of 1024.
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("2.0"));
    EXPECT_EQ(banc.f().ValeurPressionLue_0->text(), QStringLiteral("2.0"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QStringLiteral("12.0"));
    EXPECT_EQ(banc.f().ValeurPressionLue_1->text(), QStringLiteral("11.7"));
    for (const int rang : {0, 1}) {
        EXPECT_EQ(banc.fiche->Rangee(rang).Labelpressionreelle->text(), QStringLiteral("bar"));
        EXPECT_EQ(banc.fiche->Rangee(rang).Labelpressionlue->text(), QStringLiteral("bar"));
    }
}

TEST(CalibrationReading, KeepsThePairsAndLeavesTheCorrectionToTheNextReadingOfTheParameters) {
    BancEtalonnage banc;
    Etalonnage7& etalonnage = banc.ecran.etat.etalonnage;
    etalonnage = {1, 2, 3, 4, 5, 6, 7};
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 128, 130, 768, 750);
    banc.Ouvrir();
    EXPECT_EQ(etalonnage.valeur_etalonnage_bas, 128);
    EXPECT_EQ(etalonnage.mesure_etalonnage_bas, 130);
    EXPECT_EQ(etalonnage.valeur_etalonnage_haut, 768);
    EXPECT_EQ(etalonnage.mesure_etalonnage_haut, 750);
    EXPECT_EQ(etalonnage.correction_etalonnage, 5);
    EXPECT_EQ(etalonnage.pente_etalonnage, 6);
    EXPECT_EQ(etalonnage.offset_etalonnage, 7);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(etalonnage.correction_etalonnage, 0);
    EXPECT_DOUBLE_EQ(etalonnage.pente_etalonnage, 640.0 / 620);
    EXPECT_DOUBLE_EQ(etalonnage.offset_etalonnage, 128 - 640.0 / 620 * 130);
}

TEST(CalibrationReading, OfOldFirmwareAsksForItsOnePointAndClearsTheHighPair) {
    BancEtalonnage banc(Firmware::Ancien);
    banc.ecran.etat.etalonnage = {1, 2, 3, 4, 5, 6, 7};
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 320, 316, 768, 750);
    banc.Ouvrir();
    banc.Cliquer(banc.f().LireEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(26), (Trames{{26, 0, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_bas, 320);
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_bas, 316);
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_haut, 0);
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_haut, 0);
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("5.0"));
    EXPECT_EQ(banc.f().ValeurPressionLue_0->text(), QStringLiteral("4.9"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QString());
    EXPECT_EQ(banc.f().ValeurPressionLue_1->text(), QString());
    EXPECT_FALSE(banc.f().ValeurPressionReelle_1->isVisible());
}

TEST(CalibrationReading, AsksInThisOrder) {
    BancEtalonnage banc;
    banc.Ouvrir();
    banc.Cliquer(banc.f().LireEtalonnage);
    EXPECT_EQ(banc.Recues(), (Trames{{9, 0, 0, 0, 0, 0, 0, 0},
                                     {28, 0, 0, 0, 0, 0, 0, 0},
                                     {26, 1, 0, 0, 0, 0, 0, 0},
                                     {26, 2, 0, 0, 0, 0, 0, 0}}));
    EXPECT_EQ(banc.Poignees(), "oocc") << "opened once, closed once";
}

TEST(CalibrationReading, OfANeverCalibratedLoggerKeepsDateAndSensorButNotTheUnit) {
    for (const auto& [octet, unite] : {std::pair{0x00, "psi"}, std::pair{0x23, "kPa"}}) {
        BancEtalonnage banc;
        banc.enregistreur.memoire.EcrireOctet(adresse::echelleEtalonnage, octet);
        banc.Ouvrir();
        EXPECT_EQ(banc.f().ValeurDateEtalonnage->text(), sansValeur);
        EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), sansValeur);
        for (const int rang : {0, 1}) {
            EXPECT_EQ(Clair(banc.fiche->Rangee(rang).Labelpressionreelle->text()), unite);
            EXPECT_EQ(Clair(banc.fiche->Rangee(rang).Labelpressionlue->text()), unite);
        }
        banc.f().ValeurDateEtalonnage->setText(QStringLiteral("as it was"));
        banc.Cliquer(banc.f().LireEtalonnage);
        EXPECT_EQ(banc.f().ValeurDateEtalonnage->text(), QStringLiteral("as it was"));
    }
}

TEST(CalibrationReading, ConvertsByTheMainFormWhateverTheCalibrationWasMadeIn) {
    BancEtalonnage banc;
    banc.ChoisirUnite(QStringLiteral("mbar"));
    banc.ui.ListeEchelles->Choisir(1);
    banc.enregistreur.ReglerEtalonnage(1000, 0x31, 512, 256);
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("500.0"));
    EXPECT_EQ(banc.f().ValeurPressionLue_0->text(), QStringLiteral("250.0"));
    EXPECT_EQ(banc.f().Labelpressionreelle_0->text(), QStringLiteral("bar"));
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("0 - 6 bar"));
}

TEST(CalibrationReading, IsNeitherCorrectedNorMadeRelative) {
    BancEtalonnage banc;
    banc.ui.PressionAbsolue->setChecked(true);
    banc.ecran.etat.etalonnage.valeur_etalonnage_bas = 64;
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 128, 130);
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("2.0"));
}

TEST(CalibrationReading, FollowsTheUsersDecimalSeparator) {
    BancEtalonnage banc;
    banc.ReglerSeparateur(QStringLiteral(","));
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 352, 320);
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("5,5"));
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(24).at(0).at(2), 352 % 256);
}

TEST(CalibrationReading, TakesWhatStandsBehindAnotherEcho) {
    BancEtalonnage banc;
    banc.enregistreur.ReglerEtalonnage(0x69A98E0D, 0x31, 128, 130, 768, 750);
    for (const int code : {28, 26})
        banc.enregistreur.pannes.Ordonner(
            {.code = code, .genre = GenrePanne::mauvaisEcho, .combien = 2});
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("0 - 6 bar"));
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_bas, 128);
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_haut, 750);
}

TEST(CalibrationReading, BehindAWrongEchoOfTheVersionTakesTheFirmwareForNew) {
    BancEtalonnage banc(Firmware::Ancien);
    banc.enregistreur.pannes.Ordonner(
        {.code = 9, .genre = GenrePanne::mauvaisEcho, .combien = simulateur::sansFin});
    banc.Ouvrir();
    banc.Cliquer(banc.f().LireEtalonnage);
    EXPECT_EQ(banc.Codes(), (std::vector<int>{9, 28, 26, 26}));
    // And so do the other two buttons: the question for a second point comes.
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Oublier();
    banc.Repondre(Reponse::Oui);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    banc.Mesurer(770);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(24).at(0).at(3), 2);
}

TEST(CalibrationReading, ShowsNothingForAScaleOrAUnitThatTheListsHaveNot) {
    BancEtalonnage banc;
    banc.enregistreur.ReglerEtalonnage(1000, 0xFF, 128, 130);
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QString());
    EXPECT_EQ(banc.f().Labelpressionreelle_0->text(), QString());
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(CalibrationReading, WhileTimeOutStandsReadsNothingAndSaysNothing) {
    BancEtalonnage banc;
    banc.ecran.etat.TimeOut = true;
    banc.Ouvrir();
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QString());
    banc.Cliquer(banc.f().LireEtalonnage);
    EXPECT_EQ(banc.Codes(), std::vector<int>{9});
    EXPECT_EQ(banc.Boites(), QStringList());
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    // The next point clears the flag.
    banc.f().ValeurPressionReelle_1->setText(QStringLiteral("0"));
    banc.Taper(0, "5");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.Codes(), (std::vector<int>{9, 9, 24, 27}));
}

// What the next reading of the parameters makes of a calibration.

TEST(CalibrationEffect, OfOnePointIsAShift) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointUn);
    banc.Repondre(Reponse::Non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(banc.ecran.etat.etalonnage.correction_etalonnage, 4);
    EXPECT_EQ(banc.ecran.etat.etalonnage.pente_etalonnage, 0);
    EXPECT_EQ(banc.Boites().size(), 1) << "out of calibration";
}

TEST(CalibrationEffect, OfTwoPointsIsALine) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointDeux);
    banc.Cliquer(banc.f().SortirEtalonnage);
    Lire_Parametres(banc.poste);
    const double pente = (768.0 - 320) / (770 - 316);
    EXPECT_DOUBLE_EQ(banc.ecran.etat.etalonnage.pente_etalonnage, pente);
    EXPECT_DOUBLE_EQ(banc.ecran.etat.etalonnage.offset_etalonnage, 320 - pente * 316);
    EXPECT_EQ(banc.ecran.etat.etalonnage.correction_etalonnage, 0);
}

TEST(CalibrationEffect, OfTwoPointsMeasuredAlikeIsThatOfTheFirstAndTheLoggerKeepsBoth) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    banc.Taper(1, "12");
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_haut, 768);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_haut, 0);
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_haut, 0);
    EXPECT_EQ(banc.ecran.etat.etalonnage.correction_etalonnage, 4);
    EXPECT_EQ(banc.enregistreur.memoire.Mot(adresse::referenceHaut), 768);
    EXPECT_EQ(banc.enregistreur.memoire.Mot(adresse::mesureHaut), 316);
}

TEST(CalibrationEffect, OfTwoPointsOfOneReferenceIsALineOfSlopeOne) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    banc.Taper(1, "5");
    banc.Mesurer(400);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Cliquer(banc.f().SortirEtalonnage);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(banc.ecran.etat.etalonnage.pente_etalonnage, 1);
    EXPECT_EQ(banc.ecran.etat.etalonnage.offset_etalonnage, 320 - 316);
}

TEST(CalibrationEffect, ALoggerLeftBetweenItsPointsIsInCalibrationForTheRestOfTheProgram) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    banc.Cliquer(banc.f().Sortir);
    Lire_Parametres(banc.poste);
    ASSERT_EQ(banc.Boites().size(), 1);
    EXPECT_EQ(banc.Boites().first(), QStringLiteral("Mode étalonnage en cours"));
}

}  // namespace
}  // namespace bornika::essai
