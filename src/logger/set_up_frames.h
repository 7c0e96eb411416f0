#pragma once

#include "link/bytes.h"

/// The recording set-up of the main form as the frames that carry it to the logger.
namespace bornika {

class MainScreen;

/// What the mode byte says. `seuils` is the number of thresholds, 0 to 2.
struct ModeEnregistrement {
    int seuils = 0;
    bool auDessus = false;
    bool bufferTournant = false;
    bool oneShot = false;
    bool pressionAbsolue = false;
};

int OctetMode(const ModeEnregistrement& reglage);

/// Points of a threshold box, with their decimals; a text that is no number counts as a pressure
/// of 0.
double PointsDuSeuil(MainScreen& ecran, const QString& texte);

/// Start date and sampling period; mode and thresholds, both whatever their number; the computer's
/// clock with the period after the trigger; the comment in two halves. Fault 6 for a period above
/// 65535 and for a date before 1970, 381 when no period or unit is chosen.
Octets TrameDemarrage(MainScreen& ecran);
Octets TrameMode(MainScreen& ecran);
Octets TrameHorloge(MainScreen& ecran);
Octets TrameCommentaire1(MainScreen& ecran);
Octets TrameCommentaire2(MainScreen& ecran);

}  // namespace bornika
