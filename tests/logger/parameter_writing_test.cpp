#include "logger/parameter_writing.h"

#include <gtest/gtest.h>

#include "logger/parameter_reading.h"
#include "logger/writing_fixture.h"
#include "support/fault_number.h"
#include "widgets/pointer_shape.h"

namespace bornika::essai {
namespace {

namespace adresse = simulateur::adresse;

/// Instant in milliseconds and bytes of a frame.
std::string Ligne(std::int64_t instant, const std::vector<std::uint8_t>& trame) {
    std::string ligne = std::to_string(instant) + ":";
    for (const std::uint8_t octet : trame)
        ligne += " " + std::to_string(octet);
    return ligne + "\n";
}

std::string LignesDuJournal(const BancEcriture& banc) {
    std::string lignes;
    for (const auto& trame : banc.enregistreur.journal.Trames())
        lignes += Ligne(trame.instant, trame.Liste());
    return lignes;
}

/// The frames of the reading that follows, all at one instant.
std::string LignesLecture(std::int64_t instant) {
    std::string lignes;
    for (const std::vector<std::uint8_t>& debut : std::vector<std::vector<std::uint8_t>>{
             {9}, {6}, {28}, {26, 1}, {26, 2}, {2}, {17}, {4}, {8}, {13}, {14}}) {
        std::vector<std::uint8_t> trame = debut;
        trame.resize(8);
        lignes += Ligne(instant, trame);
    }
    for (const std::uint8_t ou : {116, 112, 117, 125})
        lignes += Ligne(instant, {29, 0, ou, 32, 32, 32, 32, 32});
    for (const std::uint8_t code : {21, 22, 9})
        lignes += Ligne(instant, {code, 0, 0, 0, 0, 0, 0, 0});
    return lignes;
}

std::vector<int> PausesCompletes(bool contexte) {
    std::vector<int> pauses = {2000};
    pauses.insert(pauses.end(), 17, 50);
    if (contexte) pauses.push_back(1000);
    pauses.push_back(2000);
    return pauses;
}

TEST(EcritureComplete, SendsEveryFrameInItsOrderWithItsWaits) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    // Checks and set-up at once; the internal memory two seconds later, a byte every 50 ms; the
    // context behind the last of them; the reading after its second and two more.
    std::string attendu;
    for (std::size_t i = 0; i < 7; ++i)
        attendu += Ligne(0, TramesCompletes()[i]);
    for (std::size_t i = 7; i < 24; ++i)
        attendu += Ligne(2000 + 50 * static_cast<std::int64_t>(i - 7), TramesCompletes()[i]);
    attendu += Ligne(2850, TramesCompletes()[24]);
    attendu += LignesLecture(5850);
    EXPECT_EQ(LignesDuJournal(banc), attendu);
    EXPECT_EQ(banc.etabli.horloge.pauses, PausesCompletes(true));
    EXPECT_TRUE(banc.etabli.fautes.empty());
}

TEST(EcritureComplete, AsksForTheLengthOfEachAnswer) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    std::vector<int> attendues(7, 8);
    attendues.insert(attendues.end(), 17, 4);
    attendues.push_back(1);
    std::vector<int> longueurs;
    for (const auto& appel : banc.bus.Appels()) {
        if (appel.genre == simulateur::GenreAppel::lire) longueurs.push_back(appel.argument);
    }
    ASSERT_GT(longueurs.size(), attendues.size());
    longueurs.resize(attendues.size());
    EXPECT_EQ(longueurs, attendues);
}

TEST(EcritureComplete, IsTheSameSequenceWhateverIsRecorded) {
    std::string premiers;
    for (QRadioButton* Ui::MainScreen::*option :
         {&Ui::MainScreen::PasDeSeuil, &Ui::MainScreen::UnSeuil, &Ui::MainScreen::DeuxSeuils}) {
        BancEcriture banc(avecCarte, derniereVersion);
        (banc.ui.*option)->setChecked(true);
        banc.EcrireEnConfirmant();
        if (premiers.empty()) premiers = banc.Codes();
        EXPECT_EQ(banc.Codes(), premiers) << Clair((banc.ui.*option)->objectName());
        EXPECT_EQ(banc.etabli.horloge.pauses, PausesCompletes(true));
    }
    EXPECT_EQ(premiers.substr(0, 20), "8 28 1 3 7 11 12 30 ");
}

TEST(EcritureComplete, SendsTheTimeThatItIsWhenTheOperatorHasAnswered) {
    BancEcriture banc;
    banc.etabli.dialogues.pendantBoite = [&](const DialoguesNotes::Boite_& boite) {
        QDateTime& instant = banc.etabli.horloge.instant;
        if (boite.boutons == Boutons::OkAnnuler) instant = instant.addSecs(90);
    };
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Trames(7),
              (std::vector<std::vector<std::uint8_t>>{{7, 105, 169, 142, 13 + 90, 0, 16, 32}}));
}

