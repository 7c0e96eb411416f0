#include "chart/model/chart_model.h"

#include <algorithm>

#include "platform/fault.h"

namespace bornika {

namespace {

template <class Liste>
auto& Element(Liste& liste, int position) {
    if (position < 0 || static_cast<std::size_t>(position) >= liste.size())
        LeverFaute(numero_faute::indice);
    return liste[static_cast<std::size_t>(position)];
}

}  // namespace

SerieGraphe& ModeleGraphe::AjouterSerie() {
    ++revisionSeries_;
    return *series_.emplace_back(std::make_shared<SerieGraphe>());
}

void ModeleGraphe::RetirerSerie(int position) {
    Element(series_, position);
    series_.erase(series_.begin() + position);
    ++revisionSeries_;
}

void ModeleGraphe::RetirerTout() {
    series_.clear();
    page_ = 0;
    ++revisionSeries_;
}

const std::shared_ptr<SerieGraphe>& ModeleGraphe::Partagee(int position) const {
    return Element(series_, position);
}

void ModeleGraphe::FixerFonction(int position, int type, int source) {
    Partagee(position)->FixerFonction(type, Partagee(source));
}

PointsVisibles ModeleGraphe::Visibles(int serie) const {
    const SerieGraphe& courbe = Serie(serie);
    PointsVisibles points =
        ChercherVisibles(courbe.X(), courbe.EstTriee(), Commune(bas.plage, PlagePage()));
    const SerieGraphe* longue = PlusLongue();
    if (pointsParPage_ == 0 || courbe.X().data() != longue->X().data()) return points;
    // Two points of one time can lie on both sides of a page's end: positions decide there.
    points.premier = std::max(points.premier, page_ * pointsParPage_);
    points.dernier = std::min(points.dernier, (page_ + 1) * pointsParPage_ - 1);
    return points.premier <= points.dernier ? points : PointsVisibles{};
}

OutilGraphe& ModeleGraphe::Outil(int position) {
    return Element(outils_, position);
}

const OutilGraphe& ModeleGraphe::Outil(int position) const {
    return Element(outils_, position);
}

OutilGraphe& ModeleGraphe::AjouterOutil(OutilGraphe outil) {
    return outils_.emplace_back(std::move(outil));
}

void ModeleGraphe::RetirerOutil(int position) {
    Element(outils_, position);
    outils_.erase(outils_.begin() + position);
}

void ModeleGraphe::FixerPlage(double min, double max) {
    plageEntiere_ = {min, max};
    page_ = 0;
    MontrerTout();
}

Plage ModeleGraphe::PlageMontrable() const {
    return pointsParPage_ > 0 && PlusLongue() ? PlagePage() : plageEntiere_;
}

void ModeleGraphe::FixerMaxPointsPerPage(int points) {
    pointsParPage_ = std::max(points, 0);
    page_ = 0;
    MontrerTout();
}

int ModeleGraphe::NombrePages() const {
    const SerieGraphe* longue = PlusLongue();
    if (pointsParPage_ == 0 || !longue || longue->Nombre() == 0) return 1;
    return (longue->Nombre() - 1) / pointsParPage_ + 1;
}

void ModeleGraphe::FixerPage(int page) {
    page_ = std::clamp(page, 0, NombrePages() - 1);
    MontrerTout();
}

const SerieGraphe* ModeleGraphe::PlusLongue() const {
    const auto longue = std::max_element(
        series_.begin(), series_.end(),
        [](const auto& une, const auto& autre) { return une->Nombre() < autre->Nombre(); });
    return longue == series_.end() ? nullptr : longue->get();
}

Plage ModeleGraphe::PlagePage() const {
    const SerieGraphe* longue = PlusLongue();
    if (pointsParPage_ == 0 || !longue) return plageSansLimite;
    const std::span<const double> x = longue->X();
    const auto premier = std::min(
        x.size(), static_cast<std::size_t>(page_) * static_cast<std::size_t>(pointsParPage_));
    const auto nombre = std::min(x.size() - premier, static_cast<std::size_t>(pointsParPage_));
    return Etendue(x.subspan(premier, nombre), longue->EstTriee());
}

}  // namespace bornika
