#include "service/splash_form.h"

#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QStyle>

#include "shell/images.h"
#include "ui_splash_form.h"

namespace bornika {

frmSplash::frmSplash(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      ui(std::make_unique<Ui::frmSplash>()) {
    ui->setupUi(this);
    InitialiserImages();
    const QPixmap image(QStringLiteral(":/images/splash.png"));
    ui->Image1->setPixmap(image);
    // A window without a frame stands where it is put: not every desktop finds it a place.
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, image.size(),
                                    screen()->availableGeometry()));
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
