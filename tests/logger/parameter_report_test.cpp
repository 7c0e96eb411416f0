#include "logger/parameter_report.h"

#include <gtest/gtest.h>

#include <functional>

#include "logger/logger_fixture.h"
#include "logger/parameter_reading.h"

namespace bornika::essai {
namespace {

TEST(AjouteRapport, JoinsTextAndValueWithAColon) {
    BancEnregistreur banc;
    AjouteRapport(banc.ecran, QStringLiteral("LabelVersion"), QStringLiteral("(1) 2.110"));
    AjouteRapport(banc.ecran, QStringLiteral("PasDeSeuil"), {});
    EXPECT_EQ(Clair(banc.ecran.etat.Rapport), "Version : (1) 2.110\r\nPas de seuil\r\n");
}

TEST(AjouteRapport, NamesTheProductOfTheCardFamily) {
    BancEnregistreur banc;
    banc.ecran.etat.TypekPod = 19;
    AjouteRapport(banc.ecran, QStringLiteral("k-Pod Absent"), {});
    EXPECT_EQ(Clair(banc.ecran.etat.Rapport), "k-Pod 33 absent\r\n");
}

std::string RapportDe(const QString& langue,
                      const std::function<void(BancEnregistreur&)>& prepare) {
    BancEnregistreur banc(langue);
    PreparerEnregistreur(banc.enregistreur);
    prepare(banc);
    Lire_Parametres(banc.poste);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_TRUE(banc.etabli.dialogues.Boites().empty());
    return Clair(banc.ecran.etat.Rapport);
}

void SansChangement(BancEnregistreur&) {}

TEST(Rapport, OfAFullRunInFrench) {
    EXPECT_EQ(RapportDe(QStringLiteral("Français"), SansChangement),
              "N° de série : 3405691582\r\n"
              "Version : (1) 2.110\r\n"
              "Tension pile : 4.00 V.\r\n"
              "Date d'étalonnage : 10/06/2025 09:30:00\r\n"
              "Capteur étalonné : 0 - 6 bar\r\n"
              "Etalonnage : 1.0000 X + -4.0000\r\n"
              "Période d'échantillonnage : 1 minute\r\n"
              "Capteur : 0 - 6 bar\r\n"
              "Unité : bar\r\n"
              "Bande\r\n"
              "Seuil 1 :  < 1.5\r\n"
              "Seuil 2 :  > 3.0\r\n"
              "Buffer non tournant\r\n"
              "Mono-coup\r\n"
              "Période après trigger : 1 seconde\r\n");
}

TEST(Rapport, OfAFullRunInEnglish) {
    EXPECT_EQ(RapportDe(QStringLiteral("English"), SansChangement),
              "Serial number : 3405691582\r\n"
              "Version : (1) 2.110\r\n"
              "Battery voltage : 4.00 V.\r\n"
              "Calibration date : 10/06/2025 09:30:00\r\n"
              "Calibrated sensor : 0 - 6 bar\r\n"
              "Calibration : 1.0000 X + -4.0000\r\n"
              "Sampling period : 1 minute\r\n"
              "Sensor : 0 - 6 bar\r\n"
              "Unit : bar\r\n"
              "Band\r\n"
              "Threshold 1 :  < 1.5\r\n"
              "Threshold 2 :  > 3.0\r\n"
              "Stop when full\r\n"
              "One shot\r\n"
              "Period after trigger : 1 second\r\n");
}

/// Lines of the report from the unit on, for a mode byte.
std::string LignesDeMode(int octetMode) {
    const std::string rapport =
        RapportDe(QStringLiteral("Français"), [octetMode](BancEnregistreur& banc) {
            banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::mode, octetMode);
            banc.enregistreur.memoire.EcrireMot(simulateur::adresse::periodeTrigger, 480);
        });
    const std::string unite = "Unité : bar\r\n";
    return rapport.substr(rapport.find(unite) + unite.size());
}

TEST(Rapport, TellsTheModeInItsWords) {
    EXPECT_EQ(LignesDeMode(0), "Pas de seuil\r\nBuffer non tournant\r\n");
    EXPECT_EQ(LignesDeMode(8), "Pas de seuil\r\nBuffer tournant\r\n");
    EXPECT_EQ(LignesDeMode(1), "Seuil\r\nSeuil 1 :  < 1.5\r\nBuffer non tournant\r\n");
    EXPECT_EQ(LignesDeMode(1 + 4), "Seuil\r\nSeuil 1 :  > 1.5\r\nBuffer non tournant\r\n");
    EXPECT_EQ(LignesDeMode(128 + 1 + 4 + 16),
              "Pression absolue\r\nSeuil\r\nSeuil 1 :  > 0.5\r\nBuffer non tournant\r\n"
              "Mono-coup\r\n");
}

TEST(Rapport, ABandInsideHasTheOppositeSignsOfABandOutside) {
    EXPECT_EQ(LignesDeMode(2),
              "Bande\r\nSeuil 1 :  > 1.5\r\nSeuil 2 :  < 3.0\r\nBuffer non tournant\r\n");
    EXPECT_EQ(LignesDeMode(2 + 4),
              "Bande\r\nSeuil 1 :  < 1.5\r\nSeuil 2 :  > 3.0\r\nBuffer non tournant\r\n");
    EXPECT_EQ(LignesDeMode(1 + 2),
              "Bande\r\nSeuil 1 :  > 1.5\r\nSeuil 2 :  < 3.0\r\nBuffer non tournant\r\n");
}

TEST(Rapport, OfALoggerNeverCalibratedShowsDashesAndItsPoints) {
    const std::string rapport = RapportDe(QStringLiteral("Français"), [](BancEnregistreur& banc) {
        banc.enregistreur.ReglerEtalonnage(0, 0x31, 0, 0, 0, 0);
    });
    EXPECT_NE(rapport.find("Date d'étalonnage : ---\r\nCapteur étalonné : ---\r\n"
                           "Etalonnage : 0.0000\r\n"),
              std::string::npos)
        << rapport;
}

TEST(Rapport, NamesASensorBeyondTheListByNothing) {
    const std::string rapport = RapportDe(QStringLiteral("Français"), [](BancEnregistreur& banc) {
        banc.enregistreur.memoire.EcrireOctet(simulateur::adresse::echelleEtalonnage, 0xF0);
    });
    EXPECT_NE(rapport.find("Capteur étalonné\r\n"), std::string::npos) << rapport;
}

TEST(Rapport, MentionsThePeriodAfterTheTriggerOnlyWhereItDiffers) {
    const std::string rapport = RapportDe(QStringLiteral("Français"), [](BancEnregistreur& banc) {
        banc.enregistreur.memoire.EcrireMot(simulateur::adresse::periodeTrigger, 480);
    });
    EXPECT_EQ(rapport.find("trigger"), std::string::npos);
}

TEST(Rapport, IsRebuiltByEachReading) {
    BancEnregistreur banc;
    PreparerEnregistreur(banc.enregistreur);
    Lire_Parametres(banc.poste);
    const std::string premier = Clair(banc.ecran.etat.Rapport);
    Lire_Parametres(banc.poste);
    EXPECT_EQ(Clair(banc.ecran.etat.Rapport), premier);
}

TEST(Rapport, UsesTheLocalesSeparator) {
    const std::string rapport = RapportDe(QStringLiteral("Français"), [](BancEnregistreur& banc) {
        banc.ReglerSeparateur(QStringLiteral(","));
    });
    EXPECT_NE(rapport.find("Tension pile : 4,00 V.\r\n"), std::string::npos);
    EXPECT_NE(rapport.find("Seuil 2 :  > 3,0\r\n"), std::string::npos);
}

}  // namespace
}  // namespace bornika::essai
