#include "platform/colour.h"

#include <QColor>

namespace bornika {

QColor VersQColor(Couleur couleur) {
    return QColor(static_cast<int>(couleur & 0xFF), static_cast<int>((couleur >> 8) & 0xFF),
                  static_cast<int>((couleur >> 16) & 0xFF));
}

Couleur DepuisQColor(const QColor& couleur) {
    return static_cast<Couleur>(couleur.red()) | static_cast<Couleur>(couleur.green()) << 8 |
           static_cast<Couleur>(couleur.blue()) << 16;
}

}  // namespace bornika
