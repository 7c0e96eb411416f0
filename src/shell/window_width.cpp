#include "shell/window_width.h"

#include <QLayout>

#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

// Logical pixels: 9300 and 14355 twips of 1/15 pixel.
constexpr int largeurEtroite = 620;
constexpr int largeurMaintenance = 957;

}  // namespace

void FixerLargeur(MainScreen& ecran, bool maintenance) {
    auto& ui = *ecran.ui;
    ui.PanneauService->setVisible(maintenance);
    ui.mnuGSM->setVisible(maintenance);
    // From the inside to the outside, or the form would keep room for frames hidden just before.
    for (QWidget* zone : {ui.ZoneCadres, ui.ZoneEnregistreur})
        zone->layout()->activate();
    // Larger fonts ask for more; the values shown never do.
    ui.ZoneEnregistreur->setMinimumWidth(largeurEtroite);
    ui.PanneauService->setMinimumWidth(largeurMaintenance - largeurEtroite);
    ui.ZoneCentrale->layout()->activate();
    ui.ZoneDefilement->updateGeometry();
    // The form always has the size that its layout asks for, so it follows its frames.
    ecran.layout()->setSizeConstraint(QLayout::SetFixedSize);
    ecran.layout()->activate();
}

}  // namespace bornika
