#include "simulator/device_time.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace bornika::simulateur {

std::uint32_t TempsAppareil(int annee, int mois, int jour, int heure, int minute, int seconde) {
    using namespace std::chrono;
    const sys_days date = year{annee} / mois / jour;
    const auto rang = date - sys_days{year{annee} / 1 / 1};
    const year_month_day sansBissextile{sys_days{year{1970} / 1 / 1} + rang};
    const sys_days compte{sansBissextile + years{annee - 1970}};
    const auto total =
        seconds{compte.time_since_epoch()} + hours{heure} + minutes{minute} + seconds{seconde};
    return static_cast<std::uint32_t>(total.count());
}

std::string TexteDate(std::uint32_t secondes) {
    using namespace std::chrono;
    const sys_seconds instant{std::chrono::seconds{secondes}};
    sys_days date = floor<days>(instant);
    const year_month_day champs{date};
    if (champs.year().is_leap() && champs >= champs.year() / 2 / 29) date -= days{1};
    const year_month_day vrais{date};
    const hh_mm_ss heure{instant - floor<days>(instant)};
    std::array<char, 64> texte{};
    std::snprintf(texte.data(), texte.size(), "%02u/%02u/%04d %02d:%02d:%02d",
                  static_cast<unsigned>(vrais.day()), static_cast<unsigned>(vrais.month()),
                  static_cast<int>(vrais.year()), static_cast<int>(heure.hours().count()),
                  static_cast<int>(heure.minutes().count()),
                  static_cast<int>(heure.seconds().count()));
    return texte.data();
}

}  // namespace bornika::simulateur
