#include "context/pulse_parameters.h"

#include <gtest/gtest.h>

#include "support/form_stand.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;

class ParametresImpulsion : public testing::Test, protected BancSimule {
  protected:
    EnregistreurSimule& enregistreur = bus.Brancher(EnregistreurSimule());

    void SetUp() override { ecran.etat.UsbID = enregistreur.identite.usb; }
    float Poids() {
        float valeur = -1;
        LitPoidsImpulsion(poste, valeur);
        return valeur;
    }
    float TempsDebit() {
        float valeur = -1;
        LitTempsDebit(poste, valeur);
        return valeur;
    }
};

TEST(SimpleDepuisOctets, LowByteComesFirst) {
    EXPECT_EQ(SimpleDepuisOctets({0x00, 0x00, 0xC8, 0x42}), 100.0F);
    EXPECT_EQ(SimpleDepuisOctets({0xCD, 0xCC, 0xCC, 0x3D, 1, 2, 3, 4}), 0.1F);
    EXPECT_EQ(SimpleDepuisOctets({0x00, 0xC0, 0xA8, 0x47}), 86400.0F);
    EXPECT_EQ(SimpleDepuisOctets({0x00, 0x00, 0x20, 0xC0}), -2.5F);
}

TEST(OctetsDepuisSimple, LowByteGoesFirst) {
    EXPECT_EQ(OctetsDepuisSimple(100.0F), (Octets{0x00, 0x00, 0xC8, 0x42}));
    EXPECT_EQ(OctetsDepuisSimple(0.1F), (Octets{0xCD, 0xCC, 0xCC, 0x3D}));
    EXPECT_EQ(OctetsDepuisSimple(86400.0F), (Octets{0x00, 0xC0, 0xA8, 0x47}));
    EXPECT_EQ(OctetsDepuisSimple(-2.5F), (Octets{0x00, 0x00, 0x20, 0xC0}));
    EXPECT_EQ(OctetsDepuisSimple(0.0F), (Octets{0, 0, 0, 0}));
}

TEST_F(ParametresImpulsion, AHundredIsStoredAsItsFourBytes) {
    const int octets[] = {0x00, 0x00, 0xC8, 0x42};
    for (int i = 0; i < 4; ++i) {
        enregistreur.memoire.EcrireOctet(adresse::poidsImpulsion + i, octets[i]);
    }
    EXPECT_EQ(Poids(), 100.0F);
}

TEST_F(ParametresImpulsion, EachNumberHasItsAddress) {
    enregistreur.memoire.EcrireFlottant(adresse::poidsImpulsion, 2.5F);
    enregistreur.memoire.EcrireFlottant(adresse::tempsDebit, 3600.0F);
    EXPECT_EQ(Poids(), 2.5F);
    EXPECT_EQ(TempsDebit(), 3600.0F);
    EXPECT_EQ(enregistreur.journal.DeCode(29),
              (std::vector<std::vector<std::uint8_t>>{{29, 0, 112, 32, 32, 32, 32, 32},
                                                      {29, 0, 125, 32, 32, 32, 32, 32}}));
}

