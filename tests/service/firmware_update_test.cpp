#include "service/firmware_fixture.h"

namespace bornika::essai::firmware {
namespace {

TEST_F(MiseAJourFirmware, AsksFirstAndWithoutAYesSendsNothing) {
    etabli.dialogues.AnnoncerQuestion(Reponse::Non);
    nmuBootLoad_Click(poste);
    ASSERT_EQ(etabli.dialogues.Boites().size(), 1U);
    const auto& boite = etabli.dialogues.Boites()[0];
    EXPECT_EQ(boite.icone, Icone::Question);
    EXPECT_EQ(boite.boutons, Boutons::OuiNon);
    EXPECT_EQ(boite.titre, q("k-Pod of Zoé"));
    EXPECT_EQ(boite.texte, q("Etes vous sûr de vouloir changer la version actuelle ?"));
    EXPECT_EQ(Trames(), Codes{});
    EXPECT_TRUE(etabli.dialogues.demandes.empty());
    EXPECT_TRUE(outil.appels.empty());
}

TEST_F(MiseAJourFirmware, RemembersVersionAndNumberBeforeItAsksForTheFile) {
    Codes avant;
    etabli.dialogues.pendantDemande = [&](const DemandeFichier&) { avant = Trames(); };
    Cliquer();
    EXPECT_EQ(avant, identite);
    ASSERT_EQ(etabli.dialogues.demandes.size(), 1U);
    const DemandeFichier& demande = etabli.dialogues.demandes[0];
    EXPECT_EQ(demande.titre, q("Ouvrir un fichier HEX"));
    EXPECT_EQ(demande.filtre, q("INHEX32 Files (*.HEX)|*.HEX"));
    EXPECT_EQ(demande.nom, QString());
    EXPECT_FALSE(demande.plusieurs);
}

TEST_F(MiseAJourFirmware, CancelledInTheFileDialogSendsNothingMore) {
    for (const std::optional<QString>& rien :
         {std::optional<QString>(), std::optional(QString())}) {
        pod.journal.Vider();
        etabli.dialogues.OublierBoites();
        fichier = rien;
        Cliquer();
        EXPECT_EQ(Trames(), identite);
        EXPECT_TRUE(outil.appels.empty());
        EXPECT_EQ(Boites(), QStringList());
        EXPECT_TRUE(ecran.ui->nmuBootLoad->isEnabled());
    }
}

TEST_F(MiseAJourFirmware, HandsTheFileToTheToolBesideTheProgram) {
    Prendre("/home/zoé/mes fichiers/K-POD_V2_100.HEX");
    Cliquer();
    const LanceurNote::Appel attendu{
        etabli.systeme.dossier + q("/Chargeur_m_v239.exe"),
        q("LANGUE=Français ;device=k-pod;USBID=%1;prg=/home/zoé/mes fichiers/K-POD_V2_100.HEX;"
          "prodcode=1:2.100")
            .arg(pod.identite.usb)};
    EXPECT_EQ(outil.appels, std::vector{attendu});
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, SendsNoFrameOfItsOwnWhileTheToolHasTheLogger) {
    int poignees = -1;
    etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        lien.OuvreUSB(pod.identite.usb);
    };
    outil.debut = [&] { poignees = bus.PoigneesOuvertes(); };
    outil.duree = 7;
    Codes pendant;
    etabli.respiration.ReglerEvenements([&] { pendant = Trames(); });
    Cliquer();
    EXPECT_EQ(poignees, 0);
    EXPECT_EQ(pendant, identite);
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(MiseAJourFirmware, YieldsOncePerLookAndRestsAtMostTenMillisecondsBetween) {
    int passages = 0;
    etabli.respiration.ReglerEvenements([&] { ++passages; });
    outil.duree = 25;
    Cliquer();
    EXPECT_EQ(passages, 25);
    EXPECT_EQ(etabli.horloge.pauses.size(), 25U);
    for (const int pause : etabli.horloge.pauses)
        EXPECT_TRUE(pause > 0 && pause <= 10) << pause;
    EXPECT_EQ(outil.laisses, 1);
}

TEST_F(MiseAJourFirmware, DoesNotWaitForAToolThatHasEndedAlready) {
    int passages = 0;
    etabli.respiration.ReglerEvenements([&] { ++passages; });
    outil.duree = 0;
    Cliquer();
    EXPECT_EQ(passages, 0);
    EXPECT_EQ(Trames(), identiteEtVersion);
}

TEST_F(MiseAJourFirmware, GoesOnAfterAToolThatCannotBeStarted) {
    outil.introuvable = true;
    Cliquer();
    EXPECT_EQ(outil.appels.size(), 1U);
    EXPECT_TRUE(etabli.horloge.pauses.empty());
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, WritesTheNumberBackAcrossTheVersionThatLosesIt) {
    pod.ReglerNumeroSerie(305419896);
    outil.fin = [&] { Reprogrammer(2, 100); };
    Cliquer();
    EXPECT_EQ(Trames(), identiteVersionEtNumero);
    EXPECT_EQ(pod.journal.DeCode(5), (Contenus{{5, 0x12, 0x34, 0x56, 0x78, 32, 32, 32}}));
    EXPECT_EQ(ecran.ui->ValeurNumeroSerie->text(), q("305419896"));
    EXPECT_EQ(ecran.etat.VersionLogiciel, 2.1);
    EXPECT_EQ(Boites(), QStringList());
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST(MiseAJourFirmwareVersions, WriteTheNumberBackFromBelow2098UpTo2098OrMoreOnly) {
    struct Version {
        std::uint8_t haute;
        std::uint8_t basse;
    };
    const struct {
        Version avant;
        Version apres;
        bool rendu;
    } cas[] = {{{20, 95}, {2, 100}, true},  {{20, 97}, {20, 98}, true},
               {{20, 89}, {20, 97}, false}, {{20, 98}, {2, 100}, false},
               {{2, 100}, {2, 109}, false}, {{2, 100}, {20, 97}, false},
               {{20, 95}, {20, 95}, false}, {{2, 89}, {20, 98}, true}};
    for (const auto& c : cas) {
        Banc banc(simulateur::Simple(1, c.avant.haute, c.avant.basse, maintenant));
        banc.outil.fin = [&] { banc.Reprogrammer(c.apres.haute, c.apres.basse); };
        banc.Cliquer();
        EXPECT_EQ(banc.Trames(), c.rendu ? identiteVersionEtNumero : identiteEtVersion)
            << int{c.avant.haute} << '-' << int{c.avant.basse} << " to " << int{c.apres.haute}
            << '-' << int{c.apres.basse};
        EXPECT_EQ(banc.Boites(), QStringList());
    }
}

TEST_F(MiseAJourFirmware, TakesTheVersionReadLastForTheOldOneWhenTheEchoIsWrong) {
    ecran.etat.VersionLogiciel = 2.098;
    pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::mauvaisEcho});
    outil.fin = [&] { Reprogrammer(2, 100); };
    Cliquer();
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, SaysThatANumberItCouldNotReadIsNotValid) {
    pod.ReglerNumeroSerie(2147483648U);
    outil.fin = [&] { Reprogrammer(2, 100); };
    Cliquer();
    EXPECT_EQ(Boites(), QStringList{q("Le n° de série n'est pas valide")});
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(ecran.ui->ValeurNumeroSerie->text(), QString());
}

TEST_F(MiseAJourFirmware, GoesOnWithAnAbsentLoggerAndLeavesItAlone) {
    pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence});
    Cliquer();
    EXPECT_EQ(outil.appels.size(), 1U);
    EXPECT_EQ(Trames(), Codes{9});
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, TakesAnAbsentLoggerForAnOldOneOnceItAnswersAgain) {
    pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence});
    ecran.etat.VersionLogiciel = 2.109;
    outil.fin = [&] {
        Reprogrammer(20, 98);
        // As another command of the form does.
        ecran.etat.TimeOut = false;
    };
    Cliquer();
    EXPECT_EQ(Trames(), (Codes{9, 9}));
    EXPECT_EQ(Boites(), QStringList{q("Le n° de série n'est pas valide")});
    EXPECT_EQ(etabli.dialogues.Boites()[1].titre, q("k-Pod of Zoé"));
}

