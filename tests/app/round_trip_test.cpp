// What the form says is what the logger does: random set-ups are entered with keys and clicks,
// written, looked up byte by byte in the logger's memory, disturbed on the form and read back.
//
// Some values do not come back as they were entered, and cannot:
// - a threshold is a whole number of points of the sensor, and is shown with one decimal; its box
//   compares whole numbers with the limit of the scale, so that 1.5 MPa of 1.6 is shown as 1.6;
// - a band that stands on the form while it is read drags a first threshold that lies above the
//   second one down to it, as it does for the hand;
// - a comment has 14 characters and a unit 8, filled with blanks;
// - the weight of a pulse has single precision and the shortest text: a million is 1E+06;
// - a free period is known again only while the form still holds the same duration, and where a
//   period of the list has the same number it is taken for the free one;
// - the logger tells of a one-shot that is set, not of one that is clear;
// - 31 December of a leap year and the following 1 January are one day in the logger's count.

#include <gmock/gmock.h>

#include <cmath>

#include "app/set_up_hand.h"
#include "platform/code_page.h"
#include "simulator/device_time.h"
#include "simulator/internal_memory.h"

namespace bornika {
namespace {

using namespace essai;
namespace adresse = simulateur::adresse;
using simulateur::AvecNumeroSerie;
using simulateur::Inconnu;
using simulateur::KPod2089;
using simulateur::KPod2098;
using simulateur::KPod2100;
using simulateur::KPod2110;
using simulateur::KPod33;
using simulateur::KPodAncien;
using simulateur::KPodReseauEau;
using simulateur::KPodType19;
using simulateur::KTide;
using simulateur::PtrEnregistreur;
using simulateur::SansNom;
using simulateur::TempsAppareil;

constexpr int reglagesParEnregistreur = 12;

struct Preset {
    const char* nom;
    PtrEnregistreur (*faire)(std::uint32_t);
};

PtrEnregistreur KPod33AvecCarte(std::uint32_t maintenant) {
    return KPod33(maintenant);
}

PtrEnregistreur SerieSansFin(std::uint32_t maintenant) {
    return AvecNumeroSerie(2147483648U, maintenant);
}

const Preset presets[] = {{"KPodAncien", KPodAncien},     {"KPod2100", KPod2100},
                          {"KPod2089", KPod2089},         {"KPod2098", KPod2098},
                          {"KPod2110", KPod2110},         {"KPodType19", KPodType19},
                          {"KPod33", KPod33AvecCarte},    {"KTide", KTide},
                          {"SansNom", SansNom},           {"Inconnu", Inconnu},
                          {"SerieSansFin", SerieSansFin}, {"ReseauEau", KPodReseauEau}};

class RoundTrip : public testing::TestWithParam<Preset> {
  protected:
    void SetUp() override {
        ASSERT_TRUE(banc.Demarrer());
        // Before the first reading neither time format is chosen.
        BancProgramme::Cliquer(banc.ui().Lire);
        tirage.emplace(Grain());
    }

    /// Each logger has set-ups of its own.
    static std::uint32_t Grain() {
        std::uint32_t grain = 0;
        for (const char* signe = GetParam().nom; *signe != '\0'; ++signe)
            grain = grain * 31 + static_cast<std::uint32_t>(*signe);
        return grain;
    }

    /// A calibrated sensor is the one that the set-up is made for.
    void ChangerDeCapteur(const Reglage& reglage) {
        pod.memoire.EcrireOctet(adresse::echelleEtalonnage, reglage.echelle * 16);
    }

    void Ecrire() {
        banc.etabli.dialogues.OublierBoites();
        banc.etabli.dialogues.AnnoncerQuestion(Reponse::Ok, QStringLiteral("écrasées"));
        BancProgramme::Cliquer(banc.ui().Ecrire);
        ASSERT_EQ(banc.etabli.dialogues.Boites().size(), 2U);
        EXPECT_EQ(banc.etabli.dialogues.Boites()[0].boutons, Boutons::OkAnnuler);
        EXPECT_EQ(banc.etabli.dialogues.Boites()[1].icone, Icone::Information);
        EXPECT_TRUE(banc.ui().Ecrire->isEnabled());
        EXPECT_EQ(banc.bus.PoigneesOuvertes(), 0);
    }

