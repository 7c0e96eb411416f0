#include "chart/view/chart_view_cursor.h"

#include <qcustomplot.h>

#include <cmath>

#include "chart/model/chart_cursor.h"

namespace bornika {

namespace {

/// The cursor when it is to be seen.
const OutilGraphe* CurseurVisible(const ModeleGraphe& modele) {
    const OutilGraphe* curseur = CurseurMobile(modele);
    if (!curseur || curseur->point < 0 || !curseur->actif || !curseur->crayonVisible)
        return nullptr;
    return modele.bas.plage.EstVide() ? nullptr : curseur;
}

}  // namespace

CurseurDessine::Lignes CurseurDessine::Placer(const OutilGraphe& curseur,
                                              const SerieGraphe& serie) const {
    const bool gauche = serie.axe == SerieGraphe::Axe::Gauche;
    const QCPAxis* axe = gauche ? dessin_.yAxis : dessin_.yAxis2;
    const QRect cadre = dessin_.axisRect()->rect();
    Lignes lignes;
    if (dessin_.xAxis->range().contains(curseur.x)) {
        const auto x = static_cast<int>(std::lround(dessin_.xAxis->coordToPixel(curseur.x)));
        lignes.verticale = QRect(x, cadre.top(), 1, cadre.height());
    }
    if (axe->range().contains(curseur.y)) {
        const auto y = static_cast<int>(std::lround(axe->coordToPixel(curseur.y)));
        lignes.horizontale = QRect(cadre.left(), y, cadre.width(), 1);
    }
    return lignes;
}

void CurseurDessine::Peindre(QPainter& peintre, const ModeleGraphe& modele) {
    peinte_ = {};
    const OutilGraphe* curseur = CurseurVisible(modele);
    if (!curseur) return;
    const Lignes lignes = Placer(*curseur, modele.Serie(curseur->serie));
    const QColor couleur = VersQColor(curseur->crayon);
    for (const QRect& ligne : {lignes.verticale, lignes.horizontale})
        peintre.fillRect(ligne, couleur);
    peinte_ = lignes.Zone();
}

void CurseurDessine::Bouger(const ModeleGraphe& modele) {
    QRegion zone;
    if (const OutilGraphe* curseur = CurseurVisible(modele))
        zone = Placer(*curseur, modele.Serie(curseur->serie)).Zone();
    if (zone != peinte_) dessin_.update(zone.united(peinte_));
}

}  // namespace bornika
