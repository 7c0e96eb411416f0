#include "shell/scroll_zone.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLayout>
#include <QScrollBar>

namespace bornika {

namespace {

bool PrendLaRoue(const QObject& controle) {
    return qobject_cast<const QComboBox*>(&controle) ||
           qobject_cast<const QAbstractSpinBox*>(&controle);
}

}  // namespace

ZoneDefilante::ZoneDefilante(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
}

void ZoneDefilante::LimiterHauteur(int pixels) {
    limite_ = pixels;
    // The wheel would change the settings that it passes over on its way down.
    for (QWidget* controle : findChildren<QWidget*>())
        if (PrendLaRoue(*controle)) controle->installEventFilter(this);
    updateGeometry();
}

QSize ZoneDefilante::sizeHint() const {
    if (widget() == nullptr) return QScrollArea::sizeHint();
    const QSize voulue = widget()->sizeHint().expandedTo(widget()->minimumSizeHint());
    if (limite_ <= 0 || voulue.height() <= limite_) return voulue;
    return {voulue.width() + verticalScrollBar()->sizeHint().width(), limite_};
}

// At once: the next look at the form may come only when a reading has ended, and would show it as
// low as it was, with a scroll bar.
void ZoneDefilante::Suivre() {
    updateGeometry();
    if (QLayout* fiche = window()->layout()) fiche->activate();
}

bool ZoneDefilante::eventFilter(QObject* objet, QEvent* evenement) {
    // The toolkit has its own parts filtered here as well.
    if (objet == widget() && evenement->type() == QEvent::LayoutRequest) Suivre();
    if (PrendLaRoue(*objet) && evenement->type() == QEvent::Wheel &&
        verticalScrollBar()->maximum() > 0) {
        QCoreApplication::sendEvent(verticalScrollBar(), evenement);
        return true;
    }
    return QScrollArea::eventFilter(objet, evenement);
}

}  // namespace bornika
