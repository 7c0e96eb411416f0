#include "logger/set_up_form.h"

#include "platform/code_page.h"
#include "setup/duration_rules.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

double PeriodeChoisie(const ListeDeroulante& liste) {
    return liste.Donnee(liste.Index());
}

int NombreSeuils(const MainScreen& ecran) {
    if (ecran.ui->DeuxSeuils->isChecked()) return 2;
    return ecran.ui->UnSeuil->isChecked() ? 1 : 0;
}

double SeuilSaisi(const MainScreen& ecran, const QLineEdit& boite) {
    return PressionDuSeuil(boite.text(), ecran.systeme.regional);
}

}  // namespace

ReglageDemarrage DemarrageSaisi(const MainScreen& ecran) {
    return {.periode = PeriodeChoisie(*ecran.ui->ListePeriodeEchantillonage),
            .debut = DebutEnregistrement(ecran)};
}

ReglageMode ModeSaisi(const MainScreen& ecran) {
    const auto& ui = ecran.ui;
    return {
        .mode = {NombreSeuils(ecran), ui->AuDessus->isChecked(), ui->BufferTournant->isChecked(),
                 ui->OneShot->isChecked(), ui->PressionAbsolue->isChecked()},
        .seuil1 = SeuilSaisi(ecran, *ui->Seuil1),
        .seuil2 = SeuilSaisi(ecran, *ui->Seuil2),
        .limites = {ecran.etat.Mini, ecran.etat.Maxi},
        .coefficient = CoefficientUnite(ecran),
        .echelle = ui->ListeEchelles->Index(),
        .unite = ui->ListeUnites->Index(),
        .chargeRapide = ui->mnuChargeRapide->isChecked()};
}

ReglageHorloge HorlogeSaisie(const MainScreen& ecran) {
    return {.periode = PeriodeChoisie(*ecran.ui->PeriodeTrigger),
            .maintenant = VersDateOrdinateur(ecran.systeme.horloge.Maintenant())};
}

QByteArray CommentaireSaisi(const MainScreen& ecran) {
    return Vers8Bits(ecran.ui->Commentaire->text());
}

}  // namespace bornika
