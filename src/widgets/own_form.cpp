#include "widgets/own_form.h"

#include <QWidget>

namespace bornika {

bool EstFicheDuProgramme(const QWidget& fenetre) {
    return dynamic_cast<const FicheDuProgramme*>(&fenetre) != nullptr;
}

}  // namespace bornika
