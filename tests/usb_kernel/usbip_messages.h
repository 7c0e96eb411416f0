#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace bornika::essai {

/// One message of the kernel's virtual host controller: a transfer to carry out, or to take back.
struct MessageUsbIp {
    bool retrait = false;
    std::uint32_t numero = 0;
    /// Of a transfer: its endpoint (0 to 15), its direction and the length of its buffer.
    std::uint32_t point = 0;
    bool entree = false;
    std::uint32_t longueur = 0;
    /// The 8 bytes of a request on endpoint 0.
    std::array<std::uint8_t, 8> demande{};
    /// What goes to the device.
    std::vector<std::uint8_t> octets;
    /// Of a taking back: the transfer that is meant.
    std::uint32_t cible = 0;
};

/// Waits for the next message on a stream socket; nothing at its end and for what is no message.
std::optional<MessageUsbIp> RecevoirUsbIp(int prise);

/// Tells how a transfer ended: `etat` is 0 or a negative error number of the kernel, `longueur` the
/// bytes that went through, `octets` those that came from the device. False when the socket is
/// closed.
bool RendreTransfert(int prise, std::uint32_t numero, int etat, std::size_t longueur,
                     std::span<const std::uint8_t> octets);

/// Answers a taking back: `etat` is -ECONNRESET when the transfer was still waiting, 0 when it had
/// ended before. False when the socket is closed.
bool RendreRetrait(int prise, std::uint32_t numero, int etat);

}  // namespace bornika::essai
