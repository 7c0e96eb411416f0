#pragma once

#include <QString>
#include <functional>

namespace bornika {

struct Systeme;

/// What the tour tells on the way: one line a step.
using Recit = std::function<void(const QString&)>;

/// Plays the road of a technician on the simulated family with real clicks on the real forms:
/// choose a logger, read it, download its recording, look at the curve and into it. Pictures of the
/// forms and the recording are left in the program's folder of `systeme`. Returns true when the
/// whole road was walked; what went wrong is told as the last line.
bool FaireVisite(Systeme& systeme, const Recit& recit);

}  // namespace bornika
