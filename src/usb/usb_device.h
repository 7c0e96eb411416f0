#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "usb/usb_endpoints.h"
#include "usb/usb_scan.h"

namespace bornika {

/// One opened logger whose interface belongs to this program until the object ends.
///
/// A device offers interfaces, and who claims one has it alone. An interface has endpoints: pipes
/// of one direction, here one out to the logger and one in from it. Bytes travel on them in packets
/// of at most the endpoint's size, and a read asks for some number of bytes; it ends with the first
/// packet that is not full, or when all have come. From this follows what is done here:
/// - The room for an answer is whole packets. A packet that does not fit is an overflow, and lost.
/// - An answer that ends with a full packet may be followed by an empty one, which only says so.
/// - An answer that comes after the time-out waits in the logger. It is fetched and dropped before
///   the next request, or it would be taken for the answer to that.
/// - An endpoint may stall, and then refuses everything until its halt is cleared.
class AppareilUsb {
  public:
    /// None when the logger cannot be had; `erreur` then holds the library's number. A driver of
    /// the system that sits on the interface gives way and comes back at the end.
    static std::shared_ptr<AppareilUsb> Ouvrir(const EnregistreurUsb& enregistreur, int& erreur);
    ~AppareilUsb();
    AppareilUsb(const AppareilUsb&) = delete;
    AppareilUsb& operator=(const AppareilUsb&) = delete;

    /// Whether the logger was pulled out.
    bool Perdu() const { return perdu_; }

    /// Sends all bytes in one transfer. Returns 0 or the library's number. What is left of earlier
    /// answers is dropped first. A stalled endpoint is set free, so that a repetition may succeed.
    int Ecrire(std::span<const std::uint8_t> octets);
    /// Reads one answer, cut to `octets`. Returns how many bytes came, with the library's number in
    /// `erreur`: bytes that came before a failure count, save those of an overflow.
    int Lire(std::span<std::uint8_t> octets, int& erreur);

  private:
    AppareilUsb(const EnregistreurUsb& enregistreur, OuvertureUsb ouverture);

    int Transferer(const PointUsb& point, std::size_t longueur, int delai, int& transferes);
    void Vider();

    PeripheriqueUsb peripherique_;
    ReglageUsb reglage_;
    PointsUsb points_;
    std::shared_ptr<LigneUsb> ligne_;
    OuvertureUsb ouverture_;
    // Kept so that a long download asks for no memory.
    std::vector<unsigned char> tampon_;
    bool perdu_ = false;
};

}  // namespace bornika