TEST_F(MiseAJourFirmware, AsksNothingOfALoggerWhileATimeOutStands) {
    ecran.etat.TimeOut = true;
    Cliquer();
    EXPECT_EQ(outil.appels.size(), 1U);
    EXPECT_EQ(Trames(), Codes{});
    EXPECT_TRUE(ecran.etat.TimeOut);
}

TEST_F(MiseAJourFirmware, ALoggerThatIsSilentAfterwardsGetsNothing) {
    outil.fin = [&] { pod.pannes.Ordonner({.code = 9, .genre = GenrePanne::silence}); };
    Cliquer();
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, ASilenceBehindTheVersionLosesTheNumberOnly) {
    pod.pannes.Ordonner({.code = 6, .genre = GenrePanne::silence});
    outil.fin = [&] {
        Reprogrammer(2, 100);
        ecran.etat.TimeOut = false;
    };
    Cliquer();
    EXPECT_EQ(outil.appels.size(), 1U);
    EXPECT_EQ(Trames(), identiteEtVersion);
    EXPECT_EQ(Boites(), QStringList{q("Le n° de série n'est pas valide")});
}

TEST_F(MiseAJourFirmware, RefusesAFileOfAnotherNameAndSaysWhichItWants) {
    Prendre("/f/K-POD-33_V2.112.HEX");
    lien.OuvreUSB(pod.identite.usb);
    Cliquer();
    ASSERT_EQ(etabli.dialogues.Boites().size(), 2U);
    const auto& boite = etabli.dialogues.Boites()[1];
    EXPECT_EQ(boite.icone, Icone::Exclamation);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, q("k-Pod of Zoé"));
    EXPECT_EQ(boite.texte,
              q("/f/K-POD-33_V2.112.HEX : \nNom de fichier invalide : K-POD_VX.XXX.HEX"));
    EXPECT_TRUE(outil.appels.empty());
    EXPECT_EQ(Trames(), identite);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(ecran.ui->nmuBootLoad->isEnabled());
}

