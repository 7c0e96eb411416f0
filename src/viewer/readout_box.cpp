#include "viewer/readout_box.h"

#include <QLineEdit>

namespace bornika {

void MontrerLecture(QLineEdit& boite, const QString& texte, Couleur couleur) {
    boite.setText(texte);
    QPalette palette = boite.palette();
    if (palette.color(QPalette::Text) == VersQColor(couleur)) return;
    palette.setColor(QPalette::Text, VersQColor(couleur));
    boite.setPalette(palette);
}

}  // namespace bornika
