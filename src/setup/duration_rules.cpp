#include "setup/duration_rules.h"

#include "platform/dates.h"
#include "platform/numbers.h"
#include "setup/entry_focus.h"
#include "setup/recording_summary.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double parSeconde = 8;  // entries of the period list count eighths of a second
constexpr double dureeMinimum = 1;
constexpr double dureeMaximum = 3600;

/// Seconds of the chosen entry; 0 with nothing chosen.
double PeriodeDeListe(const ListeDeroulante& liste) {
    return liste.Index() < 0 ? 0 : liste.Donnee(liste.Index()) / parSeconde;
}

void CopierEntree(const ListeDeroulante& source, int position, ListeDeroulante& cible) {
    if (position >= source.Nombre()) return;
    cible.Ajouter(source.TexteA(position));
    cible.FixerDonnee(cible.Nombre() - 1, source.Donnee(position));
}

/// The period after a trigger is the sampling period or a shorter one, and never the free period.
void RemplirPeriodeTrigger(MainScreen& ecran) {
    const ListeDeroulante& source = *ecran.ui->ListePeriodeEchantillonage;
    ListeDeroulante& cible = *ecran.ui->PeriodeTrigger;
    const int choisi = source.Index();
    cible.Vider();
    if (choisi == 0) CopierEntree(source, 1, cible);
    for (int position = 1; position <= choisi; ++position) {
        CopierEntree(source, position, cible);
    }
    cible.ChoisirSiPresent(cible.Nombre() - 1);
}

void CorrigerDuree(MainScreen& ecran, const QString& texte) {
    ecran.ui->DureeSaisie->setText(texte);
    DonnerFocus(*ecran.ui->DureeSaisie);
}

}  // namespace

std::int32_t DebutEnregistrement(const MainScreen& ecran) {
    return DateVersEpoch(VersDateOrdinateur(ecran.ui->DTPicker1->dateTime()),
                         VersDateOrdinateur(ecran.ui->DTPicker2->dateTime()));
}

void MontrerFin(MainScreen& ecran, double debut) {
    const double periode = PeriodeDeListe(*ecran.ui->ListePeriodeEchantillonage);
    ecran.ui->DerniereMesure->setText(
        EpochVersTexte(periode * ecran.etat.CapaciteMemoire + debut, ecran.systeme.regional));
}

void CalculeDuree(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const Regional& regional = ecran.systeme.regional;
    double periode = 0;
    if (ui->ListePeriodeEchantillonage->Index() == 0) {
        ui->DureeSaisie->setVisible(true);
        periode = EnDouble(ui->DureeSaisie->text(), regional);
    } else {
        ui->DureeSaisie->setVisible(false);
        periode = PeriodeDeListe(*ui->ListePeriodeEchantillonage);
    }
    const double duree = periode * ecran.etat.CapaciteMemoire;
    ui->DerniereMesure->setText(EpochVersTexte(duree + DebutEnregistrement(ecran), regional));
    ui->DureeEnregistrement->setText(
        DureeVersTexte(EnEntier32(duree), ecran.Texte(QStringLiteral("Jour(s)"))));
}

void ListePeriodeEchantillonage_Click(MainScreen& ecran) {
    CalculeDuree(ecran);
    RemplirPeriodeTrigger(ecran);
    Donne_Resume(ecran);
}

void PeriodeTrigger_Click(MainScreen& ecran) {
    Donne_Resume(ecran);
}

void DTPicker_Change(MainScreen& ecran) {
    CalculeDuree(ecran);
}

void DateDemarrage_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const QDateTime maintenant = ecran.systeme.horloge.Maintenant();
    ui->DTPicker1->setDateTime(QDateTime(maintenant.date(), QTime(0, 0), Qt::UTC));
    ui->DTPicker2->setDateTime(maintenant);
    MontrerFin(ecran, DebutEnregistrement(ecran));
}

void DureeSaisie_Change(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const Regional& regional = ecran.systeme.regional;
    if (ui->DureeSaisie->isHidden()) return;
    if (!EstNumerique(ui->DureeSaisie->text(), regional)) {
        CorrigerDuree(ecran, QStringLiteral("1"));
        return;
    }
    // A correction raises this change again; the outer run goes on with the corrected text.
    const double duree = EnDouble(ui->DureeSaisie->text(), regional);
    if (duree < dureeMinimum) CorrigerDuree(ecran, QStringLiteral("1"));
    if (duree > dureeMaximum) CorrigerDuree(ecran, QStringLiteral("3600"));
    CalculeDuree(ecran);
    const std::int32_t entier = EnEntier32(ui->DureeSaisie->text(), regional);
    ecran.configuration.EcritDureeSaisie(0, entier);
    ui->ListePeriodeEchantillonage->FixerDonnee(0, entier);
    Donne_Resume(ecran);
}

}  // namespace bornika