    /// Another set-up on the form. A free period stays, its duration would be forgotten; and a band
    /// does not stand in the way of thresholds that are none.
    void Deranger(const Reglage& ecrit) {
        Reglage autre = tirage->Tirer(banc.ui());
        if (autre.periode == 0) autre.periode = 1 + ecrit.periode % 15;
        const auto seuil = [this](int ou) { return pod.memoire.Mot(ou); };
        if (seuil(adresse::seuil1) > seuil(adresse::seuil2)) autre.seuils %= 2;
        Saisir(banc, autre);
    }

    BancProgramme banc;
    EnregistreurSimule& pod = banc.bus.Brancher(GetParam().faire(maintenantSimule));
    std::optional<TirageReglages> tirage;
};

/// Bytes of the logger's memory from an address on.
std::vector<int> Octets(const EnregistreurSimule& pod, int ou, int combien) {
    std::vector<int> octets;
    for (int i = 0; i < combien; ++i)
        octets.push_back(pod.memoire.Octet(ou + i));
    return octets;
}

std::vector<int> BasEnTete(std::uint32_t valeur, int combien) {
    std::vector<int> octets;
    for (int i = 0; i < combien; ++i)
        octets.push_back(static_cast<int>(valeur >> (8 * i)) & 0xFF);
    return octets;
}

std::vector<int> Simple(float valeur) {
    std::uint32_t bits = 0;
    std::memcpy(&bits, &valeur, sizeof bits);
    return BasEnTete(bits, 4);
}

std::vector<int> Signes(const QString& texte, int combien) {
    const QByteArray octets = Vers8Bits(texte).leftJustified(combien, ' ', true);
    std::vector<int> signes;
    for (const char signe : octets)
        signes.push_back(static_cast<unsigned char>(signe));
    return signes;
}

/// Points of a threshold that the form shows, by the plain arithmetic of a linear sensor.
double Points(const MainScreen& ecran, const QString& seuil) {
    const auto& ui = *ecran.ui;
    const double bar = seuil.toDouble() * 10000 / ui.ListeUnites->Donnee(ui.ListeUnites->Index()) +
                       (ui.PressionAbsolue->isChecked() ? 1.024 : 0);
    const double etendue = ecran.etat.Maxi - ecran.etat.Mini;
    return 1024 * std::clamp((bar - ecran.etat.Mini) / etendue, 0.0, 1.0);
}

double Pression(const MainScreen& ecran, int points) {
    const auto& ui = *ecran.ui;
    const double bar = ecran.etat.Mini + (ecran.etat.Maxi - ecran.etat.Mini) * points / 1024 -
                       (ui.PressionAbsolue->isChecked() ? 1.024 : 0);
    return bar * ui.ListeUnites->Donnee(ui.ListeUnites->Index()) / 10000;
}

int OctetMode(const Ui::MainScreen& ui) {
    return (ui.UnSeuil->isChecked() ? 1 : 0) + (ui.DeuxSeuils->isChecked() ? 2 : 0) +
           (ui.AuDessus->isChecked() ? 4 : 0) + (ui.BufferTournant->isChecked() ? 8 : 0) +
           (ui.OneShot->isChecked() ? 16 : 0) + (ui.PressionAbsolue->isChecked() ? 128 : 0);
}

/// What must stand in the memory for the form as it is now.
std::map<std::string, std::vector<int>> Attendu(BancProgramme& banc) {
    const auto& ui = banc.ui();
    const QDate jour = ui.DTPicker1->date();
    const QTime heure = ui.DTPicker2->time();
    const std::uint32_t debut = TempsAppareil(jour.year(), jour.month(), jour.day(), heure.hour(),
                                              heure.minute(), heure.second());
    const auto& periodes = *ui.ListePeriodeEchantillonage;
    const auto& declenche = *ui.PeriodeTrigger;
    constexpr float bases[] = {1, 60, 3600, 86400};
    return {
        {"19 start", BasEnTete(debut, 4)},
        {"23 clock", BasEnTete(maintenantSimule, 4)},
        {"44 mode", {OctetMode(ui)}},
        {"45 period", BasEnTete(static_cast<std::uint32_t>(periodes.Donnee(periodes.Index())), 2)},
        {"47 trigger period",
         BasEnTete(static_cast<std::uint32_t>(declenche.Donnee(declenche.Index())), 2)},
        {"55 scale", {ui.ListeEchelles->Index() * 16 + ui.ListeUnites->Index()}},
        {"81 comment", Signes(ui.Commentaire->text(), 14)},
        {"112 weight", Simple(ui.CoefImpulsion->text().toFloat())},
        {"116 time format", {ui.AMPM_1->isChecked() ? 1 : 0}},
        {"117 unit", Signes(ui.UniteImpulsion->text(), 8)},
        {"125 time base", Simple(bases[ui.ListeTemps->Index()])},
    };
}

std::map<std::string, std::vector<int>> Memoire(const EnregistreurSimule& pod) {
    return {{"19 start", Octets(pod, 19, 4)},          {"23 clock", Octets(pod, 23, 4)},
            {"44 mode", Octets(pod, 44, 1)},           {"45 period", Octets(pod, 45, 2)},
            {"47 trigger period", Octets(pod, 47, 2)}, {"55 scale", Octets(pod, 55, 1)},
            {"81 comment", Octets(pod, 81, 14)},       {"112 weight", Octets(pod, 112, 4)},
            {"116 time format", Octets(pod, 116, 1)},  {"117 unit", Octets(pod, 117, 8)},
            {"125 time base", Octets(pod, 125, 4)}};
}

/// Takes the lossy values of `avant`, what the form showed when it was written, to what a reading
/// into a form that showed `dernier` must show.
Affichage Relu(Affichage avant, const Affichage& dernier) {
    avant["Commentaire"] =
        QString::fromStdString(avant["Commentaire"]).leftJustified(14, u' ', true).toStdString();
    avant["UniteImpulsion"] =
        QString::fromStdString(avant["UniteImpulsion"]).leftJustified(8, u' ', true).toStdString();
    if (dernier.at("OneShot") == "on") avant["OneShot"] = "on";
    // Looked at by themselves.
    avant.erase("Seuil1");
    avant.erase("Seuil2");
    return avant;
}

Affichage SansSeuils(Affichage vu) {
    vu.erase("Seuil1");
    vu.erase("Seuil2");
    return vu;
}

/// A pressure as a threshold box shows it.
double Montree(const MainScreen& ecran, int points) {
    const auto& ui = *ecran.ui;
    const auto unDecimale = [](double valeur) { return std::round(valeur * 10) / 10; };
    const double limite =
        unDecimale(ecran.etat.Maxi * ui.ListeUnites->Donnee(ui.ListeUnites->Index()) / 10000);
    const double pression = Pression(ecran, points);
    return std::nearbyint(unDecimale(pression)) > limite ? limite : pression;
}

void VoirSeuils(BancProgramme& banc, const EnregistreurSimule& pod) {
    const auto& ui = banc.ui();
    // One decimal is shown, and the conversion itself keeps three.
    constexpr double arrondi = 0.0506;
    EXPECT_NEAR(ui.Seuil1->text().toDouble(), Montree(banc.ecran(), pod.memoire.Mot(50)), arrondi);
    EXPECT_NEAR(ui.Seuil2->text().toDouble(), Montree(banc.ecran(), pod.memoire.Mot(52)), arrondi);
}

}  // namespace

TEST_P(RoundTrip, WhatIsWrittenStandsInTheLoggerAndComesBack) {
    for (int i = 0; i < reglagesParEnregistreur && !HasFailure(); ++i) {
        SCOPED_TRACE("set-up " + std::to_string(i));
        const Reglage reglage = tirage->Tirer(banc.ui());
        Saisir(banc, reglage);
        ChangerDeCapteur(reglage);
        const Affichage avant = Regarder(banc.ui());
        banc.etabli.horloge.instant = QDateTime(QDate(2026, 3, 5), QTime(14, 7, 9), Qt::UTC);
        const auto attendu = Attendu(banc);
        const double points1 = Points(banc.ecran(), banc.ui().Seuil1->text());
        const double points2 = Points(banc.ecran(), banc.ui().Seuil2->text());

        Ecrire();
        EXPECT_EQ(Memoire(pod), attendu);
        EXPECT_NEAR(pod.memoire.Mot(50), points1, 0.501);
        EXPECT_NEAR(pod.memoire.Mot(52), points2, 0.501);
        EXPECT_EQ(SansSeuils(Regarder(banc.ui())), Relu(avant, avant));
        VoirSeuils(banc, pod);

        Deranger(reglage);
        const Affichage derange = Regarder(banc.ui());
        BancProgramme::Cliquer(banc.ui().Lire);
        EXPECT_EQ(SansSeuils(Regarder(banc.ui())), Relu(avant, derange));
        VoirSeuils(banc, pod);
    }
    EXPECT_TRUE(banc.sorties.empty());
}

INSTANTIATE_TEST_SUITE_P(Family, RoundTrip, testing::ValuesIn(presets),
                         [](const auto& cas) { return std::string(cas.param.nom); });

}  // namespace bornika
