#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/usb_interface.h"

namespace bornika {

/// Where a device sits: the number of its bus, then the ports on the way to it.
using CheminUsb = std::vector<std::uint8_t>;

/// One attached logger, before it has an identifier.
struct PresenceUsb {
    /// Names this very plugging-in: another one after the logger was pulled out.
    const void* cle = nullptr;
    std::string serie;
    CheminUsb chemin;
};

/// The number that a serial string stands for: decimal digits, outer blanks aside, from 1 to
/// 2147483647. Nothing for any other text.
std::optional<IdentifiantUsb> IdentifiantDeSerie(std::string_view serie);

/// A number from 1073741824 to 2147483647 that is always the same for the same place. High, so that
/// it seldom meets a serial number.
IdentifiantUsb IdentifiantDeChemin(std::span<const std::uint8_t> chemin);

/// Gives each attached logger an identifier that no other one has.
class IdentificateurUsb {
  public:
    /// Identifiers in the order of `presents`: the serial number, or the number of the place where
    /// there is none or where another logger has it. A logger keeps what it was given for as long
    /// as it is among `presents`, whatever is plugged in beside it.
    std::vector<IdentifiantUsb> Attribuer(const std::vector<PresenceUsb>& presents);

  private:
    std::map<const void*, IdentifiantUsb> attribues_;
};

}  // namespace bornika
