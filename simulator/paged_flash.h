#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace bornika::simulateur {

/// The paged flash: 8192 pages of 528 bytes, erased to 0xFF. A page takes memory from its first
/// write on, so that a family of mostly empty loggers stays light.
class FlashPaginee {
  public:
    static constexpr int nombrePages = 8192;
    static constexpr int taillePage = 528;
    static constexpr int tailleMesure = 8;
    static constexpr int mesuresParPage = 66;

    /// Fills `octets` from `offset` of `page` on; 0xFF for what lies outside the page.
    void Lire(int page, int offset, std::span<std::uint8_t> octets) const;
    /// Writes inside the page; what lies outside is dropped.
    void Ecrire(int page, int offset, std::span<const std::uint8_t> octets);
    void Effacer() { pages_.clear(); }

  private:
    using Page = std::array<std::uint8_t, taillePage>;
    std::vector<std::unique_ptr<Page>> pages_;
};

}  // namespace bornika::simulateur
