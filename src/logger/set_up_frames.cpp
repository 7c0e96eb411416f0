#include "logger/set_up_frames.h"

#include "link/command_table.h"
#include "link/frames.h"
#include "platform/fault.h"
#include "platform/numbers.h"

namespace bornika {

namespace {

/// The logger counts from 1970 without a sign: an earlier date would reach it as one after 2038.
std::int32_t DepuisOrigine(std::int32_t date) {
    if (date < 0) LeverFaute(numero_faute::depassement);
    return date;
}

/// Points of a threshold, with their decimals.
double PointsDuSeuil(const ReglageMode& reglage, double pression) {
    return PointsDePression(pression, reglage.limites, reglage.coefficient,
                            reglage.mode.pressionAbsolue);
}

}  // namespace

double PressionDuSeuil(QStringView texte, const Regional& regional) {
    return EstNumerique(texte, regional) ? EnDouble(texte, regional) : 0;
}

Octets TrameDemarrage(const ReglageDemarrage& reglage) {
    return TrameEcritDemarrage(DepuisOrigine(reglage.debut), reglage.periode);
}

Octets TrameMode(const ReglageMode& reglage) {
    return TrameEcritMode(OctetMode(reglage.mode), PointsDuSeuil(reglage, reglage.seuil1),
                          PointsDuSeuil(reglage, reglage.seuil2),
                          OctetEchelle(reglage.echelle, reglage.unite),
                          reglage.chargeRapide ? 1 : 0);
}

Octets TrameHorloge(const ReglageHorloge& reglage) {
    return TrameEcritDateCourante(DepuisOrigine(DateVersEpoch(reglage.maintenant)),
                                  reglage.periode);
}

}  // namespace bornika
