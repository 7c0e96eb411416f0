#include "chart/model/visible_range.h"

#include <algorithm>

namespace bornika {

Plage Commune(const Plage& une, const Plage& autre) {
    return {std::max(une.min, autre.min), std::min(une.max, autre.max)};
}

PointsVisibles ChercherVisibles(std::span<const double> x, bool trie, const Plage& plage) {
    if (plage.EstVide() || x.empty()) return {};
    if (trie) {
        const auto premier = std::lower_bound(x.begin(), x.end(), plage.min);
        const auto fin = std::upper_bound(premier, x.end(), plage.max);
        if (premier == fin) return {};
        return {static_cast<int>(premier - x.begin()), static_cast<int>(fin - x.begin()) - 1};
    }
    const auto dedans = [&](double valeur) { return plage.Contient(valeur); };
    const auto premier = std::find_if(x.begin(), x.end(), dedans);
    if (premier == x.end()) return {};
    const auto dernier = std::find_if(x.rbegin(), x.rend(), dedans);
    return {static_cast<int>(premier - x.begin()),
            static_cast<int>(x.size()) - 1 - static_cast<int>(dernier - x.rbegin())};
}

int PlusProche(std::span<const double> x, const PointsVisibles& points, double cible) {
    const auto debut = x.begin() + points.premier;
    const auto fin = x.begin() + points.dernier + 1;
    auto trouve = std::lower_bound(debut, fin, cible);
    if (trouve == debut) return points.premier;
    if (trouve == fin || cible - *(trouve - 1) <= *trouve - cible)
        trouve = std::lower_bound(debut, fin, *(trouve - 1));
    return static_cast<int>(trouve - x.begin());
}

Plage Etendue(std::span<const double> x, bool trie) {
    if (x.empty()) return {1, 0};
    if (trie) return {x.front(), x.back()};
    const auto [petit, grand] = std::minmax_element(x.begin(), x.end());
    return {*petit, *grand};
}

}  // namespace bornika
