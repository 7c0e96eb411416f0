#include "app/device_events.h"

#include "app/service_events.h"
#include "app/start_up.h"
#include "link/station.h"
#include "logger/parameter_reading.h"
#include "logger/parameter_writing.h"
#include "platform/guard.h"
#include "retrieval/card_import.h"
#include "retrieval/download_engine.h"
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
