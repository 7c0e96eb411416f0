#include "logger/set_up_frames.h"

#include "link/command_table.h"
#include "link/frames.h"
#include "logger/duration_rules.h"
#include "logger/pressure_scale.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/numbers.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

double Periode(const ListeDeroulante& liste) {
    return liste.Donnee(liste.Index());
}

/// The logger counts from 1970 without a sign: an earlier date would reach it as one after 2038.
std::int32_t DepuisOrigine(std::int32_t date) {
    if (date < 0) LeverFaute(numero_faute::depassement);
    return date;
}

int NombreSeuils(const MainScreen& ecran) {
    if (ecran.ui->DeuxSeuils->isChecked()) return 2;
    return ecran.ui->UnSeuil->isChecked() ? 1 : 0;
}

ModeEnregistrement ModeDuFormulaire(const MainScreen& ecran) {
    const auto& ui = ecran.ui;
    return {NombreSeuils(ecran), ui->AuDessus->isChecked(), ui->BufferTournant->isChecked(),
            ui->OneShot->isChecked(), ui->PressionAbsolue->isChecked()};
}

Octets TrameCommentaire(MainScreen& ecran, int moitie) {
    return TrameEcritCommentaire(moitie, Vers8Bits(ecran.ui->Commentaire->text()));
}

}  // namespace

int OctetMode(const ModeEnregistrement& reglage) {
    int octet = 0;
    if (reglage.seuils == 1) octet |= mode::unSeuil;
    if (reglage.seuils == 2) octet |= mode::deuxSeuils;
    if (reglage.auDessus) octet |= mode::auDessus;
    if (reglage.bufferTournant) octet |= mode::bufferTournant;
    if (reglage.oneShot) octet |= mode::oneShot;
    if (reglage.pressionAbsolue) octet |= mode::pressionAbsolue;
    return octet;
}

double PointsDuSeuil(MainScreen& ecran, const QString& texte) {
    const Regional& regional = ecran.systeme.regional;
    double pression = EstNumerique(texte, regional) ? EnDouble(texte, regional) : 0;
    return Donne_Points(ecran, pression, ecran.ui->PressionAbsolue->isChecked());
}

Octets TrameDemarrage(MainScreen& ecran) {
    return TrameEcritDemarrage(DepuisOrigine(DebutEnregistrement(ecran)),
                               Periode(*ecran.ui->ListePeriodeEchantillonage));
}

Octets TrameMode(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    return TrameEcritMode(OctetMode(ModeDuFormulaire(ecran)),
                          PointsDuSeuil(ecran, ui->Seuil1->text()),
                          PointsDuSeuil(ecran, ui->Seuil2->text()),
                          OctetEchelle(ui->ListeEchelles->Index(), ui->ListeUnites->Index()),
                          ui->mnuChargeRapide->isChecked() ? 1 : 0);
}

Octets TrameHorloge(MainScreen& ecran) {
    const DateOrdinateur maintenant = VersDateOrdinateur(ecran.systeme.horloge.Maintenant());
    return TrameEcritDateCourante(DepuisOrigine(DateVersEpoch(maintenant)),
                                  Periode(*ecran.ui->PeriodeTrigger));
}

Octets TrameCommentaire1(MainScreen& ecran) {
    return TrameCommentaire(ecran, 1);
}

Octets TrameCommentaire2(MainScreen& ecran) {
    return TrameCommentaire(ecran, 2);
}

}  // namespace bornika
