#include "usb_mock/mock/usb_testbed.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include "usb_mock/mock/usbfs_node.h"

namespace bornika::essai {

namespace {

const std::string concentrateur = "/sys/devices/pci0000:00/0000:00:14.0/usb1";
constexpr std::chrono::seconds patience(10);

std::string Hexa4(unsigned valeur) {
    std::array<char, 16> texte{};
    std::snprintf(texte.data(), texte.size(), "%04x", valeur);
    return texte.data();
}

std::string Trois(int nombre) {
    std::array<char, 16> texte{};
    std::snprintf(texte.data(), texte.size(), "%03d", nombre);
    return texte.data();
}

}  // namespace

struct BancUsb::Interieur {
    struct Port {
        std::shared_ptr<AppareilMaquette> appareil;
        std::unique_ptr<NoeudUsbfs> noeud;
        int adresse = 0;
    };

    Interieur() : banc(umockdev_testbed_new()) {
        gchar* dossier = umockdev_testbed_get_root_dir(banc.get());
        racine = dossier;
        g_free(dossier);
    }
    ~Interieur() {
        for (auto& [numero, port] : ports)
            Retirer(port, numero);
        for (const auto& noeud : anciens)
            umockdev_testbed_detach_ioctl(banc.get(), noeud->Adresse().c_str(), nullptr);
    }

    ComptesUsb Comptes() {
        const std::lock_guard garde(verrou);
        for (const auto& [numero, port] : ports)
            if (port.noeud) port.noeud->OublierPartis();
        for (const auto& noeud : anciens)
            noeud->OublierPartis();
        return comptes;
    }

    static std::string Sysfs(int numero) { return concentrateur + "/1-" + std::to_string(numero); }

    void Poser(Port& port, int numero);
    void PreparerNoeud(Port& port, int numero);
    void Annoncer(const Port& port, int numero);
    void Retirer(Port& port, int numero);

