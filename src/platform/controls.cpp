#include "platform/controls.h"

#include <QSignalBlocker>
#include <algorithm>
#include <cmath>

#include "platform/fault.h"

namespace bornika {

namespace {

constexpr int donneeAbsente = 381;
constexpr int pasAffiches = 1000;

}  // namespace

ListeDeroulante::ListeDeroulante(QWidget* parent) : QComboBox(parent) {
    connect(this, &QComboBox::activated, this, [this] {
        Q_EMIT ClicMain();
        Q_EMIT Clic();
    });
}

void ListeDeroulante::Vider() {
    const QSignalBlocker muet(this);
    clear();
    setCurrentIndex(-1);
}

void ListeDeroulante::Ajouter(const QString& texte, int position) {
    if (position < -1 || position > count()) LeverFaute(numero_faute::appelInvalide);
    const QSignalBlocker muet(this);
    const bool sansChoix = currentIndex() < 0;
    insertItem(position < 0 ? count() : position, texte, 0);
    if (sansChoix) setCurrentIndex(-1);
}

void ListeDeroulante::FixerDonnee(int position, std::int32_t donnee) {
    if (position < 0 || position >= count()) LeverFaute(donneeAbsente);
    setItemData(position, donnee);
}

std::int32_t ListeDeroulante::Donnee(int position) const {
    if (position < 0 || position >= count()) LeverFaute(donneeAbsente);
    return itemData(position).toInt();
}

void ListeDeroulante::Choisir(int index) {
    if (index < -1 || index >= count()) LeverFaute(numero_faute::valeurInvalide);
    {
        const QSignalBlocker muet(this);
        setCurrentIndex(index);
    }
    update();
    Q_EMIT Clic();
}

void ListeDeroulante::ChoisirSiPresent(int index) {
    if (index >= -1 && index < count()) Choisir(index);
}

BarreProgression::BarreProgression(QWidget* parent) : QProgressBar(parent) {
    setRange(0, pasAffiches);
    Montrer();
}

void BarreProgression::FixerMinimum(double minimum) {
    if (minimum > maximum_) LeverFaute(numero_faute::valeurInvalide);
    minimum_ = minimum;
    valeur_ = std::max(valeur_, minimum_);
    Montrer();
}

void BarreProgression::FixerMaximum(double maximum) {
    if (maximum < minimum_) LeverFaute(numero_faute::valeurInvalide);
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
    const double etendue = maximum_ - minimum_;
    const int pas =
        etendue > 0 ? static_cast<int>(std::lround((valeur_ - minimum_) / etendue * pasAffiches))
                    : 0;
    if (pas != value()) setValue(pas);
}

}  // namespace bornika
