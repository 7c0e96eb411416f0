#include "logger/writing_checks.h"

#include <gtest/gtest.h>

#include <QLabel>

#include "logger/parameter_reading.h"
#include "logger/parameter_writing.h"
#include "logger/writing_fixture.h"
#include "platform/colour.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;
using simulateur::GenrePanne;

Couleur CouleurDe(const QLabel& etiquette) {
    return DepuisQColor(etiquette.palette().color(QPalette::WindowText));
}

/// Answer to the question for the calibration date.
Tampon Reponse28(int date, int octetEchelle, int code = 28) {
    Tampon reponse{};
    reponse[1] = static_cast<std::uint8_t>(code);
    reponse[2] = static_cast<std::uint8_t>(date >> 24);
    reponse[3] = static_cast<std::uint8_t>(date >> 16);
    reponse[4] = static_cast<std::uint8_t>(date >> 8);
    reponse[5] = static_cast<std::uint8_t>(date);
    reponse[6] = static_cast<std::uint8_t>(octetEchelle);
    return reponse;
}

void NAFaitQueLire(const BancEcriture& banc) {
    for (int ou = 0; ou < simulateur::MemoireInterne::taille; ++ou) {
        ASSERT_EQ(banc.enregistreur.memoire.Octet(ou), banc.avant.Octet(ou)) << ou;
    }
    EXPECT_TRUE(banc.etabli.horloge.pauses.empty());
    EXPECT_EQ(Clair(banc.ui.Commentaire->text()), "Forêt n°123456");
    EXPECT_EQ(Clair(banc.ui.Seuil1->text()), "1.5");
    EXPECT_EQ(Clair(banc.ui.UniteImpulsion->text()), "Gallon");
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

class EnregistreurACarte : public testing::Test {
  protected:
    BancEcriture banc{avecCarte, derniereVersion};
    void TearDown() override { EXPECT_TRUE(banc.etabli.fautes.empty()); }
};

TEST_F(EnregistreurACarte, SaysInBlackThatTheCardIsThereAndIsWritten) {
    banc.ui.SDCardState->setText({});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Clair(banc.ui.SDCardState->text()), "Carte SD présente");
    EXPECT_EQ(CouleurDe(*banc.ui.SDCardState), 0U);
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
}

TEST_F(EnregistreurACarte, WithoutItsCardIsNotWrittenAndItsLinkStaysOpen) {
    banc.enregistreur.cartePresente = false;
    Ecrire(banc.poste);
    ASSERT_EQ(banc.boites.size(), 1U);
    EXPECT_EQ(banc.boites[0].icone, Icone::Aucune);
    EXPECT_EQ(banc.boites[0].boutons, Boutons::Ok);
    EXPECT_EQ(banc.boites[0].titre, "k-Pod");
    EXPECT_EQ(banc.boites[0].texte, "Carte SD absente");
    EXPECT_EQ(banc.boites[0].vue, (Vue{false, pointeur::defaut, 2}));
    EXPECT_EQ(Clair(banc.ui.SDCardState->text()), "Carte SD absente");
    EXPECT_EQ(CouleurDe(*banc.ui.SDCardState), 255U);
    EXPECT_EQ(banc.Codes(), "8 ");
    EXPECT_EQ(banc.Maintenant(), rendueOuverte);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    NAFaitQueLire(banc);
}

TEST_F(EnregistreurACarte, ThatDoesNotAnswerForItsCardLeavesTheButtonDisabled) {
    banc.enregistreur.pannes.Ordonner({8, GenrePanne::silence});
    banc.ui.SDCardState->setText(QStringLiteral("ancien"));
    Ecrire(banc.poste);
    ASSERT_EQ(banc.boites.size(), 1U);
    EXPECT_EQ(banc.boites[0].texte, "k-Pod 33 absent");
    EXPECT_EQ(banc.boites[0].titre, "");
    EXPECT_EQ(Clair(banc.ui.SDCardState->text()), "ancien");
    EXPECT_EQ(banc.Codes(), "8 ");
    EXPECT_EQ(banc.Maintenant(), (Vue{false, pointeur::defaut, 0}));
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    NAFaitQueLire(banc);
    // Nor does a reading that succeeds enable it.
    Lire(banc.poste);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_FALSE(banc.ui.Ecrire->isEnabled());
}

