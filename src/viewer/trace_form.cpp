#include "viewer/trace_form.h"

#include <QCloseEvent>
#include <QPixmap>

#include "platform/guard.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_pages.h"
#include "viewer/trace_captions.h"
#include "viewer/viewer_settings.h"

static void PreparerImages() {
    Q_INIT_RESOURCE(viewer);
}

namespace bornika {

namespace {

constexpr int bord = 12;           // pixels between the form's frame and its controls
constexpr int ecart = 8;           // pixels between controls
constexpr int largeurDebit = 680;  // pixels, more would only tear the flow settings apart
constexpr int pasAnimation = 10;

}  // namespace

Trace::Occupation::~Occupation() {
    if (--trace_.operations_ == 0 && trace_.fermee_) Q_EMIT trace_.Repos();
}

Trace::Trace(MainScreen& ecran_) : ui(std::make_unique<Ui::Trace>()), ecran(ecran_) {
    PreparerImages();
    ui->setupUi(this);
    ui->Image1->setPixmap(QPixmap(QStringLiteral(":/images/curve.png")));
    ui->PicturePalette->setPixmap(QPixmap(QStringLiteral(":/images/palette.png")));
    LierGraphe();
    Charger();
}

Trace::~Trace() = default;

bool Trace::EnFermeture() const {
    return fermee_ || ecran.etat.EnFermeture;
}

void Trace::LierGraphe() {
    ui->TChart1->Lier(modele);
    ui->TChart1->FixerRegional(ecran.systeme.regional);
    modele.quandRedessiner = [this] { ui->TChart1->Repaint(); };
    connect(ui->ChartPageNavigator, &NavigateurPages::PageDemandee, this,
            [this](int page) { garder([&] { MontrerPage(*this, page); }); });
}

void Trace::Charger() {
    NomFichierCourant.clear();
    ui->TChart1->FixerAnimation({.animee = true, .pas = pasAnimation});
    ui->TChart1->hide();
    ui->ProgressBar->hide();
    TraduireControles(*this);
    AfficheAide(*this, ecran.Langue(), ecran.etat.AideValide);
    Disposer();
    PrendreMarges();
    ChargerReglagesDebit(*this);
    Chargement = false;
}

/// Places what the fonts of the machine make larger or smaller, before the margins are taken.
void Trace::Disposer() {
    const int rangee = ui->Sortir->sizeHint().height();
    for (QHBoxLayout* ligne : {ui->rangee1, ui->rangee2, ui->rangee3})
        ligne->addStrut(rangee);
    const int hauteur = qMax(ui->Image1->minimumHeight(), 3 * rangee + 2 * ui->rangees->spacing());
    ui->BandeauHaut->setGeometry(bord, bord - 2, width() - 2 * bord, hauteur);

    const int basCommentaires = ui->Commentaires->height();
    const int haut = ui->BandeauHaut->geometry().bottom() + 1 + ecart;
    ui->TChart1->setGeometry(bord, haut, width() - 2 * bord,
                             height() - haut - ecart - basCommentaires - bord);
    const int dessous = ui->TChart1->geometry().bottom() + 1 + ecart;
    ui->LabelCommentaires->adjustSize();
    ui->LabelCommentaires->move(bord, dessous);
    ui->Commentaires->move(ui->LabelCommentaires->geometry().right() + ecart, dessous);
}

void Trace::PrendreMarges() {
    const QRect graphe = ui->TChart1->geometry();
    MargeDroite = width() - (graphe.x() + graphe.width());
    MargeBas = height() - (graphe.y() + graphe.height());
    EcartCommentaires = ui->Commentaires->y() - (graphe.y() + graphe.height());
    chargee_ = true;
    Ajuster();
}

void Trace::Ajuster() {
    QRect graphe = ui->TChart1->geometry();
    const int largeur = width() - MargeDroite - graphe.x();
    if (largeur > 0) graphe.setWidth(largeur);
    const int hauteur = height() - MargeBas - graphe.y();
    if (hauteur > 0) graphe.setHeight(hauteur);
    ui->TChart1->setGeometry(graphe);

    const int dessous = graphe.y() + graphe.height() + EcartCommentaires;
    ui->Commentaires->move(ui->Commentaires->x(), dessous);
    ui->LabelCommentaires->move(ui->LabelCommentaires->x(), dessous);

    // The strips follow the frame, but are never squeezed below what they hold.
    QRect haut = ui->BandeauHaut->geometry();
    haut.setWidth(qMax(ui->BandeauHaut->minimumSizeHint().width(), width() - 2 * bord));
    ui->BandeauHaut->setGeometry(haut);
    const int gauche = ui->Commentaires->geometry().right() + 2 * ecart;
    const int place = qMin(largeurDebit, width() - bord - gauche);
    ui->BandeauBas->setGeometry(gauche, dessous,
                                qMax(ui->BandeauBas->minimumSizeHint().width(), place),
                                ui->Commentaires->height());
    ui->TChart1->Repaint();
}

void Trace::resizeEvent(QResizeEvent* evenement) {
    QWidget::resizeEvent(evenement);
    if (chargee_) garder([this] { Ajuster(); });
}

void Trace::closeEvent(QCloseEvent* evenement) {
    evenement->accept();
    fermee_ = true;
    hide();
    Q_EMIT Fermeture();
}

}  // namespace bornika
