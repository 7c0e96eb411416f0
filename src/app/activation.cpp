#include "app/activation.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include "platform/guard.h"
#include "service/splash_form.h"
#include "shell/main_screen.h"
#include "shell/window_width.h"
#include "widgets/own_form.h"

namespace bornika {

namespace {

constexpr int dureeSplash = 2000;  // milliseconds

QWidget* FenetreDe(const QWindow* fenetre) {
    for (QWidget* candidate : QApplication::topLevelWidgets())
        if (candidate->windowHandle() == fenetre) return candidate;
    return nullptr;
}

}  // namespace

Activation::Activation(MainScreen& ecran) : ecran_(ecran) {}

Activation::~Activation() {
    delete splash_;
}

frmSplash* Activation::Splash() const {
    return splash_;
}

void Activation::Activer() {
    if (ecran_.configuration.LitSplash() && !ecran_.etat.SplashAffiche) {
        splash_ = new frmSplash;
        splash_->setAttribute(Qt::WA_DeleteOnClose);
        splash_->show();
        splash_->Timer1.setInterval(dureeSplash);
        splash_->Timer1.start();
        ecran_.etat.SplashAffiche = true;
    }
    FixerLargeur(ecran_, ecran_.configuration.LitMaintenance());
    ecran_.etat.EnLecture = false;
}

SuiviActivation::SuiviActivation(QWidget& principale, std::function<void()> activer)
    : principale_(principale), activer_(std::move(activer)) {
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* fenetre) {
        if (fenetre == nullptr) return;
        if (QWidget* fiche = FenetreDe(fenetre)) garder([&] { FenetreActive(fiche); });
    });
}

void SuiviActivation::FenetreActive(QWidget* fenetre) {
    if (!EstFicheDuProgramme(*fenetre)) return;
    const bool revient = !dejaActivee_ || derniereFiche_ != fenetre;
    derniereFiche_ = fenetre;
    if (fenetre != &principale_) return;
    if (QWindow* cadre = principale_.windowHandle()) cadre->installEventFilter(this);
    if (!revient) return;
    dejaActivee_ = true;
    activer_();
}

bool SuiviActivation::eventFilter(QObject* objet, QEvent* evenement) {
    const QEvent::Type genre = evenement->type();
    if (genre == QEvent::MouseButtonPress || genre == QEvent::KeyPress)
        garder([this] { FenetreActive(&principale_); });
    return QObject::eventFilter(objet, evenement);
}

}  // namespace bornika
