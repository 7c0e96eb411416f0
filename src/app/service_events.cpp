#include "app/service_events.h"

#include "calibration/calibration.h"
#include "context/context_dump.h"
#include "link/station.h"
#include "logger/clock_correction.h"
#include "platform/guard.h"
#include "platform/numbers.h"
#include "retrieval/flash_service.h"
#include "retrieval/raw_dump.h"
#include "service/about_form.h"
#include "service/firmware_update.h"
#include "service/flow_test.h"
#include "service/gsm_form.h"
#include "service/production_form.h"
#include "service/self_test.h"
#include "service/serial_number.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

/// Fault 13 for a page that is no number, 6 for one beyond 16 bits.
void LireValeursPage_Click(Poste& poste) {
    const auto& ui = poste.ecran.ui;
    const Regional& regional = poste.ecran.systeme.regional;
    const int PageDebut = EnEntier16(ui->PageDebut->text(), regional);
    const int PageFin = EnEntier16(ui->PageFin->text(), regional);
    LectureValeursPage(poste, PageDebut, PageFin);
}

}  // namespace

void BrancherService(Poste& poste) {
    auto& ui = *poste.ecran.ui;
    QObject* fiche = &poste.ecran;
    brancher(ui.CommandCorrection, &QPushButton::clicked, fiche,
             [&poste] { CommandCorrection_Click(poste); });
    brancher(ui.TestDebitON, &QPushButton::clicked, fiche, [&poste] { Test_Debit(poste, true); });
    brancher(ui.TestDebitOFF, &QPushButton::clicked, fiche, [&poste] { Test_Debit(poste, false); });
    brancher(ui.nmuBootLoad, &QAction::triggered, fiche, [&poste] { nmuBootLoad_Click(poste); });
    brancher(ui.MnuFlowTest, &QAction::triggered, fiche, [&poste] { MnuFlowTest_Click(poste); });
    brancher(ui.LireLaFlash, &QPushButton::clicked, fiche, [&poste] { LireLaFlash(poste); });
    brancher(ui.EcrireLaFlash, &QPushButton::clicked, fiche, [&poste] { EcrireLaFlash(poste); });
    brancher(ui.LireEeprom, &QPushButton::clicked, fiche, [&poste] { DumpContexte(poste); });
    brancher(ui.LireValeursPage, &QPushButton::clicked, fiche,
             [&poste] { LireValeursPage_Click(poste); });
    brancher(ui.ProgNumeroSerie, &QPushButton::clicked, fiche,
             [&poste] { ProgNumeroSerie_Click(poste); });
    brancher(ui.RAZNumeroSerie, &QPushButton::clicked, fiche,
             [&poste] { RAZNumeroSerie_Click(poste); });
    brancher(ui.Command2, &QPushButton::clicked, fiche, [&poste] { Command2_Click(poste); });
    brancher(ui.Test, &QPushButton::clicked, fiche, [&poste] { Test_Click(poste); });
    brancher(ui.LireValeurDetectionCapteur, &QPushButton::clicked, fiche,
             [&poste] { LireValeurDetectionCapteur_Click(poste); });
    brancher(ui.mnuEtalonnage, &QAction::triggered, fiche, [&poste] { MontrerEtalonnage(poste); });
    brancher(ui.mnurapport, &QAction::triggered, fiche,
             [&poste] { mnurapport_Click(poste.ecran); });
    brancher(ui.mnuGSM, &QAction::triggered, fiche, [&poste] { mnuGSM_Click(poste.ecran); });
    brancher(ui.mnuApropos, &QAction::triggered, fiche,
             [&poste] { mnuApropos_Click(poste.ecran); });
}

}  // namespace bornika
