#pragma once

#include <QString>
#include <optional>

#include "link/bytes.h"
#include "platform/regional.h"

/// What of the logger's context is typed and chosen on the form, as the bytes of its internal
/// memory and back. All of it computes only.
namespace bornika {

/// The byte of the time format, and whether it stands for 24 hours.
int OctetFormatHeure(bool vingtQuatre);
bool EstVingtQuatreHeures(int octet);

/// Pulse weight of a typed text, nothing for one that is no number. Fault 6 beyond single
/// precision.
std::optional<float> PoidsDuTexte(QStringView texte, const Regional& regional);

/// The bytes of a unit, eight at least; a longer one keeps all of its own.
Octets OctetsDeUnite(const QString& unite);
QString UniteDeOctets(const Octets& octets);

/// The time base of a position in its list, and the position of a time base.
std::optional<float> BaseDePosition(int position);
std::optional<int> PositionDeBase(float base);

}  // namespace bornika
