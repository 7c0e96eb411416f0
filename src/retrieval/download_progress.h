#pragma once

#include <cstdint>

#include "shell/main_screen.h"

namespace bornika {

/// The bar and the text "measures/maximum" of a running download.
///
/// Both are noted in every round and shown only just before the interface can run: in between
/// nobody can see them, and drawing them for each measure would cost more than the measure itself.
class Avancement {
  public:
    explicit Avancement(MainScreen& ecran) : ecran_(ecran) {}

    /// Shows the bar at its minimum, and the text.
    void Ouvrir();
    /// Notes one more round. The bar stops one step short of its end.
    void Avancer() { ++pas_; }
    /// Takes the maximum of the bar as it is now: due at the start and whenever the interface ran.
    void Relire();
    /// Notes the number of measures, unless it is beyond the rounded maximum of the bar.
    void Compter(std::int32_t Compteur);
    /// Brings the bar and the text up to what was noted.
    void Montrer();
    /// Hides both.
    void Fermer();
    /// Gives the text the value and the maximum of the bar, both rounded.
    void Conclure();

  private:
    MainScreen& ecran_;
    std::int64_t pas_ = 0;
    std::int32_t compteur_ = 0;
    double maximum_ = 0;
    double maximumBarre_ = 0;
    bool texteNote_ = false;
};

}  // namespace bornika
