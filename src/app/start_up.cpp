#include "app/start_up.h"

#include "link/device_discovery.h"
#include "link/station.h"
#include "logger/parameter_reading.h"
#include "platform/numbers.h"
#include "shell/family_rule.h"
#include "shell/help_mode.h"
#include "shell/language_switch.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

// A setting as the text that comparisons and conversions see: a missing one is the boolean false.
QString TexteReglage(MainScreen& ecran, const QString& cle) {
    return ecran.configuration.LitConfig(cle).value_or(TexteBooleen(false));
}

void ReglerMemoire(MainScreen& ecran) {
    ecran.etat.CapaciteMemoire = 540606;
    ecran.etat.Connected = false;
    // A number that is no code at all, too large for one among them, changes nothing.
    const double taille = ValeurDebut(TexteReglage(ecran, QStringLiteral("Taille")));
    for (const int code : {1, 2, 4})
        if (taille == code) AppliquerTaille(ecran.etat, code);
    ecran.ui->ProgressBar1->FixerMinimum(0);
    ecran.ui->ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire);
}

void ReglerDates(MainScreen& ecran) {
    const QDateTime maintenant = ecran.systeme.horloge.Maintenant();
    ecran.ui->DTPicker1->setDateTime(maintenant);
    ecran.ui->DTPicker2->setDateTime(maintenant);
}

void ReglerTextes(MainScreen& ecran) {
    ChangeTextes(ecran, TexteReglage(ecran, QStringLiteral("Langue")), true);
    ecran.ui->MnuSplash->setChecked(ecran.configuration.LitSplash());
    ecran.etat.AideValide = false;
    ecran.ui->MnuModeAide->setChecked(false);
    AfficheAide(ecran, ecran.Langue(), false);
}

void ReglerFormulaire(MainScreen& ecran) {
    auto& ui = *ecran.ui;
    ecran.etat.ModeAvance = false;
    ui.mnuModeAvance->setChecked(false);
    ui.Frame1->setVisible(false);
    ui.Frame3->setVisible(false);

    ui.BufferTournant->setChecked(true);
    const bool finVisible = !ui.BufferTournant->isChecked();
    ui.Label5->setVisible(finVisible);
    ui.DerniereMesure->setVisible(finVisible);
    ui.PasDeSeuil->setChecked(true);
    ui.AuDessus->setChecked(true);
    ui.DateDemarrage->setDown(false);
    ui.ListePeriodeEchantillonage->ChoisirSiPresent(15);
    ui.PeriodeTrigger->ChoisirSiPresent(14);
    ui.DureeSaisie->setText(QString::number(ecran.configuration.LitDureeSaisie(0)));
    ui.mnuChargeRapide->setChecked(
        ValeurDebut(TexteReglage(ecran, QStringLiteral("Charge_Rapide"))) == 1);
}

void MontrerProduit(MainScreen& ecran) {
    ecran.setWindowTitle(QStringLiteral("BORNIKA ") + ecran.etat.NomKpod);
    AppliqueFamille(ecran);
}

void FinirChargement(MainScreen& ecran) {
    ecran.ui->AMPM_0->setText(QStringLiteral("12h"));
    ecran.ui->AMPM_1->setText(QStringLiteral("24h"));
    ecran.configuration.RemplitListe(ecran.Langue(), QStringLiteral("ListeTemps"),
                                     *ecran.ui->ListeTemps);
    ecran.ui->ListeTemps->ChoisirSiPresent(1);
}

}  // namespace

void Charger(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    ReglerMemoire(ecran);
    ReglerDates(ecran);
    ecran.ui->ProgressBar2->setVisible(false);
    ReglerTextes(ecran);
    ReglerFormulaire(ecran);
    MontrerConnexion(poste);
    if (!ecran.etat.Connected) MontrerSelection(poste);
    MontrerProduit(ecran);
    FinirChargement(ecran);
}

void mnuconnect_Click(Poste& poste) {
    MontrerConnexion(poste);
    MontrerProduit(poste.ecran);
    if (!poste.ecran.etat.TimeOut) Lire_Parametres(poste);
}

}  // namespace bornika
