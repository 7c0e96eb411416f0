#pragma once

class QWidget;

/// Shape of the mouse pointer over a form, by number: 0 default, 1 arrow, 11 hourglass.
namespace bornika {

namespace pointeur {
inline constexpr int defaut = 0;
inline constexpr int fleche = 1;
inline constexpr int sablier = 11;
}  // namespace pointeur

/// Number of the present shape; 1 for any shape that is neither the default nor the hourglass.
int PointeurSouris(const QWidget& fiche);
/// Gives the form that shape. Fault 380 for another number.
void FixerPointeurSouris(QWidget& fiche, int forme);

}  // namespace bornika
