#pragma once

#include <QSize>
#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "chart/model/chart_model.h"

namespace bornika::banc {

inline constexpr int nombrePoints = 450'000;
inline constexpr int nombreCourbes = 4;
inline constexpr double debut = 1.7e12;
inline constexpr double pas = 250;
inline constexpr QSize taille(1200, 700);

/// Two raw curves of a water network, and the smoothing of each.
inline void Remplir(ModeleGraphe& modele) {
    std::mt19937 tirage(3);
    std::normal_distribution<double> bruit(0, 0.05);
    const auto etiquettes = std::make_shared<MagasinEtiquettes>();
    for (int courbe = 0; courbe < 2; ++courbe) {
        SerieGraphe& serie = modele.AjouterSerie();
        serie.axe = courbe == 0 ? SerieGraphe::Axe::Gauche : SerieGraphe::Axe::Droite;
        serie.FixerEtiquettes(etiquettes);
        serie.Reserver(nombrePoints);
        for (int i = 0; i < nombrePoints; ++i)
            serie.AjouterPoint(debut + pas * i, 4 + std::sin(i / 9000.0 + courbe) + bruit(tirage),
                               etiquettes->Ajouter("14/11/2023 22:13:20:000"));
    }
    for (int source = 0; source < 2; ++source) {
        SerieGraphe& serie = modele.AjouterSerie();
        serie.axe = modele.Serie(source).axe;
        modele.FixerFonction(2 + source, SerieGraphe::fonctionLissage, source);
        serie.FixerPeriode(10);
    }
    for (int courbe = 0; courbe < nombreCourbes; ++courbe)
        modele.Serie(courbe).titre = QStringLiteral("Curve %1").arg(courbe);
    modele.bas.etiquettesTexte = true;
    modele.legendeCases = true;
    modele.visible = true;
    modele.FixerPlage(debut, debut + pas * (nombrePoints - 1));
}

inline double Mediane(std::vector<double> durees) {
    std::nth_element(durees.begin(), durees.begin() + static_cast<long>(durees.size() / 2),
                     durees.end());
    return durees[durees.size() / 2];
}

/// The fastest of several runs: what others do on the machine only ever adds.
inline double Meilleure(const std::vector<double>& durees) {
    return *std::min_element(durees.begin(), durees.end());
}

}  // namespace bornika::banc
