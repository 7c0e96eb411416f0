#include "simulator/paged_flash.h"

#include <algorithm>
#include <cstring>

namespace bornika::simulateur {

void FlashPaginee::Lire(int page, int offset, std::span<std::uint8_t> octets) const {
    const auto rang = static_cast<std::size_t>(page);
    const bool ecrite = page >= 0 && rang < pages_.size() && pages_[rang];
    const auto longueur = static_cast<int>(octets.size());
    if (ecrite && offset >= 0 && offset + longueur <= taillePage) {
        std::memcpy(octets.data(), pages_[rang]->data() + offset, octets.size());
        return;
    }
    for (int i = 0; i < longueur; ++i) {
        const int ou = offset + i;
        const bool dedans = ecrite && ou >= 0 && ou < taillePage;
        octets[static_cast<std::size_t>(i)] =
            dedans ? (*pages_[rang])[static_cast<std::size_t>(ou)] : std::uint8_t{0xFF};
    }
}

void FlashPaginee::Ecrire(int page, int offset, std::span<const std::uint8_t> octets) {
    if (page < 0 || page >= nombrePages || offset < 0 || offset >= taillePage) return;
    if (pages_.empty()) pages_.resize(nombrePages);
    auto& cible = pages_[static_cast<std::size_t>(page)];
    if (!cible) {
        cible = std::make_unique<Page>();
        cible->fill(0xFF);
    }
    const auto place = static_cast<std::size_t>(taillePage - offset);
    std::memcpy(cible->data() + offset, octets.data(), std::min(place, octets.size()));
}

}  // namespace bornika::simulateur
