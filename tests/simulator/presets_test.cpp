#include "simulator/presets.h"

#include <gmock/gmock.h>

#include <set>

#include "exchange_support.h"
#include "simulator/device_time.h"

namespace bornika::essai {
namespace {

using namespace simulateur;

std::vector<PtrEnregistreur> Tous() {
    std::vector<PtrEnregistreur> tous;
    for (const auto preset : {KPodAncien, KPod2100, KPod2089, KPod2098, KPod2110, KPodType19, KTide,
                              SansNom, Inconnu}) {
        tous.push_back(preset(maintenant));
    }
    tous.push_back(KPod33(maintenant));
    return tous;
}

ListeOctets ReponseIdentite(EnregistreurSimule& logger) {
    const ListeOctets version = ReponseA(logger, 9);
    return {version.at(1), version.at(2), version.at(4)};
}

TEST(Presets, TypesAndVersionsAreThoseOfTheFamily) {
    const std::vector<ListeOctets> attendues = {
        Octets8({1, 2, 89}),   Octets8({1, 2, 100}),  Octets8({1, 20, 89}), Octets8({1, 20, 98}),
        Octets8({1, 2, 110}),  Octets8({19, 2, 112}), Octets8({5, 2, 100}), Octets8({14, 2, 100}),
        Octets8({99, 2, 100}), Octets8({20, 2, 120})};
    const auto tous = Tous();
    ASSERT_EQ(tous.size(), attendues.size());
    for (std::size_t i = 0; i < tous.size(); ++i)
        EXPECT_EQ(ReponseIdentite(*tous[i]), attendues[i]);
}

TEST(Presets, AnyOfThemCanHangOnOneBusUnderItsOwnIdentifier) {
    std::set<IdentifiantUsb> identifiants;
    for (const auto& logger : Tous())
        identifiants.insert(logger->identite.usb);
    EXPECT_EQ(identifiants.size(), Tous().size());
    EXPECT_GT(*identifiants.begin(), 0);
}

TEST(Presets, TheSetUpIsSensible) {
    for (const auto& logger : Tous()) {
        const ListeOctets version = ReponseA(*logger, 9);
        EXPECT_EQ(version.at(5) * 256 + version.at(6), 150) << "4.00 V";
        const ListeOctets mode = ReponseA(*logger, 4);
        EXPECT_EQ(mode.at(1) & 0x0B, 0x08) << "circular, no threshold";
        EXPECT_EQ(mode.at(6), 0x01) << "first scale, bar";
        EXPECT_EQ(logger->Horloge(), maintenant);
        const ListeOctets commentaire = ReponseA(*logger, 13);
        EXPECT_NE(commentaire.at(1), ' ');
        EXPECT_EQ(logger->NombreMesures(), 0);
        EXPECT_GT(ReponseA(*logger, 2).at(6), 0) << "a period";
    }
}

TEST(Presets, CalibrationFollowsTheVersion) {
    const auto ancien = KPodAncien(maintenant);
    EXPECT_NE(ancien->memoire.Mot(adresse::referenceBas), 0);
    EXPECT_EQ(ancien->memoire.Mot(adresse::referenceHaut), 0);
    const auto recent = KPod2100(maintenant);
    EXPECT_NE(recent->memoire.Mot(adresse::referenceHaut), 0);
    EXPECT_NE(recent->memoire.Mot(adresse::mesureHaut), recent->memoire.Mot(adresse::mesureBas));
    const auto jamais = SansNom(maintenant);
    EXPECT_EQ(jamais->memoire.DoubleMot(adresse::dateEtalonnage), 0U);
}

TEST(Presets, TheCardFamilyHasACardOrNot) {
    EXPECT_EQ(ReponseA(*KPod33(maintenant), 8).at(7), 1);
    EXPECT_EQ(ReponseA(*KPod33(maintenant, false), 8).at(7), 0);
    EXPECT_EQ(ReponseA(*KPodType19(maintenant), 8).at(7), 1);
    EXPECT_EQ(ReponseA(*KPod2100(maintenant), 8).at(7), 0);
}

TEST(Presets, OddSerialNumbersTravelAsTheyAre) {
    EXPECT_EQ(ReponseA(*AvecNumeroSerie(0, maintenant), 6), Octets8({6, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(ReponseA(*AvecNumeroSerie(2147483647, maintenant), 6),
              Octets8({6, 0, 0, 0x7F, 0xFF, 0xFF, 0xFF, 0}));
    EXPECT_EQ(ReponseA(*AvecNumeroSerie(2147483648, maintenant), 6),
              Octets8({6, 0, 0, 0x80, 0, 0, 0, 0}));
}

TEST(Presets, TheOneWithAWrongEchoAnswersAllElseRightly) {
    BusSimule bus;
    EnregistreurSimule& logger = bus.Brancher(MauvaisEchoVersion(maintenant));
    Ligne ligne(bus, logger.identite.usb);
    for (int i = 0; i < 3; ++i) {
        const ListeOctets version = ligne.Echange({9, 0, 0, 0, 0, 0, 0, 0}, 9);
        ASSERT_EQ(version.size(), 9U);
        EXPECT_NE(version.at(0), 9);
    }
    EXPECT_EQ(ligne.Echange({6, 0, 0, 0, 0, 0, 0, 0}, 8).at(0), 6);
}

TEST(Presets, TheSilentOneIsCountedAndOpenedAndNeverAnswers) {
    BusSimule bus;
    EnregistreurSimule& logger = bus.Brancher(Silencieux(maintenant));
    EXPECT_EQ(bus.Compte(), 1);
    Ligne ligne(bus, logger.identite.usb);
    EXPECT_GT(ligne.lecture, 0);
    EXPECT_TRUE(ligne.Echange({9, 0, 0, 0, 0, 0, 0, 0}, 9).empty());
    EXPECT_TRUE(ligne.Echange({6, 0, 0, 0, 0, 0, 0, 0}, 8).empty());
}

TEST(Presets, TheDemoFamilyHasOneOfEachKind) {
    const auto famille = FamilleDemo(maintenant);
    ASSERT_EQ(famille.size(), 4U);
    EXPECT_EQ(ReponseIdentite(*famille[0]), Octets8({1, 2, 100}));
    EXPECT_EQ(ReponseIdentite(*famille[1]), Octets8({1, 2, 89}));
    EXPECT_EQ(ReponseIdentite(*famille[2]), Octets8({20, 2, 120}));
    EXPECT_EQ(ReponseIdentite(*famille[3]), Octets8({5, 2, 100}));
    EXPECT_GT(famille[0]->NombreMesures(), 20000);
    EXPECT_GT(famille[1]->NombreMesures(), 1000);
    EXPECT_TRUE(famille[2]->cartePresente);
    std::set<IdentifiantUsb> identifiants;
    for (const auto& logger : famille)
        identifiants.insert(logger->identite.usb);
    EXPECT_EQ(identifiants.size(), 4U);
}

TEST(Presets, EachOfTheDemoFamilyHasASensorThatIsALittleOffThePressureOfItsReference) {
    for (const auto& e : FamilleDemo(maintenant)) {
        Reponse(*e, {24, 0, 102, 1, 0, 0, 0, 0});
        ReponseA(*e, 9);
        Reponse(*e, {24, 3, 52, 2, 0, 0, 0, 0});
        ReponseA(*e, 9);
        EXPECT_EQ(e->memoire.Mot(adresse::mesureBas), 104);
        EXPECT_EQ(e->memoire.Mot(adresse::mesureHaut), 815);
    }
}

TEST(Presets, TheDemoDownloadLastsSomeTenSeconds) {
    const auto famille = FamilleDemo(maintenant);
    const double secondes =
        famille[0]->NombreMesures() * std::chrono::duration<double>(cadenceDemo).count();
    EXPECT_GT(secondes, 7.0);
    EXPECT_LT(secondes, 14.0);
}

TEST(Presets, TheSameMomentGivesTheSameFamily) {
    const auto une = FamilleDemo(maintenant);
    const auto autre = FamilleDemo(maintenant);
    ASSERT_EQ(une[0]->NombreMesures(), autre[0]->NombreMesures());
    for (int i = 0; i < une[0]->NombreMesures(); ++i) {
        ASSERT_EQ(une[0]->Stockee(i), autre[0]->Stockee(i));
    }
}

}  // namespace
}  // namespace bornika::essai
