#include "platform/pointer_shape.h"

#include <QVariant>
#include <QWidget>

namespace bornika {

namespace {

constexpr char propriete[] = "formePointeur";

}  // namespace

int PointeurSouris(const QWidget& fiche) {
    return fiche.property(propriete).toInt();
}

void FixerPointeurSouris(QWidget& fiche, int forme) {
    fiche.setProperty(propriete, forme);
    switch (forme) {
        case pointeur::defaut:
            fiche.unsetCursor();
            break;
        case pointeur::sablier:
            fiche.setCursor(Qt::WaitCursor);
            break;
        default:
            fiche.setCursor(Qt::ArrowCursor);
            break;
    }
}

}  // namespace bornika
