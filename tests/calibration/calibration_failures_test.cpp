// Every frame of every button without an answer: what stands afterwards.

#include <gtest/gtest.h>

#include "calibration/calibration_fixture.h"
#include "support/case_names.h"

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;

enum class Presse { Entrer, Fin, Lire };

struct CasMuet {
    const char* nom;
    Firmware firmware;
    Avance avance;
    Presse bouton;
    /// The frames of the click, in order.
    std::vector<int> codes;
    /// How many of them, from the first, leave the form as it was when they fail.
    int sansEffet;
    /// The form after the failure of a later one.
    const char* apres;
};

const CasMuet casMuets[] = {
    {"Read", nouveau, Avance::Repos, Presse::Lire, {9, 28, 26, 26}, 4, ""},
    {"ReadOnePointSent", nouveau, Avance::PointUn, Presse::Lire, {9, 28, 26, 26}, 4, ""},
    {"ReadWaiting", nouveau, Avance::AttenteDeux, Presse::Lire, {9, 28, 26, 26}, 4, ""},
    {"ReadTwoPointsSent", nouveau, Avance::PointDeux, Presse::Lire, {9, 28, 26, 26}, 4, ""},
    {"ReadOld", ancien, Avance::Repos, Presse::Lire, {9, 28, 26}, 3, ""},
    // The point is with the logger already when the date fails.
    {"Start",
     nouveau,
     Avance::Repos,
     Presse::Entrer,
     {9, 24, 27},
     2,
     "- end read quit, 1 row, types 1, point 1"},
    {"StartSecond",
     nouveau,
     Avance::AttenteDeux,
     Presse::Entrer,
     {9, 24, 27},
     2,
     "- end read quit, 2 rows, types 2, point 2"},
    // The calibration has ended already when the reading behind it fails.
    {"End",
     nouveau,
     Avance::PointUn,
     Presse::Fin,
     {9, 25, 9, 28, 26, 26},
     2,
     "start - read quit, 1 row, types 1, point 1"},
    {"EndOld",
     ancien,
     Avance::PointUn,
     Presse::Fin,
     {9, 25, 9, 28, 26},
     2,
     "start - read quit, 1 row, types 1, point 1"},
    {"EndSecond",
     nouveau,
     Avance::PointDeux,
     Presse::Fin,
     {25, 9, 28, 26, 26},
     1,
     "start - read quit, 2 rows, types 1, point 1"},
};

struct Essai {
    CasMuet casMuets;
    int rang;
    GenrePanne genre;
};

std::vector<Essai> Essais() {
    std::vector<Essai> essais;
    for (const CasMuet& c : casMuets)
        for (std::size_t rang = 0; rang < c.codes.size(); ++rang)
            for (const GenrePanne genre :
                 {GenrePanne::silence, GenrePanne::reponsePerdue, GenrePanne::debranchement})
                essais.push_back({c, static_cast<int>(rang), genre});
    return essais;
}

std::string NomMuet(const testing::TestParamInfo<Essai>& info) {
    return std::string(info.param.casMuets.nom) + "_" + std::to_string(info.param.rang) + "_" +
           NomDePanne(info.param.genre);
}

class CalibrationFailures : public testing::TestWithParam<Essai> {
  protected:
    BancEtalonnage banc{GetParam().casMuets.firmware};

    void Presser(Presse bouton) {
        banc.Cliquer(bouton == Presse::Entrer ? banc.f().EntrerEtalonnage
                     : bouton == Presse::Fin  ? banc.f().SortirEtalonnage
                                              : banc.f().LireEtalonnage);
    }
};

TEST_P(CalibrationFailures, CloseTheLinkAndSaySoOnce) {
    const auto& [c, rang, genre] = GetParam();
    banc.Amener(c.avance);
    if (c.firmware == ancien) banc.f().ValeurPressionReelle_1->setText(QStringLiteral("0"));
    banc.etabli.dialogues.pendantBoite = {};
    const std::string avant = banc.Situation();
    banc.enregistreur.pannes.Ordonner({.genre = genre, .occurrence = rang + 1});
    // A first point of new firmware whose version was answered brings the question for a second.
    const bool question =
        c.bouton == Presse::Fin && c.codes[0] == 9 && c.firmware == nouveau && rang > 0;
    // The box of an absent logger has OK alone.
    if (question) banc.Repondre(Reponse::Non);
    Presser(c.bouton);

    EXPECT_EQ(banc.Situation(), rang < c.sansEffet ? avant : c.apres);
    EXPECT_EQ(banc.Boites().count(QStringLiteral("k-Pod absent")), 1);
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    EXPECT_EQ(banc.Codes(), std::vector<int>(c.codes.begin(), c.codes.begin() + rang + 1))
        << "nothing is sent behind the failure";
    EXPECT_TRUE(banc.fiche->isVisible());
    // Only a date that failed lets the two boxes of the measure come.
    const bool guide = c.bouton == Presse::Entrer && rang == 2;
    EXPECT_EQ(banc.Boites().size(), 1 + (guide ? 2 : 0) + (question ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(EveryFrame, CalibrationFailures, testing::ValuesIn(Essais()), NomMuet);

TEST(CalibrationFailure, OfAPointLetsTheOperatorTryAgain) {
    BancEtalonnage banc;
    banc.Ouvrir();
    banc.Taper(0, "5");
    banc.enregistreur.pannes.Ordonner({.code = 24, .genre = GenrePanne::silence});
    banc.Cliquer(banc.f().EntrerEtalonnage);
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.Situation(), "- end read quit, 1 row, types 1, point 1");
    EXPECT_EQ(banc.Codes(), (std::vector<int>{9, 24, 9, 24, 27}));
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
}

TEST(CalibrationFailure, OfTheEndOfAFirstPointLetsTheOperatorTryAgain) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointUn);
    banc.enregistreur.pannes.Ordonner({.code = 25, .genre = GenrePanne::silence});
    banc.Repondre(Reponse::Non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    banc.Repondre(Reponse::Non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Situation(), "start - read quit, 1 row, types 1, point 1");
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_bas, 316);
}