TEST(EcritureComplete, HasNeitherCardCheckNorForcedContextForAnOlderLoggerWithoutCard) {
    BancEcriture banc;
    banc.EcrireEnConfirmant();
    std::string attendu;
    for (std::size_t i = 1; i < 7; ++i)
        attendu += Ligne(0, TramesCompletes()[i]);
    for (std::size_t i = 7; i < 24; ++i)
        attendu += Ligne(2000 + 50 * static_cast<std::int64_t>(i - 7), TramesCompletes()[i]);
    attendu += LignesLecture(4850);
    EXPECT_EQ(LignesDuJournal(banc), attendu);
    EXPECT_EQ(banc.etabli.horloge.pauses, PausesCompletes(false));
}

TEST(EcritureComplete, LeavesWhatTheFormSaidInTheInternalMemoryLowByteFirst) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    using Valeurs = std::vector<int>;
    EXPECT_EQ(banc.Octets(19, 4), (Valeurs{34, 212, 204, 105}));  // start
    EXPECT_EQ(banc.Octets(23, 4), (Valeurs{13, 142, 169, 105}));  // clock
    EXPECT_EQ(banc.Octets(44, 1), (Valeurs{138}));                // mode
    EXPECT_EQ(banc.Octets(45, 4), (Valeurs{120, 0, 16, 0}));      // both periods
    EXPECT_EQ(banc.Octets(50, 4), (Valeurs{175, 1, 175, 2}));     // both thresholds
    EXPECT_EQ(banc.Octets(55, 1), (Valeurs{0x31}));               // scale and unit
    EXPECT_EQ(banc.Octets(81, 14),
              (Valeurs{'F', 'o', 'r', 0xEA, 't', ' ', 'n', 0xB0, '1', '2', '3', '4', '5', '6'}));
    EXPECT_EQ(banc.Octets(99, 1), (Valeurs{1}));              // fast charge
    EXPECT_EQ(banc.Octets(112, 4), (Valeurs{0, 0, 32, 64}));  // pulse weight
    EXPECT_EQ(banc.Octets(116, 1), (Valeurs{0}));             // 12 hours
    EXPECT_EQ(banc.Octets(117, 8), (Valeurs{'G', 'a', 'l', 'l', 'o', 'n', ' ', ' '}));
    EXPECT_EQ(banc.Octets(125, 4), (Valeurs{0, 192, 168, 71}));  // time base
    EXPECT_EQ(banc.enregistreur.contextesForces, 1);
}

TEST(EcritureComplete, ChangesNoOtherByteOfTheInternalMemory) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    const auto permis = [](int ou) {
        // Start, clock and next measure; pointers of the recording given up; mode, periods;
        // thresholds; scale; comment; fast charge; pulse and time format.
        for (const auto& [debut, fin] : std::vector<std::pair<int, int>>{
                 {19, 31}, {36, 44}, {44, 49}, {50, 54}, {55, 56}, {81, 95}, {99, 100}, {112, 129}})
            if (ou >= debut && ou < fin) return true;
        return false;
    };
    for (int ou = 0; ou < simulateur::MemoireInterne::taille; ++ou) {
        if (permis(ou)) continue;
        EXPECT_EQ(banc.enregistreur.memoire.Octet(ou), banc.avant.Octet(ou)) << ou;
    }
}

TEST(EcritureComplete, AsksFirstAndTellsOfTheEndWithEverythingRestoredButTheButton) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    ASSERT_EQ(banc.boites.size(), 2U);
    const BoiteVue& question = banc.boites[0];
    EXPECT_EQ(question.icone, Icone::Aucune);
    EXPECT_EQ(question.boutons, Boutons::OkAnnuler);
    EXPECT_EQ(question.titre, "k-Pod");
    EXPECT_EQ(question.texte, " Les anciennes valeurs seront écrasées");
    EXPECT_EQ(question.vue, (Vue{false, pointeur::defaut, 2}));
    const BoiteVue& fin = banc.boites[1];
    EXPECT_EQ(fin.icone, Icone::Information);
    EXPECT_EQ(fin.boutons, Boutons::Ok);
    EXPECT_EQ(fin.titre, "k-Pod");
    EXPECT_EQ(fin.texte, "Ecriture des paramètres terminée");
    EXPECT_EQ(fin.vue, (Vue{false, pointeur::defaut, 0}));
    EXPECT_EQ(banc.Maintenant(), rendue);
    EXPECT_FALSE(banc.ecran.etat.TimeOut);
}

