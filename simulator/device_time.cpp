#include "simulator/device_time.h"

#include <chrono>

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

}  // namespace bornika::simulateur
