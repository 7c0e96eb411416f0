#include "platform/yield.h"

#include <QCoreApplication>

#include "platform/vector_registers.h"

namespace bornika {

Respiration::Respiration()
    : pas_(std::chrono::milliseconds(5)), evenements_([] { QCoreApplication::processEvents(); }) {}

bool Respiration::Ceder() {
    if (!EstDue()) return false;
    // Noted before as well: a loop started by one of the events starts with its own full step.
    dernier_ = std::chrono::steady_clock::now();
    evenements_();
    LibererRegistresVectoriels();
    dernier_ = std::chrono::steady_clock::now();
    return true;
}

}  // namespace bornika
