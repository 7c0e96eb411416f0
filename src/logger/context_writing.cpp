#include "logger/context_writing.h"

#include "link/memory_access.h"
#include "logger/addressed_fields.h"
#include "logger/pulse_parameters.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

void EcrireFormatHeure(Poste& poste) {
    EcritEEpromInterne(poste, adresseFormatHeure, poste.ecran.ui->AMPM_0->isChecked() ? 0 : 1);
}

void EcrirePoidsImpulsion(Poste& poste) {
    const QString texte = poste.ecran.ui->CoefImpulsion->text();
    const Regional& regional = poste.ecran.systeme.regional;
    if (!EstNumerique(texte, regional)) return;
    EcritPoidsImpulsion(poste, EnSimple(EnDouble(texte, regional)));
}

/// A longer unit is written in full: it runs into the time base, which is written after it.
void EcrireUniteImpulsion(Poste& poste) {
    const QByteArray unite = Vers8Bits(poste.ecran.ui->UniteImpulsion->text())
                                 .leftJustified(longueurUniteImpulsion, ' ');
    int adresse = adresseUniteImpulsion;
    for (const char caractere : unite)
        EcritEEpromInterne(poste, adresse++, static_cast<unsigned char>(caractere));
}

void EcrireTempsDebit(Poste& poste) {
    const int choisi = poste.ecran.ui->ListeTemps->Index();
    if (choisi < 0 || choisi >= static_cast<int>(basesDeTemps.size())) return;
    EcritTempsDebit(poste, basesDeTemps[static_cast<std::size_t>(choisi)]);
}

}  // namespace

void EcrireContexte(Poste& poste) {
    EcrireFormatHeure(poste);
    EcrirePoidsImpulsion(poste);
    EcrireUniteImpulsion(poste);
    EcrireTempsDebit(poste);
}

}  // namespace bornika
