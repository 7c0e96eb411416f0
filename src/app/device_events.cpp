#include "app/device_events.h"

#include "app/start_up.h"
#include "link/station.h"
#include "logger/clock_correction.h"
#include "logger/context_dump.h"
#include "logger/parameter_reading.h"
#include "logger/parameter_writing.h"
#include "platform/guard.h"
#include "platform/numbers.h"
#include "retrieval/card_import.h"
#include "retrieval/download_engine.h"
#include "retrieval/flash_service.h"
#include "retrieval/raw_dump.h"
#include "service/flow_test.h"
#include "ui_main_screen.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika {

namespace {

void Sortir_Click(Poste& poste) {
    poste.lien.FermeUSB();
    poste.ecran.close();
}

void VoirLesValeurs_Click(AccesTrace& trace) {
    trace.Fiche().show();
    trace.Fiche().raise();
    trace.Fiche().activateWindow();
}

/// Fault 13 for a page that is no number, 6 for one beyond 16 bits.
void LireValeursPage_Click(Poste& poste) {
    const auto& ui = poste.ecran.ui;
    const Regional& regional = poste.ecran.systeme.regional;
    const int PageDebut = EnEntier16(ui->PageDebut->text(), regional);
    const int PageFin = EnEntier16(ui->PageFin->text(), regional);
    LectureValeursPage(poste, PageDebut, PageFin);
}

/// The controls of the service panel, and their companion in the menu.
void BrancherService(Poste& poste) {
    auto& ui = *poste.ecran.ui;
    QObject* fiche = &poste.ecran;
    brancher(ui.CommandCorrection, &QPushButton::clicked, fiche,
             [&poste] { CommandCorrection_Click(poste); });
    brancher(ui.TestDebitON, &QPushButton::clicked, fiche, [&poste] { Test_Debit(poste, true); });
    brancher(ui.TestDebitOFF, &QPushButton::clicked, fiche, [&poste] { Test_Debit(poste, false); });
    brancher(ui.MnuFlowTest, &QAction::triggered, fiche, [&poste] { MnuFlowTest_Click(poste); });
    brancher(ui.LireLaFlash, &QPushButton::clicked, fiche, [&poste] { LireLaFlash(poste); });
    brancher(ui.EcrireLaFlash, &QPushButton::clicked, fiche, [&poste] { EcrireLaFlash(poste); });
    brancher(ui.LireEeprom, &QPushButton::clicked, fiche, [&poste] { DumpContexte(poste); });
    brancher(ui.LireValeursPage, &QPushButton::clicked, fiche,
             [&poste] { LireValeursPage_Click(poste); });
}

}  // namespace

void BrancherAppareil(Poste& poste, AccesTrace& trace) {
    auto& ui = *poste.ecran.ui;
    QObject* fiche = &poste.ecran;
    brancher(ui.Lire, &QPushButton::clicked, fiche, [&poste] { Lire(poste); });
    brancher(ui.Ecrire, &QPushButton::clicked, fiche, [&poste] { Ecrire(poste); });
    brancher(ui.LireValeurs, &QPushButton::clicked, fiche,
             [&poste, &trace] { LireValeurs(poste, trace); });
    brancher(ui.LireSD, &QPushButton::clicked, fiche, [&poste, &trace] { LireSD(poste, trace); });
    brancher(ui.VoirLesValeurs, &QPushButton::clicked, fiche,
             [&trace] { VoirLesValeurs_Click(trace); });
    brancher(ui.Sortir, &QPushButton::clicked, fiche, [&poste] { Sortir_Click(poste); });
    brancher(ui.mnuconnect, &QAction::triggered, fiche, [&poste] { mnuconnect_Click(poste); });
    BrancherService(poste);
}

}  // namespace bornika
