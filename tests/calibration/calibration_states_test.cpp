// Every button in every state of the calibration.

#include <gmock/gmock.h>

#include "calibration/calibration_fixture.h"

namespace bornika::essai {
namespace {

enum class Bouton { Entrer, Fin, Lire, Quitter };

struct Cas {
    const char* nom;
    Firmware firmware;
    Avance avance;
    Bouton bouton;
    /// To the question for a second point, where it comes.
    std::optional<Reponse> reponse;
    const char* situation;
    std::vector<int> codes;
    int boites;
};

std::string Nom(const testing::TestParamInfo<Cas>& info) {
    return info.param.nom;
}

class CalibrationStates : public testing::TestWithParam<Cas> {
  protected:
    BancEtalonnage banc{GetParam().firmware};

    QPushButton* Controle(Bouton bouton) {
        switch (bouton) {
            case Bouton::Entrer:
                return banc.f().EntrerEtalonnage;
            case Bouton::Fin:
                return banc.f().SortirEtalonnage;
            case Bouton::Lire:
                return banc.f().LireEtalonnage;
            case Bouton::Quitter:
                break;
        }
        return banc.f().Sortir;
    }
};

constexpr auto oui = Reponse::Oui;
constexpr auto non = Reponse::Non;

constexpr char repos[] = "start - read quit, 1 row, types 1, point 1";
constexpr char reposDeux[] = "start - read quit, 2 rows, types 1, point 1";
constexpr char pointUn[] = "- end read quit, 1 row, types 1, point 1";
constexpr char attenteDeux[] = "start - read quit, 2 rows, types 2, point 2";
constexpr char pointDeux[] = "- end read quit, 2 rows, types 2, point 2";

const std::vector<int> lecture{9, 28, 26, 26};
const std::vector<int> lectureAncien{9, 28, 26};
const std::vector<int> prise{9, 24, 27};
const std::vector<int> rien{};

const Cas cas[] = {
    {"IdleRead", nouveau, Avance::Repos, Bouton::Lire, {}, repos, lecture, 0},
    {"IdleStart", nouveau, Avance::Repos, Bouton::Entrer, {}, pointUn, prise, 2},
    {"IdleEnd", nouveau, Avance::Repos, Bouton::Fin, {}, repos, rien, 0},
    {"OneSentRead", nouveau, Avance::PointUn, Bouton::Lire, {}, pointUn, lecture, 0},
    {"OneSentStart", nouveau, Avance::PointUn, Bouton::Entrer, {}, pointUn, rien, 0},
    {"OneSentEndYes", nouveau, Avance::PointUn, Bouton::Fin, oui, attenteDeux, {9}, 1},
    {"OneSentEndNo", nouveau, Avance::PointUn, Bouton::Fin, non, repos, {9, 25, 9, 28, 26, 26}, 1},
    // The logger has one point still: its data hide the row that is being typed.
    {"WaitingRead",
     nouveau,
     Avance::AttenteDeux,
     Bouton::Lire,
     {},
     "start - read quit, 1 row, types 2, point 2",
     lecture,
     0},
    {"WaitingStart", nouveau, Avance::AttenteDeux, Bouton::Entrer, {}, pointDeux, prise, 2},
    {"WaitingEnd", nouveau, Avance::AttenteDeux, Bouton::Fin, {}, attenteDeux, rien, 0},
    {"TwoSentRead", nouveau, Avance::PointDeux, Bouton::Lire, {}, pointDeux, lecture, 0},
    {"TwoSentStart", nouveau, Avance::PointDeux, Bouton::Entrer, {}, pointDeux, rien, 0},
    {"TwoSentEnd", nouveau, Avance::PointDeux, Bouton::Fin, {}, reposDeux, {25, 9, 28, 26, 26}, 0},
    {"OldIdleRead", ancien, Avance::Repos, Bouton::Lire, {}, repos, lectureAncien, 0},
    // The hidden second box was never filled.
    {"OldIdleStart", ancien, Avance::Repos, Bouton::Entrer, {}, repos, rien, 0},
    {"OldIdleEnd", ancien, Avance::Repos, Bouton::Fin, {}, repos, rien, 0},
    {"OldOneSentRead", ancien, Avance::PointUn, Bouton::Lire, {}, pointUn, lectureAncien, 0},
    {"OldOneSentStart", ancien, Avance::PointUn, Bouton::Entrer, {}, pointUn, rien, 0},
    {"OldOneSentEnd", ancien, Avance::PointUn, Bouton::Fin, {}, repos, {9, 25, 9, 28, 26}, 0},
};

TEST_P(CalibrationStates, EachButtonLeadsToItsState) {
    const Cas& c = GetParam();
    banc.Amener(c.avance);
    if (c.reponse) banc.Repondre(*c.reponse);
    banc.Cliquer(Controle(c.bouton));
    EXPECT_EQ(banc.Situation(), c.situation);
    EXPECT_EQ(banc.Codes(), c.codes);
    EXPECT_EQ(static_cast<int>(banc.etabli.dialogues.Boites().size()), c.boites);
    EXPECT_TRUE(banc.fiche->isVisible());
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_TRUE(banc.etabli.fautes.empty());
    // The link is left open while a second point is waited for, and only then.
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), c.situation == attenteDeux ? 2 : 0);
}

