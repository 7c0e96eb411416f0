#include "app/viewer_events.h"

#include "platform/guard.h"
#include "ui_trace_form.h"
#include "viewer/chart_pages.h"
#include "viewer/colour_choice.h"
#include "viewer/file_commands.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_settings.h"

namespace bornika {

void BrancherTrace(Trace& trace) {
    auto& ui = *trace.ui;
    const auto lier = [&trace](auto* emetteur, auto signal, void (*operation)(Trace&)) {
        brancher(emetteur, signal, &trace, [&trace, operation] { operation(trace); });
    };
    lier(ui.CommandOpen, &QPushButton::clicked, CommandOpen);
    lier(ui.Sortir, &QPushButton::clicked, Sortir_Click);
    lier(ui.Command_Refresh, &QPushButton::clicked, Command_Refresh_Click);
    lier(ui.Check_advanced, &QCheckBox::toggled, Check_advanced_Click);
    lier(ui.CoefImpulsion, &QLineEdit::textChanged, CoefImpulsion_Change);
    lier(ui.UniteImpulsion, &QLineEdit::textChanged, UniteImpulsion_Change);
    lier(ui.ListeTemps, &ListeDeroulante::Clic, ListeTemps_Click);
    // The colours react to the hand alone: refilling the list must not open the colour dialog.
    lier(ui.Couleurs, &ListeDeroulante::ClicMain, Couleurs_Click);
    lier(ui.Pages, &QCheckBox::toggled, Pages_Click);
    lier(ui.TChart1, &VueGraphe::Zoom, TChart1_Zoom);
    lier(ui.TChart1, &VueGraphe::AnnulationZoom, TChart1_UndoZoom);
}

}  // namespace bornika
