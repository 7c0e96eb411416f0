#include "chart/view/chart_view.h"

#include "chart/view/chart_plot.h"
#include "chart/view/chart_view_keys.h"

namespace bornika {

VueGraphe::VueGraphe(QWidget* parent) : QWidget(parent), toile_(new DessinGraphe(this)) {
    setFocusProxy(toile_);
    setFocusPolicy(toile_->focusPolicy());
    connect(toile_, &DessinGraphe::Zoom, this, &VueGraphe::Zoom);
    connect(toile_, &DessinGraphe::AnnulationZoom, this, &VueGraphe::AnnulationZoom);
    connect(toile_, &DessinGraphe::Dessin, this, &VueGraphe::Dessin);
    connect(toile_, &DessinGraphe::Redessin, this, &VueGraphe::Redessin);
    connect(toile_, &DessinGraphe::MenuDemande, this, &VueGraphe::MenuDemande);
    connect(toile_, &DessinGraphe::SourisBougee, this, &VueGraphe::SourisBougee);
}

void VueGraphe::Lier(ModeleGraphe& modele) {
    toile_->Lier(modele);
}

void VueGraphe::FixerApparence(const Apparence& apparence) {
    toile_->FixerApparence(apparence);
}

const Apparence& VueGraphe::ApparencePresente() const {
    return toile_->ApparencePresente();
}

void VueGraphe::FixerRegional(const Regional& regional) {
    toile_->FixerRegional(regional);
}

void VueGraphe::FixerAnimation(const ReglageAnimation& reglage) {
    toile_->animation.reglage = reglage;
}

const ReglageAnimation& VueGraphe::AnimationPresente() const {
    return toile_->animation.reglage;
}

Couleur VueGraphe::CouleurSerie(int position) const {
    return toile_->CouleurSerie(position);
}

void VueGraphe::Repaint() {
    toile_->Repaint();
}

void VueGraphe::RemettreEchelles() {
    toile_->RemettreEchelles();
}

bool VueGraphe::PresserTouche(int touche, Qt::KeyboardModifiers avec) {
    return bornika::PresserTouche(*toile_, touche, avec);
}

std::optional<QPointF> VueGraphe::PositionSouris(int serie) const {
    return toile_->PositionSouris(serie);
}

QSize VueGraphe::sizeHint() const {
    const QWidget& toile = *toile_;
    return toile.sizeHint();
}

QSize VueGraphe::minimumSizeHint() const {
    const QWidget& toile = *toile_;
    return toile.minimumSizeHint();
}

void VueGraphe::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    toile_->setGeometry(rect());
}

}  // namespace bornika
