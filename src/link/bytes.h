#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/fault.h"

/// The bytes that go to a logger and come back, without a word about who sends them.
namespace bornika {

/// Values of the bytes of a frame or a reply. Wider than a byte, because sending a value outside 0
/// to 255 is a fault that has to be seen.
using Octets = std::vector<int>;

/// Reply of a command: the first reply byte (r0) lands at index 1, and index 0 keeps what it held.
using Tampon = std::array<std::uint8_t, 17>;

/// A reply read by place, counted from its first byte (r0) whichever way it is kept. It only looks
/// at the bytes: they have to outlive it. Fault 9 beyond their end.
class VueReponse {
  public:
    // Implicit on purpose: what decodes a reply takes either kind of it.
    VueReponse(const Tampon& tampon) : etroits_(tampon.data() + 1), nombre_(tampon.size() - 1) {}
    VueReponse(const Octets& octets) : larges_(octets.data()), nombre_(octets.size()) {}

    int Octet(std::size_t rang) const {
        if (rang >= nombre_) LeverFaute(numero_faute::indice);
        return etroits_ ? etroits_[rang] : larges_[rang];
    }
    /// Two and four bytes, most significant first, without a sign.
    int Mot(std::size_t rang) const { return Octet(rang) * 256 + Octet(rang + 1); }
    double Quatre(std::size_t rang) const { return Mot(rang) * 65536.0 + Mot(rang + 2); }

  private:
    const std::uint8_t* etroits_ = nullptr;
    const int* larges_ = nullptr;
    std::size_t nombre_;
};

/// High and low byte of a value rounded half to even, 0 to 65535; fault 6 outside.
std::uint8_t MSB(double x);
std::uint8_t LSB(double x);

/// Four bytes, low byte first.
Octets EntierVersOctets(std::int32_t valeur);
/// 0 unless there are exactly four of them.
std::int32_t OctetsVersEntier(const Octets& tableau);

}  // namespace bornika