TEST(EcritureComplete, KeepsTheButtonDisabledAndTheHourglassUpWhileFramesLeave) {
    BancEcriture banc;
    banc.EcrireEnConfirmant();
    std::size_t sabliers = 0;
    for (const Vue& vue : banc.pendantLien) {
        EXPECT_FALSE(vue.boutonValide);
        if (vue.pointeur == pointeur::sablier) ++sabliers;
    }
    // The two handles of the first opening come before the question.
    EXPECT_EQ(sabliers, banc.pendantLien.size() - 2);
    EXPECT_GT(sabliers, 40U);
}

TEST(EcritureComplete, RestoresThePointerThatWasThereBefore) {
    BancEcriture banc;
    FixerPointeurSouris(banc.ecran, pointeur::fleche);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(PointeurSouris(banc.ecran), pointeur::fleche);
}

TEST(EcritureComplete, ClosesTheLinkBeforeTheSecondWait) {
    BancEcriture banc(avecCarte, derniereVersion);
    banc.EcrireEnConfirmant();
    std::string evenements;
    for (const auto& evenement : banc.enregistreur.lien) {
        if (evenement.instant < 5850)
            evenements += (evenement.ouverture ? "open " : "close ") +
                          std::to_string(evenement.instant) + "\n";
    }
    EXPECT_EQ(evenements, "open 0\nopen 0\nclose 3850\nclose 3850\n");
}

TEST(EcritureComplete, ShowsTheThresholdsAsTheLoggerRoundedThem) {
    BancEcriture banc;
    banc.ui.PressionAbsolue->setChecked(false);
    banc.ui.Seuil2->setText(QStringLiteral("3.333"));
    banc.ui.Seuil1->setText(QStringLiteral("1.256"));
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Clair(banc.ui.Seuil1->text()), "1.3");
    EXPECT_EQ(Clair(banc.ui.Seuil2->text()), "3.3");
    EXPECT_EQ(Clair(banc.ui.DateCourante->text()), "05/03/2026 14:07:09");
    EXPECT_EQ(Clair(banc.ui.Commentaire->text()), "Forêt n°123456");
    EXPECT_EQ(Clair(banc.ui.UniteImpulsion->text()), "Gallon  ");
}

TEST(EcritureComplete, ClearsATimeOutThatStood) {
    BancEcriture banc;
    banc.ecran.etat.TimeOut = true;
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites().back(), "Ecriture des paramètres terminée");
    EXPECT_EQ(banc.Octets(44, 1), (std::vector<int>{138}));
}

TEST(EcritureComplete, LeavesALinkThatStoodOpenToItsOwnOpening) {
    BancEcriture banc;
    banc.lien.OuvreUSB(banc.ecran.etat.UsbID);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
}

TEST(EcritureComplete, SpeaksTheLanguageOfTheForm) {
    BancEcriture banc;
    const int anglais = banc.ui.ListeLangues->findText(QStringLiteral("English"));
    banc.ui.ListeLangues->Choisir(anglais);
    banc.ecran.textes.TexteEcritureTerminee = QStringLiteral("Parameters written");
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.Boites(),
              (std::vector<std::string>{" Old values will be overwritten", "Parameters written"}));
}

TEST(ForceLeContexte, FromFirmware212On) {
    for (const auto& [basse, fois] :
         std::vector<std::pair<int, int>>{{119, 0}, {112, 0}, {120, 1}, {121, 1}}) {
        SCOPED_TRACE(basse);
        BancEcriture banc(19, static_cast<std::uint8_t>(basse));
        banc.EcrireEnConfirmant();
        EXPECT_EQ(banc.enregistreur.journal.Nombre(99), fois);
        EXPECT_EQ(banc.enregistreur.contextesForces, fois);
    }
}

TEST(ForceLeContexte, OfALoggerWithoutCardToo) {
    BancEcriture banc(1, derniereVersion);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(banc.enregistreur.journal.Nombre(99), 1);
    EXPECT_EQ(banc.enregistreur.journal.Trames().front().Code(), 28);
}

class MemoireEcrite : public testing::Test {
  protected:
    BancEcriture banc;
    Ui::MainScreen& ui = banc.ui;
    std::vector<int> Octets(int ou, int nombre) const { return banc.Octets(ou, nombre); }
    /// Addresses of the bytes sent, as one text.
    std::string Adresses() const {
        std::string texte;
        for (const auto& trame : banc.Trames(30))
            texte += std::to_string(trame[1] * 256 + trame[2]) + " ";
        return texte;
    }
};

TEST_F(MemoireEcrite, TheTimeFormatIsZeroFor12HoursAndOneFor24) {
    ui.AMPM_1->setChecked(true);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(116, 1), (std::vector<int>{1}));
    EXPECT_EQ(banc.Trames(30).front(), (std::vector<std::uint8_t>{30, 0, 116, 1, 32, 32, 32, 32}));
    ui.AMPM_0->setChecked(true);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(116, 1), (std::vector<int>{0}));
}

