// The round trip of a frame and its answer through the program's transport, against a bare loop of
// the USB library over the same endpoints of the same logger. Both in turn, on mock ports.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>

#include "bench_main.h"
#include "link/multi_usb.h"
#include "shell/main_screen.h"
#include "silent_dialogs.h"
#include "simulator/presets.h"
#include "simulator/recordings.h"
#include "usb/usb_loggers.h"
#include "usb_mock/bare_usb.h"
#include "usb_mock/mock/usb_testbed.h"

namespace {

using namespace bornika;

constexpr std::uint32_t debut = 1700000000;
constexpr int echangesParTour = 200;
constexpr int tours = 60;
constexpr int longueurReponse = 10;

/// One logger with more measures than are asked for, on a port of the mock.
struct Banc {
    Banc() {
        auto enregistreur = simulateur::KPod2100(debut);
        enregistreur->Stocker(simulateur::MesuresRegulieres(debut, 4 * echangesParTour));
        enregistreur->journal.ReglerLimite(0);
        port = ports.Brancher({}, std::move(enregistreur));
        if (usb.Compte() != 1) std::abort();
        id = usb.Identifiant(0);
    }

    essai::BancUsb ports;
    QTemporaryDir dossier;
    HorlogeSysteme horloge;
    banc::SansDialogues dialogues;
    Respiration respiration;
    EnregistreursUsb usb{
        {{.Vendeur = essai::FicheUsb{}.vendeur, .Produit = essai::FicheUsb{}.produit}}};
    Systeme systeme{horloge, dialogues, usb, respiration, Regional{}, dossier.path()};
    MainScreen ecran{systeme};
    MULTIUSB lien{ecran};
    int port = 0;
    IdentifiantUsb id = 0;
};

double Secondes(const QElapsedTimer& duree) {
    return static_cast<double>(duree.nsecsElapsed()) * 1e-9;
}

/// Seconds of the exchanges after the first one, which rewinds.
double Transport(Banc& banc) {
    if (!banc.lien.OuvreUSB(banc.id)) std::abort();
    int requete[2] = {10, 1};
    QElapsedTimer duree;
    for (int i = 0; i <= echangesParTour; ++i) {
        banc.lien.UsbWrite(requete, 2);
        const Octets reponse = banc.lien.UsbRead(longueurReponse, QString(), false, false, {});
        if (reponse[0] != 10) std::abort();
        if (i == 0) duree.start();
        requete[1] = 0;
    }
    const double secondes = Secondes(duree);
    banc.lien.FermeUSB();
    return secondes;
}

double BoucleNue(Banc& banc, essai::UsbNu& nu) {
    libusb_device_handle* poignee = nu.Ouvrir(banc.ports.Adresse(banc.port));
    if (libusb_claim_interface(poignee, 0) != LIBUSB_SUCCESS) std::abort();
    const essai::FicheUsb fiche;
    unsigned char requete[2] = {10, 1};
    unsigned char reponse[64];
    QElapsedTimer duree;
    for (int i = 0; i <= echangesParTour; ++i) {
        int passes = 0;
        libusb_bulk_transfer(poignee, fiche.sortie, requete, sizeof requete, &passes, 1000);
        libusb_bulk_transfer(poignee, fiche.entree, reponse, sizeof reponse, &passes, 1000);
        if (passes != longueurReponse || reponse[0] != 10) std::abort();
        if (i == 0) duree.start();
        requete[1] = 0;
    }
    const double secondes = Secondes(duree);
    libusb_release_interface(poignee, 0);
    libusb_close(poignee);
    return secondes;
}

void AllerRetour(benchmark::State& etat) {
    Banc banc;
    essai::UsbNu nu;
    // The fastest of each: what else runs on the machine only ever adds.
    double transport = std::numeric_limits<double>::max();
    double reference = transport;
    for (auto _ : etat) {
        const double ecoule = Transport(banc);
        etat.SetIterationTime(ecoule / echangesParTour);
        transport = std::min(transport, ecoule);
        reference = std::min(reference, BoucleNue(banc, nu));
    }
    etat.counters["transport_us"] = transport / echangesParTour * 1e6;
    etat.counters["reference_us"] = reference / echangesParTour * 1e6;
    etat.counters["ratio"] = transport / reference;
    etat.counters["bar"] = 1.2;
}
BENCHMARK(AllerRetour)->UseManualTime()->Iterations(tours)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
    if (!essai::BancUsb::Possible()) {
        std::puts("There is no mock environment. Run this under umockdev-wrapper.");
        return 77;
    }
    banc::AllerHorsEcran();
    QApplication application(argc, argv);
    return banc::Mesurer(argc, argv);
}
