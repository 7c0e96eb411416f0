#pragma once

// For the mock only: this header brings the C headers of the mock environment, which clash with
// the toolkit's. Tests include "usb_mock/mock/usb_testbed.h".

#include <umockdev.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "usb_mock/mock/usb_counts.h"
#include "usb_mock/mock/usb_device.h"

namespace bornika::essai {

/// A reference to an object of the mock environment.
template <class T>
class Tenu {
  public:
    Tenu() = default;
    explicit Tenu(T* objet) : objet_(objet, [](T* o) { g_object_unref(o); }) {}
    T* get() const { return objet_.get(); }

  private:
    std::shared_ptr<T> objet_;
};

/// The device node of one mock device, as the kernel's user-space USB interface answers on it: who
/// has it open, who has claimed the interface, which requests are on their way.
///
/// The calls come from a thread of the mock environment, one at a time; they lock and never wait.
class NoeudUsbfs {
  public:
    /// `adresse` is the node's path, `racine` the folder that stands for "/". `verrou` guards the
    /// device. `retrait` runs, unlocked, when the logger was pulled out in an exchange.
    NoeudUsbfs(const std::string& racine, std::string adresse,
               std::shared_ptr<AppareilMaquette> appareil, std::mutex& verrou, ComptesUsb& comptes,
               std::function<void()> retrait);
    ~NoeudUsbfs();
    NoeudUsbfs(const NoeudUsbfs&) = delete;
    NoeudUsbfs& operator=(const NoeudUsbfs&) = delete;

    UMockdevIoctlBase* Traitement() const { return traitement_.get(); }
    const std::string& Adresse() const { return adresse_; }
    /// From now on nobody may open the node, not even the administrator.
    void Refuser();
    /// The node is no longer there; who has it open keeps it.
    void Effacer();

    // Under the lock:
    /// Requests on their way end, later calls find no device.
    void Retirer();
    /// Ends what can end now; to be called after a change of the device.
    void Avancer();
    /// Gives back what those held who have closed the node meanwhile: the mock environment tells
    /// nobody of it.
    void OublierPartis();

  private:
    using Client = UMockdevIoctlClient*;
    struct Urb {
        Client client;
        std::uint64_t adresse;
        Tenu<UMockdevIoctlData> urb;
        Tenu<UMockdevIoctlData> tampon;
        /// Where bytes for the caller begin in `tampon`; nothing is written there otherwise.
        std::size_t decalage;
        bool versHote;
        bool finie = false;
        FinTransfert fin{};
    };
    /// What a call returns: a value of 0 or more, or a negative error number.
    using Retour = int;

    static gboolean SurAppel(UMockdevIoctlBase*, Client client, gpointer moi);
    static void SurOuverture(UMockdevIoctlBase*, Client client, gpointer moi);

    Retour Appeler(Client client, unsigned long demande, bool& debranche);
    Retour Soumettre(Client client, UMockdevIoctlData* argument, bool& debranche);
    Retour Recolter(Client client, UMockdevIoctlData* argument);
    Retour Abandonner(Client client, UMockdevIoctlData* argument);
    Retour Reclamer(Client client, unsigned interface);
    Retour Rendre(Client client, unsigned interface);
    Retour ChoisirReglage(Client client, UMockdevIoctlData* argument);
    /// The driver of the system takes the interface or gives it up.
    void MettrePilote(bool present);
    Retour NommerPilote(UMockdevIoctlData* argument);
    Retour DemanderPilote(UMockdevIoctlData* argument);
    Retour LeverCalage(UMockdevIoctlData* argument);
    /// Gives back all that who has closed the node held of it.
    void Oublier(Client client);
    void Terminer(std::uint64_t cle, FinTransfert fin);
    /// The node is writable for those who poll it when a request has ended.
    void Signaler();

    const std::string adresse_;
    const std::string chemin_;
    const std::shared_ptr<AppareilMaquette> appareil_;
    std::mutex& verrou_;
    ComptesUsb& comptes_;
    const std::function<void()> retrait_;
    Tenu<UMockdevIoctlBase> traitement_;
    int tube_ = -1;
    bool pleine_ = false;
    bool partie_ = false;
    bool pilote_ = false;
    /// The alternate setting in force.
    unsigned reglage_ = 0;
    std::vector<Tenu<UMockdevIoctlClient>> clients_;
    std::map<unsigned, Client> reclamees_;
    std::map<std::uint64_t, Urb> urbs_;
    /// Requests that have ended, oldest first.
    std::deque<std::uint64_t> finies_;
    std::uint64_t derniereCle_ = 0;
};

}  // namespace bornika::essai
