#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/usb_settings.h"
#include "usb/usb_endpoints.h"
#include "usb/usb_identifier.h"
#include "usb/usb_library.h"

namespace bornika {

/// What is still to come on the way from a logger. Kept from one opening to the next.
struct LigneUsb {
    /// An answer nobody has read may come: it has to be gone before the next request. True at
    /// first, since a program that was killed may have left one.
    bool aVider = true;
    /// The last answer ended with a full packet, so that an empty one may follow.
    bool finPossible = false;
};

/// A logger that is attached and may be opened.
struct EnregistreurUsb {
    IdentifiantUsb id = 0;
    ReglageUsb reglage;
    AccesUsb acces;
    PeripheriqueUsb peripherique;
    std::shared_ptr<LigneUsb> ligne;
};

/// Looks for the loggers of some products.
class RecensementUsb {
  public:
    explicit RecensementUsb(std::vector<ReglageUsb> reglages);

    /// Those attached now, in the order of their places on the bus. Empty with `erreur` set to the
    /// library's number when the bus cannot be looked at.
    std::vector<EnregistreurUsb> Recenser(int& erreur);
    /// Whether there is no product to look for.
    bool SansReglage() const { return reglages_.empty(); }
    /// Whether the last look met a logger that this user may not open.
    bool SansDroits() const { return sansDroits_; }
    /// Whether the last look met a device without the interface or the endpoints of its product.
    bool SansPoints() const { return sansPoints_; }

  private:
    // A device is opened once to learn its serial string, and that it may be opened.
    struct Fiche {
        EnregistreurUsb enregistreur;
        std::string serie;
        CheminUsb chemin;
    };

    // Both return 0 or the library's number. A library that cannot begin is tried again at the
    // next look.
    int Commencer();
    int Regarder();
    std::vector<EnregistreurUsb> Nommer();
    const ReglageUsb* ReglageDe(libusb_device* peripherique) const;
    void Noter(libusb_device* peripherique, const ReglageUsb& reglage,
               std::map<libusb_device*, Fiche>& presentes);

    std::vector<ReglageUsb> reglages_;
    ContexteUsb contexte_;
    std::map<libusb_device*, Fiche> fiches_;
    IdentificateurUsb identificateur_;
    bool sansDroits_ = false;
    bool sansPoints_ = false;
};

}  // namespace bornika
