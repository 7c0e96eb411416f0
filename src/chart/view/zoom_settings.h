#pragma once

namespace bornika {

/// How the view moves to another one.
struct ReglageAnimation {
    /// In steps; at once otherwise.
    bool animee = false;
    /// Number of equal steps.
    int pas = 1;
    /// Milliseconds between two steps.
    int intervalle = 15;
};

}  // namespace bornika
