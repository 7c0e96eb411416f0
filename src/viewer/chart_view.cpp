#include "viewer/chart_view.h"

#include <cmath>

#include "platform/guard.h"
#include "viewer/chart_view_curves.h"
#include "viewer/chart_view_legend.h"
#include "viewer/chart_view_mouse.h"
#include "viewer/chart_view_ticker.h"
#include "viewer/chart_view_tools.h"

namespace bornika {

namespace {

constexpr int colonnesLegende = 4;

/// The narrowest time span, as part of the whole, that a zoom shows.
constexpr double zoomExtreme = 1e-7;

QCPRange DePlage(const Plage& plage) {
    // One single instant still needs a width to be drawn in.
    if (plage.min == plage.max) return {plage.min - 0.5, plage.max + 0.5};
    return {plage.min, plage.max};
}

}  // namespace

VueGraphe::VueGraphe(QWidget* parent)
    : QCustomPlot(parent),
      courbes_(std::make_unique<CourbesGraphe>(*this)),
      outils_(std::make_unique<OutilsGraphe>(*this)),
      gestes_(std::make_unique<GestesGraphe>(*this)) {
    setInteractions(QCP::iNone);
    setAutoAddPlottableToLegend(false);
    setNotAntialiasedElements(QCP::aePlottables);
    PoserElements();
    FixerApparence(apparence_);
    connect(this, &QCustomPlot::afterReplot, this, [this] { garder([&] { Q_EMIT Redessin(); }); });
}

VueGraphe::~VueGraphe() = default;

void VueGraphe::PoserElements() {
    axisRect()->insetLayout()->take(legend);
    titre_ = new QCPTextElement(this);
    plotLayout()->insertRow(0);
    plotLayout()->addElement(0, 0, titre_);
    plotLayout()->insertRow(1);
    plotLayout()->addElement(1, 0, legend);
    plotLayout()->setRowStretchFactor(0, 0.001);
    plotLayout()->setRowStretchFactor(1, 0.001);
    plotLayout()->setRowSpacing(2);
    legend->setFillOrder(QCPLegend::foColumnsFirst);
    legend->setWrap(colonnesLegende);
    legend->setBorderPen(Qt::NoPen);
    legend->setBrush(Qt::NoBrush);
    legend->setMargins(QMargins(8, 2, 8, 2));
    xAxis->setSubTicks(false);
    // The grid carries the eye; boxes and sub ticks would only crowd the frame.
    for (QCPAxis* axe : {yAxis, yAxis2})
        axe->setSubTicks(false);
    yAxis2->setVisible(false);
    xAxis2->setVisible(true);
    xAxis2->setTicks(false);
    xAxis2->setTickLabels(false);
}

void VueGraphe::Lier(ModeleGraphe& modele) {
    modele_ = &modele;
    xAxis->setTicker(QSharedPointer<EtiquettesTemps>::create(modele, *xAxis));
}

void VueGraphe::FixerApparence(const Apparence& apparence) {
    apparence_ = apparence;
    QFont police = font();
    if (!apparence.police.isEmpty()) police.setFamily(apparence.police);
    police.setPointSize(apparence.tailleAxes);
    setBackground(QBrush(apparence.panneau));
    axisRect()->setBackground(QBrush(apparence.cadre));
    for (QCPAxis* axe : {xAxis, xAxis2, yAxis, yAxis2}) {
        axe->setBasePen(QPen(apparence.ligneAxes, 1));
        axe->setTickPen(QPen(apparence.ligneAxes, 1));
        axe->setLabelColor(apparence.titreAxes);
        axe->setLabelFont(police);
        axe->setTickLabelFont(police);
        axe->grid()->setPen(QPen(apparence.grille, 1));
        axe->grid()->setZeroLinePen(QPen(apparence.grille, 1));
    }
    police.setPointSize(apparence.tailleLegende);
    legend->setFont(police);
    legend->setTextColor(apparence.legende);
    legend->clearItems();
    police.setPointSize(apparence.tailleTitre);
    police.setBold(true);
    titre_->setFont(police);
    titre_->setTextColor(apparence.titre);
}

Couleur VueGraphe::CouleurSerie(int position) const {
    return modele_->Serie(position).couleur.value_or(apparence_.CouleurSerie(position));
}

void VueGraphe::Repaint() {
    if (!modele_ || !isVisible()) return;
    Accorder();
    replot(rpQueuedRefresh);
}

void VueGraphe::showEvent(QShowEvent* evenement) {
    QCustomPlot::showEvent(evenement);
    Repaint();
}

void VueGraphe::Accorder() {
    courbes_->Accorder(*modele_, apparence_);
    outils_->Accorder(*modele_, apparence_);
    AccorderTitre();
    AccorderAxes();
    AccorderLegende();
    AccorderPlage();
}

void VueGraphe::updateLayout() {
    QCustomPlot::updateLayout();
    // Labels are chosen before the room for them is known: after a change of size once more.
    if (axisRect()->size() == taillePosee_) return;
    QCustomPlot::updateLayout();
    taillePosee_ = axisRect()->size();
}

void VueGraphe::AccorderTitre() {
    titre_->setText(modele_->titre.join(QLatin1Char('\n')));
    titre_->setVisible(!modele_->titre.isEmpty());
}

void VueGraphe::AccorderAxes() {
    yAxis->setLabel(modele_->gauche.titre);
    yAxis2->setLabel(modele_->droite.titre);
    const CouleursEtiquettes& couleurs = modele_->couleursEtiquettes;
    xAxis->setTickLabelColor(couleurs.bas ? VersQColor(*couleurs.bas) : apparence_.texteAxes);
    yAxis->setTickLabelColor(couleurs.gauche ? VersQColor(*couleurs.gauche) : apparence_.texteAxes);
    yAxis2->setTickLabelColor(apparence_.texteAxes);

    const bool vide = modele_->bas.plage.EstVide();
    QCPRange etendue;
    const bool gauche = courbes_->Etendue(SerieGraphe::Axe::Gauche, etendue);
    if (gauche && !echellesFixes_) yAxis->setRange(etendue);
    const bool droite = courbes_->Etendue(SerieGraphe::Axe::Droite, etendue);
    if (droite && !echellesFixes_) yAxis2->setRange(etendue);
    yAxis2->setVisible(droite && !vide);
    // With the flow alone on the screen the left scale would tell nothing.
    yAxis->setTickLabels(gauche && !vide);
    yAxis->setTicks(gauche && !vide);
    yAxis->grid()->setVisible(gauche && !vide);
    yAxis2->grid()->setVisible(droite && !gauche && !vide);
}

void VueGraphe::AccorderLegende() {
    legend->setVisible(modele_->legendeVisible && modele_->legendeCases);
    if (legend->itemCount() != modele_->NombreSeries()) {
        legend->clearItems();
        for (int i = 0; i < modele_->NombreSeries(); ++i) {
            auto* element = new ElementLegende(legend, i);
            element->Habiller(legend->font(), legend->textColor());
            legend->addItem(element);
        }
    }
    for (int i = 0; i < modele_->NombreSeries(); ++i)
        if (auto* element = qobject_cast<ElementLegende*>(legend->item(i)))
            element->Regler(modele_->Serie(i).titre, VersQColor(CouleurSerie(i)),
                            modele_->Serie(i).active);
}

void VueGraphe::AccorderPlage() {
    const Plage& plage = modele_->bas.plage;
    // An empty range (smallest above largest, as after a load without a line) draws nothing.
    xAxis->setRange(plage.EstVide() ? QCPRange(0, 1) : DePlage(plage));
}

bool VueGraphe::PeutNaviguer() const {
    return modele_ && modele_->NombreSeries() > 0 && !modele_->bas.plage.EstVide();
}

Etendues VueGraphe::EtenduesVisibles() const {
    return {xAxis->range(), yAxis->range(), yAxis2->range()};
}

Etendues VueGraphe::EtenduesEntieres() const {
    Etendues etendues = EtenduesVisibles();
    const Plage montree = modele_->bas.plage;
    modele_->MontrerTout();
    etendues.bas = DePlage(modele_->bas.plage);
    modele_->MontrerPlage(montree);
    courbes_->Etendue(SerieGraphe::Axe::Gauche, etendues.gauche);
    courbes_->Etendue(SerieGraphe::Axe::Droite, etendues.droite);
    return etendues;
}

void VueGraphe::Montrer(const Etendues& etendues, RefreshPriority priorite) {
    modele_->MontrerPlage({etendues.bas.lower, etendues.bas.upper});
    xAxis->setRange(etendues.bas);
    yAxis->setRange(etendues.gauche);
    yAxis2->setRange(etendues.droite);
    echellesFixes_ = true;
    if (isVisible()) replot(priorite);
}

void VueGraphe::ZoomerSur(const QRect& zone) {
    animation.Terminer();
    const auto entre = [](const QCPAxis& axe, double un, double autre) {
        return QCPRange(axe.pixelToCoord(un), axe.pixelToCoord(autre));
    };
    Etendues cible;
    cible.bas = entre(*xAxis, zone.left(), zone.right());
    cible.gauche = entre(*yAxis, zone.bottom(), zone.top());
    cible.droite = entre(*yAxis2, zone.bottom(), zone.top());
    if (cible.bas.size() < EtenduesEntieres().bas.size() * zoomExtreme) return;
    animation.Demarrer(EtenduesVisibles(), cible, [this](const Etendues& e) { Montrer(e); });
    Q_EMIT Zoom();
}

void VueGraphe::ZoomerAutour(double centre, double facteur) {
    animation.Terminer();
    const QCPRange entiere = EtenduesEntieres().bas;
    Etendues cible = EtenduesVisibles();
    cible.bas.lower = centre + (cible.bas.lower - centre) * facteur;
    cible.bas.upper = centre + (cible.bas.upper - centre) * facteur;
    if (facteur > 1 && cible.bas.size() >= entiere.size()) {
        AnnulerZoom();
        return;
    }
    if (cible.bas.size() < entiere.size() * zoomExtreme) return;
    Montrer(cible);
    Q_EMIT Zoom();
}

void VueGraphe::AnnulerZoom() {
    if (!PeutNaviguer()) return;
    animation.Terminer();
    const Etendues entieres = EtenduesEntieres();
    if (!echellesFixes_) return;
    animation.Demarrer(
        EtenduesVisibles(), entieres, [this](const Etendues& e) { Montrer(e); },
        [this] { RemettreEchelles(); });
    Q_EMIT AnnulationZoom();
}

void VueGraphe::RemettreEchelles() {
    animation.Abandonner();
    echellesFixes_ = false;
    if (!modele_) return;
    modele_->MontrerTout();
    Repaint();
}

void VueGraphe::BasculerSerie(int serie) {
    SerieGraphe& courbe = modele_->Serie(serie);
    courbe.active = !courbe.active;
    Repaint();
}

void VueGraphe::mousePressEvent(QMouseEvent* evenement) {
    // The toolkit's own handling would measure the distance to every point of every curve.
    Q_EMIT mousePress(evenement);
    garder([&] { gestes_->Appuyer(*evenement); });
    evenement->accept();
}

void VueGraphe::mouseMoveEvent(QMouseEvent* evenement) {
    Q_EMIT mouseMove(evenement);
    garder([&] { gestes_->Bouger(*evenement); });
    evenement->accept();
}

void VueGraphe::mouseReleaseEvent(QMouseEvent* evenement) {
    Q_EMIT mouseRelease(evenement);
    garder([&] { gestes_->Relacher(*evenement); });
    evenement->accept();
}

void VueGraphe::mouseDoubleClickEvent(QMouseEvent* evenement) {
    Q_EMIT mouseDoubleClick(evenement);
    garder([&] { gestes_->DoubleCliquer(*evenement); });
    evenement->accept();
}

void VueGraphe::wheelEvent(QWheelEvent* evenement) {
    Q_EMIT mouseWheel(evenement);
    garder([&] { gestes_->Rouler(*evenement); });
    evenement->accept();
}

}  // namespace bornika
