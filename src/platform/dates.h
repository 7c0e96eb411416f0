#pragma once

#include <QDateTime>
#include <QString>
#include <cstdint>

#include "platform/regional.h"

/// The logger counts seconds from 1 January 1970 in the local time of the computer that set it,
/// with a leap-year rule of its own. The two date conversions belong together.
namespace bornika {

/// Date of the computer: days since 30 December 1899 with the day fraction as the time; day 25569
/// is 1 January 1970.
using DateOrdinateur = double;

DateOrdinateur VersDateOrdinateur(const QDateTime& instant);
/// Wall-clock fields in `Qt::UTC`, rounded to the second.
QDateTime DepuisDateOrdinateur(DateOrdinateur date);

/// Device time of the day of `jour` at the time of `heure`, or of `jour` itself when `heure` is
/// -1.0. 0 for a day below 1.
std::int32_t DateVersEpoch(DateOrdinateur jour, DateOrdinateur heure = -1.0);

/// Date and time in the user's format, "31/12/2024 23:59:59". Always gives some text.
QString EpochVersTexte(double secondes, const Regional& regional);

/// The same instant as wall-clock fields (with the leap-year day taken back), for date controls.
QDateTime EpochVersInstant(double secondes);

/// "1 jours 1 H 1 Mn " for 90061 seconds and the word "jours".
QString DureeVersTexte(std::int32_t secondes, const QString& jours);

/// "HH:mm:ss"; "" when a field is out of range.
QString HeureLocale(int heures, int minutes, int secondes);

/// Short date pattern of the locale.
QString FormatDateCourt(const Regional& regional);

/// The decimal separator of the user's locale.
QString SeparateurDecimal(const Regional& regional);

}  // namespace bornika
