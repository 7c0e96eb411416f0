#include "widgets/kept_place.h"

#include <QWidget>

namespace bornika {

void GarderLaPlace(QWidget& controle) {
    QSizePolicy regle = controle.sizePolicy();
    regle.setRetainSizeWhenHidden(true);
    controle.setSizePolicy(regle);
}

}  // namespace bornika
