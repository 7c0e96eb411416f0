#include "logger/identity_reading.h"

#include "link/battery.h"
#include "link/command_table.h"
#include "link/device_identity.h"
#include "logger/display_statement.h"
#include "logger/parameter_replies.h"
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

void MontrerVersion(MainScreen& ecran, const VersionLue& lue) {
    ecran.ui->Version->setText(
        QStringLiteral("(%1) %2.%3").arg(lue.type).arg(lue.haut).arg(lue.bas));
    MontrerPile(ecran, lue.pile);
    MontrerTaille(ecran, lue.codeTaille);
}

void MontrerCapteurEtalonne(MainScreen& ecran, const CapteurEtalonne& lu) {
    QString texteDate = QStringLiteral("---");
    QString capteur = texteDate;
    if (lu.date != 0) {
        texteDate = EpochVersTexte(lu.date, ecran.systeme.regional);
        capteur = ecran.ui->ListeEchelles->TexteA(lu.echelle);
    }
    AjouteRapport(ecran, QStringLiteral("LabelDateEtalonnage"), texteDate);
    AjouteRapport(ecran, QStringLiteral("LabelCapteurEtalonnage"), capteur);
}

}  // namespace

Suite LireVersion(LectureParametres& lecture) {
    if (!lecture.DemanderReponse(CMD_LIT_VERSION, longueurReponseVersion)) return Suite::Terminer;
    const auto lue = VersionLueDe(lecture.Reponse());
    if (!lue) return Suite::Continuer;
    const double numero = NumeroVersion(lue->haut, lue->bas);
    lecture.ecran.etat.VersionLogiciel = numero;
    lecture.AncienFirmware = numero <= version::unPoint;
    MontrerVersion(lecture.ecran, *lue);
    return Suite::Continuer;
}

Suite LireNumeroSerie(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.DemanderReponse(CMD_LIT_NUMERO_SERIE)) return Suite::Terminer;
    if (const auto numero = NumeroSerieDe(lecture.Reponse()))
        ui->NumeroSerie->setText(QString::number(static_cast<qint64>(*numero)));
    AjouteRapport(ecran, QStringLiteral("LabelNumeroSerie"), ui->NumeroSerie->text());
    AjouteRapport(ecran, QStringLiteral("LabelVersion"), ui->Version->text());
    AjouteRapport(ecran, QStringLiteral("LabelTensionPile"), ui->TensionPile->text());
    return Suite::Continuer;
}

Suite LireDateEtalonnage(LectureParametres& lecture) {
    if (!Envoi_Entete(lecture.poste, CMD_LIT_DATE_ETALONNAGE, lecture.buffer, longueurReponse,
                      false)) {
        return Suite::Continuer;
    }
    if (const auto lu = CapteurEtalonneDe(lecture.Reponse()))
        MontrerCapteurEtalonne(lecture.ecran, *lu);
    return Suite::Continuer;
}

}  // namespace bornika
