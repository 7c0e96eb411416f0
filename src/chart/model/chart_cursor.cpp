#include "chart/model/chart_cursor.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "chart/model/chart_model.h"

namespace bornika {

namespace {

/// The points of a series that a cursor can stand on.
struct Points {
    explicit Points(const SerieGraphe& serie)
        : x(serie.X()), y(serie.Y()), suites(serie.Suites()), trie(serie.EstTriee()) {}

    bool EstNombre(int point) const {
        const auto place = static_cast<std::size_t>(point);
        return place < y.size() && std::isfinite(y[place]);
    }
    double Ecart(int point, double cible) const {
        return std::abs(x[static_cast<std::size_t>(point)] - cible);
    }
    int Nombre() const { return static_cast<int>(x.size()); }

    std::span<const double> x;
    std::span<const double> y;
    std::span<const int> suites;
    bool trie;
};

/// The same where the times are in order.
int ProcheDansSuite(const Points& points, const PointsVisibles& visibles, double x) {
    const int depart = PlusProche(points.x, visibles, x);
    int avant = depart;
    while (avant >= visibles.premier && !points.EstNombre(avant))
        --avant;
    int apres = depart;
    while (apres <= visibles.dernier && !points.EstNombre(apres))
        ++apres;
    if (avant < visibles.premier) return apres <= visibles.dernier ? apres : -1;
    if (apres > visibles.dernier) return avant;
    return points.Ecart(apres, x) < points.Ecart(avant, x) ? apres : avant;
}

/// The visible points of one run of times in order.
PointsVisibles VisiblesDeSuite(const Points& points, std::size_t suite,
                               const PointsVisibles& visibles, const Plage& plage) {
    const int fin = suite + 1 < points.suites.size() ? points.suites[suite + 1] : points.Nombre();
    const int debut = std::max(points.suites[suite], visibles.premier);
    const int nombre = std::min(fin, visibles.dernier + 1) - debut;
    if (nombre <= 0) return {};
    const PointsVisibles dedans = ChercherVisibles(
        points.x.subspan(static_cast<std::size_t>(debut), static_cast<std::size_t>(nombre)), true,
        plage);
    if (dedans.premier < 0) return {};
    return {debut + dedans.premier, debut + dedans.dernier};
}

}  // namespace

const OutilGraphe* CurseurMobile(const ModeleGraphe& modele) {
    if (modele.NombreOutils() == 0) return nullptr;
    const OutilGraphe& dernier = modele.Outil(modele.NombreOutils() - 1);
    const bool mobile = dernier.genre == OutilGraphe::Genre::Curseur && dernier.suitSouris &&
                        dernier.serie >= 0 && dernier.serie < modele.NombreSeries();
    return mobile ? &dernier : nullptr;
}

OutilGraphe* CurseurMobile(ModeleGraphe& modele) {
    return const_cast<OutilGraphe*>(CurseurMobile(std::as_const(modele)));
}

int PointProche(const ModeleGraphe& modele, int serie, double x) {
    const PointsVisibles visibles = modele.Visibles(serie);
    if (visibles.premier < 0) return -1;
    const Points points(modele.Serie(serie));
    int proche = -1;
    for (std::size_t suite = 0; suite < points.suites.size(); ++suite) {
        const PointsVisibles dedans = VisiblesDeSuite(points, suite, visibles, modele.bas.plage);
        if (dedans.premier < 0) continue;
        const int point = ProcheDansSuite(points, dedans, x);
        if (point >= 0 && (proche < 0 || points.Ecart(point, x) < points.Ecart(proche, x)))
            proche = point;
    }
    return proche;
}

namespace {

void PoserCurseur(OutilGraphe& curseur, const SerieGraphe& serie, int point) {
    curseur.point = point;
    curseur.x = serie.X()[static_cast<std::size_t>(point)];
    curseur.y = serie.Y()[static_cast<std::size_t>(point)];
}

/// The nearest point in that direction whose time lies within the limits.
int PointVoisin(const Points& points, int depart, int sens, const Plage& limites) {
    for (int point = depart + sens; point >= 0 && point < points.Nombre(); point += sens) {
        const bool dedans = limites.Contient(points.x[static_cast<std::size_t>(point)]);
        if (!dedans && points.trie) return -1;
        if (dedans && points.EstNombre(point)) return point;
    }
    return -1;
}

bool EstSurUnPoint(const OutilGraphe& curseur, const Points& points) {
    return curseur.point >= 0 && static_cast<std::size_t>(curseur.point) < points.x.size() &&
           points.x[static_cast<std::size_t>(curseur.point)] == curseur.x;
}

int ProchainPoint(const ModeleGraphe& modele, const OutilGraphe& curseur, PasCurseur pas,
                  bool horsVue) {
    const Points points(modele.Serie(curseur.serie));
    const Plage& vue = modele.bas.plage;
    const PointsVisibles visibles = modele.Visibles(curseur.serie);
    if (visibles.premier < 0) return -1;
    if (pas == PasCurseur::PremierVisible) return PointVoisin(points, visibles.premier - 1, 1, vue);
    if (pas == PasCurseur::DernierVisible)
        return PointVoisin(points, visibles.dernier + 1, -1, vue);
    if (!EstSurUnPoint(curseur, points))
        return PointProche(modele, curseur.serie, (vue.min + vue.max) / 2);
    if (!vue.Contient(curseur.x)) return PointProche(modele, curseur.serie, curseur.x);
    return PointVoisin(points, curseur.point, pas == PasCurseur::Suivant ? 1 : -1,
                       horsVue && points.trie ? modele.PlageMontrable() : vue);
}

}  // namespace

bool AvancerCurseur(ModeleGraphe& modele, PasCurseur pas, bool horsVue) {
    OutilGraphe* curseur = CurseurMobile(modele);
    if (!curseur) return false;
    const int point = ProchainPoint(modele, *curseur, pas, horsVue);
    if (point < 0) return false;
    PoserCurseur(*curseur, modele.Serie(curseur->serie), point);
    return true;
}

bool DeplacerCurseur(ModeleGraphe& modele, double x) {
    OutilGraphe* curseur = CurseurMobile(modele);
    if (!curseur) return false;
    const int point = PointProche(modele, curseur->serie, x);
    if (point < 0) return false;
    PoserCurseur(*curseur, modele.Serie(curseur->serie), point);
    return true;
}

}  // namespace bornika