TEST_F(EnregistreurACarte, IsAskedForItsCardWithoutATestOfTheEcho) {
    banc.enregistreur.pannes.Ordonner({8, GenrePanne::mauvaisEcho});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites().back(), terminee);
}

TEST_F(EnregistreurACarte, WhoseAnswerIsCutShortCountsAsWithoutCard) {
    banc.enregistreur.pannes.Ordonner({8, GenrePanne::reponseCourte, 1, 1, 7});
    Ecrire(banc.poste);
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{"Carte SD absente"}));
    EXPECT_EQ(banc.Maintenant(), rendueOuverte);
    NAFaitQueLire(banc);
}

TEST_F(EnregistreurACarte, WhoseAnswerTellsAnythingButOneCountsAsWithoutCard) {
    banc.enregistreur.pannes.Ordonner({8, GenrePanne::bruit});
    Ecrire(banc.poste);
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{"Carte SD absente"}));
    EXPECT_EQ(CouleurDe(*banc.ui.SDCardState), 255U);
    EXPECT_EQ(banc.Codes(), "8 ");
    EXPECT_EQ(banc.Maintenant(), rendueOuverte);
}

TEST(EnregistreurACarteDesDeuxTypes, IsAskedForItBeforeAnythingElse) {
    for (const std::uint8_t type : {19, 20}) {
        SCOPED_TRACE(static_cast<int>(type));
        BancEcriture banc(type);
        banc.enregistreur.cartePresente = false;
        Ecrire(banc.poste);
        EXPECT_EQ(banc.Codes(), "8 ");
        EXPECT_EQ(banc.Boites(), (std::vector<std::string>{"Carte SD absente"}));
        banc.enregistreur.cartePresente = true;
        banc.EcrireEnConfirmant();
        EXPECT_EQ(banc.Codes().substr(0, 11), "8 8 28 1 3 ");
        EXPECT_EQ(banc.Boites().back(), terminee);
    }
}

TEST_F(EnregistreurACarte, IsWrittenOnceTheCardIsIn) {
    banc.enregistreur.cartePresente = false;
    Ecrire(banc.poste);
    banc.enregistreur.cartePresente = true;
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites().back(), terminee);
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EnregistreurSansCarte, IsNotAskedForOneWhateverItWouldSay) {
    for (const std::uint8_t type : {1, 5, 18, 21}) {
        BancEcriture banc(type);
        banc.enregistreur.cartePresente = false;
        banc.EcrireEnConfirmant();
        EXPECT_EQ(banc.enregistreur.journal.Trames().front().Code(), 28);
        EXPECT_EQ(banc.Boites().back(), terminee);
    }
}

TEST(Confirmation, CancelledSendsNothingAndLeavesTheLinkOpen) {
    BancEcriture banc;
    FixerPointeurSouris(banc.ecran, pointeur::fleche);
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    Ecrire(banc.poste);
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees}));
    EXPECT_EQ(banc.Codes(), "");
    EXPECT_EQ(banc.Maintenant(), (Vue{true, pointeur::fleche, 2}));
    NAFaitQueLire(banc);
}

TEST(Confirmation, CancelledBehindTheCardCheckHasAskedForTheCardOnly) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    Ecrire(banc.poste);
    EXPECT_EQ(banc.Codes(), "8 ");
    EXPECT_EQ(banc.Maintenant(), rendueOuverte);
    NAFaitQueLire(banc);
}

TEST(Confirmation, TheNextOperationClosesTheLinkThatACancelLeftOpen) {
    BancEcriture banc;
    banc.etabli.dialogues.AnnoncerQuestion(Reponse::Annuler);
    Ecrire(banc.poste);
    Lire(banc.poste);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites().back(), terminee);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(AutreCapteur, IsTheIndexOfACalibratedSensorThatWasNotChosen) {
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x31), 2, 8), 3);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x00), 2, 8), 0);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x70), 2, 8), 7);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x31), 3, 8), std::nullopt);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x31), -1, 8), 3);
}

