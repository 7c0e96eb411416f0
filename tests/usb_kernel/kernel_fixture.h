#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "retrieval/download_stand.h"
#include "simulator/presets.h"
#include "usb/usb_loggers.h"
#include "usb_kernel/usbip_device.h"

namespace bornika::essai {

/// 14 November 2023, 22:13:20.
inline constexpr std::uint32_t t0 = 1700000000;

/// A time-out in milliseconds that no answer comes near, however busy the machine is.
inline constexpr int delaiSansFin = 120000;

/// The product of these loggers, with the time-out of a silent read in milliseconds.
ReglageUsb Reglage(int delai = delaiSansFin);

/// A device with that text of the serial number.
FicheUsb Fiche(const std::string& serie);

/// Lets the kernel work until `vrai` holds; false after a minute.
bool Attendre(const std::function<bool()>& vrai);
/// Waits until that many loggers are counted.
bool AttendreCompte(InterfaceUsb& usb, int combien);

/// Files of USB devices that this process holds open.
int AppareilsOuverts();

/// That form with a logger chosen, over whatever carries the bytes.
class BancPoste : public BancTelechargement {
  public:
    BancPoste(InterfaceUsb& usb, IdentifiantUsb id);

    /// Content and state of every control, a line each.
    std::string Portrait() const;
    /// Everything that a download leaves behind, as one text.
    std::string Bilan() const;
};

/// Identifier of the logger that is plugged in, from its serial number.
inline constexpr IdentifiantUsb idBranche = 1001;

}  // namespace bornika::essai