TEST(CalibrationFailure, OfTheEndOfASecondPointLetsTheOperatorTryAgain) {
    BancEtalonnage banc;
    banc.Amener(Avance::PointDeux);
    banc.enregistreur.pannes.Ordonner({.code = 25, .genre = GenrePanne::silence});
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Situation(), "start - read quit, 2 rows, types 1, point 1");
    EXPECT_EQ(banc.ecran.etat.etalonnage.mesure_etalonnage_haut, 770);
    EXPECT_EQ(banc.enregistreur.memoire.Octet(simulateur::adresse::modeEtalonnage), 0);
}

// The logger measures a point whose date it never answered to; its end is as good as any.
TEST(CalibrationFailure, OfTheDateOfAPointDoesNotStandInTheWayOfItsEnd) {
    for (const Avance avance : {Avance::Repos, Avance::AttenteDeux}) {
        BancEtalonnage banc;
        banc.Amener(avance);
        banc.f().ValeurPressionReelle_1->setText(QStringLiteral("12"));
        banc.enregistreur.pannes.Ordonner({.code = 27, .genre = GenrePanne::silence});
        banc.Cliquer(banc.f().EntrerEtalonnage);
        EXPECT_TRUE(banc.ecran.etat.TimeOut);
        banc.Oublier();
        if (avance == Avance::Repos) banc.Repondre(Reponse::Non);
        banc.Cliquer(banc.f().SortirEtalonnage);
        EXPECT_TRUE(banc.f().EntrerEtalonnage->isEnabled());
        EXPECT_EQ(banc.fiche->DeuxiemePoint, 0);
        EXPECT_EQ(banc.enregistreur.journal.Nombre(25), 1);
        EXPECT_FALSE(banc.ecran.etat.TimeOut);
    }
}

TEST(CalibrationFailure, InTheMiddleOfAReadingKeepsWhatWasRead) {
    BancEtalonnage banc;
    banc.ecran.etat.etalonnage = {1, 2, 3, 4, 5, 6, 7};
    banc.enregistreur.ReglerEtalonnage(1000, 0x31, 128, 130, 768, 750);
    banc.enregistreur.pannes.Ordonner({.code = 26, .genre = GenrePanne::silence, .occurrence = 2});
    banc.Ouvrir();
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_bas, 128);
    EXPECT_EQ(banc.ecran.etat.etalonnage.valeur_etalonnage_haut, 3);
    EXPECT_EQ(banc.f().ValeurCapteurEtalonnage->text(), QStringLiteral("0 - 6 bar"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("2.0"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QString());
    EXPECT_FALSE(banc.f().ValeurPressionReelle_1->isVisible());
}

TEST(CalibrationFailure, AtTheOpeningLetsTheFormComeUpReady) {
    BancEtalonnage banc;
    banc.bus.Debrancher(banc.enregistreur.identite.usb);
    banc.fiche = std::make_unique<Etalonnage>(banc.poste);
    ChargerEtalonnage(*banc.fiche);
    EXPECT_EQ(banc.Boites(), QStringList(QStringLiteral("k-Pod absent")));
    banc.fiche->show();
    EXPECT_EQ(banc.Situation(), "start - read quit, 1 row, types 1, point 1");
    EXPECT_EQ(banc.f().Labelpressionreelle_0->text(), QStringLiteral("bar"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QString());
}

TEST(CalibrationFailure, AScaleWithoutWidthIsAFaultOfTheWholeProgram) {
    BancEtalonnage banc;
    banc.Ouvrir();
    banc.ecran.etat.Maxi = banc.ecran.etat.Mini;
    banc.Taper(0, "5");
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.etabli.fautes.size(), 1U);
    EXPECT_EQ(banc.enregistreur.journal.Nombre(24), 0);
}

}  // namespace
}  // namespace bornika::essai
