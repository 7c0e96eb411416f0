#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace bornika::simulateur {

/// One frame as the logger received it.
struct TrameNotee {
    std::int64_t instant;
    std::uint8_t longueur;
    std::array<std::uint8_t, 12> octets;

    std::vector<std::uint8_t> Liste() const { return {octets.begin(), octets.begin() + longueur}; }
    int Code() const { return octets[0]; }
};

/// The frames that a logger received, oldest first. It stops growing at its limit, so that a long
/// download stays lean; the counts go on.
class JournalTrames {
  public:
    /// Number of frames kept at most; 0 keeps none.
    void ReglerLimite(std::size_t limite) { limite_ = limite; }

    void Noter(std::int64_t instant, std::span<const std::uint8_t> trame) {
        if (trame.empty()) return;
        ++comptes_[trame[0]];
        if (trames_.size() >= limite_) return;
        TrameNotee notee{instant, 0, {}};
        const std::size_t longueur = std::min(trame.size(), notee.octets.size());
        notee.longueur = static_cast<std::uint8_t>(longueur);
        std::copy_n(trame.begin(), longueur, notee.octets.begin());
        trames_.push_back(notee);
    }

    const std::vector<TrameNotee>& Trames() const { return trames_; }
    /// Frames of one command, counted also beyond the limit.
    int Nombre(int code) const { return comptes_[static_cast<std::size_t>(code & 0xFF)]; }
    int Total() const {
        int total = 0;
        for (const int compte : comptes_)
            total += compte;
        return total;
    }
    /// Codes of the kept frames, in order.
    std::vector<int> Codes() const {
        std::vector<int> codes;
        for (const TrameNotee& notee : trames_)
            codes.push_back(notee.Code());
        return codes;
    }
    /// The kept frames of one command, in order.
    std::vector<std::vector<std::uint8_t>> DeCode(int code) const {
        std::vector<std::vector<std::uint8_t>> choix;
        for (const TrameNotee& notee : trames_) {
            if (notee.Code() == code) choix.push_back(notee.Liste());
        }
        return choix;
    }
    void Vider() {
        trames_.clear();
        comptes_.fill(0);
    }

  private:
    std::vector<TrameNotee> trames_;
    std::array<int, 256> comptes_{};
    std::size_t limite_ = 20000;
};

}  // namespace bornika::simulateur
