#include "logger/schedule_reading.h"

#include "link/command_table.h"
#include "logger/card_state.h"
#include "logger/display_statement.h"
#include "logger/duration_rules.h"
#include "logger/parameter_report.h"
#include "platform/dates.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

/// Index of the first entry that carries this number, -1 for none.
int Chercher(const ListeDeroulante& liste, int donnee) {
    for (int i = 0; i < liste.Nombre(); ++i) {
        if (liste.Donnee(i) == donnee) return i;
    }
    return -1;
}

}  // namespace

Suite LireProchaineMesure(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.Demander(CMD_LIT_PROCHAINE_MESURE)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) != CMD_LIT_PROCHAINE_MESURE) return Suite::Continuer;
    ui->ProchaineMesure->setText(
        EpochVersTexte(lecture.Reponse().Quatre(1), ecran.systeme.regional));
    const int periode = lecture.Reponse().Mot(5);
    const int index = Chercher(*ui->ListePeriodeEchantillonage, periode);
    if (index >= 0) afficher([&] { ui->ListePeriodeEchantillonage->Choisir(index); });
    if (index == 0) afficher([&] { ui->DureeSaisie->setText(QString::number(periode)); });
    afficher([&] { ui->NbMesures->setText(QString::number(lecture.Reponse().Octet(7))); });
    return Suite::Continuer;
}

Suite NoterPeriode(LectureParametres& lecture) {
    AjouteRapport(lecture.ecran, QStringLiteral("LabelPeriodeEchantillonnage"),
                  lecture.ecran.ui->ListePeriodeEchantillonage->Texte());
    return Suite::Continuer;
}

Suite LireDemarrage(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    if (!lecture.Demander(CMD_LIT_DEMARRAGE)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) != CMD_LIT_DEMARRAGE) return Suite::Continuer;
    lecture.DateDemarrageLue = lecture.Reponse().Quatre(1);
    const QDateTime instant = EpochVersInstant(lecture.DateDemarrageLue);
    afficher([&] { ecran.ui->DTPicker1->setDateTime(instant); });
    afficher([&] { ecran.ui->DTPicker2->setDateTime(instant); });
    afficher([&] {
        MontrerFin(ecran, DateVersEpoch(VersDateOrdinateur(ecran.ui->DTPicker1->dateTime())));
    });
    return Suite::Continuer;
}

Suite LireDateCourante(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.Demander(CMD_LIT_DATE_COURANTE)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) != CMD_LIT_DATE_COURANTE) return Suite::Continuer;
    lecture.DateLectureLocale = ecran.systeme.horloge.Maintenant();
    ui->DateCourante->setText(EpochVersTexte(lecture.Reponse().Quatre(1), ecran.systeme.regional));
    const int index = Chercher(*ui->PeriodeTrigger, lecture.Reponse().Mot(5));
    if (index >= 0) afficher([&] { ui->PeriodeTrigger->Choisir(index); });
    MontrerCarte(ecran, lecture.Reponse().Octet(7) == cartePresente);
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
