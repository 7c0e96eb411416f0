#include "logger/calibration_figures.h"

namespace bornika {

Etalonnage7 EtalonnageUnPoint(const PointEtalonnage& bas) {
    Etalonnage7 etalonnage;
    etalonnage.valeur_etalonnage_bas = bas.valeur;
    etalonnage.mesure_etalonnage_bas = bas.mesure;
    etalonnage.correction_etalonnage = bas.valeur - bas.mesure;
    return etalonnage;
}

Etalonnage7 EtalonnageDeuxPoints(const PointEtalonnage& bas, const PointEtalonnage& haut) {
    Etalonnage7 etalonnage = EtalonnageUnPoint(bas);
    const bool absent = haut.valeur == 0 && haut.mesure == 0;
    if (absent || haut.mesure == bas.mesure) return etalonnage;
    double pente = (haut.valeur - bas.valeur) / (haut.mesure - bas.mesure);
    if (pente == 0) pente = 1;
    etalonnage.valeur_etalonnage_haut = haut.valeur;
    etalonnage.mesure_etalonnage_haut = haut.mesure;
    etalonnage.correction_etalonnage = 0;
    etalonnage.pente_etalonnage = pente;
    etalonnage.offset_etalonnage = bas.valeur - pente * bas.mesure;
    return etalonnage;
}

}  // namespace bornika
