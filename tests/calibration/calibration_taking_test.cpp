// The frames and boxes of a calibration, one point after the other.

#include <gtest/gtest.h>

#include "calibration/calibration_fixture.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;

const std::vector<std::uint8_t> version{9, 0, 0, 0, 0, 0, 0, 0};
const std::vector<std::uint8_t> fin{25, 0, 0, 0, 0, 0, 0, 0};
const std::vector<std::uint8_t> litDate{28, 0, 0, 0, 0, 0, 0, 0};
const std::vector<std::uint8_t> litUnique{26, 0, 0, 0, 0, 0, 0, 0};
const std::vector<std::uint8_t> litBas{26, 1, 0, 0, 0, 0, 0, 0};
const std::vector<std::uint8_t> litHaut{26, 2, 0, 0, 0, 0, 0, 0};
// The version reply is 9, 1, 2, 7, 110, 1, 150, 4, 0: bytes behind the requests come from it.
const std::vector<std::uint8_t> date{27, 0x69, 0xA9, 0x8E, 0x0D, 0x01, 1, 150};

TEST(CalibrationFrames, OfTwoPointsFromTheOpeningToTheEnd) {
    BancEtalonnage banc;
    banc.Ouvrir();
    banc.Taper(0, "5");
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Repondre(Reponse::Oui);
    banc.Cliquer(banc.f().SortirEtalonnage);
    banc.Taper(1, "12");
    banc.Mesurer(770);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Recues(), (Trames{version,
                                     {24, 0x01, 0x40, 1, 7, 110, 1, 150},
                                     date,
                                     version,
                                     version,
                                     {24, 0x03, 0x00, 2, 7, 110, 1, 150},
                                     date,
                                     fin,
                                     version,
                                     litDate,
                                     litBas,
                                     litHaut}));
    EXPECT_EQ(banc.f().ValeurPressionLue_0->text(), QStringLiteral("4.9"));
    EXPECT_EQ(banc.f().ValeurPressionLue_1->text(), QStringLiteral("12.0"));
    EXPECT_EQ(banc.f().ValeurDateEtalonnage->text(), QStringLiteral("05/03/2026 14:07:09"));
    EXPECT_EQ(banc.enregistreur.memoire.Octet(adresse::modeEtalonnage), 0);
}

TEST(CalibrationFrames, OfOldFirmwareHaveOnePointAndNoQuestion) {
    BancEtalonnage banc(Firmware::Ancien);
    banc.Ouvrir();
    banc.f().ValeurPressionReelle_1->setText(QStringLiteral("0"));
    banc.Taper(0, "5");
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Recues(), (Trames{version,
                                     {24, 0x01, 0x40, 1, 0, 89, 1, 150},
                                     date,
                                     version,
                                     fin,
                                     version,
                                     litDate,
                                     litUnique}));
    EXPECT_EQ(banc.Boites().size(), 2);
    EXPECT_EQ(banc.f().ValeurPressionLue_0->text(), QStringLiteral("4.9"));
}

TEST(CalibrationFrames, OfOldFirmwareTakeTheFirstRowAlsoWhenASecondPointIsThought) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    // Another logger hangs on the cord now.
    banc.enregistreur.identite.type = 0;
    banc.enregistreur.identite.versionMilieu = 0;
    banc.enregistreur.identite.versionBasse = 89;
    banc.Taper(1, "12");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(24), (Trames{{24, 0x01, 0x40, 1, 0, 89, 1, 150}}));
}

TEST(CalibrationFrames, CarryScaleAndUnitOfTheMainForm) {
    BancEtalonnage banc;
    banc.ui.ListeEchelles->Choisir(6);
    banc.ChoisirUnite(QStringLiteral("mbar"));
    banc.Ouvrir();
    // -1 to 9 bar: 1500 mbar are 2.5 of 10 bar, 256 of 1024 points.
    banc.Taper(0, "1500");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(24).at(0),
              (std::vector<std::uint8_t>{24, 0x01, 0x00, 1, 7, 110, 1, 150}));
    EXPECT_EQ(banc.enregistreur.journal.DeCode(27).at(0).at(5), 0x62);
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("-1 - 9 bar"));
}

TEST(CalibrationFrames, HoldTheReferenceWithinTheScale) {
    const struct {
        const char* pression;
        int haut;
        int bas;
    } cas[] = {{"99", 4, 0}, {"-3", 0, 0}, {"0.0078125", 0, 0}, {"0.02344", 0, 2}, {"1e1", 2, 128}};
    for (const auto& c : cas) {
        BancEtalonnage banc;
        banc.Ouvrir();
        banc.Taper(0, c.pression);
        banc.Cliquer(banc.f().EntrerEtalonnage);
        const auto trame = banc.enregistreur.journal.DeCode(24).at(0);
        EXPECT_EQ(trame[1], c.haut) << c.pression;
        EXPECT_EQ(trame[2], c.bas) << c.pression;
    }
}

TEST(CalibrationFrames, AreNotMadeAbsolute) {
    BancEtalonnage banc;
    banc.ui.PressionAbsolue->setChecked(true);
    banc.Ouvrir();
    banc.Taper(0, "5");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.enregistreur.journal.DeCode(24).at(0).at(2), 0x40);
}

