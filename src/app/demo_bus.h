#pragma once

#include <memory>

#include "simulator/simulated_bus.h"

namespace bornika {

class Horloge;
struct Systeme;

/// How fast the simulated loggers answer: as over a cable, so that a download lasts some ten
/// seconds and its bar can be watched, or at once.
enum class Allure { CelleDuCable, Immediate };

/// The simulated family with its clocks set to the present time.
std::unique_ptr<BusSimule> BusDeDemonstration(Horloge& horloge, Allure allure);

/// Lays the card of the family's k-Pod 33, the folder "CARD", into the program's folder, unless one
/// is there already.
void PoserCarteDeDemonstration(const Systeme& systeme);

}  // namespace bornika
