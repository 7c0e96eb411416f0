#include <gtest/gtest.h>

#include "logger/parameter_reading.h"
#include "logger/parameter_writing.h"
#include "logger/writing_fixture.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "support/case_names.h"
#include "support/fault_number.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;
using simulateur::GenrePanne;
using Frames = std::vector<std::vector<std::uint8_t>>;

constexpr int premiereTrame = 2;
constexpr int derniereTrame = 6;
const std::string absent = "k-Pod 33 absent";

struct Cas {
    int rang;
    GenrePanne genre;
};

bool EstMuette(GenrePanne genre) {
    return genre != GenrePanne::reponseCourte && genre != GenrePanne::mauvaisEcho;
}

/// What one fault in one frame of a full write must leave behind.
struct Attente {
    explicit Attente(const Cas& cas);

    /// Ranks of the frames that reach the logger, and of those that it carries out.
    std::vector<int> recues;
    std::vector<int> suivies;
    std::vector<std::string> boites;
    Vue vue = rendue;
    bool timeOut = false;
    bool jusquAuBout = true;
    bool relue = true;
};

Attente::Attente(const Cas& cas) {
    const auto ajouter = [](std::vector<int>& rangs, int debut, int fin) {
        for (int rang = debut; rang <= fin; ++rang)
            rangs.push_back(rang);
    };
    const int derniere = static_cast<int>(TramesCompletes().size()) - 1;
    if (!EstMuette(cas.genre)) {
        // Nothing is made of an answer but of the card's.
        const bool sansCarte = cas.rang == 0 && cas.genre == GenrePanne::reponseCourte;
        ajouter(recues, 0, sansCarte ? 0 : derniere);
        suivies = recues;
        boites = {ecrasees, terminee};
        if (sansCarte) {
            boites = {"Carte SD absente"};
            vue = rendueOuverte;
            jusquAuBout = relue = false;
        }
        return;
    }
    const bool partie = cas.genre == GenrePanne::debranchement;
    const bool question = cas.rang == 1;
    ajouter(recues, 0, cas.rang);
    ajouter(suivies, 0, cas.genre == GenrePanne::silence ? cas.rang - 1 : cas.rang);
    if (question && !partie) {
        ajouter(recues, 2, derniere);
        ajouter(suivies, 2, derniere);
        boites = {ecrasees, terminee};
        return;
    }
    boites = {ecrasees, absent};
    jusquAuBout = cas.rang > derniereTrame;
    relue = jusquAuBout && !partie;
    timeOut = !relue;
    if (cas.rang == 0) {
        boites = {absent};
        vue.boutonValide = false;
    }
    if (jusquAuBout) {
        if (partie) boites.push_back(absent);
        boites.push_back(terminee);
    }
}

class PanneALaTrame : public testing::TestWithParam<Cas> {
  protected:
    void VerifierTrames();
    void VerifierFin();
    void VerifierPauses();
    void VerifierMemoire();
    void VerifierFormulaire();

    const Cas cas = GetParam();
    const Attente attente{cas};
    BancEcriture banc{avecCarte, derniereVersion};
};

/// What must be sent was sent, and nothing else.
void PanneALaTrame::VerifierTrames() {
    Frames attendues;
    for (const int rang : attente.recues)
        attendues.push_back(TramesCompletes()[static_cast<std::size_t>(rang)]);
    Frames recues;
    for (const auto& trame : banc.enregistreur.journal.Trames())
        recues.push_back(trame.Liste());
    const std::size_t lecture = attente.relue ? 18 : 0;
    ASSERT_EQ(recues.size(), attendues.size() + lecture);
    recues.resize(attendues.size());
    EXPECT_EQ(recues, attendues);
}