TEST(AutreCapteur, IsNoneBeyondTheList) {
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x80), 2, 8), std::nullopt);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0xFF), 2, 8), std::nullopt);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x00), -1, 0), std::nullopt);
}

TEST(AutreCapteur, IsNoneForALoggerThatWasNeverCalibrated) {
    EXPECT_EQ(AutreCapteur(Reponse28(0, 0x31), 2, 8), std::nullopt);
    for (const int date : {1, 0x100, 0x10000, 0x1000000})
        EXPECT_EQ(AutreCapteur(Reponse28(date, 0x31), 2, 8), 3) << date;
}

TEST(AutreCapteur, IsNoneInTheAnswerOfAnotherCommand) {
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x31, 29), 2, 8), std::nullopt);
}

TEST(AutreCapteur, RoundsTheScaleByteHalfToEven) {
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x18), 0, 8), 2);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x28), 0, 8), 2);
    EXPECT_EQ(AutreCapteur(Reponse28(1, 0x39), 0, 8), 4);
}

TEST(ControleDuCapteur, AnotherSensorIsToldOfAndNothingIsWritten) {
    BancEcriture banc;
    FixerPointeurSouris(banc.ecran, pointeur::fleche);
    banc.enregistreur.memoire.EcrireOctet(adresse::echelleEtalonnage, 0x51);
    banc.avant = banc.enregistreur.memoire;
    banc.EcrireEnConfirmant();
    ASSERT_EQ(banc.boites.size(), 2U);
    const BoiteVue& boite = banc.boites[1];
    EXPECT_EQ(boite.icone, Icone::Critique);
    EXPECT_EQ(boite.boutons, Boutons::Ok);
    EXPECT_EQ(boite.titre, "k-Pod");
    EXPECT_EQ(boite.texte,
              "0 - 6 bar <> 0 - 25 bar :  Le capteur sélectionné n'est pas le capteur étalonné");
    EXPECT_EQ(boite.vue, (Vue{false, pointeur::sablier, 2}));
    EXPECT_EQ(banc.Codes(), "28 ");
    EXPECT_EQ(banc.Maintenant(), (Vue{true, pointeur::fleche, 2}));
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    NAFaitQueLire(banc);
}

TEST(ControleDuCapteur, ASensorThatTheListDoesNotKnowPassesWithoutAWord) {
    BancEcriture banc;
    banc.enregistreur.memoire.EcrireOctet(adresse::echelleEtalonnage, 0x80);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
}

TEST(ControleDuCapteur, ALoggerThatWasNeverCalibratedPasses) {
    BancEcriture banc;
    banc.enregistreur.ReglerEtalonnage(0, 0x51, 0, 0);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
}

TEST(ControleDuCapteur, AnAnswerOfAnotherCommandPasses) {
    BancEcriture banc;
    banc.enregistreur.memoire.EcrireOctet(adresse::echelleEtalonnage, 0x51);
    banc.enregistreur.pannes.Ordonner({28, GenrePanne::mauvaisEcho});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
}

TEST(ControleDuCapteur, ALoggerThatDoesNotKnowTheQuestionIsWrittenOverAnewLink) {
    BancEcriture banc;
    banc.enregistreur.pannes.Ordonner({28, GenrePanne::silence});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
    EXPECT_EQ(banc.Codes(),
              "28 1 3 7 11 12 30 30 30 30 30 30 30 30 30 30 30 30 30 30 30 30 30 " + codesLecture);
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
    EXPECT_EQ(banc.Maintenant(), rendue);
    std::string ouvertures;
    for (std::size_t i = 0; i < 6; ++i)
        ouvertures += banc.enregistreur.lien[i].ouverture ? "open " : "close ";
    EXPECT_EQ(ouvertures, "open open close close open open ");
}

}  // namespace
}  // namespace bornika::essai
