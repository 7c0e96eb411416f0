#include "shell/window_width.h"

#include <QLayout>
#include <algorithm>

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
    ui.ZoneEnregistreur->setFixedWidth(
        std::max(largeurEtroite, ui.ZoneEnregistreur->minimumSizeHint().width()));
    ui.ZoneCentrale->setMinimumWidth(maintenance ? largeurMaintenance : largeurEtroite);
    // The form always has the size that its layout asks for, so it follows its frames.
    ecran.layout()->setSizeConstraint(QLayout::SetFixedSize);
    ecran.layout()->activate();
}

}  // namespace bornika
