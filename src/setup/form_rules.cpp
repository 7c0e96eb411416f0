#include "setup/form_rules.h"

#include "platform/numbers.h"
#include "products/products.h"
#include "setup/recording_summary.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double nombreMaximum = 255;  // one byte in the logger

void MontrerFinEnregistrement(MainScreen& ecran) {
    Donne_Resume(ecran);
    const bool visible = !ecran.ui->BufferTournant->isChecked();
    ecran.ui->Label5->setVisible(visible);
    ecran.ui->DerniereMesure->setVisible(visible);
}

}  // namespace

void BufferTournant_Click(MainScreen& ecran) {
    MontrerFinEnregistrement(ecran);
}

void BufferNonTournant_Click(MainScreen& ecran) {
    MontrerFinEnregistrement(ecran);
}

void NbMesures_Change(MainScreen& ecran) {
    const auto& boite = ecran.ui->NbMesures;
    const Regional& regional = ecran.systeme.regional;
    if (!EstNumerique(boite->text(), regional)) {
        boite->setText({});
    } else if (EnDouble(boite->text(), regional) >= nombreMaximum + 1) {
        boite->setText(QStringLiteral("255"));
    }
}

void Check_advanced_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    const bool avance = ui->Check_advanced->isChecked();
    ui->Frame1->setVisible(avance && !ui->PasDeSeuil->isChecked());
    ui->Frame2->setVisible(avance);
    ui->Frame3->setVisible(avance);
    ui->Frame4->setVisible(avance);
    ui->Frame5->setVisible(avance);
    ui->FrameFlowParameter->setVisible(avance && EstFamilleCarte(ecran.etat.TypekPod));
}

}  // namespace bornika
