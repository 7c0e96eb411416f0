#include "logger/mode_reading.h"

#include "link/command_table.h"
#include "logger/display_statement.h"
#include "logger/parameter_replies.h"
#include "logger/parameter_report.h"
#include "platform/format_pattern.h"
#include "setup/pressure_scale.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

const auto superieur = QStringLiteral(" > ");
const auto inferieur = QStringLiteral(" < ");

void MontrerEchelleEtUnite(MainScreen& ecran, const ModeLu& lu) {
    const auto& ui = ecran.ui;
    afficher([&] { ui->ListeEchelles->Choisir(lu.echelle); });
    afficher([&] { ui->ListeUnites->Choisir(lu.unite); });
    AjouteRapport(ecran, QStringLiteral("Label1"), ui->ListeEchelles->Texte());
    AjouteRapport(ecran, QStringLiteral("Label3"), ui->ListeUnites->Texte());
}

void MontrerSeuil(MainScreen& ecran, QLineEdit& boite, int points, bool absolue) {
    afficher([&] {
        const double pression = Donne_Pression(ecran, points, false, absolue);
        boite.setText(Format(pression, "#0.0", ecran.systeme.regional));
    });
}

void MontrerSeuils(MainScreen& ecran, const ModeLu& lu) {
    const auto& ui = ecran.ui;
    const bool absolue = lu.mode.pressionAbsolue;
    afficher([&] { ui->PressionAbsolue->setChecked(absolue); });
    if (absolue) AjouteRapport(ecran, QStringLiteral("PressionAbsolue"), {});
    MontrerSeuil(ecran, *ui->Seuil1, lu.seuil1, absolue);
    MontrerSeuil(ecran, *ui->Seuil2, lu.seuil2, absolue);
}

void MontrerSens(MainScreen& ecran, const ModeEnregistrement& reglage) {
    QRadioButton& option = reglage.auDessus ? *ecran.ui->AuDessus : *ecran.ui->AuDessous;
    afficher([&] { option.setChecked(true); });
}

/// The signs of the two thresholds are those of the band: inside it, or outside.
void MontrerNombreSeuils(MainScreen& ecran, const ModeEnregistrement& reglage) {
    const auto& ui = ecran.ui;
    const bool dessous = !reglage.auDessus;
    if (reglage.seuils == 2) {
        afficher([&] { ui->DeuxSeuils->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("DeuxSeuils"), {});
        AjouteRapport(ecran, QStringLiteral("LabelSeuil1"),
                      (dessous ? superieur : inferieur) + ui->Seuil1->text());
        AjouteRapport(ecran, QStringLiteral("LabelSeuil2"),
                      (dessous ? inferieur : superieur) + ui->Seuil2->text());
    } else if (reglage.seuils == 1) {
        afficher([&] { ui->UnSeuil->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("UnSeuil"), {});
        AjouteRapport(ecran, QStringLiteral("LabelSeuil1"),
                      (dessous ? inferieur : superieur) + ui->Seuil1->text());
    } else {
        afficher([&] { ui->PasDeSeuil->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("PasDeSeuil"), {});
    }
}

void MontrerGestionMemoire(MainScreen& ecran, const ModeEnregistrement& reglage) {
    const auto& ui = ecran.ui;
    if (reglage.bufferTournant) {
        afficher([&] { ui->BufferTournant->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("BufferTournant"), {});
    } else {
        afficher([&] { ui->BufferNonTournant->setChecked(true); });
        AjouteRapport(ecran, QStringLiteral("BufferNonTournant"), {});
    }
}

/// A clear bit leaves the box as it is: the logger tells of a one-shot that is set only.
void MontrerMonoCoup(MainScreen& ecran, const ModeEnregistrement& reglage) {
    if (!reglage.oneShot) return;
    afficher([&] { ecran.ui->OneShot->setChecked(true); });
    AjouteRapport(ecran, QStringLiteral("OneShot"), {});
}

void MontrerMode(MainScreen& ecran, const ModeLu& lu) {
    const auto& ui = ecran.ui;
    MontrerEchelleEtUnite(ecran, lu);
    MontrerSeuils(ecran, lu);
    MontrerSens(ecran, lu.mode);
    MontrerNombreSeuils(ecran, lu.mode);
    MontrerGestionMemoire(ecran, lu.mode);
    MontrerMonoCoup(ecran, lu.mode);
    ui->Frame1->setVisible(ui->Check_advanced->isChecked() && !ui->PasDeSeuil->isChecked());
}

}  // namespace

Suite LireMode(LectureParametres& lecture) {
    if (!lecture.DemanderReponse(CMD_LIT_MODE)) return Suite::Terminer;
    if (const auto lu = ModeLuDe(lecture.Reponse())) MontrerMode(lecture.ecran, *lu);
    return Suite::Continuer;
}

}  // namespace bornika