TEST_F(MemoireEcrite, AWeightThatIsNoNumberIsNotWritten) {
    for (const char* texte : {"", "abc", "-", "1,5", "2.5 l"}) {
        SCOPED_TRACE(texte);
        ui.CoefImpulsion->setText(QString::fromLatin1(texte));
        banc.enregistreur.journal.Vider();
        banc.enregistreur.memoire.EcrireFlottant(adresse::poidsImpulsion, 7.5F);
        banc.EcrireEnConfirmant();
        EXPECT_EQ(Adresses(), "116 117 118 119 120 121 122 123 124 125 126 127 128 ");
        EXPECT_EQ(banc.enregistreur.memoire.Flottant(adresse::poidsImpulsion), 7.5F);
    }
}

TEST_F(MemoireEcrite, AWeightIsReadWithTheSeparatorOfTheUser) {
    banc.ReglerSeparateur(QStringLiteral(","));
    ui.CoefImpulsion->setText(QStringLiteral(" 0,1 "));
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(112, 4), (std::vector<int>{0xCD, 0xCC, 0xCC, 0x3D}));
    EXPECT_EQ(Clair(ui.CoefImpulsion->text()), "0,1");
}

TEST_F(MemoireEcrite, AUnitIsPaddedWithBlanksToEightPositions) {
    ui.UniteImpulsion->setText(QStringLiteral("m³"));
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(117, 8), (std::vector<int>{'m', 0xB3, 32, 32, 32, 32, 32, 32}));
    ui.UniteImpulsion->setText({});
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(117, 8), std::vector<int>(8, 32));
    ui.UniteImpulsion->setText(QStringLiteral("12345678"));
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(117, 8), (std::vector<int>{'1', '2', '3', '4', '5', '6', '7', '8'}));
}

TEST_F(MemoireEcrite, ALongerUnitIsWrittenInFullAndTheTimeBaseOverIt) {
    ui.UniteImpulsion->setText(QStringLiteral("0123456789"));
    ui.ListeTemps->Choisir(1);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Adresses(),
              "116 112 113 114 115 117 118 119 120 121 122 123 124 125 126 125 126 127 128 ");
    EXPECT_EQ(Octets(117, 8), (std::vector<int>{'0', '1', '2', '3', '4', '5', '6', '7'}));
    EXPECT_EQ(banc.enregistreur.memoire.Flottant(adresse::tempsDebit), 60.0F);
}

TEST_F(MemoireEcrite, ALongerUnitStaysWhereNoTimeBaseFollows) {
    ui.UniteImpulsion->setText(QStringLiteral("0123456789"));
    ui.ListeTemps->Choisir(-1);
    banc.EcrireEnConfirmant();
    EXPECT_EQ(Octets(125, 2), (std::vector<int>{'8', '9'}));
    EXPECT_EQ(Octets(127, 2), (std::vector<int>{0x61, 0x45}));  // the logger's own 3600
}

TEST_F(MemoireEcrite, EachPositionOfTheListHasItsTimeBase) {
    const float bases[] = {1, 60, 3600, 86400};
    for (int position = 0; position < 4; ++position) {
        ui.ListeTemps->Choisir(position);
        banc.EcrireEnConfirmant();
        EXPECT_EQ(banc.enregistreur.memoire.Flottant(adresse::tempsDebit), bases[position]);
        EXPECT_EQ(ui.ListeTemps->Index(), position);
    }
}

TEST_F(MemoireEcrite, AnyOtherPositionWritesNoTimeBase) {
    ui.ListeTemps->Ajouter(QStringLiteral("Week"));
    for (const int position : {-1, 4}) {
        SCOPED_TRACE(position);
        banc.enregistreur.journal.Vider();
        ui.ListeTemps->Choisir(position);
        banc.EcrireEnConfirmant();
        EXPECT_EQ(Adresses(), "116 112 113 114 115 117 118 119 120 121 122 123 124 ");
        EXPECT_EQ(banc.enregistreur.memoire.Flottant(adresse::tempsDebit), 3600.0F);
    }
}

TEST_F(MemoireEcrite, AWeightBeyondSinglePrecisionIsAFaultBehindTheSetUp) {
    ui.CoefImpulsion->setText(QStringLiteral("1E39"));
    EXPECT_EQ(NumeroDeFaute([&] { banc.EcrireEnConfirmant(); }), numero_faute::depassement);
    EXPECT_EQ(banc.Codes(), "28 1 3 7 11 12 30 ");
}

}  // namespace
}  // namespace bornika::essai
