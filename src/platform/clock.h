#pragma once

#include <QDateTime>

namespace bornika {

/// The wall clock and the blocking pauses of the program, injected so that tests wait for nothing.
class Horloge {
  public:
    virtual ~Horloge() = default;

    /// The computer's present local date and time, as wall-clock fields in a QDateTime of
    /// `Qt::UTC`, so that no arithmetic on it ever meets a change between winter and summer time.
    virtual QDateTime Maintenant() = 0;

    /// Blocks for `millisecondes` without handling any event.
    virtual void Pause(int millisecondes) = 0;
};

class HorlogeSysteme : public Horloge {
  public:
    QDateTime Maintenant() override;
    void Pause(int millisecondes) override;
};

}  // namespace bornika
