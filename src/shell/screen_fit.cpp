#include "shell/screen_fit.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>

#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

// Logical pixels of a title bar, or of the desktop's bar where it does not tell its own height.
constexpr int hauteurBarre = 40;

void LimiterAuxEcrans(MainScreen& ecran) {
    const QScreen& moniteur = *ecran.screen();
    int barres = hauteurBarre;
    if (moniteur.availableGeometry() == moniteur.geometry()) barres += hauteurBarre;
    const int menus = ecran.ui->BarreMenus->sizeHint().height();
    ecran.ui->ZoneDefilement->LimiterHauteur(moniteur.availableGeometry().height() - barres -
                                             menus);
}

/// The form has a window whose screen can change from its first show on.
class SuiviMoniteur : public QObject {
  public:
    explicit SuiviMoniteur(MainScreen& ecran) : QObject(&ecran), ecran_(ecran) {}

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (evenement->type() == QEvent::Show) {
            objet->removeEventFilter(this);
            connect(ecran_.windowHandle(), &QWindow::screenChanged, this,
                    [this] { LimiterAuxEcrans(ecran_); });
        }
        return QObject::eventFilter(objet, evenement);
    }

  private:
    MainScreen& ecran_;
};

}  // namespace

void TenirDansEcran(MainScreen& ecran) {
    LimiterAuxEcrans(ecran);
    for (const QScreen* moniteur : QGuiApplication::screens())
        QObject::connect(moniteur, &QScreen::availableGeometryChanged, &ecran,
                         [&ecran] { LimiterAuxEcrans(ecran); });
    ecran.installEventFilter(new SuiviMoniteur(ecran));
}

}  // namespace bornika
