#pragma once

#include <QByteArray>

#include "logger/set_up_frames.h"

/// The recording set-up as it stands on the main form.
namespace bornika {

class MainScreen;

/// Fault 381 when no period or unit is chosen, 6 for a start beyond the logger's count.
ReglageDemarrage DemarrageSaisi(const MainScreen& ecran);
ReglageMode ModeSaisi(const MainScreen& ecran);
ReglageHorloge HorlogeSaisie(const MainScreen& ecran);
/// The comment, one byte a character.
QByteArray CommentaireSaisi(const MainScreen& ecran);

}  // namespace bornika
