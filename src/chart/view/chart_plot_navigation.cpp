#include <algorithm>
#include <utility>

#include "chart/view/chart_plot.h"
#include "chart/view/chart_view_cursor.h"

namespace bornika {

namespace {

/// A cursor that left the view is shown again that far, in parts of the view, from its edge.
constexpr double retraitCurseur = 0.1;

/// The narrowest time span, as part of the whole, that a zoom shows.
constexpr double zoomExtreme = 1e-7;

/// A range moved by `ecart`, but not further out of the whole one than it is.
QCPRange DecalerEtendue(const QCPRange& etendue, const QCPRange& entiere, double ecart) {
    const double avant = std::min(0.0, entiere.lower - etendue.lower);
    const double apres = std::max(0.0, entiere.upper - etendue.upper);
    return etendue + std::clamp(ecart, avant, apres);
}

/// The black cursor of "no cursor" is not to be seen on a black ground.
bool SeVoit(const OutilGraphe& curseur, const Apparence& apparence) {
    return VersQColor(curseur.crayon) != apparence.cadre;
}

}  // namespace

void DessinGraphe::ZoomerSur(const QRect& zone) {
    animation.Terminer();
    const auto entre = [](const QCPAxis& axe, double un, double autre) {
        return QCPRange(axe.pixelToCoord(un), axe.pixelToCoord(autre));
    };
    Etendues cible;
    cible.bas = entre(*xAxis, zone.left(), zone.right());
    cible.gauche = entre(*yAxis, zone.bottom(), zone.top());
    cible.droite = entre(*yAxis2, zone.bottom(), zone.top());
    if (cible.bas.size() < EtenduesEntieres().bas.size() * zoomExtreme) return;
    animation.Demarrer(EtenduesVisibles(), cible, [this](const Etendues& e) { Montrer(e); });
    Q_EMIT Zoom();
}

void DessinGraphe::ZoomerAutour(double centre, double facteur) {
    animation.Terminer();
    const QCPRange entiere = EtenduesEntieres().bas;
    Etendues cible = EtenduesVisibles();
    cible.bas.lower = centre + (cible.bas.lower - centre) * facteur;
    cible.bas.upper = centre + (cible.bas.upper - centre) * facteur;
    if (facteur > 1 && cible.bas.size() >= entiere.size()) {
        AnnulerZoom();
        return;
    }
    if (cible.bas.size() < entiere.size() * zoomExtreme) return;
    Montrer(cible);
    Q_EMIT Zoom();
}

void DessinGraphe::Defiler(double temps, double valeurs) {
    if (!PeutNaviguer()) return;
    animation.Terminer();
    const Etendues entieres = EtenduesEntieres();
    const Etendues visibles = EtenduesVisibles();
    Etendues cible = visibles;
    const auto decaler = [](QCPRange& etendue, const QCPRange& entiere, double part) {
        etendue = DecalerEtendue(etendue, entiere, part * etendue.size());
    };
    if (Defilement() & 1) decaler(cible.bas, entieres.bas, temps);
    if (Defilement() & 2) {
        decaler(cible.gauche, entieres.gauche, valeurs);
        decaler(cible.droite, entieres.droite, valeurs);
    }
    if (cible.bas != visibles.bas || cible.gauche != visibles.gauche ||
        cible.droite != visibles.droite)
        Montrer(cible);
}

double DessinGraphe::CentreZoom() const {
    const QCPRange& montree = xAxis->range();
    const OutilGraphe* curseur = modele_ ? CurseurMobile(std::as_const(*modele_)) : nullptr;
    const bool visible = curseur && curseur->point >= 0 && montree.contains(curseur->x) &&
                         SeVoit(*curseur, apparence_);
    return visible ? curseur->x : montree.center();
}

bool DessinGraphe::AvancerCurseur(PasCurseur pas) {
    const OutilGraphe* curseur = modele_ ? CurseurMobile(std::as_const(*modele_)) : nullptr;
    if (!curseur || !SeVoit(*curseur, apparence_)) return false;
    animation.Terminer();
    if (bornika::AvancerCurseur(*modele_, pas, (Defilement() & 1) != 0)) {
        MontrerCurseur();
        curseur_->Bouger(*modele_);
        Q_EMIT SourisBougee();
    }
    return true;
}

/// Scrolls in time as far as the cursor needs.
void DessinGraphe::MontrerCurseur() {
    const double x = CurseurMobile(*modele_)->x;
    Etendues cible = EtenduesVisibles();
    if (cible.bas.contains(x)) return;
    const double retrait = cible.bas.size() * retraitCurseur;
    const double ecart =
        x < cible.bas.lower ? x - retrait - cible.bas.lower : x + retrait - cible.bas.upper;
    cible.bas = DecalerEtendue(cible.bas, EtenduesEntieres().bas, ecart);
    Montrer(cible);
}

void DessinGraphe::AnnulerZoom() {
    if (!PeutNaviguer()) return;
    animation.Terminer();
    const Etendues entieres = EtenduesEntieres();
    if (!echellesFixes_) return;
    animation.Demarrer(
        EtenduesVisibles(), entieres, [this](const Etendues& e) { Montrer(e); },
        [this] { RemettreEchelles(); });
    Q_EMIT AnnulationZoom();
}

void DessinGraphe::RemettreEchelles() {
    animation.Abandonner();
    echellesFixes_ = false;
    if (!modele_) return;
    modele_->MontrerTout();
    Repaint();
}

}  // namespace bornika
