#include "logger/logger_fixture.h"

#include "app/form_events.h"
#include "shell/language_switch.h"
#include "simulator/device_time.h"

namespace bornika::essai {

BancEnregistreur::BancEnregistreur(const QString& langue,
                                   const EnregistreurSimule::Identite& identite)
    : enregistreur(bus.Brancher(EnregistreurSimule(identite))) {
    const QDateTime maintenant = etabli.horloge.Maintenant();
    BrancherFormulaire(ecran);
    ui.DTPicker1->setDateTime(maintenant);
    ui.DTPicker2->setDateTime(maintenant);
    ui.ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire);
    ChangeTextes(ecran, langue, true);
    ui.BufferTournant->setChecked(true);
    ui.PasDeSeuil->setChecked(true);
    ui.AuDessus->setChecked(true);
    ui.ListePeriodeEchantillonage->Choisir(15);
    ui.PeriodeTrigger->Choisir(14);
    ui.DureeSaisie->setText(QString::number(ecran.configuration.LitDureeSaisie(0)));
    Choisir(enregistreur.identite.usb, enregistreur.identite.type);
    for (const char* nom : {"Sec", "Min", "Hrs", "Day"}) {
        ui.ListeTemps->Ajouter(QString::fromLatin1(nom));
    }
    ui.ListeTemps->Choisir(1);
}

void BancEnregistreur::ChoisirUnite(const QString& texte) {
    ui.ListeUnites->Choisir(ui.ListeUnites->findText(texte));
}

void BancEnregistreur::MontrerOptions() {
    ui.Check_advanced->setChecked(true);
}

void PreparerEnregistreur(EnregistreurSimule& enregistreur) {
    namespace adresse = simulateur::adresse;
    simulateur::MemoireInterne& memoire = enregistreur.memoire;
    enregistreur.ReglerNumeroSerie(3405691582U);
    enregistreur.ReglerBatterie(150);
    enregistreur.ReglerEtalonnage(simulateur::TempsAppareil(2025, 6, 10, 9, 30), 0x31, 100, 104,
                                  900, 904);
    memoire.EcrireDoubleMot(adresse::prochaineMesure, simulateur::TempsAppareil(2026, 3, 5, 14, 8));
    memoire.EcrireMot(adresse::periodeStockage, 480);
    memoire.EcrireOctet(adresse::mesuresAvant, 12);
    memoire.EcrireDoubleMot(adresse::demarrage, simulateur::TempsAppareil(2026, 3, 1, 8, 15, 30));
    // Scale 3 (6 bar), unit 1 (bar); two thresholds, above, not circular, one shot.
    memoire.EcrireOctet(adresse::echelle, 0x31);
    memoire.EcrireOctet(adresse::mode, 2 + 4 + 16);
    memoire.EcrireMot(adresse::seuil1, 256);
    memoire.EcrireMot(adresse::seuil2, 512);
    enregistreur.ReglerHorloge(simulateur::TempsAppareil(2026, 3, 5, 14, 7, 1));
    memoire.EcrireMot(adresse::periodeTrigger, 8);
    enregistreur.cartePresente = true;
    enregistreur.ReglerCommentaire(" R\xE9seau nord  ");
    memoire.EcrireOctet(adresse::formatHeure, 1);
    memoire.EcrireFlottant(adresse::poidsImpulsion, 0.1F);
    memoire.EcrireTexte(adresse::uniteImpulsion, 8, "m\xB3");
    memoire.EcrireFlottant(adresse::tempsDebit, 3600.0F);
    enregistreur.ReglerEcriture({11, 0});
    enregistreur.ReglerLecture({10, 0});
}

}  // namespace bornika::essai
