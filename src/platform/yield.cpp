#include "platform/yield.h"

#include <QCoreApplication>

namespace bornika {

Respiration::Respiration()
    : pas_(std::chrono::milliseconds(5)), evenements_([] { QCoreApplication::processEvents(); }) {}

bool Respiration::Ceder() {
    if (!EstDue()) return false;
    evenements_();
    // Measured from the end: a long repaint must not starve the loop that yields.
    dernier_ = std::chrono::steady_clock::now();
    return true;
}

}  // namespace bornika
