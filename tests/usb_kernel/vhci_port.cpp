#include "usb_kernel/vhci_port.h"

#include <chrono>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

namespace bornika::essai {

namespace {

const std::string controleur = "/sys/devices/platform/vhci_hcd.0/";
constexpr int portLibre = 4;
constexpr int pleineVitesse = 2;
// Any number above 0 does: bus and address of the device where it really is.
constexpr int numeroAppareil = 0x10001;
constexpr std::chrono::seconds patienceBranchement{60};

// Runs `voir` with port and state of each port of the hub for low, full and high speed.
template <typename Regard>
void ParcourirPorts(Regard voir) {
    std::ifstream etats(controleur + "status");
    if (!etats) throw std::runtime_error("no virtual host controller");
    std::string ligne;
    while (std::getline(etats, ligne)) {
        std::istringstream champs(ligne);
        std::string concentrateur;
        int port = 0;
        int etat = 0;
        champs >> concentrateur >> port >> etat;
        if (champs && concentrateur == "hs") voir(port, etat);
    }
}

void Ordonner(const std::string& fichier, const std::string& ordre) {
    std::ofstream sortie(controleur + fichier);
    sortie << ordre << std::flush;
    if (!sortie) throw std::runtime_error("the controller refuses \"" + ordre + "\": " + fichier);
}

}  // namespace

int BrancherAuControleur(int prise) {
    int choisi = -1;
    ParcourirPorts([&](int port, int etat) {
        if (choisi < 0 && etat == portLibre) choisi = port;
    });
    if (choisi < 0) throw std::runtime_error("no free port");
    Ordonner("attach", std::to_string(choisi) + ' ' + std::to_string(prise) + ' ' +
                           std::to_string(numeroAppareil) + ' ' + std::to_string(pleineVitesse));
    return choisi;
}

void DetacherDuControleur(int port) {
    Ordonner("detach", std::to_string(port));
}

void AttendrePortLibre(int port) {
    const auto fin = std::chrono::steady_clock::now() + patienceBranchement;
    bool libre = false;
    while (!libre) {
        ParcourirPorts([&](int lequel, int etat) {
            if (lequel == port) libre = etat == portLibre;
        });
        if (libre) return;
        if (std::chrono::steady_clock::now() > fin)
            throw std::runtime_error("the port is never free again");
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

}  // namespace bornika::essai
