#include "logger/context_writing.h"

#include "context/addressed_fields.h"
#include "context/context_values.h"
#include "context/pulse_parameters.h"
#include "link/memory_access.h"
#include "ui_main_screen.h"

namespace bornika {

void EcrireContexte(Poste& poste) {
    const auto& ui = poste.ecran.ui;
    EcritOctetsInternes(poste, adresseFormatHeure,
                        Octets{OctetFormatHeure(!ui->AMPM_0->isChecked())});
    // Only now: a weight that is a fault comes behind the time format.
    if (const auto poids = PoidsDuTexte(ui->CoefImpulsion->text(), poste.ecran.systeme.regional))
        EcritPoidsImpulsion(poste, *poids);
    // A longer unit is written in full: it runs into the time base, which is written after it.
    EcritOctetsInternes(poste, adresseUniteImpulsion, OctetsDeUnite(ui->UniteImpulsion->text()));
    if (const auto base = BaseDePosition(ui->ListeTemps->Index())) EcritTempsDebit(poste, *base);
}

}  // namespace bornika
