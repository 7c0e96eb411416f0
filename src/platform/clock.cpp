#include "platform/clock.h"

#include <QThread>

namespace bornika {

QDateTime HorlogeSysteme::Maintenant() {
    const QDateTime locale = QDateTime::currentDateTime();
    return QDateTime(locale.date(), locale.time(), Qt::UTC);
}

void HorlogeSysteme::Pause(int millisecondes) {
    if (millisecondes > 0) QThread::msleep(static_cast<unsigned long>(millisecondes));
}

}  // namespace bornika
