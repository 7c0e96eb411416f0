#include "service/pulse_parameters.h"

#include <gtest/gtest.h>

#include "simulator/simulated_bus.h"
#include "support/fake_system.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;

class ParametresImpulsion : public testing::Test {
  protected:
    BusSimule bus;
    EnregistreurSimule& enregistreur = bus.Brancher(EnregistreurSimule());
    Etabli etabli{&bus};
    MainScreen ecran{etabli.systeme};
    MULTIUSB lien{ecran};
    Poste poste{ecran, lien};

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
    EXPECT_EQ(etabli.dialogues.boites.size(), 1U);
    EXPECT_EQ(bus.PoigneesOuvertes(), 0);
}

TEST_F(ParametresImpulsion, ASilentLoggerHasNoTimeBaseEither) {
    enregistreur.memoire.EcrireFlottant(adresse::tempsDebit, 60.0F);
    enregistreur.pannes.Ordonner({29, simulateur::GenrePanne::silence});
    EXPECT_EQ(TempsDebit(), 0.0F);
    EXPECT_TRUE(ecran.etat.TimeOut);
    EXPECT_EQ(etabli.dialogues.boites.size(), 1U);
}

TEST_F(ParametresImpulsion, AStandingTimeOutGivesZeroWithoutAWord) {
    ecran.etat.TimeOut = true;
    EXPECT_EQ(Poids(), 0.0F);
    EXPECT_EQ(TempsDebit(), 0.0F);
    EXPECT_TRUE(etabli.dialogues.boites.empty());
}

}  // namespace
}  // namespace bornika::essai