/// Button, pointer, link and boxes.
void PanneALaTrame::VerifierFin() {
    EXPECT_EQ(banc.Boites(), attente.boites);
    EXPECT_EQ(banc.Maintenant(), attente.vue);
    EXPECT_EQ(banc.ecran.etat.TimeOut, attente.timeOut);
    EXPECT_EQ(banc.lien.ReadHandle != 0, attente.vue.poignees != 0);
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

/// All the waits, or none at all.
void PanneALaTrame::VerifierPauses() {
    std::vector<int> pauses;
    if (attente.jusquAuBout) {
        pauses.push_back(2000);
        pauses.insert(pauses.end(), 17, 50);
        pauses.insert(pauses.end(), {1000, 2000});
    }
    EXPECT_EQ(banc.etabli.horloge.pauses, pauses);
}

/// The logger holds what it carried out: another one that gets these frames alone holds the same.
void PanneALaTrame::VerifierMemoire() {
    EnregistreurSimule temoin;
    temoin.memoire = banc.avant;
    for (const int rang : attente.suivies)
        temoin.Repondre(TramesCompletes()[static_cast<std::size_t>(rang)]);
    for (int ou = 0; ou < simulateur::MemoireInterne::taille; ++ou) {
        ASSERT_EQ(banc.enregistreur.memoire.Octet(ou), temoin.memoire.Octet(ou)) << ou;
    }
    EXPECT_EQ(banc.enregistreur.contextesForces, temoin.contextesForces);
}

/// The form shows what the logger holds, or the entries as they were.
void PanneALaTrame::VerifierFormulaire() {
    const Regional& regional = banc.ecran.systeme.regional;
    const auto& memoire = banc.enregistreur.memoire;
    QString commentaire = QStringLiteral("Forêt n°123456");
    QString unite = QStringLiteral("Gallon");
    QString poids = QStringLiteral("2.5");
    bool vingtQuatreHeures = false;
    if (attente.relue) {
        commentaire =
            Depuis8Bits(QByteArray::fromStdString(memoire.Texte(adresse::commentaire, 14)));
        unite = Depuis8Bits(QByteArray::fromStdString(memoire.Texte(adresse::uniteImpulsion, 8)));
        poids = TexteCourt(memoire.Flottant(adresse::poidsImpulsion), regional);
        vingtQuatreHeures = memoire.Octet(adresse::formatHeure) != 0;
    } else {
        EXPECT_EQ(Clair(banc.ui.Seuil1->text()), "1.5");
    }
    EXPECT_EQ(banc.ui.Commentaire->text(), commentaire);
    EXPECT_EQ(banc.ui.UniteImpulsion->text(), unite);
    EXPECT_EQ(banc.ui.CoefImpulsion->text(), poids);
    EXPECT_EQ(banc.ui.AMPM_1->isChecked(), vingtQuatreHeures);
}

TEST_P(PanneALaTrame, LeavesAllAsToldAndASecondAttemptSucceeds) {
    banc.enregistreur.pannes.Ordonner({simulateur::toutesCommandes, cas.genre, cas.rang + 1, 1, 1});
    if (attente.boites.front() == ecrasees)
        banc.EcrireEnConfirmant();
    else
        Ecrire(banc.poste);
    VerifierTrames();
    VerifierFin();
    VerifierPauses();
    VerifierMemoire();
    VerifierFormulaire();

    banc.bus.Rebrancher(banc.ecran.etat.UsbID);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.boites.back().texte, terminee);
    EXPECT_EQ(banc.Maintenant(), rendue);
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
}

std::vector<Cas> TousLesCas() {
    std::vector<Cas> cas;
    for (const GenrePanne genre :
         {GenrePanne::silence, GenrePanne::reponsePerdue, GenrePanne::reponseCourte,
          GenrePanne::mauvaisEcho, GenrePanne::debranchement}) {
        for (int rang = 0; rang < static_cast<int>(TramesCompletes().size()); ++rang)
            cas.push_back({rang, genre});
    }
    return cas;
}

std::string NomDuCasEcrit(const testing::TestParamInfo<Cas>& cas) {
    const auto& trame = TramesCompletes()[static_cast<std::size_t>(cas.param.rang)];
    return NomDePanne(cas.param.genre) + "Rank" + std::to_string(cas.param.rang) + "Code" +
           std::to_string(trame[0]);
}

INSTANTIATE_TEST_SUITE_P(ChaqueTrame, PanneALaTrame, testing::ValuesIn(TousLesCas()),
                         NomDuCasEcrit);

TEST(EcritureInterrompue, EachOfTheFiveFramesEndsItWithOneBox) {
    for (int rang = premiereTrame; rang <= derniereTrame; ++rang) {
        const int code = TramesCompletes()[static_cast<std::size_t>(rang)][0];
        SCOPED_TRACE(code);
        BancEcriture banc;
        banc.enregistreur.pannes.Ordonner({code, GenrePanne::silence});
        banc.EcrireEnConfirmant();
        ASSERT_EQ(banc.boites.size(), 2U);
        const BoiteVue& boite = banc.boites[1];
        EXPECT_EQ(boite.texte, "k-Pod absent");
        EXPECT_EQ(boite.titre, "");
        EXPECT_EQ(boite.icone, Icone::Aucune);
        EXPECT_FALSE(boite.vue.boutonValide);
        EXPECT_EQ(boite.vue.poignees, 0);
        EXPECT_EQ(banc.enregistreur.journal.Trames().back().Code(), code);
        EXPECT_EQ(banc.Maintenant(), rendue);
    }
}

