#include "logger/mode_reading.h"

#include "link/command_table.h"
#include "logger/display_statement.h"
#include "logger/parameter_report.h"
#include "logger/pressure_scale.h"
#include "platform/format_pattern.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

const auto superieur = QStringLiteral(" > ");
const auto inferieur = QStringLiteral(" < ");

void MontrerEchelleEtUnite(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    const int code = lecture.Reponse().Octet(6);
    afficher([&] { ui->ListeEchelles->Choisir(EchelleDeOctet(code)); });
    afficher([&] { ui->ListeUnites->Choisir(UniteDeOctet(code)); });
    AjouteRapport(ecran, QStringLiteral("Label1"), ui->ListeEchelles->Texte());
    AjouteRapport(ecran, QStringLiteral("Label3"), ui->ListeUnites->Texte());
}

void MontrerSeuil(MainScreen& ecran, QLineEdit& boite, int points, bool absolue) {
    afficher([&] {
        const double pression = Donne_Pression(ecran, points, false, absolue);
        boite.setText(Format(pression, "#0.0", ecran.systeme.regional));
    });
}

void MontrerSeuils(LectureParametres& lecture, int octetMode) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    const bool absolue = (octetMode & mode::pressionAbsolue) != 0;
    afficher([&] { ui->PressionAbsolue->setChecked(absolue); });
    if (absolue) AjouteRapport(ecran, QStringLiteral("PressionAbsolue"), {});
    MontrerSeuil(ecran, *ui->Seuil1, lecture.Reponse().Mot(2), absolue);
    MontrerSeuil(ecran, *ui->Seuil2, lecture.Reponse().Mot(4), absolue);
}

void MontrerSens(MainScreen& ecran, int octetMode) {
    const bool dessus = (octetMode & mode::auDessus) != 0;
    QRadioButton& option = dessus ? *ecran.ui->AuDessus : *ecran.ui->AuDessous;
    afficher([&] { option.setChecked(true); });
}

/// The signs of the two thresholds are those of the band: inside it, or outside.
void MontrerNombreSeuils(MainScreen& ecran, int octetMode) {
    const auto& ui = ecran.ui;
    const bool dessous = (octetMode & mode::auDessus) == 0;
    if ((octetMode & mode::deuxSeuils) != 0) {
        afficher([&] { ui->DeuxSeuils->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("DeuxSeuils"), {});
        AjouteRapport(ecran, QStringLiteral("LabelSeuil1"),
                      (dessous ? superieur : inferieur) + ui->Seuil1->text());
        AjouteRapport(ecran, QStringLiteral("LabelSeuil2"),
                      (dessous ? inferieur : superieur) + ui->Seuil2->text());
    } else if ((octetMode & mode::unSeuil) != 0) {
        afficher([&] { ui->UnSeuil->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("UnSeuil"), {});
        AjouteRapport(ecran, QStringLiteral("LabelSeuil1"),
                      (dessous ? inferieur : superieur) + ui->Seuil1->text());
    } else {
        afficher([&] { ui->PasDeSeuil->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("PasDeSeuil"), {});
    }
}

void MontrerGestionMemoire(MainScreen& ecran, int octetMode) {
    const auto& ui = ecran.ui;
    if ((octetMode & mode::bufferTournant) != 0) {
        afficher([&] { ui->BufferTournant->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("BufferTournant"), {});
    } else {
        afficher([&] { ui->BufferNonTournant->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("BufferNonTournant"), {});
    }
}

/// A clear bit leaves the box as it is: the logger tells of a one-shot that is set only.
void MontrerMonoCoup(MainScreen& ecran, int octetMode) {
    if ((octetMode & mode::oneShot) == 0) return;
    afficher([&] { ecran.ui->OneShot->setChecked(true); });
    AjouteRapport(ecran, QStringLiteral("OneShot"), {});
}

}  // namespace

Suite LireMode(LectureParametres& lecture) {
    if (!lecture.Demander(CMD_LIT_MODE)) return Suite::Terminer;
    if (lecture.Reponse().Octet(0) != CMD_LIT_MODE) return Suite::Continuer;
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    const int octetMode = lecture.Reponse().Octet(1);
    MontrerEchelleEtUnite(lecture);
    MontrerSeuils(lecture, octetMode);
    MontrerSens(ecran, octetMode);
    MontrerNombreSeuils(ecran, octetMode);
    MontrerGestionMemoire(ecran, octetMode);
    MontrerMonoCoup(ecran, octetMode);
    ui->Frame1->setVisible(ui->Check_advanced->isChecked() && !ui->PasDeSeuil->isChecked());
    return Suite::Continuer;
}

}  // namespace bornika
