// What the form tells of a firmware update without a box.

#include "service/firmware_fixture.h"

namespace bornika::essai::firmware {
namespace {

struct AvisDeMiseAJour : MiseAJourFirmware {};

TEST_F(AvisDeMiseAJour, TellsWhichFileIsOnItsWayAsLongAsTheToolHasIt) {
    Prendre("/f/mes fichiers/K-POD_V2_100.HEX");
    QStringList lignes;
    etabli.respiration.ReglerEvenements([&] { lignes << Ligne(); });
    outil.debut = [&] { lignes << Ligne(); };
    outil.duree = 2;
    outil.fin = [&] { lignes << Ligne(); };
    Cliquer();
    const QString ligne = q("Mise à jour du firmware : K-POD_V2_100.HEX");
    EXPECT_EQ(lignes, (QStringList{QString(), ligne, ligne, ligne}));
    EXPECT_EQ(Ligne(), QString());
}

TEST_F(AvisDeMiseAJour, LeavesTheLineToWhatIsToldThereMeanwhile) {
    etabli.respiration.ReglerEvenements([&] { ecran.ui->Infos->setText(q("3/10")); });
    Cliquer();
    EXPECT_EQ(Ligne(), q("3/10"));
}

TEST_F(AvisDeMiseAJour, TellsThatTheToolCouldNotBeStarted) {
    outil.introuvable = true;
    Cliquer();
    EXPECT_EQ(Ligne(), q("L'outil de mise à jour n'a pas pu être lancé : ") +
                           etabli.systeme.Chemin(q("Chargeur_m_v239.exe")));
    outil.introuvable = false;
    Prendre("/f/K-POD_V2.100.HEX");
    Cliquer();
    EXPECT_EQ(Ligne(), QString());
}

TEST_F(AvisDeMiseAJour, ShowsTheVersionThatTheLoggerHasAfterwards) {
    ecran.ui->Version->setText(q("(1) 20.95"));
    QString pendant;
    etabli.respiration.ReglerEvenements([&] { pendant = ecran.ui->Version->text(); });
    outil.fin = [&] { Reprogrammer(2, 100); };
    Cliquer();
    EXPECT_EQ(pendant, q("(1) 20.95"));
    EXPECT_EQ(ecran.ui->Version->text(), q("k-Pod = 1 2-100"));
}

TEST_F(AvisDeMiseAJour, KeepsTheVersionShownWhenTheLoggerGivesNone) {
    ecran.ui->Version->setText(q("(1) 20.95"));
    outil.fin = [&] { pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence}); };
    Cliquer();
    EXPECT_EQ(ecran.ui->Version->text(), q("(1) 20.95"));
}

struct NumeroNonRendu : AvisDeMiseAJour {
    NumeroNonRendu() { pod.ReglerNumeroSerie(305419896); }
    const QString ligne = q("N° de série qui n'a pas été rendu à l'enregistreur : 305419896");
};

TEST_F(NumeroNonRendu, IsToldWhenTheLoggerIsSilentAfterwards) {
    outil.fin = [&] { pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence}); };
    Cliquer();
    EXPECT_EQ(Ligne(), ligne);
}

TEST_F(NumeroNonRendu, IsToldWhenTheVersionHasAWrongEcho) {
    outil.fin = [&] { pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::mauvaisEcho}); };
    Cliquer();
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(Ligne(), ligne);
}

TEST_F(NumeroNonRendu, IsToldWhenAnotherCommandLostTheLoggerMeanwhile) {
    outil.fin = [&] { ecran.etat.TimeOut = true; };
    Cliquer();
    EXPECT_EQ(Trames(), identite);
    EXPECT_EQ(Ligne(), ligne);
}

TEST_F(NumeroNonRendu, IsToldWhenAnotherLoggerWasChosenMeanwhile) {
    const EnregistreurSimule& autre = bus.Brancher(simulateur::KPod2100(maintenant));
    outil.fin = [&] { ecran.etat.UsbID = autre.identite.usb; };
    Cliquer();
    EXPECT_EQ(Ligne(), ligne);
}

TEST_F(NumeroNonRendu, IsNotSpokenOfWhenItWasWritten) {
    outil.fin = [&] { Reprogrammer(2, 100); };
    Cliquer();
    EXPECT_EQ(Trames(), identiteVersionEtNumero);
    EXPECT_EQ(Ligne(), QString());
}

TEST_F(NumeroNonRendu, IsNotSpokenOfWhenNoToolTouchedTheLogger) {
    outil.introuvable = true;
    etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence});
    };
    Cliquer();
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_TRUE(Ligne().endsWith(q("Chargeur_m_v239.exe"))) << Ligne().toStdString();
}

TEST(NumeroNonRenduVersions, IsNotSpokenOfFromTheVersionOnThatKeepsIt) {
    Banc banc(simulateur::KPod2098(maintenant));
    banc.outil.fin = [&] { banc.pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence}); };
    banc.Cliquer();
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.Ligne(), QString());
}

}  // namespace
}  // namespace bornika::essai::firmware
