#include "link/device_list.h"

#include <QPainter>
#include <QPainterPath>

namespace bornika {

namespace {

/// Plug at the left and socket at the right of the origin, with a gap between them.
void DessinerFiche(QPainter& peintre) {
    QPainterPath fil(QPointF(-92, 26));
    fil.cubicTo(QPointF(-78, 26), QPointF(-84, 0), QPointF(-58, 0));
    peintre.drawPath(fil);
    peintre.drawRoundedRect(QRectF(-58, -15, 34, 30), 5, 5);
    peintre.drawRect(QRectF(-24, -9, 16, 18));
    peintre.drawLine(QPointF(-18, -3), QPointF(-14, -3));
    peintre.drawLine(QPointF(-18, 3), QPointF(-14, 3));
    peintre.drawRoundedRect(QRectF(24, -22, 60, 44), 7, 7);
    peintre.drawRect(QRectF(24, -11, 14, 22));
    peintre.drawEllipse(QPointF(62, 0), 8, 8);
}

}  // namespace

ListeAppareils::ListeAppareils(QWidget* parent) : QListWidget(parent) {}

void ListeAppareils::paintEvent(QPaintEvent* evenement) {
    QListWidget::paintEvent(evenement);
    if (count() > 0) return;
    QPainter peintre(viewport());
    peintre.setRenderHint(QPainter::Antialiasing);
    peintre.translate(viewport()->rect().center());
    peintre.setPen(QPen(palette().color(QPalette::Disabled, QPalette::Text), 2, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    DessinerFiche(peintre);
}

}  // namespace bornika
