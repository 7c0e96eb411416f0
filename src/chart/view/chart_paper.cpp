#include "chart/view/chart_paper.h"

#include <cmath>

namespace bornika {

namespace {

/// Greatest luminance of ink, of 1 for white: a contrast of 4 to 1 with the paper.
constexpr double luminanceEncre = 1.05 / 4 - 0.05;

double Lineaire(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

float DepuisLineaire(double part) {
    return static_cast<float>(part <= 0.0031308 ? part * 12.92
                                                : 1.055 * std::pow(part, 1 / 2.4) - 0.055);
}

double Luminance(const QColor& couleur) {
    return 0.2126 * Lineaire(couleur.redF()) + 0.7152 * Lineaire(couleur.greenF()) +
           0.0722 * Lineaire(couleur.blueF());
}

}  // namespace

QColor Encre(const QColor& couleur) {
    const double luminance = Luminance(couleur);
    if (luminance <= luminanceEncre) return couleur;
    const double part = luminanceEncre / luminance;
    const auto assombrie = [part](float valeur) {
        return DepuisLineaire(Lineaire(static_cast<double>(valeur)) * part);
    };
    return QColor::fromRgbF(assombrie(couleur.redF()), assombrie(couleur.greenF()),
                            assombrie(couleur.blueF()), couleur.alphaF());
}

Apparence ApparencePapier(const Apparence& ecran) {
    const QColor noir(0x1a, 0x1a, 0x1a);
    Apparence papier = ecran;
    papier.papier = true;
    papier.panneau = Qt::white;
    papier.cadre = Qt::white;
    papier.grille = QColor(0xd4, 0xd8, 0xdd);
    papier.ligneAxes = QColor(0x55, 0x5c, 0x66);
    for (QColor* texte : {&papier.texteAxes, &papier.titreAxes, &papier.titre, &papier.legende})
        *texte = noir;
    papier.trait = [](Couleur couleur) { return Encre(VersQColor(couleur)); };
    return papier;
}

}  // namespace bornika
