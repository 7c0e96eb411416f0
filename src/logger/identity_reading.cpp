#include "logger/identity_reading.h"

#include "link/command_table.h"
#include "link/device_identity.h"
#include "logger/battery.h"
#include "logger/display_statement.h"
#include "logger/parameter_report.h"
#include "platform/dates.h"
#include "platform/format_pattern.h"
#include "products/firmware_versions.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double pileMaximum = 158;
constexpr double pileMinimum = 111;

void MontrerPile(MainScreen& ecran, int lecturePile) {
    const auto& ui = ecran.ui;
    afficher([&] { ui->ProgressBar3->FixerMaximum(pileMaximum); });
    afficher([&] { ui->ProgressBar3->FixerMinimum(pileMinimum); });
    afficher([&] { ui->ProgressBar3->FixerValeur(lecturePile); });
    ui->TensionPile->setText(Format(lecturePile * voltsParPas, "#.00", ecran.systeme.regional) +
                             QStringLiteral(" V."));
}

void MontrerTaille(MainScreen& ecran, int code) {
    AppliquerTaille(ecran.etat, code);
    afficher([&] { ecran.ui->ProgressBar1->FixerMinimum(0); });
    afficher([&] { ecran.ui->ProgressBar1->FixerMaximum(ecran.etat.CapaciteMemoire); });
}

}  // namespace

Suite LireVersion(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    if (!lecture.Demander(CMD_LIT_VERSION, longueurReponseVersion)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) != CMD_LIT_VERSION) return Suite::Continuer;
    const int type = lecture.Reponse().Octet(1);
    const int haut = lecture.Reponse().Octet(2);
    const int bas = lecture.Reponse().Octet(4);
    ecran.etat.VersionLogiciel = NumeroVersion(haut, bas);
    lecture.AncienFirmware = ecran.etat.VersionLogiciel <= version::unPoint;
    ecran.ui->Version->setText(QStringLiteral("(%1) %2.%3").arg(type).arg(haut).arg(bas));
    MontrerPile(ecran, lecture.Reponse().Mot(5));
    MontrerTaille(ecran, lecture.Reponse().Octet(7));
    return Suite::Continuer;
}

Suite LireNumeroSerie(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.Demander(CMD_LIT_NUMERO_SERIE)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) == CMD_LIT_NUMERO_SERIE) {
        ui->NumeroSerie->setText(QString::number(static_cast<qint64>(lecture.Reponse().Quatre(3))));
    }
    AjouteRapport(ecran, QStringLiteral("LabelNumeroSerie"), ui->NumeroSerie->text());
    AjouteRapport(ecran, QStringLiteral("LabelVersion"), ui->Version->text());
    AjouteRapport(ecran, QStringLiteral("LabelTensionPile"), ui->TensionPile->text());
    return Suite::Continuer;
}

Suite LireDateEtalonnage(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    if (!Envoi_Entete(lecture.poste, CMD_LIT_DATE_ETALONNAGE, lecture.buffer, longueurReponse,
                      false) ||
        lecture.Reponse().Octet(0) != CMD_LIT_DATE_ETALONNAGE) {
        return Suite::Continuer;
    }
    const double date = lecture.Reponse().Quatre(1);
    QString texteDate = QStringLiteral("---");
    QString capteur = texteDate;
    if (date != 0) {
        texteDate = EpochVersTexte(date, ecran.systeme.regional);
        capteur = ecran.ui->ListeEchelles->TexteA(EchelleDeOctet(lecture.Reponse().Octet(5)));
    }
    AjouteRapport(ecran, QStringLiteral("LabelDateEtalonnage"), texteDate);
    AjouteRapport(ecran, QStringLiteral("LabelCapteurEtalonnage"), capteur);
    return Suite::Continuer;
}

}  // namespace bornika