INSTANTIATE_TEST_SUITE_P(Table, CalibrationStates, testing::ValuesIn(cas), Nom);

class CalibrationQuit : public testing::TestWithParam<Avance> {};

TEST_P(CalibrationQuit, ClosesTheFormInEveryStateWithoutAWordToTheLogger) {
    for (const Firmware firmware : {nouveau, ancien}) {
        if (firmware == ancien && GetParam() > Avance::PointUn) continue;
        BancEtalonnage banc(firmware);
        banc.Amener(GetParam());
        banc.Cliquer(banc.f().Sortir);
        EXPECT_FALSE(banc.fiche->isVisible());
        EXPECT_EQ(banc.Codes(), rien);
        EXPECT_EQ(banc.Boites(), QStringList());
    }
}

std::string NomAvance(const testing::TestParamInfo<Avance>& info) {
    constexpr const char* noms[] = {"Idle", "OneSent", "Waiting", "TwoSent"};
    return noms[static_cast<std::size_t>(info.param)];
}

INSTANTIATE_TEST_SUITE_P(Table, CalibrationQuit,
                         testing::Values(Avance::Repos, Avance::PointUn, Avance::AttenteDeux,
                                         Avance::PointDeux),
                         NomAvance);

// Nothing disables the way out; every step but the way to a second point enables it all the same.
TEST(CalibrationWayOut, IsEnabledByEveryStepButTheWayToASecondPoint) {
    const struct {
        Firmware firmware;
        Avance avance;
        Bouton bouton;
        std::optional<Reponse> reponse;
        bool ouvert;
    } etapes[] = {
        {nouveau, Avance::Repos, Bouton::Entrer, {}, true},
        {nouveau, Avance::PointUn, Bouton::Fin, oui, false},
        {nouveau, Avance::PointUn, Bouton::Fin, non, true},
        {nouveau, Avance::AttenteDeux, Bouton::Entrer, {}, true},
        {nouveau, Avance::PointDeux, Bouton::Fin, {}, true},
        {ancien, Avance::PointUn, Bouton::Fin, {}, true},
    };
    for (const auto& etape : etapes) {
        BancEtalonnage banc(etape.firmware);
        banc.Amener(etape.avance);
        banc.f().ValeurPressionReelle_1->setText(QStringLiteral("0"));
        banc.f().Sortir->setEnabled(false);
        if (etape.reponse) banc.Repondre(*etape.reponse);
        banc.Cliquer(etape.bouton == Bouton::Entrer ? banc.f().EntrerEtalonnage
                                                    : banc.f().SortirEtalonnage);
        EXPECT_EQ(banc.f().Sortir->isEnabled(), etape.ouvert) << banc.Situation();
    }
}

TEST(CalibrationTwoPoints, AreBehindALoggerThatHoldsThem) {
    BancEtalonnage banc;
    banc.enregistreur.ReglerEtalonnage(1000, 0x01, 102, 104, 820, 815);
    banc.Ouvrir();
    EXPECT_EQ(banc.Situation(), reposDeux);
    // A new first point gives the second one up; the row stays until the next reading.
    banc.Taper(0, "5");
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.Situation(), "- end read quit, 2 rows, types 1, point 1");
    banc.Repondre(non);
    banc.Cliquer(banc.f().SortirEtalonnage);
    EXPECT_EQ(banc.Situation(), repos);
}

TEST(CalibrationTwoPoints, OneHighFigureIsEnoughForASecondRow) {
    for (const auto& [reference, mesure] : {std::pair{0, 5}, std::pair{5, 0}}) {
        BancEtalonnage banc;
        banc.enregistreur.ReglerEtalonnage(1000, 0x01, 102, 104, reference, mesure);
        banc.Ouvrir();
        EXPECT_EQ(banc.Situation(), reposDeux);
    }
}

TEST(CalibrationOldFirmware, TakesItsPointAtTheSecondClick) {
    BancEtalonnage banc(ancien);
    banc.Ouvrir();
    banc.Taper(0, "5");
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QString());
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->text(), QStringLiteral("0"));
    EXPECT_EQ(banc.f().ValeurPressionReelle_0->text(), QStringLiteral("5"));
    EXPECT_EQ(banc.Codes(), rien);
    banc.Mesurer(316);
    banc.Cliquer(banc.f().EntrerEtalonnage);
    EXPECT_EQ(banc.Codes(), prise);
    EXPECT_EQ(banc.Situation(), pointUn);
}

TEST(CalibrationSecondPoint, IsReadyToBeTyped) {
    BancEtalonnage banc;
    banc.Amener(Avance::AttenteDeux);
    EXPECT_TRUE(banc.f().ValeurPressionReelle_1->hasFocus());
    EXPECT_EQ(banc.f().ValeurPressionReelle_1->selectedText(), QStringLiteral("0.0"));
}

}  // namespace
}  // namespace bornika::essai
