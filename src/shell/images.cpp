#include "shell/images.h"

#include <QDir>

// Outside any namespace, as the macro's declaration asks.
static void EnregistrerImages() {
    Q_INIT_RESOURCE(bornika);
}

namespace bornika {

void InitialiserImages() {
    EnregistrerImages();
}

}  // namespace bornika
