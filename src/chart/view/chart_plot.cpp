#include "chart/view/chart_plot.h"

#include "chart/view/chart_view_cursor.h"
#include "chart/view/chart_view_curves.h"
#include "chart/view/chart_view_keys.h"
#include "chart/view/chart_view_legend.h"
#include "chart/view/chart_view_marks.h"
#include "chart/view/chart_view_mouse.h"
#include "chart/view/chart_view_text.h"
#include "chart/view/chart_view_ticker.h"
#include "chart/view/chart_view_tools.h"
#include "platform/guard.h"

namespace bornika {

namespace {

constexpr int colonnesLegende = 4;
/// Below title and legend.
constexpr int rangeeAnnotation = 2;

QCPRange DePlage(const Plage& plage) {
    // One single instant still needs a width to be drawn in.
    if (plage.min == plage.max) return {plage.min - 0.5, plage.max + 0.5};
    return {plage.min, plage.max};
}

}  // namespace

DessinGraphe::DessinGraphe(QWidget* parent)
    : QCustomPlot(parent),
      courbes_(std::make_unique<CourbesGraphe>(*this)),
      outils_(std::make_unique<OutilsGraphe>(*this)),
      gestes_(std::make_unique<GestesGraphe>(*this)),
      curseur_(std::make_unique<CurseurDessine>(*this)),
      marques_(new MarquesGraphe(this)) {
    setFocusPolicy(Qt::StrongFocus);
    setInteractions(QCP::iNone);
    setAutoAddPlottableToLegend(false);
    setNotAntialiasedElements(QCP::aePlottables);
    PoserElements();
    FixerApparence(apparence_);
    connect(this, &QCustomPlot::beforeReplot, this, [this] { AvantDessin(); });
    connect(this, &QCustomPlot::afterReplot, this, [this] { garder([&] { Q_EMIT Redessin(); }); });
}

DessinGraphe::~DessinGraphe() = default;

void DessinGraphe::PoserElements() {
    axisRect()->insetLayout()->take(legend);
    titre_ = new TexteGraphe(this, Qt::AlignHCenter);
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

void DessinGraphe::Lier(ModeleGraphe& modele) {
    modele_ = &modele;
    marques_->Lier(modele);
    xAxis->setTicker(QSharedPointer<EtiquettesTemps>::create(modele, *xAxis));
}

void DessinGraphe::FixerApparence(const Apparence& apparence) {
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

void DessinGraphe::FixerRegional(const Regional& regional) {
    marques_->FixerRegional(regional);
    QLocale nombres(regional.separateur == QLatin1String(",") ? QLocale::French : QLocale::C);
    nombres.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(nombres);
}

Couleur DessinGraphe::CouleurSerie(int position) const {
    return CouleurCourbe(*modele_, position, apparence_);
}

void DessinGraphe::Repaint() {
    if (!modele_) return;
    if (!isVisible()) {
        AnnoncerDessin();
        return;
    }
    Accorder();
    replot(rpQueuedRefresh);
}

/// A redraw asked for by what `Dessin` runs is the one that is under way.
void DessinGraphe::AnnoncerDessin() {
    if (annonce_) return;
    annonce_ = true;
    garder([&] { Q_EMIT Dessin(); });
    annonce_ = false;
}

void DessinGraphe::AvantDessin() {
    if (!modele_) return;
    AnnoncerDessin();
    outils_->Accorder(*modele_, apparence_);
}

void DessinGraphe::showEvent(QShowEvent* evenement) {
    QCustomPlot::showEvent(evenement);
    Repaint();
}

void DessinGraphe::Reproduire(const DessinGraphe& autre, const Apparence& apparence) {
    if (!autre.modele_) return;
    Lier(*autre.modele_);
    FixerRegional(autre.marques_->RegionalPresent());
    FixerApparence(apparence);
    const Etendues etendues = autre.EtenduesVisibles();
    yAxis->setRange(etendues.gauche);
    yAxis2->setRange(etendues.droite);
    echellesFixes_ = autre.echellesFixes_;
    Accorder();
    outils_->Accorder(*modele_, apparence_);
    // A picture is made once: there is time for smooth edges.
    setNotAntialiasedElements(QCP::aeNone);
    for (int i = 0; i < graphCount(); ++i)
        graph(i)->setAntialiased(true);
}

void DessinGraphe::Accorder() {
    courbes_->Accorder(*modele_, apparence_);
    AccorderTitre();
    AccorderAnnotation();
    AccorderAxes();
    AccorderLegende();
    AccorderPlage();
}

void DessinGraphe::updateLayout() {
    RangerLegende();
    QCustomPlot::updateLayout();
    // Labels are chosen before the room for them is known: after a change of size once more.
    if (axisRect()->size() == taillePosee_) return;
    QCustomPlot::updateLayout();
    taillePosee_ = axisRect()->size();
}

void DessinGraphe::AccorderTitre() {
    titre_->setText(modele_->titre.join(QLatin1Char('\n')));
    titre_->setVisible(!modele_->titre.isEmpty());
}

/// Its line is there only while it says something: it takes its room from the frame.
void DessinGraphe::AccorderAnnotation() {
    QString texte;
    for (int i = 0; i < modele_->NombreOutils() && texte.isEmpty(); ++i) {
        const OutilGraphe& outil = modele_->Outil(i);
        if (outil.genre == OutilGraphe::Genre::Annotation && outil.actif) texte = outil.texte;
    }
    if (texte.isEmpty()) {
        if (annotation_) plotLayout()->remove(annotation_);
        annotation_ = nullptr;
        plotLayout()->simplify();
        return;
    }
    if (!annotation_) {
        annotation_ = new TexteGraphe(this, Qt::AlignLeft);
        annotation_->setMargins(QMargins(8, 2, 8, 2));
        plotLayout()->insertRow(rangeeAnnotation);
        plotLayout()->addElement(rangeeAnnotation, 0, annotation_);
        plotLayout()->setRowStretchFactor(rangeeAnnotation, 0.001);
    }
    annotation_->setFont(legend->font());
    annotation_->setTextColor(apparence_.titre);
    annotation_->setText(texte);
}

void DessinGraphe::AccorderAxes() {
    yAxis->setLabel(modele_->gauche.titre);
    yAxis2->setLabel(modele_->droite.titre);
    const CouleursEtiquettes& couleurs = modele_->couleursEtiquettes;
    const auto etiquettes = [this](const std::optional<Couleur>& couleur) {
        return couleur && !apparence_.papier ? VersQColor(*couleur) : apparence_.texteAxes;
    };
    xAxis->setTickLabelColor(etiquettes(couleurs.bas));
    yAxis->setTickLabelColor(etiquettes(couleurs.gauche));
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

void DessinGraphe::AccorderLegende() {
    legend->setVisible(modele_->legendeVisible && modele_->legendeCases);
    std::vector<int> listees;
    for (int i = 0; i < modele_->NombreSeries(); ++i)
        if (modele_->Serie(i).active || !apparence_.papier) listees.push_back(i);
    if (ElementsLegende(*legend).size() != listees.size()) {
        legend->clearItems();
        for (const int serie : listees) {
            auto* element = new ElementLegende(legend, serie, !apparence_.papier);
            element->Habiller(legend->font(), legend->textColor());
            legend->addItem(element);
        }
    }
    for (ElementLegende* element : ElementsLegende(*legend)) {
        const SerieGraphe& serie = modele_->Serie(element->Serie());
        element->Regler(serie.titre, apparence_.trait(CouleurSerie(element->Serie())),
                        serie.active);
    }
}

/// As many columns as the widest entry leaves room for.
void DessinGraphe::RangerLegende() {
    int large = 1;
    for (const QCPLayoutElement* element : ElementsLegende(*legend))
        large = std::max(large, element->minimumOuterSizeHint().width());
    const int place = viewport().width() - legend->margins().left() - legend->margins().right();
    const int colonnes = std::clamp(place / (large + legend->columnSpacing()), 1, colonnesLegende);
    if (legend->wrap() == colonnes) return;
    legend->setWrap(colonnes);
    legend->setFillOrder(legend->fillOrder(), true);
}

void DessinGraphe::AccorderPlage() {
    const Plage& plage = modele_->bas.plage;
    // An empty range (smallest above largest, as after a load without a line) draws nothing.
    xAxis->setRange(plage.EstVide() ? QCPRange(0, 1) : DePlage(plage));
}

bool DessinGraphe::PeutNaviguer() const {
    return modele_ && modele_->NombreSeries() > 0 && !modele_->bas.plage.EstVide();
}

Etendues DessinGraphe::EtenduesVisibles() const {
    return {xAxis->range(), yAxis->range(), yAxis2->range()};
}

Etendues DessinGraphe::EtenduesEntieres() const {
    Etendues etendues = EtenduesVisibles();
    etendues.bas = DePlage(modele_->PlageMontrable());
    courbes_->Etendue(SerieGraphe::Axe::Gauche, etendues.gauche);
    courbes_->Etendue(SerieGraphe::Axe::Droite, etendues.droite);
    return etendues;
}

void DessinGraphe::Montrer(const Etendues& etendues, RefreshPriority priorite) {
    modele_->MontrerPlage({etendues.bas.lower, etendues.bas.upper});
    xAxis->setRange(etendues.bas);
    yAxis->setRange(etendues.gauche);
    yAxis2->setRange(etendues.droite);
    echellesFixes_ = true;
    if (isVisible()) replot(priorite);
}

void DessinGraphe::BasculerSerie(int serie) {
    SerieGraphe& courbe = modele_->Serie(serie);
    courbe.active = !courbe.active;
    Repaint();
}

std::optional<QPointF> DessinGraphe::PositionSouris(int serie) const {
    if (!souris_ || !PeutNaviguer() || serie < 0 || serie >= modele_->NombreSeries()) return {};
    const bool gauche = modele_->Serie(serie).axe == SerieGraphe::Axe::Gauche;
    return QPointF(xAxis->pixelToCoord(souris_->x()),
                   (gauche ? yAxis : yAxis2)->pixelToCoord(souris_->y()));
}

void DessinGraphe::SuivreSouris(QPointF position) {
    souris_ = position;
    if (modele_ && DeplacerCurseur(*modele_, xAxis->pixelToCoord(position.x())))
        curseur_->Bouger(*modele_);
    Q_EMIT SourisBougee();
}

void DessinGraphe::paintEvent(QPaintEvent* evenement) {
    QCustomPlot::paintEvent(evenement);
    if (!modele_) return;
    QPainter peintre(this);
    curseur_->Peindre(peintre, *modele_);
    if (hasFocus() && focusClavier_) {
        peintre.setPen(apparence_.texteAxes);
        peintre.drawRect(axisRect()->rect().adjusted(-1, -1, 0, 0));
    }
}

void DessinGraphe::focusInEvent(QFocusEvent* evenement) {
    focusClavier_ = evenement->reason() == Qt::TabFocusReason ||
                    evenement->reason() == Qt::BacktabFocusReason ||
                    evenement->reason() == Qt::ShortcutFocusReason;
    QCustomPlot::focusInEvent(evenement);
}

void DessinGraphe::keyPressEvent(QKeyEvent* evenement) {
    bool prise = gestes_->EnCours();
    if (!prise)
        garder([&] { prise = PresserTouche(*this, evenement->key(), evenement->modifiers()); });
    evenement->setAccepted(prise);
}

void DessinGraphe::mousePressEvent(QMouseEvent* evenement) {
    // The toolkit's own handling would measure the distance to every point of every curve.
    Q_EMIT mousePress(evenement);
    garder([&] { gestes_->Appuyer(*evenement); });
    evenement->accept();
}

void DessinGraphe::mouseMoveEvent(QMouseEvent* evenement) {
    Q_EMIT mouseMove(evenement);
    garder([&] {
        gestes_->Bouger(*evenement);
        SuivreSouris(evenement->position());
    });
    evenement->accept();
}

void DessinGraphe::mouseReleaseEvent(QMouseEvent* evenement) {
    Q_EMIT mouseRelease(evenement);
    garder([&] { gestes_->Relacher(*evenement); });
    evenement->accept();
}

void DessinGraphe::mouseDoubleClickEvent(QMouseEvent* evenement) {
    Q_EMIT mouseDoubleClick(evenement);
    garder([&] { gestes_->DoubleCliquer(*evenement); });
    evenement->accept();
}

void DessinGraphe::contextMenuEvent(QContextMenuEvent* evenement) {
    // By the mouse it comes with the press, when it may still become a drag.
    if (evenement->reason() != QContextMenuEvent::Keyboard) return;
    garder([&] { Q_EMIT MenuDemande(axisRect()->rect().center()); });
}

void DessinGraphe::wheelEvent(QWheelEvent* evenement) {
    Q_EMIT mouseWheel(evenement);
    garder([&] { gestes_->Rouler(*evenement); });
    evenement->accept();
}

}  // namespace bornika
