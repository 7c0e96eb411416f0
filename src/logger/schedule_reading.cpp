#include "logger/schedule_reading.h"

#include "link/command_table.h"
#include "logger/card_state.h"
#include "logger/display_statement.h"
#include "logger/parameter_replies.h"
#include "logger/parameter_report.h"
#include "platform/dates.h"
#include "setup/duration_rules.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

/// Index of the first entry that carries this number, -1 for none.
int ChercherDonnee(const ListeDeroulante& liste, int donnee) {
    for (int i = 0; i < liste.Nombre(); ++i) {
        if (liste.Donnee(i) == donnee) return i;
    }
    return -1;
}

void MontrerProchaineMesure(MainScreen& ecran, const ProchaineMesureLue& lue) {
    const auto& ui = ecran.ui;
    ui->ProchaineMesure->setText(EpochVersTexte(lue.date, ecran.systeme.regional));
    const int index = ChercherDonnee(*ui->ListePeriodeEchantillonage, lue.periode);
    if (index >= 0) afficher([&] { ui->ListePeriodeEchantillonage->Choisir(index); });
    if (index == 0) afficher([&] { ui->DureeSaisie->setText(QString::number(lue.periode)); });
    afficher([&] { ui->NbMesures->setText(QString::number(lue.nombreAvant)); });
}

void MontrerDemarrage(MainScreen& ecran, double date) {
    const QDateTime instant = EpochVersInstant(date);
    afficher([&] { ecran.ui->DTPicker1->setDateTime(instant); });
    afficher([&] { ecran.ui->DTPicker2->setDateTime(instant); });
    afficher([&] {
        MontrerFin(ecran, DateVersEpoch(VersDateOrdinateur(ecran.ui->DTPicker1->dateTime())));
    });
}

void MontrerHorloge(MainScreen& ecran, const HorlogeLue& lue) {
    const auto& ui = ecran.ui;
    ui->DateCourante->setText(EpochVersTexte(lue.date, ecran.systeme.regional));
    const int index = ChercherDonnee(*ui->PeriodeTrigger, lue.periodeTrigger);
    if (index >= 0) afficher([&] { ui->PeriodeTrigger->Choisir(index); });
    MontrerCarte(ecran, lue.carte);
}

}  // namespace

Suite LireProchaineMesure(LectureParametres& lecture) {
    if (!lecture.DemanderReponse(CMD_LIT_PROCHAINE_MESURE)) return Suite::Terminer;
    if (const auto lue = ProchaineMesureDe(lecture.Reponse()))
        MontrerProchaineMesure(lecture.ecran, *lue);
    return Suite::Continuer;
}

Suite NoterPeriode(LectureParametres& lecture) {
    AjouteRapport(lecture.ecran, QStringLiteral("LabelPeriodeEchantillonnage"),
                  lecture.ecran.ui->ListePeriodeEchantillonage->Texte());
    return Suite::Continuer;
}

Suite LireDemarrage(LectureParametres& lecture) {
    if (!lecture.DemanderReponse(CMD_LIT_DEMARRAGE)) return Suite::Terminer;
    const auto date = DemarrageDe(lecture.Reponse());
    if (!date) return Suite::Continuer;
    lecture.DateDemarrageLue = *date;
    MontrerDemarrage(lecture.ecran, *date);
    return Suite::Continuer;
}

Suite LireDateCourante(LectureParametres& lecture) {
    if (!lecture.DemanderReponse(CMD_LIT_DATE_COURANTE)) return Suite::Terminer;
    const auto lue = HorlogeLueDe(lecture.Reponse());
    if (!lue) return Suite::Continuer;
    lecture.DateLectureLocale = lecture.ecran.systeme.horloge.Maintenant();
    MontrerHorloge(lecture.ecran, *lue);
    return Suite::Continuer;
}

Suite NoterPeriodeTrigger(LectureParametres& lecture) {
    const auto& ui = lecture.ecran.ui;
    if (ui->PeriodeTrigger->Texte() != ui->ListePeriodeEchantillonage->Texte()) {
        AjouteRapport(lecture.ecran, QStringLiteral("Label10"), ui->PeriodeTrigger->Texte());
    }
    return Suite::Continuer;
}

}  // namespace bornika
