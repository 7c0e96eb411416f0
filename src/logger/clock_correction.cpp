#include "logger/clock_correction.h"

#include <cmath>

#include "link/command_exchange.h"
#include "link/frames.h"
#include "link/memory_access.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr int adresseCorrection = 95;
constexpr int octetsCorrection = 4;
constexpr double secondesNeutres = 8;

}  // namespace

std::optional<double> SecondesPourHuit(std::int32_t ticks) {
    const double r = ticks == 0 ? 0 : 1.0 / ticks;
    if (r == 0) return secondesNeutres;
    if (r == 1 || r == -1) return std::nullopt;
    // Two formulas on purpose: the inverse of the writing formula, and its approximation.
    if (r < 0) return secondesNeutres / (1 + r);
    return (1 - r) * secondesNeutres;
}

std::int32_t TicksPourSecondes(double secondes) {
    const double x = (1 / secondes - 1 / secondesNeutres) * secondesNeutres;
    if (!std::isfinite(x)) LeverFaute(numero_faute::depassement);
    return x == 0 ? 0 : EnEntier32(1 / x);
}

void Lire_Correction_Temps(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    Octets octets;
    ignorer([&] { octets = LitEEpromInterne(poste, adresseCorrection, true); });
    if (ecran.etat.TimeOut || octets.size() < octetsCorrection) return;
    octets.resize(octetsCorrection);
    const std::int32_t ticks = OctetsVersEntier(octets);
    ecran.ui->ValeurCorrection_0->setText(QString::number(ticks));
    const std::optional<double> secondes = SecondesPourHuit(ticks);
    if (!secondes) return;
    ecran.ui->ValeurCorrection_1->setText(Format(*secondes, "#.0000", ecran.systeme.regional));
}

void CommandCorrection_Click(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const Regional& regional = ecran.systeme.regional;
    const QString saisie = ecran.ui->ValeurCorrection_1->text();
    if (!EstNumerique(saisie, regional)) return;
    const double secondes = EnDouble(saisie, regional);
    if (secondes == 0) return;
    const std::int32_t ticks = TicksPourSecondes(secondes);
    ecran.ui->ValeurCorrection_0->setText(Format(ticks, "0.0000", regional));
    poste.lien.OuvreUSB(ecran.etat.UsbID);
    EchangeDirect(poste, TrameEcritCorrection(ticks), longueurTrame, 1);
    poste.lien.FermeUSB();
}

}  // namespace bornika
