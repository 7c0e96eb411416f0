#include "chart/view/chart_view_tools.h"

namespace bornika {

namespace {

void AccorderLigne(QCustomPlot& dessin, QCPItemStraightLine& ligne, const OutilGraphe& outil,
                   const Apparence& apparence) {
    QCPAxis* axe = outil.axe == OutilGraphe::AxeLigne::Gauche ? dessin.yAxis : dessin.yAxis2;
    int abscisse = 0;
    for (QCPItemPosition* position : {ligne.point1, ligne.point2}) {
        position->setAxes(dessin.xAxis, axe);
        position->setTypeX(QCPItemPosition::ptAxisRectRatio);
        position->setTypeY(QCPItemPosition::ptPlotCoords);
        position->setCoords(abscisse++, outil.valeur);
    }
    // A level line between two rows of pixels would be two dim ones.
    ligne.setAntialiased(false);
    ligne.setPen(QPen(apparence.trait(outil.crayon), 1));
    ligne.setVisible(outil.actif && outil.crayonVisible);
}

}  // namespace

QCPAbstractItem* OutilsGraphe::Faire(OutilGraphe::Genre genre) {
    QCPAbstractItem* element = nullptr;
    if (genre == OutilGraphe::Genre::LigneCouleur) element = new QCPItemStraightLine(&dessin_);
    if (element) element->setSelectable(false);
    return element;
}

void OutilsGraphe::Accorder(const ModeleGraphe& modele, const Apparence& apparence) {
    const auto nombre = static_cast<std::size_t>(modele.NombreOutils());
    bool pareils = dessines_.size() == nombre;
    for (std::size_t i = 0; pareils && i < nombre; ++i)
        pareils = dessines_[i].genre == modele.Outil(static_cast<int>(i)).genre;
    if (!pareils) {
        for (const Dessine& dessine : dessines_)
            if (dessine.element) dessin_.removeItem(dessine.element);
        dessines_.clear();
        for (std::size_t i = 0; i < nombre; ++i) {
            const OutilGraphe::Genre genre = modele.Outil(static_cast<int>(i)).genre;
            dessines_.push_back({genre, Faire(genre)});
        }
    }
    for (std::size_t i = 0; i < nombre; ++i) {
        const OutilGraphe& outil = modele.Outil(static_cast<int>(i));
        if (auto* ligne = qobject_cast<QCPItemStraightLine*>(dessines_[i].element))
            AccorderLigne(dessin_, *ligne, outil, apparence);
    }
}

}  // namespace bornika
