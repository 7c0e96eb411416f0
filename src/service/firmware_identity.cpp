#include "service/firmware_identity.h"

#include "products/firmware_versions.h"

namespace bornika {

SuiteNumeroSerie SuiteDeMiseAJour(const BilanFirmware& bilan) {
    const bool ancienne = bilan.ancienneVersion < version::numeroSerie;
    const bool menace = bilan.transferee && ancienne && bilan.numeroConnu;
    if (bilan.relecture == Relecture::PasDemandee) return {.signaler = menace, .rendre = false};
    // Another logger keeps its own number.
    const bool autre = bilan.autreEnregistreur;
    const bool franchie = ancienne && bilan.nouvelleVersion >= version::numeroSerie;
    return {.signaler = menace && (autre || bilan.relecture == Relecture::SansReponse),
            .rendre = !autre && franchie};
}

}  // namespace bornika