TEST(CalibrationReference, ThatIsNoNumberBecomesZeroWithoutAWord) {
    const struct {
        const char* premier;
        const char* second;
        const char* premierApres;
        const char* secondApres;
    } cas[] = {{"abc", "5", "0", "5"},
               {"", "5", "0", "5"},
               {"5", "x", "5", "0"},
               {"5", "", "5", "0"},
               {"1,5", "5", "0", "5"},
               // One click, one box.
               {"?", "?", "0", "?"}};
    for (const auto& c : cas) {
        BancEtalonnage banc;
        banc.ecran.etat.TimeOut = true;
        banc.Ouvrir();
        const std::string avant = banc.Situation();
        banc.f().ValeurPressionReelle_0->setText(QString::fromLatin1(c.premier));
        banc.f().ValeurPressionReelle_1->setText(QString::fromLatin1(c.second));
        banc.Cliquer(banc.f().EntrerEtalonnage);
        EXPECT_EQ(Clair(banc.f().ValeurPressionReelle_0->text()), c.premierApres);
        EXPECT_EQ(Clair(banc.f().ValeurPressionReelle_1->text()), c.secondApres);
        EXPECT_EQ(banc.Situation(), avant);
        EXPECT_EQ(banc.Codes(), std::vector<int>());
        EXPECT_EQ(banc.Boites(), QStringList());
        EXPECT_TRUE(banc.ecran.etat.TimeOut) << "not even the flag is cleared";
        // The sensor is named all the same.
        EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("0 - 16 bar"));
    }
}

TEST(CalibrationBoxes, GuideTheOperatorWithTheLinkClosedAndTheButtonsSet) {
    BancEtalonnage banc;
    banc.ecran.etat.NomKpod = QStringLiteral("k-Pod TX");
    banc.Ouvrir();
    banc.Taper(0, "5");
    std::vector<std::string> situations;
    int ouvertes = 0;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        situations.push_back(banc.Situation());
        ouvertes += banc.bus.PoigneesOuvertes();
    };
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(situations, std::vector<std::string>(2, "- end read quit, 1 row, types 1, point 1"));
    EXPECT_EQ(ouvertes, 0);
    EXPECT_EQ(banc.Boites(),
              QStringList({QStringLiteral("Débranchez le cordon USB, connectez le k-Pod sur son "
                                          "capteur, attendez que la led verte s'allume, puis "
                                          "attendez une seconde"),
                           QStringLiteral("Déconnectez le k-Pod de son capteur, rebranchez le "
                                          "cordon USB")}));
    for (const auto& boite : banc.etabli.dialogues.Boites()) {
        EXPECT_EQ(boite.icone, Icone::Information);
        EXPECT_EQ(boite.boutons, Boutons::Ok);
        EXPECT_EQ(boite.titre, QStringLiteral("k-Pod TX"));
    }
}

TEST(CalibrationBoxes, SpeakEnglishToo) {
    BancEtalonnage banc(Firmware::Nouveau, QStringLiteral("English"));
    banc.Amener(Avance::PointUn);
    banc.Repondre(Reponse::Non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Boites(), QStringList(QStringLiteral("Calibrate a second point?")));
    banc.Oublier();
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.Boites(),
              QStringList({QStringLiteral("Unplug the USB cable, connect the k-Pod to its sensor, "
                                          "wait until the green LED lights up, then wait one "
                                          "second"),
                           QStringLiteral("Disconnect the k-Pod from its sensor, plug the USB "
                                          "cable in again")}));
}

TEST(CalibrationBoxes, AskForTheSecondPointWithTheLinkStillOpen) {
    BancEtalonnage banc;
    banc.ecran.etat.NomKpod = QStringLiteral("k-Pod TX");
    banc.Amener(Avance::PointUn);
    int ouvertes = -1;
    banc.etabli.dialogues.pendantBoite = [&](const auto&) {
        ouvertes = banc.bus.PoigneesOuvertes();
    };
    banc.Repondre(Reponse::Non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 1U);
    const auto& boite = banc.etabli.dialogues.Boites().front();
    EXPECT_EQ(boite.icone, Icone::Question);
    EXPECT_EQ(boite.boutons, Boutons::OuiNon);
    EXPECT_EQ(boite.titre, QStringLiteral("k-Pod TX"));
    EXPECT_EQ(boite.texte, QStringLiteral("Voulez-vous étalonner un 2e point ?"));
    EXPECT_EQ(ouvertes, 2);
}

TEST(CalibrationLink, IsOpenedAnewForThePointAndClosedAtTheEnd) {
    BancEtalonnage banc;
    banc.Ouvrir();
    banc.Taper(0, "5");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.Poignees(), "ooccoocc");
}

TEST(CalibrationLink, ThatAYesHasLeftOpenIsClosedByTheNextOpen) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 2);
    EXPECT_EQ(banc.enregistreur.memoire.Octet(adresse::modeEtalonnage), 1)
        << "the logger stays in calibration";
    banc.Cliquer(banc.f().LireEtalonnage);
    EXPECT_EQ(banc.Poignees(), "ccoocc");
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(CalibrationLink, OfASecondPointIsOpenedOnceForItsEndAndOnceForTheReading) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointDeux);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Poignees(), "ooccoocc");
}

}  // namespace
}  // namespace bornika::essai
