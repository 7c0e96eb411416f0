#pragma once

namespace bornika {

/// What the mode byte says. `seuils` is the number of thresholds, 0 to 2.
struct ModeEnregistrement {
    int seuils = 0;
    bool auDessus = false;
    bool bufferTournant = false;
    bool oneShot = false;
    bool pressionAbsolue = false;

    bool operator==(const ModeEnregistrement&) const = default;
};

int OctetMode(const ModeEnregistrement& reglage);
/// The bits for one and for two thresholds may both be set: two win.
ModeEnregistrement ModeDeOctet(int octet);

}  // namespace bornika
