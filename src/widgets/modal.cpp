#include "widgets/modal.h"

namespace bornika {

namespace {

Montreur& MontreurActuel() {
    static Montreur montreur;
    return montreur;
}

}  // namespace

void ReglerMontreur(Montreur montreur) {
    MontreurActuel() = std::move(montreur);
}

void MontrerModal(QDialog& dialogue) {
    if (MontreurActuel())
        MontreurActuel()(dialogue);
    else
        dialogue.exec();
}

}  // namespace bornika
