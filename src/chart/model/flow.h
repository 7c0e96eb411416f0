#pragma once

#include <QString>
#include <cstdint>
#include <optional>

#include "platform/regional.h"

namespace bornika {

/// What turns a rate in pulses a second into a flow: the worth of one pulse and the seconds of the
/// time unit.
struct FacteurDebit {
    double coefficient = 1;
    double secondes = 1;
};

/// The factor of the settings. None when the coefficient is no number or no time unit is selected
/// (`index` -1): the flow is then the rate as it stands.
std::optional<FacteurDebit> LireFacteurDebit(const QString& CoefImpulsion, int index,
                                             std::int32_t secondes, const Regional& regional);

/// Flow of a rate in pulses a second.
inline double CalculeDebit(double comptage, const std::optional<FacteurDebit>& facteur) {
    return facteur ? comptage * facteur->coefficient * facteur->secondes : comptage;
}

/// Caption of the flow: unit, "/", time unit, or the unit alone when no time unit is selected.
QString LegendeDebit(const QString& UniteImpulsion, int index, const QString& TexteTemps);

}  // namespace bornika
