#pragma once

class QTimer;

namespace bornika {

struct Poste;

/// The watchdog `Timeur`: sets `TimeOut`, closes the read handle and disables itself.
/// Deliberately never armed (its interval is 0 and no code starts it): it is kept as the shape of a
/// watchdog that is not in use.
void Timeur(Poste& poste, QTimer& timeur);

}  // namespace bornika
