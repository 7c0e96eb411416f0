#include "widgets/modal.h"

namespace bornika {

namespace {

Montreur& Actuel() {
    static Montreur montreur;
    return montreur;
}

}  // namespace

void ReglerMontreur(Montreur montreur) {
    Actuel() = std::move(montreur);
}

void MontrerModal(QDialog& dialogue) {
    if (Actuel())
        Actuel()(dialogue);
    else
        dialogue.exec();
}

}  // namespace bornika
