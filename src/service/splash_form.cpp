#include "service/splash_form.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "ui_splash_form.h"

namespace bornika {

namespace {

/// A plain drawing for a program built without its picture.
QPixmap Dessin(QSize taille) {
    QPixmap image(taille);
    image.fill(QColor(0x14, 0x1b, 0x24));
    QPainter peintre(&image);
    peintre.setRenderHint(QPainter::Antialiasing);
    QFont police = peintre.font();
    police.setPixelSize(taille.height() / 6);
    police.setBold(true);
    peintre.setFont(police);
    peintre.setPen(QColor(0xf0, 0xf3, 0xf6));
    peintre.drawText(QRect(QPoint(0, 0), taille).adjusted(0, 0, 0, -taille.height() / 3),
                     Qt::AlignCenter, QStringLiteral("BORNIKA"));
    QPainterPath courbe(QPointF(40, taille.height() * 0.75));
    courbe.lineTo(taille.width() * 0.4, taille.height() * 0.73);
    courbe.lineTo(taille.width() * 0.45, taille.height() * 0.58);
    courbe.lineTo(taille.width() * 0.5, taille.height() * 0.86);
    courbe.lineTo(taille.width() * 0.55, taille.height() * 0.74);
    courbe.lineTo(taille.width() - 40, taille.height() * 0.75);
    peintre.setPen(QPen(QColor(0x4f, 0xc3, 0xf7), 3));
    peintre.drawPath(courbe);
    return image;
}

}  // namespace

frmSplash::frmSplash(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      ui(std::make_unique<Ui::frmSplash>()) {
    ui->setupUi(this);
    QPixmap image(QStringLiteral(":/images/splash.png"));
    ui->Image1->setPixmap(image.isNull() ? Dessin(size()) : image);
    if (!image.isNull()) resize(image.size() / image.devicePixelRatio());
    ui->Image1->installEventFilter(this);
    Timer1.setSingleShot(true);
    connect(&Timer1, &QTimer::timeout, this, &QWidget::close);
}

frmSplash::~frmSplash() = default;

bool frmSplash::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui->Image1 && evenement->type() == QEvent::MouseButtonRelease) {
        close();
        return true;
    }
    return QWidget::eventFilter(objet, evenement);
}

void frmSplash::keyPressEvent(QKeyEvent*) {
    close();
}

void frmSplash::closeEvent(QCloseEvent* evenement) {
    Timer1.stop();
    QWidget::closeEvent(evenement);
}

}  // namespace bornika
