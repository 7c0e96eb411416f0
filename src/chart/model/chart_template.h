#pragma once

#include <QColor>
#include <QString>
#include <vector>

#include "chart/model/chart_model.h"

namespace bornika {

/// What the chart looks like where the program does not say: fonts, colours of its panel and frame.
struct Apparence {
    QColor panneau{0x14, 0x19, 0x1f};
    QColor cadre{0x00, 0x00, 0x00};
    QColor grille{0x33, 0x3c, 0x46};
    QColor ligneAxes{0x8a, 0x96, 0xa3};
    QColor texteAxes{0xc8, 0xd0, 0xd8};
    QColor titreAxes{0xe4, 0xe8, 0xec};
    QColor titre{0xf4, 0xf6, 0xf8};
    QColor legende{0xe4, 0xe8, 0xec};
    /// Family of all fonts of the chart, empty for that of the form.
    QString police;
    int tailleAxes = 9;
    int tailleTitre = 11;
    int tailleLegende = 9;
    /// Colours of series that were given none, by position, then again from the first.
    std::vector<Couleur> palette{0xF7C34F};

    Couleur CouleurSerie(int position) const;

    /// On paper nothing can be clicked: the legend lists what is drawn, without check boxes.
    bool papier = false;
    /// How the colour of a curve or of a tool is drawn.
    QColor (*trait)(Couleur) = VersQColor;
};

/// The chart template: the looks and the tools.
struct Gabarit {
    Apparence apparence;
    std::vector<OutilGraphe> outils;
};

/// Reads a template file. Fault 53 when it is missing, 321 when it is malformed.
Gabarit LireGabarit(const QString& chemin);

namespace numero_faute {
inline constexpr int formatDeFichier = 321;
}

}  // namespace bornika
