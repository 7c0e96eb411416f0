#include "usb_mock/mock/usbfs_node.h"

#include <fcntl.h>
#include <linux/usbdevice_fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <utility>

#include "usb_mock/mock/usb_descriptors.h"

namespace bornika::essai {

namespace {

constexpr int unePage = 4096;
// Opening this for writing is refused to everybody.
constexpr const char* fermeATous = "/proc/sys/kernel/ostype";
constexpr std::size_t demandeControle = 8;

/// Memory of the caller behind a pointer in `donnees`; empty when it cannot be read.
Tenu<UMockdevIoctlData> Suivre(UMockdevIoctlData* donnees, std::size_t ou, std::size_t longueur) {
    GError* erreur = nullptr;
    UMockdevIoctlData* suite = umockdev_ioctl_data_resolve(donnees, ou, longueur, &erreur);
    if (erreur != nullptr) g_error_free(erreur);
    return suite != nullptr ? Tenu<UMockdevIoctlData>(suite) : Tenu<UMockdevIoctlData>();
}

template <class T>
bool Lire(UMockdevIoctlData* argument, T& valeur) {
    const Tenu<UMockdevIoctlData> donnees = Suivre(argument, 0, sizeof(T));
    if (donnees.get() == nullptr) return false;
    std::memcpy(&valeur, donnees.get()->data, sizeof(T));
    return true;
}

template <class T>
void Poser(UMockdevIoctlData* donnees, std::size_t ou, const T& valeur) {
    T copie = valeur;
    umockdev_ioctl_data_update(donnees, ou, reinterpret_cast<guint8*>(&copie), sizeof(T));
}

template <class T>
bool Repondre(UMockdevIoctlData* argument, const T& valeur) {
    const Tenu<UMockdevIoctlData> donnees = Suivre(argument, 0, sizeof(T));
    if (donnees.get() == nullptr) return false;
    Poser(donnees.get(), 0, valeur);
    return true;
}

}  // namespace

NoeudUsbfs::NoeudUsbfs(const std::string& racine, std::string adresse,
                       std::shared_ptr<AppareilMaquette> appareil, std::mutex& verrou,
                       ComptesUsb& comptes, std::function<void()> retrait)
    : adresse_(std::move(adresse)),
      chemin_(racine + adresse_),
      appareil_(std::move(appareil)),
      verrou_(verrou),
      comptes_(comptes),
      retrait_(std::move(retrait)),
      traitement_(umockdev_ioctl_base_new()) {
    std::filesystem::create_directories(std::filesystem::path(chemin_).parent_path());
    if (mkfifo(chemin_.c_str(), 0666) != 0) throw std::runtime_error("no pipe for the mock device");
    tube_ = open(chemin_.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (tube_ < 0 || fcntl(tube_, F_SETPIPE_SZ, unePage) < 0)
        throw std::runtime_error("no small pipe for the mock device");
    Signaler();
    MettrePilote(true);
    g_signal_connect(traitement_.get(), "handle-ioctl", G_CALLBACK(&NoeudUsbfs::SurAppel), this);
    g_signal_connect(traitement_.get(), "client-connected", G_CALLBACK(&NoeudUsbfs::SurOuverture),
                     this);
}

NoeudUsbfs::~NoeudUsbfs() {
    g_signal_handlers_disconnect_by_data(traitement_.get(), this);
    close(tube_);
    Effacer();
}

void NoeudUsbfs::Refuser() {
    Effacer();
    std::filesystem::create_symlink(fermeATous, chemin_);
}

void NoeudUsbfs::Effacer() {
    std::error_code sansImportance;
    std::filesystem::remove(chemin_, sansImportance);
}

void NoeudUsbfs::SurOuverture(UMockdevIoctlBase*, Client client, gpointer moi) {
    auto& noeud = *static_cast<NoeudUsbfs*>(moi);
    const std::lock_guard garde(noeud.verrou_);
    noeud.clients_.emplace_back(UMOCKDEV_IOCTL_CLIENT(g_object_ref(client)));
    ++noeud.comptes_.ouvertures;
}

void NoeudUsbfs::OublierPartis() {
    std::erase_if(clients_, [this](const auto& client) {
        if (umockdev_ioctl_client_get_connected(client.get()) != 0) return false;
        Oublier(client.get());
        return true;
    });
}

void NoeudUsbfs::Oublier(Client client) {
    --comptes_.ouvertures;
    const auto rendues =
        std::erase_if(reclamees_, [client](const auto& r) { return r.second == client; });
    comptes_.reclamations -= static_cast<int>(rendues);
    if (rendues > 0) reglage_ = 0;
    FinTransfert oubliee;
    for (auto& [cle, urb] : urbs_)
        if (urb.client == client) appareil_->Reprendre(cle, oubliee);
    comptes_.enCours -= static_cast<int>(
        std::erase_if(urbs_, [client](const auto& u) { return u.second.client == client; }));
    std::erase_if(finies_, [&](std::uint64_t cle) { return !urbs_.contains(cle); });
    Signaler();
}

gboolean NoeudUsbfs::SurAppel(UMockdevIoctlBase*, Client client, gpointer moi) {
    auto& noeud = *static_cast<NoeudUsbfs*>(moi);
    bool debranche = false;
    Retour retour = 0;
    {
        const std::lock_guard garde(noeud.verrou_);
        retour = noeud.Appeler(client, umockdev_ioctl_client_get_request(client), debranche);
        if (debranche) noeud.Retirer();
    }
    umockdev_ioctl_client_complete(client, retour < 0 ? -1 : retour, retour < 0 ? -retour : 0);
    if (debranche) noeud.retrait_();
    return TRUE;
}

NoeudUsbfs::Retour NoeudUsbfs::Appeler(Client client, unsigned long demande, bool& debranche) {
    UMockdevIoctlData* argument = umockdev_ioctl_client_get_arg(client);
    // What has ended is handed out even when the device is gone.
    if (demande == USBDEVFS_REAPURBNDELAY) return Recolter(client, argument);
    if (partie_) return -ENODEV;
    unsigned interface = 0;
    switch (demande) {
        case USBDEVFS_GET_CAPABILITIES:
            return Repondre<std::uint32_t>(argument, USBDEVFS_CAP_ZERO_PACKET |
                                                         USBDEVFS_CAP_NO_PACKET_SIZE_LIM |
                                                         USBDEVFS_CAP_REAP_AFTER_DISCONNECT)
                       ? 0
                       : -EFAULT;
        case USBDEVFS_SUBMITURB:
            return Soumettre(client, argument, debranche);
        case USBDEVFS_DISCARDURB:
            return Abandonner(client, argument);
        case USBDEVFS_CLAIMINTERFACE:
            return Lire(argument, interface) ? Reclamer(client, interface) : -EFAULT;
        case USBDEVFS_DISCONNECT_CLAIM: {
            usbdevfs_disconnect_claim reclame{};
            if (!Lire(argument, reclame)) return -EFAULT;
            if (reclame.interface == appareil_->fiche.interface) MettrePilote(false);
            return Reclamer(client, reclame.interface);
        }
        case USBDEVFS_RELEASEINTERFACE:
            return Lire(argument, interface) ? Rendre(client, interface) : -EFAULT;
        case USBDEVFS_GETDRIVER:
            return NommerPilote(argument);
        case USBDEVFS_IOCTL:
            return DemanderPilote(argument);
        case USBDEVFS_CLEAR_HALT:
        case USBDEVFS_RESETEP:
            return LeverCalage(argument);
        case USBDEVFS_SETINTERFACE:
            return ChoisirReglage(client, argument);
        case USBDEVFS_RESET:
        case USBDEVFS_SETCONFIGURATION:
            return 0;
        default:
            return -ENOTTY;
    }
}

NoeudUsbfs::Retour NoeudUsbfs::Reclamer(Client client, unsigned interface) {
    if (interface != appareil_->fiche.interface) return -ENOENT;
    if (pilote_) return -EBUSY;
    OublierPartis();
    const auto [ou, nouvelle] = reclamees_.emplace(interface, client);
    if (nouvelle) ++comptes_.reclamations;
    if (ou->second == client) return 0;
    ++comptes_.refus;
    return -EBUSY;
}

NoeudUsbfs::Retour NoeudUsbfs::Rendre(Client client, unsigned interface) {
    const auto ou = reclamees_.find(interface);
    if (ou == reclamees_.end() || ou->second != client) return -EINVAL;
    reclamees_.erase(ou);
    --comptes_.reclamations;
    reglage_ = 0;
    return 0;
}

NoeudUsbfs::Retour NoeudUsbfs::ChoisirReglage(Client client, UMockdevIoctlData* argument) {
    usbdevfs_setinterface choix{};
    if (!Lire(argument, choix)) return -EFAULT;
    const auto ou = reclamees_.find(choix.interface);
    if (ou == reclamees_.end() || ou->second != client) return -EINVAL;
    if (choix.altsetting > appareil_->fiche.alternatif) return -EINVAL;
    reglage_ = choix.altsetting;
    return 0;
}

void NoeudUsbfs::MettrePilote(bool present) {
    const bool voulu = present && appareil_->fiche.pilote;
    comptes_.pilotes += static_cast<int>(voulu) - static_cast<int>(pilote_);
    pilote_ = voulu;
}

NoeudUsbfs::Retour NoeudUsbfs::NommerPilote(UMockdevIoctlData* argument) {
    if (!pilote_) return -ENODATA;
    usbdevfs_getdriver nom{appareil_->fiche.interface, "usbhid"};
    return Repondre(argument, nom) ? 0 : -EFAULT;
}

NoeudUsbfs::Retour NoeudUsbfs::DemanderPilote(UMockdevIoctlData* argument) {
    usbdevfs_ioctl demande{};
    if (!Lire(argument, demande)) return -EFAULT;
    const bool branche = static_cast<unsigned long>(demande.ioctl_code) == USBDEVFS_CONNECT;
    if (!branche && !pilote_) return -ENODATA;
    // Nothing but the one who has claimed it stands in its way.
    if (branche && reclamees_.contains(appareil_->fiche.interface)) return -EBUSY;
    MettrePilote(branche);
    return pilote_ ? 1 : 0;
}

NoeudUsbfs::Retour NoeudUsbfs::LeverCalage(UMockdevIoctlData* argument) {
    unsigned adresse = 0;
    if (!Lire(argument, adresse)) return -EFAULT;
    appareil_->LeverCalage(static_cast<std::uint8_t>(adresse));
    ++comptes_.calagesLeves;
    Avancer();
    return 0;
}

NoeudUsbfs::Retour NoeudUsbfs::Soumettre(Client client, UMockdevIoctlData* argument,
                                         bool& debranche) {
    const Tenu<UMockdevIoctlData> donnees = Suivre(argument, 0, sizeof(usbdevfs_urb));
    if (donnees.get() == nullptr) return -EFAULT;
    usbdevfs_urb urb{};
    std::memcpy(&urb, donnees.get()->data, sizeof urb);
    const bool controle = urb.type == USBDEVFS_URB_TYPE_CONTROL;
    const FicheUsb& fiche = appareil_->fiche;
    if (!controle) {
        if (urb.endpoint != fiche.sortie && urb.endpoint != fiche.entree) return -ENOENT;
        if (reglage_ != fiche.alternatif) return -ENOENT;
        // The kernel lets a bulk request through on an interrupt endpoint, not the other way.
        if (urb.type == USBDEVFS_URB_TYPE_INTERRUPT && !fiche.interruption) return -EINVAL;
        const Retour reclame = Reclamer(client, fiche.interface);
        if (reclame < 0) return reclame;
    }
    Tenu<UMockdevIoctlData> tampon = Suivre(donnees.get(), offsetof(usbdevfs_urb, buffer),
                                            static_cast<std::size_t>(urb.buffer_length));
    if (tampon.get() == nullptr && urb.buffer_length > 0) return -EFAULT;
    const std::uint64_t cle = ++derniereCle_;
    const bool entrante = controle || (urb.endpoint & versHote) != 0;
    urbs_.emplace(cle, Urb{client, donnees.get()->client_addr, donnees, tampon,
                           controle ? demandeControle : 0, entrante});
    ++comptes_.enCours;
    ++comptes_.demandes;
    if (urb.type == USBDEVFS_URB_TYPE_INTERRUPT) ++comptes_.interruptions;
    const auto* octets = tampon.get() != nullptr ? tampon.get()->data : nullptr;
    const std::span<const std::uint8_t> vue(octets, static_cast<std::size_t>(urb.buffer_length));
    if (controle)
        Terminer(cle, appareil_->Controle(vue));
    else if (entrante)
        appareil_->Demander(cle, vue.size());
    else {
        FinTransfert fin = appareil_->Recevoir(vue, debranche);
        // An OUT transfer counts what went out.
        if (fin.etat == 0) fin.octets.assign(vue.begin(), vue.end());
        Terminer(cle, std::move(fin));
    }
    Avancer();
    return 0;
}

void NoeudUsbfs::Terminer(std::uint64_t cle, FinTransfert fin) {
    const auto ou = urbs_.find(cle);
    if (ou == urbs_.end()) return;
    ou->second.finie = true;
    ou->second.fin = std::move(fin);
    finies_.push_back(cle);
    Signaler();
}

void NoeudUsbfs::Avancer() {
    std::uint64_t cle = 0;
    FinTransfert fin;
    while (appareil_->Servir(cle, fin))
        Terminer(cle, std::move(fin));
}

NoeudUsbfs::Retour NoeudUsbfs::Recolter(Client client, UMockdevIoctlData* argument) {
    const auto premiere = std::find_if(finies_.begin(), finies_.end(), [&](std::uint64_t cle) {
        return urbs_.at(cle).client == client;
    });
    if (premiere == finies_.end()) return partie_ ? -ENODEV : -EAGAIN;
    const Tenu<UMockdevIoctlData> place = Suivre(argument, 0, sizeof(void*));
    if (place.get() == nullptr) return -EFAULT;
    const auto ou = urbs_.find(*premiere);
    Urb& urb = ou->second;
    UMockdevIoctlData* donnees = urb.urb.get();
    Poser(donnees, offsetof(usbdevfs_urb, status), urb.fin.etat);
    Poser(donnees, offsetof(usbdevfs_urb, actual_length), static_cast<int>(urb.fin.octets.size()));
    if (urb.versHote && !urb.fin.octets.empty())
        umockdev_ioctl_data_update(urb.tampon.get(), urb.decalage, urb.fin.octets.data(),
                                   static_cast<gint>(urb.fin.octets.size()));
    umockdev_ioctl_data_set_ptr(place.get(), 0, donnees);
    urbs_.erase(ou);
    finies_.erase(premiere);
    --comptes_.enCours;
    Signaler();
    return 0;
}

NoeudUsbfs::Retour NoeudUsbfs::Abandonner(Client client, UMockdevIoctlData* argument) {
    std::uint64_t adresse = 0;
    std::memcpy(&adresse, argument->data, sizeof adresse);
    const auto ou = std::find_if(urbs_.begin(), urbs_.end(), [&](const auto& u) {
        return u.second.client == client && u.second.adresse == adresse;
    });
    if (ou == urbs_.end() || ou->second.finie) return -EINVAL;
    ++comptes_.abandons;
    FinTransfert fin;
    appareil_->Reprendre(ou->first, fin);
    fin.etat = -ENOENT;
    Terminer(ou->first, std::move(fin));
    return 0;
}

void NoeudUsbfs::Retirer() {
    partie_ = true;
    MettrePilote(false);
    for (auto& [cle, urb] : urbs_) {
        if (urb.finie) continue;
        FinTransfert fin;
        appareil_->Reprendre(cle, fin);
        fin.etat = -ESHUTDOWN;
        Terminer(cle, std::move(fin));
    }
}

void NoeudUsbfs::Signaler() {
    const bool prete = !finies_.empty();
    if (prete != pleine_) return;
    std::uint8_t octet = 0;
    const auto fait = prete ? read(tube_, &octet, 1) : write(tube_, &octet, 1);
    if (fait == 1) pleine_ = !prete;
}

}  // namespace bornika::essai