TEST_F(MiseAJourFirmware, RefusesAVersionThatIsTooHighInTheSameWords) {
    Prendre("/f/K-POD_V2.11.HEX");
    Cliquer();
    EXPECT_EQ(Boites(),
              QStringList{q("/f/K-POD_V2.11.HEX : \nNom de fichier invalide : K-POD_VX.XXX.HEX")});
    EXPECT_TRUE(outil.appels.empty());
}

TEST(MiseAJourFirmwareEdition, TakesItsNamesFromTheFolderOfTheProgram) {
    Banc banc(simulateur::KPod33(maintenant), true);
    banc.Prendre("/f/K-POD-33_V2.120.HEX");
    banc.Cliquer();
    EXPECT_EQ(
        banc.Boites(),
        QStringList{q("/f/K-POD-33_V2.120.HEX : \nNom de fichier invalide : Z907FPT_VX.XXX.HEX")});
    EXPECT_TRUE(banc.outil.appels.empty());
    banc.Prendre("/f/Z907FPT_V2.120.HEX");
    banc.Cliquer();
    ASSERT_EQ(banc.outil.appels.size(), 1U);
    EXPECT_TRUE(
        banc.outil.appels[0].argument.endsWith(q(";prg=/f/Z907FPT_V2.120.HEX;prodcode=20:2.120")));
}

TEST(MiseAJourFirmwareAutresTypes, EndWithoutAWordAfterTheFileDialogUnlessInMaintenance) {
    Banc banc(simulateur::KTide(maintenant));
    ASSERT_EQ(banc.ecran.etat.TypekPod, 5);
    banc.etabli.dialogues.pendantDemande = [&](const DemandeFichier&) {
        banc.lien.OuvreUSB(banc.pod.identite.usb);
    };
    banc.Cliquer();
    EXPECT_EQ(banc.etabli.dialogues.demandes.size(), 1U);
    EXPECT_EQ(banc.Boites(), QStringList());
    EXPECT_TRUE(banc.outil.appels.empty());
    EXPECT_EQ(banc.Trames(), identite);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(MiseAJourFirmwareAutresTypes, TakeAnyFileInMaintenance) {
    for (const char* fichier : {"/f/any.HEX", "/f/K-POD_V9.9.HEX", "/f/Z907PT_V0.1.HEX"}) {
        Banc banc(simulateur::KTide(maintenant));
        banc.Maintenance();
        banc.Prendre(fichier);
        banc.Cliquer();
        EXPECT_EQ(banc.outil.appels.size(), 1U) << fichier;
        EXPECT_EQ(banc.Boites(), QStringList()) << fichier;
    }
}

TEST_F(MiseAJourFirmware, ChecksTheNameInMaintenanceToo) {
    Maintenance();
    Prendre("/f/any.HEX");
    Cliquer();
    EXPECT_EQ(Boites().size(), 1);
    EXPECT_TRUE(outil.appels.empty());
}

TEST_F(MiseAJourFirmware, ClosesItsEntryWhileItLasts) {
    QAction& entree = *ecran.ui->nmuBootLoad;
    entree.setEnabled(true);
    int secondes = 0;
    etabli.respiration.ReglerEvenements([&] {
        EXPECT_FALSE(entree.isEnabled());
        nmuBootLoad_Click(poste);
        ++secondes;
    });
    outil.duree = 3;
    Cliquer();
    EXPECT_EQ(secondes, 3);
    EXPECT_EQ(outil.appels.size(), 1U);
    EXPECT_EQ(etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(entree.isEnabled());
}

TEST_F(MiseAJourFirmware, StopsWaitingAndLeavesTheLoggerAloneWhenTheProgramIsClosed) {
    outil.duree = 1000;
    etabli.respiration.ReglerEvenements([&] {
        if (outil.regards == 3) ecran.close();
    });
    Cliquer();
    EXPECT_EQ(outil.regards, 3);
    EXPECT_EQ(outil.laisses, 1);
    EXPECT_EQ(Trames(), identite);
    EXPECT_EQ(Boites(), QStringList());
}

TEST_F(MiseAJourFirmware, StartsNothingWhenTheProgramIsClosedUnderTheFileDialog) {
    etabli.dialogues.pendantDemande = [&](const DemandeFichier&) { ecran.close(); };
    Cliquer();
    EXPECT_TRUE(outil.appels.empty());
    EXPECT_EQ(Trames(), identite);
}

TEST_F(MiseAJourFirmware, GivesTheNumberToNoOtherLogger) {
    EnregistreurSimule& autre = bus.Brancher(simulateur::KPod2100(maintenant));
    outil.fin = [&] { ecran.etat.UsbID = autre.identite.usb; };
    Cliquer();
    EXPECT_EQ(autre.journal.Codes(), Codes{9});
    EXPECT_EQ(Trames(), identite);
    EXPECT_EQ(ecran.ui->ValeurNumeroSerie->text(), QString());
}

}  // namespace
}  // namespace bornika::essai::firmware
