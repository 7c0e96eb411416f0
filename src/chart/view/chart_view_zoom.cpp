#include "chart/view/chart_view_zoom.h"

#include <QPainter>
#include <utility>

namespace bornika {

namespace {

QCPRange Entre(const QCPRange& depart, const QCPRange& cible, double part) {
    return {depart.lower + (cible.lower - depart.lower) * part,
            depart.upper + (cible.upper - depart.upper) * part};
}

}  // namespace

Etendues Entre(const Etendues& depart, const Etendues& cible, double part) {
    return {Entre(depart.bas, cible.bas, part), Entre(depart.gauche, cible.gauche, part),
            Entre(depart.droite, cible.droite, part)};
}

AnimationZoom::AnimationZoom(QObject* parent) : QObject(parent) {
    connect(&chrono_, &QTimer::timeout, this, &AnimationZoom::Avancer);
}

void AnimationZoom::Demarrer(const Etendues& depart, const Etendues& cible,
                             std::function<void(const Etendues&)> appliquer,
                             std::function<void()> fin) {
    Terminer();
    depart_ = depart;
    cible_ = cible;
    appliquer_ = std::move(appliquer);
    fin_ = std::move(fin);
    fait_ = 0;
    chrono_.start(reglage.intervalle);
    if (!reglage.animee || reglage.pas < 2)
        Terminer();
    else
        Avancer();
}

void AnimationZoom::Avancer() {
    if (!EnCours()) return;
    ++fait_;
    const bool derniere = fait_ >= reglage.pas;
    if (derniere) chrono_.stop();
    appliquer_(derniere ? cible_ : Entre(depart_, cible_, double(fait_) / reglage.pas));
    if (derniere && fin_) std::exchange(fin_, {})();
}

void AnimationZoom::Terminer() {
    if (!EnCours()) return;
    fait_ = reglage.pas;
    Avancer();
}

void AnimationZoom::Abandonner() {
    chrono_.stop();
    fin_ = {};
}

BandeZoom::BandeZoom(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void BandeZoom::Commencer(QPoint origine) {
    origine_ = position_ = origine;
    setGeometry(QRect(origine, QSize(1, 1)));
}

void BandeZoom::Suivre(QPoint position) {
    position_ = position;
    setGeometry(Zone());
    show();
}

void BandeZoom::paintEvent(QPaintEvent*) {
    QPainter peintre(this);
    peintre.fillRect(rect(), QColor(255, 255, 255, 40));
    peintre.setPen(QPen(QColor(255, 255, 255, 200), 1, Qt::DashLine));
    peintre.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace bornika
