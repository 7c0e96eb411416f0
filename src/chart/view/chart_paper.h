#pragma once

#include <QColor>

#include "chart/model/chart_template.h"

namespace bornika {

/// The looks of the chart on paper and in pictures: dark on white, with the fonts of the screen.
/// The template's colours are made for a dark panel, and a dark panel drinks ink.
Apparence ApparencePapier(const Apparence& ecran);

/// A colour that is readable as a thin line on white: its own hue, darkened as far as it takes. One
/// that is dark enough stays as it is.
QColor Encre(const QColor& couleur);

}  // namespace bornika
