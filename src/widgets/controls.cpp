#include "widgets/controls.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "platform/fault.h"

namespace bornika {

namespace {

// Steps of a displayed bar: finer ones would be repainted without being seen.
constexpr int pasAffiches = 1000;

}  // namespace

ListeDeroulante::ListeDeroulante(QWidget* parent) : QComboBox(parent) {
    // The toolkit reports a choice by hand also for the entry that is chosen already.
    connect(this, &QComboBox::activated, this, [this] {
        Q_EMIT ClicMain();
        Q_EMIT Clic();
    });
}

void ListeDeroulante::Vider() {
    const QSignalBlocker silence(this);
    clear();
    donnees_.clear();
    update();
}

void ListeDeroulante::Ajouter(const QString& texte, int position) {
    if (position < -1 || position > count()) LeverFaute(numero_faute::appelInvalide);
    const QSignalBlocker silence(this);
    const bool aucunChoix = currentIndex() < 0;
    const int place = position < 0 ? count() : position;
    donnees_.resize(count());
    donnees_.insert(place, 0);
    insertItem(place, texte);
    if (aucunChoix) setCurrentIndex(-1);
    update();
}

void ListeDeroulante::FixerDonnee(int position, std::int32_t donnee) {
    if (position < 0 || position >= count()) LeverFaute(numero_faute::entreeAbsente);
    donnees_.resize(count());
    donnees_[position] = donnee;
}

std::int32_t ListeDeroulante::Donnee(int position) const {
    if (position < 0 || position >= count()) LeverFaute(numero_faute::entreeAbsente);
    return donnees_.value(position);
}

void ListeDeroulante::Choisir(int index) {
    if (index < -1 || index >= count()) LeverFaute(numero_faute::valeurInvalide);
    {
        const QSignalBlocker silence(this);
        setCurrentIndex(index);
    }
    update();
    Q_EMIT Clic();
}

void ListeDeroulante::ChoisirSiPresent(int index) {
    if (index >= -1 && index < count()) Choisir(index);
}

BarreProgression::BarreProgression(QWidget* parent) : QProgressBar(parent) {
    Montrer();
}

void BarreProgression::FixerMinimum(double minimum) {
    if (!(minimum <= maximum_)) LeverFaute(numero_faute::valeurInvalide);
    minimum_ = minimum;
    valeur_ = std::max(valeur_, minimum_);
    Montrer();
}

void BarreProgression::FixerMaximum(double maximum) {
    if (!(maximum >= minimum_)) LeverFaute(numero_faute::valeurInvalide);
    maximum_ = maximum;
    valeur_ = std::min(valeur_, maximum_);
    Montrer();
}

void BarreProgression::FixerValeur(double valeur) {
    if (!(valeur >= minimum_ && valeur <= maximum_)) LeverFaute(numero_faute::valeurInvalide);
    valeur_ = valeur;
    Montrer();
}

void BarreProgression::Montrer() {
    if (minimum() != 0 || maximum() != pasAffiches) setRange(0, pasAffiches);
    const double part =
        maximum_ > minimum_ ? (valeur_ - minimum_) / (maximum_ - minimum_) * pasAffiches : 0;
    const int affiche = static_cast<int>(std::lround(part));
    if (affiche != value()) setValue(affiche);
}

}  // namespace bornika
