#pragma once

#include <cstdint>
#include <string>

namespace bornika::simulateur {

/// The logger's own count of seconds for a date and time of its clock. It adds the day of the year
/// to a year that is no leap year: after 28 February of a leap year the count is one day ahead.
std::uint32_t TempsAppareil(int annee, int mois, int jour, int heure = 0, int minute = 0,
                            int seconde = 0);

/// "05/03/2026 14:07:09": the date and time that the logger means by that count.
std::string TexteDate(std::uint32_t secondes);

}  // namespace bornika::simulateur
