#pragma once

#include <chrono>
#include <functional>
#include <utility>

namespace bornika {

/// The one yield operation of the long loops: it lets the user interface run when at least `pas`
/// have passed since it last ran. Its clock is its own monotonic one, never the injected wall
/// clock.
class Respiration {
  public:
    /// The interface runs for 5 ms steps by default: no hand notices the difference.
    Respiration();

    /// The least time between two runs of the interface; 0 (tests) makes every call run it.
    void ReglerPas(std::chrono::milliseconds pas) { pas_ = pas; }

    /// Replaces what "let the interface run" means (tests count calls with it).
    void ReglerEvenements(std::function<void()> evenements) { evenements_ = std::move(evenements); }

    /// True when the next `Ceder` will let the interface run: the moment to bring displays up to
    /// date.
    bool EstDue() const { return std::chrono::steady_clock::now() - dernier_ >= pas_; }

    /// Yields. Returns true when the interface ran.
    bool Ceder();

  private:
    std::chrono::steady_clock::duration pas_;
    std::chrono::steady_clock::time_point dernier_{};
    std::function<void()> evenements_;
};

}  // namespace bornika