TEST_F(ParametresImpulsion, TheLinkIsOpenedAndClosed) {
    Poids();
    EXPECT_EQ(enregistreur.journal.Total(), 1);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(ParametresImpulsion, ASilentLoggerIsToldAndGivesZero) {
    enregistreur.pannes.Ordonner({29, simulateur::GenrePanne::silence});
    EXPECT_EQ(Poids(), 0.0F);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(ParametresImpulsion, ASilentLoggerHasNoTimeBaseEither) {
    enregistreur.memoire.EcrireFlottant(adresse::tempsDebit, 60.0F);
    enregistreur.pannes.Ordonner({29, simulateur::GenrePanne::silence});
    EXPECT_EQ(TempsDebit(), 0.0F);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(etabli.dialogues.Boites().size(), 1U);
}

TEST_F(ParametresImpulsion, AStandingTimeOutGivesZeroWithoutAWord) {
    ecran.etat.TimeOut = true;
    EXPECT_EQ(Poids(), 0.0F);
    EXPECT_EQ(TempsDebit(), 0.0F);
    EXPECT_TRUE(etabli.dialogues.Boites().empty());
}

TEST_F(ParametresImpulsion, AHundredIsWrittenByteAfterByte) {
    lien.OuvreUSB(ecran.etat.UsbID);
    EcritPoidsImpulsion(poste, 100.0F);
    EXPECT_EQ(enregistreur.journal.DeCode(30),
              (std::vector<std::vector<std::uint8_t>>{{30, 0, 112, 0x00, 32, 32, 32, 32},
                                                      {30, 0, 113, 0x00, 32, 32, 32, 32},
                                                      {30, 0, 114, 0xC8, 32, 32, 32, 32},
                                                      {30, 0, 115, 0x42, 32, 32, 32, 32}}));
    EXPECT_EQ(enregistreur.memoire.Flottant(adresse::poidsImpulsion), 100.0F);
    EXPECT_EQ(etabli.horloge.pauses, (std::vector<int>{50, 50, 50, 50}));
}

TEST_F(ParametresImpulsion, TheTimeBaseIsWrittenAtItsOwnAddress) {
    lien.OuvreUSB(ecran.etat.UsbID);
    EcritTempsDebit(poste, 86400.0F);
    std::vector<int> adresses;
    for (const auto& trame : enregistreur.journal.DeCode(30))
        adresses.push_back(trame[2]);
    EXPECT_EQ(adresses, (std::vector<int>{125, 126, 127, 128}));
    EXPECT_EQ(enregistreur.memoire.Flottant(adresse::tempsDebit), 86400.0F);
    EXPECT_EQ(enregistreur.memoire.Flottant(adresse::poidsImpulsion), 1.0F);
}

TEST_F(ParametresImpulsion, WhatIsWrittenReadsBackExactly) {
    for (const float valeur : {0.0F, 0.1F, -2.5F, 1e-30F, 3.4028235e38F}) {
        lien.OuvreUSB(ecran.etat.UsbID);
        EcritPoidsImpulsion(poste, valeur);
        EcritTempsDebit(poste, -valeur);
        EXPECT_EQ(Poids(), valeur);
        EXPECT_EQ(TempsDebit(), -valeur);
    }
}

TEST_F(ParametresImpulsion, WritingLeavesTheLinkAsItsCallerHoldsIt) {
    lien.OuvreUSB(ecran.etat.UsbID);
    EcritPoidsImpulsion(poste, 2.0F);
    EXPECT_EQ(bus.PoigneesOuvertes(), 2);
    EXPECT_FALSE(ecran.etat.TimeOut);
    EXPECT_TRUE(etabli.dialogues.Boites().empty());
}

TEST_F(ParametresImpulsion, ALoggerSilentInAWriteIsToldOfOnceAndKeepsWhatItTook) {
    enregistreur.memoire.EcrireFlottant(adresse::poidsImpulsion, 2.5F);  // 00 00 20 40
    lien.OuvreUSB(ecran.etat.UsbID);
    enregistreur.pannes.Ordonner({30, simulateur::GenrePanne::silence, 3});
    EcritPoidsImpulsion(poste, 0.1F);
    EXPECT_EQ(etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
    EXPECT_EQ(enregistreur.journal.Nombre(30), 3);
    // The link is closed: nothing of the rest reaches the logger.
    const int octets[] = {0xCD, 0xCC, 0x20, 0x40};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(enregistreur.memoire.Octet(adresse::poidsImpulsion + i), octets[i]);
}

TEST_F(ParametresImpulsion, AnEchoThatIsWrongOrShortDoesNotStopAWrite) {
    for (const auto genre :
         {simulateur::GenrePanne::mauvaisEcho, simulateur::GenrePanne::reponseCourte}) {
        lien.OuvreUSB(ecran.etat.UsbID);
        enregistreur.pannes.Ordonner({30, genre, 1, 4, 1});
        EcritTempsDebit(poste, 3600.0F);
        EXPECT_EQ(enregistreur.memoire.Flottant(adresse::tempsDebit), 3600.0F);
        EXPECT_FALSE(ecran.etat.TimeOut);
        enregistreur.pannes.Annuler();
    }
}

TEST_F(ParametresImpulsion, WritingOnAClosedLinkIsASilentLogger) {
    EcritPoidsImpulsion(poste, 100.0F);
    EXPECT_EQ(etabli.dialogues.Boites().size(), 1U);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(enregistreur.journal.Total(), 0);
    EXPECT_EQ(enregistreur.memoire.Flottant(adresse::poidsImpulsion), 1.0F);
}

}  // namespace
}  // namespace bornika::essai
