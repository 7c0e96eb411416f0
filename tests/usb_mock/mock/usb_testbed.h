#pragma once

#include <functional>
#include <memory>
#include <string>

#include "usb_mock/mock/usb_counts.h"
#include "usb_mock/mock/usb_device.h"

namespace bornika::essai {

/// USB ports of their own for this process and its children, in which simulated loggers are plugged
/// and found by the unmodified USB library. It has to be made before that library is begun with.
class BancUsb {
  public:
    /// Whether this process runs in a mock environment; without one no testbed can be made.
    static bool Possible();

    BancUsb();
    ~BancUsb();
    BancUsb(const BancUsb&) = delete;
    BancUsb& operator=(const BancUsb&) = delete;

    /// Plugs a logger into the next free port and returns the number of the port.
    int Brancher(const FicheUsb& fiche, std::unique_ptr<EnregistreurSimule> enregistreur);
    /// Pulls the logger of that port out.
    void Debrancher(int port);
    /// Plugs it in again, where it gets a new address. With `autrePort` it goes to a port of its
    /// own, and the number of that is returned.
    int Rebrancher(int port, bool autrePort = false);
    /// From now on opening the logger is refused for want of rights.
    void OterDroits(int port);

    /// Works on a logger and its USB side between two calls of the USB library. Not to be used to
    /// make such calls.
    void Regler(int port, const std::function<void(AppareilMaquette&)>& travail);
    void Ordonner(int port, PanneUsb panne, int nombre = 1);
    void Ordonner(int port, const simulateur::OrdrePanne& panne);
    /// Sends out the answers that were held back.
    void Liberer(int port);

    ComptesUsb Comptes() const;
    /// The same once no node is open any more, which the mock environment hears a moment after the
    /// close; what stands after ten seconds when one stays open.
    ComptesUsb ComptesFermes() const;
    /// Address of the logger on the bus; 0 for one that is pulled out.
    int Adresse(int port) const;

  private:
    struct Interieur;
    std::unique_ptr<Interieur> interieur_;
};

}  // namespace bornika::essai
