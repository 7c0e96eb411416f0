#include "service/firmware_identity.h"

#include <gtest/gtest.h>

namespace bornika::essai {
namespace {

constexpr SuiteNumeroSerie rienAFaire{.signaler = false, .rendre = false};
constexpr SuiteNumeroSerie aSignaler{.signaler = true, .rendre = false};
constexpr SuiteNumeroSerie aRendre{.signaler = false, .rendre = true};

/// A logger of version 2.095 that the tool has brought to 2.100 and that answers afterwards.
BilanFirmware Ordinaire() {
    return {.transferee = true,
            .ancienneVersion = 2.095,
            .numeroConnu = true,
            .relecture = Relecture::Lue,
            .autreEnregistreur = false,
            .nouvelleVersion = 2.1};
}

TEST(SuiteDeMiseAJour, GivesTheNumberBackAcross2098Only) {
    const struct {
        double avant;
        double apres;
        bool rendu;
    } cas[] = {{2.095, 2.1, true},    {2.097, 2.098, true},  {0, 2.109, true},
               {2.089, 2.097, false}, {2.098, 2.1, false},   {2.1, 2.109, false},
               {2.1, 2.097, false},   {2.095, 2.095, false}, {0, 0, false}};
    for (const auto& c : cas) {
        BilanFirmware bilan = Ordinaire();
        bilan.ancienneVersion = c.avant;
        bilan.nouvelleVersion = c.apres;
        EXPECT_EQ(SuiteDeMiseAJour(bilan), c.rendu ? aRendre : rienAFaire)
            << c.avant << " to " << c.apres;
    }
}

TEST(SuiteDeMiseAJour, GivesBackWhatCouldNotBeReadToo) {
    BilanFirmware bilan = Ordinaire();
    bilan.numeroConnu = false;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), aRendre);
}

TEST(SuiteDeMiseAJour, GivesBackThoughTheToolWasNotStarted) {
    BilanFirmware bilan = Ordinaire();
    bilan.transferee = false;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), aRendre);
}

TEST(SuiteDeMiseAJour, TellsTheNumberOfALoggerThatIsNotAsked) {
    BilanFirmware bilan = Ordinaire();
    bilan.relecture = Relecture::PasDemandee;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), aSignaler);
    bilan.autreEnregistreur = true;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), aSignaler);
}

TEST(SuiteDeMiseAJour, TellsTheNumberWhenAnotherLoggerStandsThere) {
    BilanFirmware bilan = Ordinaire();
    bilan.autreEnregistreur = true;
    for (const Relecture relecture : {Relecture::Lue, Relecture::SansReponse}) {
        bilan.relecture = relecture;
        EXPECT_EQ(SuiteDeMiseAJour(bilan), aSignaler);
    }
}

TEST(SuiteDeMiseAJour, ALoggerWithoutAnAnswerIsToldAndGoesByTheVersionKnownLast) {
    BilanFirmware bilan = Ordinaire();
    bilan.relecture = Relecture::SansReponse;
    bilan.nouvelleVersion = 2.095;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), aSignaler);
    bilan.nouvelleVersion = 2.098;
    EXPECT_EQ(SuiteDeMiseAJour(bilan), (SuiteNumeroSerie{.signaler = true, .rendre = true}));
}

TEST(SuiteDeMiseAJour, TellsNothingOfANumberThatIsNotInDanger) {
    for (const Relecture relecture : {Relecture::PasDemandee, Relecture::SansReponse}) {
        BilanFirmware sur = Ordinaire();
        sur.relecture = relecture;
        sur.nouvelleVersion = 2.095;
        ASSERT_EQ(SuiteDeMiseAJour(sur), aSignaler);
        BilanFirmware sansOutil = sur;
        sansOutil.transferee = false;
        BilanFirmware sansNumero = sur;
        sansNumero.numeroConnu = false;
        BilanFirmware recente = sur;
        recente.ancienneVersion = 2.098;
        for (const BilanFirmware& bilan : {sansOutil, sansNumero, recente})
            EXPECT_EQ(SuiteDeMiseAJour(bilan), rienAFaire);
    }
}

}  // namespace
}  // namespace bornika::essai
