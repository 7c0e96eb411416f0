#include "widgets/pointer_shape.h"

#include <QCursor>
#include <QWidget>

#include "platform/fault.h"

namespace bornika {

int PointeurSouris(const QWidget& fiche) {
    if (!fiche.testAttribute(Qt::WA_SetCursor)) return pointeur::defaut;
    return fiche.cursor().shape() == Qt::WaitCursor ? pointeur::sablier : pointeur::fleche;
}

void FixerPointeurSouris(QWidget& fiche, int forme) {
    switch (forme) {
        case pointeur::defaut:
            fiche.unsetCursor();
            // The toolkit leaves this mark on windows.
            fiche.setAttribute(Qt::WA_SetCursor, false);
            return;
        case pointeur::fleche:
            fiche.setCursor(Qt::ArrowCursor);
            return;
        case pointeur::sablier:
            fiche.setCursor(Qt::WaitCursor);
            return;
        default:
            LeverFaute(numero_faute::valeurInvalide);
    }
}

}  // namespace bornika