TEST(EcritureInterrompue, NoLoggerAtAllIsToldBehindTheQuestion) {
    BancEcriture banc;
    banc.bus.Debrancher(banc.ecran.etat.UsbID);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent"}));
    EXPECT_EQ(banc.Codes(), "");
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, NoLoggerChosenIsToldToo) {
    BancEcriture banc;
    banc.ecran.etat.UsbID = 0;
    banc.ecran.etat.Connected = false;
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent"}));
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, ALoggerPulledOutWhileTheQuestionStandsIsNotWritten) {
    BancEcriture banc;
    banc.etabli.dialogues.pendantBoite = [&](const DialoguesNotes::Boite_& boite) {
        if (boite.boutons == Boutons::OkAnnuler) banc.bus.Debrancher(banc.ecran.etat.UsbID);
    };
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.etabli.dialogues.Boites().size(), 2U);
    EXPECT_EQ(banc.Codes(), "");
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, ALoggerThatOpensOneWayOnlyIsToldOf) {
    for (const int rang : {1, 2}) {
        SCOPED_TRACE(rang);
        BancEcriture banc;
        banc.enregistreur.pannes.OrdonnerEchecOuverture(rang, simulateur::sansFin);
        banc.EcrireEnConfirmant();
        EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent"}));
        EXPECT_EQ(banc.Maintenant(), rendue);
    }
}

TEST(EcritureInterrompue, TwoFailedAttemptsToSendAFrameAreNotNoticed) {
    BancEcriture banc;
    banc.enregistreur.pannes.OrdonnerEchecsEcriture(2, 3);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
}

TEST(EcritureInterrompue, AFrameThatCannotBeSentIsASilentLogger) {
    BancEcriture banc;
    banc.enregistreur.pannes.OrdonnerEchecsEcriture(3, 3);  // behind 28, 1 and 3
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent"}));
    EXPECT_EQ(banc.Codes(), "28 1 3 ");
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, ALoggerThatStaysSilentBehindTheSetUpStillEndsWithTheSuccessBox) {
    BancEcriture banc;
    banc.enregistreur.pannes.Ordonner({30, GenrePanne::debranchement, 1});
    banc.EcrireEnConfirmant();
    // Once in the internal memory, once more in the reading.
    EXPECT_EQ(banc.Boites(),
              (std::vector<std::string>{ecrasees, "k-Pod absent", "k-Pod absent", terminee}));
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, ALoggerThatComesBackBeforeTheReadingIsRead) {
    BancEcriture banc;
    banc.enregistreur.pannes.Ordonner({30, GenrePanne::silence, 1});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent", terminee}));
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(Clair(banc.ui.UniteImpulsion->text()), "m³      ");
}

TEST(EcritureInterrompue, ASilenceInTheReadingIsToldBeforeTheSuccessBox) {
    BancEcriture banc;
    banc.enregistreur.pannes.Ordonner({17, GenrePanne::silence});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, "k-Pod absent", terminee}));
    EXPECT_TRUE(banc.ecran.etat.TimeOut);
    EXPECT_EQ(banc.Maintenant(), rendue);
}

TEST(EcritureInterrompue, ACalibrationUnderWayEndsTheReadingWithTheLinkOpen) {
    BancEcriture banc;
    banc.enregistreur.memoire.EcrireOctet(adresse::modeEtalonnage, 1);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(),
              (std::vector<std::string>{ecrasees, "Mode étalonnage en cours", terminee}));
    EXPECT_EQ(banc.Maintenant(), rendueOuverte);
}

TEST(EcritureInterrompue, NoiseInEveryAnswerEndsWithoutFault) {
    BancEcriture banc;
    banc.enregistreur.pannes.Ordonner(
        {simulateur::toutesCommandes, GenrePanne::bruit, 1, simulateur::sansFin});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(), (std::vector<std::string>{ecrasees, terminee}));
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(EcritureInterrompue, APeriodThatFitsNoFrameIsAFaultBeforeAnyIsSent) {
    BancEcriture banc;
    banc.ui.ListePeriodeEchantillonage->FixerDonnee(8, 65536);
    EXPECT_EQ(NumeroDeFaute([&] { banc.EcrireEnConfirmant(); }), numero_faute::depassement);
    EXPECT_EQ(banc.Codes(), "28 ");
}

TEST(EcritureInterrompue, APeriodAfterTheTriggerThatFitsNoFrameIsAFaultBehindTwoOfThem) {
    BancEcriture banc;
    banc.ui.PeriodeTrigger->FixerDonnee(4, 65536);
    EXPECT_EQ(NumeroDeFaute([&] { banc.EcrireEnConfirmant(); }), numero_faute::depassement);
    EXPECT_EQ(banc.Codes(), "28 1 3 ");
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
}

}  // namespace
}  // namespace bornika::essai
