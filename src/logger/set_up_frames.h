#pragma once

#include <QStringView>
#include <cstdint>

#include "link/bytes.h"
#include "logger/recording_mode.h"
#include "platform/dates.h"
#include "setup/pressure_scale.h"

/// The recording set-up in values, and the frames that carry it to the logger. All of it computes
/// only; set_up_form.h takes the values from the main form.
namespace bornika {

/// Number of the sampling period, and the start in device time.
struct ReglageDemarrage {
    double periode = 0;
    std::int32_t debut = 0;
};

/// Number of the period after the trigger, and the computer's present date.
struct ReglageHorloge {
    double periode = 0;
    DateOrdinateur maintenant = 0;
};

struct ReglageMode {
    ModeEnregistrement mode;
    /// Pressures of both thresholds, whatever their number, in a unit of `coefficient`
    /// ten-thousandths for one base unit.
    double seuil1 = 0;
    double seuil2 = 0;
    EchellePression limites;
    double coefficient = 0;
    /// List indices.
    int echelle = 0;
    int unite = 0;
    bool chargeRapide = false;
};

/// Pressure of the text of a threshold box; one that is no number counts as 0.
double PressionDuSeuil(QStringView texte, const Regional& regional);

/// Start date and sampling period; mode and thresholds; clock and period after the trigger. Fault 6
/// for a period above 65535 and for a date before 1970.
Octets TrameDemarrage(const ReglageDemarrage& reglage);
/// Fault 11 (or 6) for a coefficient of 0 or an empty scale.
Octets TrameMode(const ReglageMode& reglage);
Octets TrameHorloge(const ReglageHorloge& reglage);

}  // namespace bornika
