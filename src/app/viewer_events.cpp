#include "app/viewer_events.h"

#include "platform/guard.h"
#include "ui_trace_form.h"
#include "viewer/chart_menu.h"
#include "viewer/chart_pages.h"
#include "viewer/colour_choice.h"
#include "viewer/curve_cursor.h"
#include "viewer/export_commands.h"
#include "viewer/file_commands.h"
#include "viewer/file_drop.h"
#include "viewer/printing.h"
#include "viewer/smoothing_slider.h"
#include "viewer/statistics_display.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_settings.h"

namespace bornika {

void BrancherTrace(Trace& trace) {
    auto& ui = *trace.ui;
    const auto lier = [&trace](auto* emetteur, auto signal, void (*operation)(Trace&)) {
        brancher(emetteur, signal, &trace, [&trace, operation] { operation(trace); });
    };
    lier(ui.CommandOpen, &QPushButton::clicked, CommandOpen);
    lier(ui.Export, &QPushButton::clicked, Export);
    lier(ui.EnregistrerSelection, &QPushButton::clicked, EnregistrerSelection);
    lier(ui.Detruire, &QPushButton::clicked, Detruire);
    lier(ui.Command1, &QPushButton::clicked, MiseAJourFichier);
    lier(ui.Sortir, &QPushButton::clicked, Sortir_Click);
    lier(ui.Command_Refresh, &QPushButton::clicked, Command_Refresh_Click);
    lier(ui.Check_advanced, &QCheckBox::toggled, Check_advanced_Click);
    lier(ui.CoefImpulsion, &QLineEdit::textChanged, CoefImpulsion_Change);
    lier(ui.UniteImpulsion, &QLineEdit::textChanged, UniteImpulsion_Change);
    lier(ui.ListeTemps, &ListeDeroulante::Clic, ListeTemps_Click);
    // The colours react to the hand alone: refilling the list must not open the colour dialog.
    lier(ui.Couleurs, &ListeDeroulante::ClicMain, Couleurs_Click);
    lier(ui.Pages, &QCheckBox::toggled, Pages_Click);
    lier(ui.Curseur, &ListeDeroulante::Clic, Curseur_Click);
    lier(ui.Marques, &QCheckBox::toggled, Marques_Click);
    lier(ui.MinMaxMoy, &QCheckBox::toggled, MinMaxMoy_Click);
    lier(ui.Lissage, &QScrollBar::valueChanged, Lissage_Change);
    lier(ui.TChart1, &VueGraphe::SourisBougee, AfficheCurseur);
    lier(ui.TChart1, &VueGraphe::Dessin, CalculeMinMaxMoy);
    lier(ui.TChart1, &VueGraphe::Zoom, TChart1_Zoom);
    lier(ui.TChart1, &VueGraphe::AnnulationZoom, TChart1_UndoZoom);
    lier(ui.Imprimer, &QPushButton::clicked, Imprimer_Click);
    lier(ui.Agrandir, &QAction::triggered, Agrandir_Click);
    lier(ui.Reduire, &QAction::triggered, Reduire_Click);
    lier(ui.VueEntiere, &QAction::triggered, VueEntiere_Click);
    lier(ui.PointPrecedent, &QAction::triggered, PointPrecedent_Click);
    lier(ui.PointSuivant, &QAction::triggered, PointSuivant_Click);
    lier(ui.CopierImage, &QAction::triggered, CopierImage_Click);
    lier(ui.EnregistrerPng, &QAction::triggered, EnregistrerPng_Click);
    lier(ui.EnregistrerPdf, &QAction::triggered, EnregistrerPdf_Click);
    QObject::connect(ui.TChart1, &VueGraphe::MenuDemande, &trace,
                     [&trace](QPoint place) { garder([&] { MontrerMenuGraphe(trace, place); }); });
    auto* depot = new DepotFichiers(trace);
    brancher(depot, &DepotFichiers::Depose, &trace,
             [&trace, depot] { OuvrirEnregistrements(trace, depot->Nom()); });
}

}  // namespace bornika
