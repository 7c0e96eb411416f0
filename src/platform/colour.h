#pragma once

#include <cstdint>

class QColor;

/// Colours are numbers 0xBBGGRR: 255 is red, 0xFF0000 is blue.
namespace bornika {

using Couleur = std::uint32_t;

QColor VersQColor(Couleur couleur);
Couleur DepuisQColor(const QColor& couleur);

}  // namespace bornika
