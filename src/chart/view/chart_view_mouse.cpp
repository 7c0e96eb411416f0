#include "chart/view/chart_view_mouse.h"

#include <cmath>
#include <cstdlib>
#include <utility>

#include "chart/view/chart_plot.h"
#include "chart/view/chart_view_legend.h"

namespace bornika {

namespace {

/// A drag shorter than this, in pixels, is a click.
constexpr int tirageMinimal = 6;
/// One notch of the wheel shows that part of the time shown before.
constexpr double partCran = 0.8;

QCPRange EtendueTiree(const QCPAxis& axe, const QCPRange& depart, QPoint de, QPoint a) {
    // In pixels of the axis, so that the point under the mouse stays under it.
    const bool horizontal = axe.orientation() == Qt::Horizontal;
    const double pixels = horizontal ? a.x() - de.x() : de.y() - a.y();
    const double longueur = horizontal ? axe.axisRect()->width() : axe.axisRect()->height();
    if (longueur < 1) return depart;
    return depart - pixels / longueur * depart.size();
}

}  // namespace

GestesGraphe::GestesGraphe(DessinGraphe& vue) : vue_(vue), bande_(&vue) {}

void GestesGraphe::Appuyer(const QMouseEvent& evenement) {
    if (geste_ != Geste::Aucun) return;
    const QPoint position = evenement.position().toPoint();
    if (evenement.button() == Qt::LeftButton) {
        const int serie = SerieSousLegende(*vue_.legend, evenement.position());
        if (serie >= 0) {
            vue_.BasculerSerie(serie);
            return;
        }
    }
    depart_ = position;
    clicDroit_ = evenement.button() == Qt::RightButton;
    if (!vue_.axisRect()->rect().contains(position) || !vue_.PeutNaviguer()) return;
    if (evenement.button() == Qt::LeftButton && vue_.ZoomPermis()) {
        geste_ = Geste::Bande;
        bande_.Commencer(position);
    } else if (evenement.button() == Qt::RightButton && vue_.Defilement() != 0) {
        geste_ = Geste::Defilement;
        vue_.animation.Terminer();
        etenduesDepart_ = vue_.EtenduesVisibles();
    }
}

bool GestesGraphe::EstTirage(QPoint position) const {
    return (position - depart_).manhattanLength() >= tirageMinimal;
}

void GestesGraphe::Bouger(const QMouseEvent& evenement) {
    const QPoint position = evenement.position().toPoint();
    if (EstTirage(position)) clicDroit_ = false;
    if (geste_ == Geste::Bande && EstTirage(position)) {
        const QRect cadre = vue_.axisRect()->rect();
        bande_.Suivre({qBound(cadre.left(), position.x(), cadre.right()),
                       qBound(cadre.top(), position.y(), cadre.bottom())});
    }
    if (geste_ == Geste::Defilement && !clicDroit_) Tirer(position);
}

void GestesGraphe::Tirer(QPoint position) {
    vue_.setCursor(Qt::ClosedHandCursor);
    Etendues etendues = etenduesDepart_;
    if (vue_.Defilement() & 1)
        etendues.bas = EtendueTiree(*vue_.xAxis, etendues.bas, depart_, position);
    if (vue_.Defilement() & 2) {
        etendues.gauche = EtendueTiree(*vue_.yAxis, etendues.gauche, depart_, position);
        etendues.droite = EtendueTiree(*vue_.yAxis2, etendues.droite, depart_, position);
    }
    vue_.Montrer(etendues, QCustomPlot::rpQueuedReplot);
}

void GestesGraphe::Relacher(const QMouseEvent& evenement) {
    const QPoint position = evenement.position().toPoint();
    if (geste_ == Geste::Bande && evenement.button() == Qt::LeftButton) {
        geste_ = Geste::Aucun;
        bande_.hide();
        FinirBande(position);
    } else if (geste_ == Geste::Defilement && evenement.button() == Qt::RightButton) {
        geste_ = Geste::Aucun;
        if (!clicDroit_ || EstTirage(position)) Tirer(position);
        vue_.unsetCursor();
    }
    if (evenement.button() == Qt::RightButton && std::exchange(clicDroit_, false) &&
        !EstTirage(position))
        Q_EMIT vue_.MenuDemande(position);
}

void GestesGraphe::FinirBande(QPoint position) {
    const int largeur = position.x() - depart_.x();
    const int hauteur = std::abs(position.y() - depart_.y());
    if (std::abs(largeur) < tirageMinimal) return;
    if (largeur < 0) {
        vue_.AnnulerZoom();
        return;
    }
    const QRect cadre = vue_.axisRect()->rect();
    QRect zone = QRect(depart_, position).normalized() & cadre;
    if (hauteur < tirageMinimal) {
        // A flat drag means a span of time.
        zone.setTop(cadre.top());
        zone.setBottom(cadre.bottom());
    }
    vue_.ZoomerSur(zone);
}

void GestesGraphe::DoubleCliquer(const QMouseEvent& evenement) {
    if (evenement.button() != Qt::LeftButton) return;
    if (SerieSousLegende(*vue_.legend, evenement.position()) >= 0) {
        // The second click of two on a check box is a click.
        Appuyer(evenement);
        return;
    }
    geste_ = Geste::Aucun;
    bande_.hide();
    if (vue_.axisRect()->rect().contains(evenement.position().toPoint()) && vue_.ZoomPermis())
        vue_.AnnulerZoom();
}

void GestesGraphe::Rouler(const QWheelEvent& evenement) {
    const double crans = evenement.angleDelta().y() / 120.0;
    const QPointF position = evenement.position();
    if (crans == 0 || geste_ != Geste::Aucun || !vue_.PeutNaviguer() || !vue_.ZoomPermis() ||
        !vue_.axisRect()->rect().contains(position.toPoint()))
        return;
    vue_.ZoomerAutour(vue_.xAxis->pixelToCoord(position.x()), std::pow(partCran, crans));
}

}  // namespace bornika