    mutable std::mutex verrou;
    Tenu<UMockdevTestbed> banc;
    std::string racine;
    std::map<int, Port> ports;
    /// Nodes of loggers that were pulled out: who still has one open must be told so.
    std::vector<std::unique_ptr<NoeudUsbfs>> anciens;
    ComptesUsb comptes;
    int dernierPort = 0;
    int derniereAdresse = 1;
};

// All of a device stands there before anybody hears of it.
void BancUsb::Interieur::Poser(Port& port, int numero) {
    port.adresse = ++derniereAdresse;
    const std::filesystem::path dossier = racine + Sysfs(numero);
    std::filesystem::create_directories(dossier);
    const std::vector<std::uint8_t> descripteurs = Descripteurs(port.appareil->fiche);
    std::ofstream(dossier / "descriptors", std::ios::binary)
        .write(reinterpret_cast<const char*>(descripteurs.data()),
               static_cast<std::streamsize>(descripteurs.size()));
    PreparerNoeud(port, numero);
    Annoncer(port, numero);
}

void BancUsb::Interieur::PreparerNoeud(Port& port, int numero) {
    auto noeud = std::make_unique<NoeudUsbfs>(
        racine, "/dev/bus/usb/001/" + Trois(port.adresse), port.appareil, verrou, comptes,
        [this, numero] { Retirer(ports.at(numero), numero); });
    if (!umockdev_testbed_attach_ioctl(banc.get(), noeud->Adresse().c_str(), noeud->Traitement(),
                                       nullptr))
        throw std::runtime_error("the mock environment takes no device");
    const std::lock_guard garde(verrou);
    port.noeud = std::move(noeud);
}

void BancUsb::Interieur::Annoncer(const Port& port, int numero) {
    const FicheUsb& fiche = port.appareil->fiche;
    const std::string noeud = port.noeud->Adresse();
    const std::string adresse = std::to_string(port.adresse);
    const std::string vendeur = Hexa4(fiche.vendeur);
    const std::string produit = Hexa4(fiche.produit);
    std::array<const char*, 15> attributs = {"busnum",
                                             "1",
                                             "devnum",
                                             adresse.c_str(),
                                             "idVendor",
                                             vendeur.c_str(),
                                             "idProduct",
                                             produit.c_str(),
                                             "speed",
                                             "12",
                                             "bConfigurationValue",
                                             fiche.sansConfiguration ? "" : "1",
                                             "bNumConfigurations",
                                             "1",
                                             nullptr};
    std::array<const char*, 9> proprietes = {"DEVTYPE",     "usb_device",    "DEVNAME",
                                             noeud.c_str(), "BUSNUM",        "001",
                                             "DEVNUM",      adresse.c_str(), nullptr};
    g_free(umockdev_testbed_add_devicev(
        banc.get(), "usb", ("1-" + std::to_string(numero)).c_str(), concentrateur.c_str(),
        const_cast<gchar**>(attributs.data()), const_cast<gchar**>(proprietes.data())));
}

// The system is told before the device goes.
void BancUsb::Interieur::Retirer(Port& port, int numero) {
    {
        const std::lock_guard garde(verrou);
        if (!port.noeud) return;
        port.noeud->Retirer();
        port.adresse = 0;
        anciens.push_back(std::move(port.noeud));
    }
    umockdev_testbed_uevent(banc.get(), Sysfs(numero).c_str(), "remove");
    umockdev_testbed_remove_device(banc.get(), Sysfs(numero).c_str());
    anciens.back()->Effacer();
}

bool BancUsb::Possible() {
    // Seen from within a testbed only.
    const Tenu<UMockdevTestbed> essai(umockdev_testbed_new());
    return umockdev_in_mock_environment() != 0;
}

BancUsb::BancUsb() : interieur_(std::make_unique<Interieur>()) {}

BancUsb::~BancUsb() = default;

int BancUsb::Brancher(const FicheUsb& fiche, std::unique_ptr<EnregistreurSimule> enregistreur) {
    const int numero = ++interieur_->dernierPort;
    Interieur::Port& port = interieur_->ports[numero];
    port.appareil = std::make_shared<AppareilMaquette>(fiche, std::move(enregistreur));
    interieur_->Poser(port, numero);
    return numero;
}

void BancUsb::Debrancher(int port) {
    interieur_->Retirer(interieur_->ports.at(port), port);
}

int BancUsb::Rebrancher(int port, bool autrePort) {
    const int numero = autrePort ? ++interieur_->dernierPort : port;
    const auto appareil = interieur_->ports.at(port).appareil;
    Interieur::Port& nouveau = interieur_->ports[numero];
    nouveau.appareil = appareil;
    interieur_->Poser(nouveau, numero);
    return numero;
}

void BancUsb::OterDroits(int port) {
    interieur_->ports.at(port).noeud->Refuser();
}

void BancUsb::Regler(int port, const std::function<void(AppareilMaquette&)>& travail) {
    const std::lock_guard garde(interieur_->verrou);
    Interieur::Port& ici = interieur_->ports.at(port);
    travail(*ici.appareil);
    if (ici.noeud) ici.noeud->Avancer();
}

void BancUsb::Ordonner(int port, PanneUsb panne, int nombre) {
    Regler(port, [&](AppareilMaquette& appareil) { appareil.Ordonner(panne, nombre); });
}

void BancUsb::Ordonner(int port, const simulateur::OrdrePanne& panne) {
    Regler(port,
           [&](AppareilMaquette& appareil) { appareil.enregistreur->pannes.Ordonner(panne); });
}

void BancUsb::Liberer(int port) {
    Regler(port, [](AppareilMaquette& appareil) { appareil.Liberer(); });
}

ComptesUsb BancUsb::Comptes() const {
    return interieur_->Comptes();
}

ComptesUsb BancUsb::ComptesFermes() const {
    const auto fin = std::chrono::steady_clock::now() + patience;
    while (Comptes().ouvertures != 0 && std::chrono::steady_clock::now() < fin)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return Comptes();
}

int BancUsb::Adresse(int port) const {
    const std::lock_guard garde(interieur_->verrou);
    return interieur_->ports.at(port).adresse;
}

}  // namespace bornika::essai
