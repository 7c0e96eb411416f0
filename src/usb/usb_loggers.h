#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/usb_interface.h"
#include "platform/usb_settings.h"

struct libusb_device;

namespace bornika {

class AppareilUsb;
class RecensementUsb;
struct EnregistreurUsb;

/// The loggers of some products on the USB ports of this computer.
///
/// The two handles of one logger are two views of one opened device, which is given back to the
/// system when the last of them is closed. Handles are never given out twice, so one that is no
/// longer open does no harm. Error numbers are those of `errno`.
class EnregistreursUsb : public InterfaceUsb {
  public:
    /// Without a product the USB bus is never touched.
    explicit EnregistreursUsb(std::vector<ReglageUsb> reglages);
    ~EnregistreursUsb() override;
    EnregistreursUsb(const EnregistreursUsb&) = delete;
    EnregistreursUsb& operator=(const EnregistreursUsb&) = delete;

    /// Looks at the bus anew. A logger is not counted that this user may not open, or that lacks
    /// the interface or the endpoints of its product.
    int Compte() override;
    /// As the last `Compte` found them.
    IdentifiantUsb Identifiant(int index) override;
    /// What the last look at the bus says about loggers that are missing from the count.
    AbsenceUsb Absence() override;
    /// A logger that was plugged in again since the last `Compte` is found under its identifier.
    PoigneeUsb Ouvrir(IdentifiantUsb id) override;
    bool Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) override;
    /// Ends when an answer came, after the product's time-out, or when the logger is pulled out.
    int Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) override;
    /// Nothing is ever pending between two calls.
    void Annuler(PoigneeUsb poignee) override;
    void Fermer(PoigneeUsb poignee) override;
    std::uint32_t DerniereErreur() const override;
    QString TexteErreur(std::uint32_t code) const override;

  private:
    std::shared_ptr<AppareilUsb> AppareilDe(PoigneeUsb poignee) const;
    std::shared_ptr<AppareilUsb> OuvrirAppareil(IdentifiantUsb id);
    std::shared_ptr<AppareilUsb> OuvrirParmi(const std::vector<EnregistreurUsb>& presents,
                                             IdentifiantUsb id);

    std::unique_ptr<RecensementUsb> recensement_;
    std::vector<EnregistreurUsb> presents_;
    /// What the second handle of a pair shares with the first.
    std::map<const libusb_device*, std::weak_ptr<AppareilUsb>> ouverts_;
    std::map<PoigneeUsb, std::shared_ptr<AppareilUsb>> poignees_;
    PoigneeUsb dernierePoignee_ = 0;
    /// Of the call just made, as the USB library numbers it.
    int erreur_ = 0;
};

}  // namespace bornika
