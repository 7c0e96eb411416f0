#include "logger/recording_mode.h"

#include "link/command_table.h"

namespace bornika {

int OctetMode(const ModeEnregistrement& reglage) {
    int octet = 0;
    if (reglage.seuils == 1) octet |= mode::unSeuil;
    if (reglage.seuils == 2) octet |= mode::deuxSeuils;
    if (reglage.auDessus) octet |= mode::auDessus;
    if (reglage.bufferTournant) octet |= mode::bufferTournant;
    if (reglage.oneShot) octet |= mode::oneShot;
    if (reglage.pressionAbsolue) octet |= mode::pressionAbsolue;
    return octet;
}

ModeEnregistrement ModeDeOctet(int octet) {
    const auto pose = [octet](int bit) { return (octet & bit) != 0; };
    const int sansDeux = pose(mode::unSeuil) ? 1 : 0;
    return {pose(mode::deuxSeuils) ? 2 : sansDeux, pose(mode::auDessus), pose(mode::bufferTournant),
            pose(mode::oneShot), pose(mode::pressionAbsolue)};
}

}  // namespace bornika
