#include "shell/family_rule.h"

#include "products/products.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

void AppliqueFamille(MainScreen& ecran) {
    auto& ui = *ecran.ui;
    const bool carte = EstFamilleCarte(ecran.etat.TypekPod);
    // The two buttons stand in one cell of the layout: the visible one takes the place.
    ui.LireValeurs->setVisible(!carte);
    ui.LireSD->setVisible(carte);
    ui.Label8->setVisible(!carte);
    ui.DureeEnregistrement->setVisible(!carte);
    ui.ProgressBar1->setVisible(!carte);
    ui.Capacite->setVisible(!carte);
    ui.ValeurCapacite->setVisible(!carte);
    ui.SDCardState->setVisible(carte);
    ui.AMPM_0->setVisible(carte);
    ui.AMPM_1->setVisible(carte);
}

}  // namespace bornika
