#include "chart/view/chart_view_keys.h"

#include "chart/view/chart_plot.h"

namespace bornika {

namespace {

/// One key press shows that part of the time shown before, like one notch of the wheel.
constexpr double partTouche = 0.8;
/// One press of an arrow moves the view by that part of what it shows.
constexpr double pasFleche = 0.1;

bool ZoomerParTouche(DessinGraphe& vue, int touche) {
    switch (touche) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:  // the same key without the shift of many keyboards
            vue.ZoomerAutour(vue.CentreZoom(), partTouche);
            return true;
        case Qt::Key_Minus:
            vue.ZoomerAutour(vue.CentreZoom(), 1 / partTouche);
            return true;
        case Qt::Key_0:
        case Qt::Key_Agrave:  // the same key without shift of a French keyboard
            vue.AnnulerZoom();
            return true;
        default:
            return false;
    }
}

bool DefilerParTouche(DessinGraphe& vue, int touche) {
    switch (touche) {
        case Qt::Key_Left:
            vue.Defiler(-pasFleche, 0);
            return true;
        case Qt::Key_Right:
            vue.Defiler(pasFleche, 0);
            return true;
        case Qt::Key_Down:
            vue.Defiler(0, -pasFleche);
            return true;
        case Qt::Key_Up:
            vue.Defiler(0, pasFleche);
            return true;
        default:
            return false;
    }
}

}  // namespace

bool PresserTouche(DessinGraphe& vue, int touche, Qt::KeyboardModifiers avec) {
    avec &= ~(Qt::KeypadModifier | Qt::ShiftModifier);
    const bool controle = avec == Qt::ControlModifier;
    if ((avec && !controle) || !vue.PeutNaviguer()) return false;
    if (vue.ZoomPermis() && ZoomerParTouche(vue, touche)) return true;
    if (touche == Qt::Key_Home) return vue.AvancerCurseur(PasCurseur::PremierVisible);
    if (touche == Qt::Key_End) return vue.AvancerCurseur(PasCurseur::DernierVisible);
    if (!controle) return DefilerParTouche(vue, touche);
    if (touche == Qt::Key_Left) return vue.AvancerCurseur(PasCurseur::Precedent);
    if (touche == Qt::Key_Right) return vue.AvancerCurseur(PasCurseur::Suivant);
    return false;
}

}  // namespace bornika
