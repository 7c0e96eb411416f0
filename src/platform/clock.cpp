#include "platform/clock.h"

#include <chrono>
#include <thread>

namespace bornika {

QDateTime HorlogeSysteme::Maintenant() {
    const QDateTime local = QDateTime::currentDateTime();
    return QDateTime(local.date(), local.time(), Qt::UTC);
}

void HorlogeSysteme::Pause(int millisecondes) {
    std::this_thread::sleep_for(std::chrono::milliseconds(millisecondes));
}

}  // namespace bornika
