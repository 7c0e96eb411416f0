// The program's own operations through the USB stack of a real kernel. The same is done over the
// simulated bus, and all that the operator gets has to be the same.

#include <chrono>

#include "logger/parameter_reading.h"
#include "simulator/device_time.h"
#include "usb_kernel/kernel_fixture.h"

namespace bornika::essai {
namespace {

using simulateur::GenrePanne;
using simulateur::MesurePeriodique;

constexpr int nombreMesures = 5000;
// Enough to be pulled out in the middle.
constexpr int mesuresCourtes = 1000;
constexpr int milieu = 600;

int Points(int rang) {
    return rang * 37 % 1024;
}

simulateur::PtrEnregistreur Prepare(int mesures) {
    auto enregistreur =
        simulateur::Simple(1, 2, 100, simulateur::TempsAppareil(2026, 3, 5, 14, 7, 9));
    enregistreur->identite.usb = idBranche;
    enregistreur->ReglerNumeroSerie(4711);
    enregistreur->ReglerEtalonnage(simulateur::TempsAppareil(2025, 6, 10, 9, 30), 0x31, 100, 104,
                                   900, 904);
    for (int rang = 0; rang < mesures; ++rang)
        enregistreur->Stocker(
            MesurePeriodique(t0 + static_cast<std::uint32_t>(rang), Points(rang)));
    return enregistreur;
}

/// A logger on a port of the kernel, and the program with it chosen.
struct CoteReel {
    explicit CoteReel(int mesures, int delai = delaiSansFin)
        : usb({Reglage(delai)}),
          appareil(Fiche(std::to_string(idBranche)), Prepare(mesures)),
          banc(usb, idBranche) {
        appareil.Brancher();
        EXPECT_TRUE(AttendreCompte(usb, 1));
        EXPECT_EQ(usb.Identifiant(0), idBranche);
    }
    void Panne(const simulateur::OrdrePanne& panne) {
        appareil.Avec(
            [&](AppareilMaquette& maquette) { maquette.enregistreur->pannes.Ordonner(panne); });
    }
    EnregistreursUsb usb;
    AppareilUsbIp appareil;
    BancPoste banc;
};

/// The same logger on the simulated bus.
struct CoteSimule {
    explicit CoteSimule(int mesures)
        : enregistreur(bus.Brancher(Prepare(mesures))), banc(bus, idBranche) {}
    BusSimule bus;
    EnregistreurSimule& enregistreur;
    BancPoste banc;
};

TEST(KernelReading, ShowsTheSameParametersAsTheSimulatedBus) {
    CoteReel reel(100);
    CoteSimule simule(100);
    const std::string vide = reel.banc.Portrait();
    Lire(reel.banc.poste);
    Lire(simule.banc.poste);
    EXPECT_FALSE(reel.banc.ecran.etat.TimeOut);
    EXPECT_NE(reel.banc.Portrait(), vide);
    EXPECT_EQ(reel.banc.Portrait(), simule.banc.Portrait());
    EXPECT_TRUE(reel.banc.etabli.dialogues.Boites().empty());
    EXPECT_EQ(AppareilsOuverts(), 0);
}

TEST(KernelDownload, Brings5000MeasuresAsTheyStandInTheMemoryOfTheLogger) {
    CoteReel reel(nombreMesures);
    CoteSimule simule(nombreMesures);
    const auto debut = std::chrono::steady_clock::now();
    reel.banc.Telecharger();
    const std::chrono::duration<double> duree = std::chrono::steady_clock::now() - debut;
    simule.banc.Telecharger();
    std::cout << nombreMesures << " measures in " << duree.count() << " s\n";

    // The last measure of a recording is never written.
    ASSERT_EQ(reel.banc.NombreLignes(), nombreMesures - 1);
    const QList<QByteArray> lignes = reel.banc.Mesures().split('\n');
    reel.appareil.Avec([&](AppareilMaquette& maquette) {
        for (int rang = 0; rang < nombreMesures - 1; ++rang) {
            const QList<QByteArray> champs = lignes[rang + 1].split(';');
            // The first one shares the second of the one that follows it.
            const qint64 secondes = champs[0].toLongLong() / 1000 - (rang == 0 ? 1 : 0);
            ASSERT_EQ(MesurePeriodique(static_cast<std::uint32_t>(secondes), champs[2].toInt()),
                      maquette.enregistreur->Stockee(rang))
                << lignes[rang + 1].toStdString();
        }
    });
    EXPECT_EQ(reel.banc.Bilan(), simule.banc.Bilan());
    EXPECT_EQ(AppareilsOuverts(), 0);
}

TEST(KernelDownload, ASilenceEndsByItsTimeOutAndLosesNothing) {
    constexpr int mesures = 300;
    CoteReel reel(mesures, ReglageUsb::delaiParDefaut);
    CoteSimule simule(mesures);
    const simulateur::OrdrePanne panne = {
        .code = 10, .genre = GenrePanne::silence, .occurrence = 100, .combien = 3};
    reel.Panne(panne);
    simule.enregistreur.pannes.Ordonner(panne);
    reel.banc.Telecharger();
    simule.banc.Telecharger();
    EXPECT_EQ(reel.banc.NombreLignes(), mesures - 1);
    EXPECT_EQ(reel.banc.Bilan(), simule.banc.Bilan());
    // Each silent read was taken back from the kernel, and by it from the device.
    EXPECT_GE(reel.appareil.Retraits(), 3);
    EXPECT_EQ(AppareilsOuverts(), 0);
}

/// After the loss: told once, nothing open, what had come is on the disk; plugged in again, the
/// logger gives everything.
void AttendrePerteEtRetour(CoteReel& reel, CoteSimule& simule) {
    EXPECT_TRUE(reel.banc.ecran.etat.TimeOut);
    EXPECT_EQ(reel.banc.etabli.dialogues.Boites().size(), 1U);
    EXPECT_EQ(reel.banc.Bilan(), simule.banc.Bilan());
    EXPECT_EQ(AppareilsOuverts(), 0);
    EXPECT_TRUE(AttendreCompte(reel.usb, 0));

    reel.appareil.Brancher();
    simule.bus.Rebrancher(idBranche);
    ASSERT_TRUE(AttendreCompte(reel.usb, 1));
    EXPECT_EQ(reel.usb.Identifiant(0), idBranche);
    reel.banc.Telecharger();
    simule.banc.Telecharger();
    EXPECT_EQ(reel.banc.NombreLignes(), mesuresCourtes - 1);
    EXPECT_EQ(reel.banc.Bilan(), simule.banc.Bilan());
    EXPECT_EQ(AppareilsOuverts(), 0);
}

TEST(KernelUnplugged, BetweenTwoMeasuresNothingThatHadComeIsLost) {
    CoteReel reel(mesuresCourtes);
    CoteSimule simule(mesuresCourtes);
    reel.banc.AuTour(milieu, [&] { reel.appareil.Detacher(); });
    simule.banc.AuTour(milieu, [&] { simule.bus.Debrancher(idBranche); });
    reel.banc.Telecharger();
    simule.banc.Telecharger();
    EXPECT_GE(reel.banc.NombreLignes(), milieu - 1);
    EXPECT_LE(reel.banc.NombreLignes(), milieu);
    AttendrePerteEtRetour(reel, simule);
}

TEST(KernelUnplugged, AReadThatWaitsEndsAtOnce) {
    CoteReel reel(mesuresCourtes);
    CoteSimule simule(mesuresCourtes);
    // The logger takes the request and is gone before it answers.
    const simulateur::OrdrePanne panne = {
        .code = 10, .genre = GenrePanne::debranchement, .occurrence = milieu};
    reel.Panne(panne);
    simule.enregistreur.pannes.Ordonner(panne);
    const auto debut = std::chrono::steady_clock::now();
    reel.banc.Telecharger();
    const auto duree = std::chrono::steady_clock::now() - debut;
    simule.banc.Telecharger();
    EXPECT_LT(duree, std::chrono::milliseconds(delaiSansFin));
    EXPECT_EQ(reel.banc.NombreLignes(), milieu - 1);
    AttendrePerteEtRetour(reel, simule);
}

TEST(KernelUnplugged, ALoggerThatIsBackAtOnceIsTakenUpAgain) {
    CoteReel reel(mesuresCourtes);
    CoteSimule simule(mesuresCourtes);
    reel.banc.AuTour(milieu, [&] {
        reel.appareil.Detacher();
        ASSERT_TRUE(AttendreCompte(reel.usb, 0));
        reel.appareil.Brancher();
        ASSERT_TRUE(AttendreCompte(reel.usb, 1));
    });
    simule.banc.AuTour(milieu, [&] {
        simule.bus.Debrancher(idBranche);
        simule.bus.Rebrancher(idBranche);
    });
    reel.banc.Telecharger();
    simule.banc.Telecharger();
    EXPECT_EQ(reel.banc.NombreLignes(), mesuresCourtes - 1);
    EXPECT_EQ(reel.banc.Bilan(), simule.banc.Bilan());
    EXPECT_EQ(AppareilsOuverts(), 0);
}

}  // namespace
}  // namespace bornika::essai
