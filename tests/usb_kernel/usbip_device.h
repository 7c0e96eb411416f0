#pragma once

#include <memory>
#include <mutex>
#include <thread>

#include "usb_kernel/usbip_messages.h"
#include "usb_mock/mock/usb_device.h"

namespace bornika::essai {

/// A simulated logger on a port of the kernel's virtual host controller: what the kernel asks of
/// the device over USB/IP, a thread of this object answers.
class AppareilUsbIp {
  public:
    AppareilUsbIp(FicheUsb fiche, std::unique_ptr<EnregistreurSimule> enregistreur);
    /// Pulls the device out.
    ~AppareilUsbIp();
    AppareilUsbIp(const AppareilUsbIp&) = delete;
    AppareilUsbIp& operator=(const AppareilUsbIp&) = delete;

    /// Plugs the device into the first free port. A `std::runtime_error` when the kernel refuses.
    void Brancher();
    /// Pulls it out by an order to the controller, and waits until its port is free.
    void Detacher();
    /// Breaks the connection to the controller, which is how a cable comes out, and waits likewise.
    void Arracher();

    /// Acts on the device while the kernel's requests wait; what it then has to send goes out.
    template <typename Action>
    void Avec(Action action) {
        const std::scoped_lock verrou(verrou_);
        action(appareil_);
        RendreLectures();
    }
    /// Transfers that the kernel took back while they waited for the device.
    int Retraits();

  private:
    void Servir();
    bool Traiter(const MessageUsbIp& message);
    bool Transferer(const MessageUsbIp& message);
    bool Retirer(const MessageUsbIp& message);
    bool RendreLectures();
    void Remettre();
    FinTransfert Controler(const MessageUsbIp& message);
    void Fermer();

    std::mutex verrou_;
    AppareilMaquette appareil_;
    std::vector<std::uint64_t> lectures_;
    int retraits_ = 0;
    int prise_ = -1;
    int port_ = -1;
    std::thread fil_;
};

}  // namespace bornika::essai
