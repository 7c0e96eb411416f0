#include "link/connect_form.h"

#include <QKeyEvent>

#include "link/device_discovery.h"
#include "platform/guard.h"
#include "shell/captions.h"
#include "ui_connect_form.h"

namespace bornika {

namespace {

bool EstValidation(const QEvent& evenement) {
    if (evenement.type() != QEvent::KeyPress) return false;
    const int touche = static_cast<const QKeyEvent&>(evenement).key();
    return touche == Qt::Key_Return || touche == Qt::Key_Enter || touche == Qt::Key_Space;
}

}  // namespace

frmConnect::frmConnect(Poste& lePoste, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmConnect>()), poste(lePoste) {
    ui->setupUi(this);
    brancher(ui->ViewAll, &QCheckBox::toggled, this, [this] { ViewAll_Click(*this); });
    brancher(ui->Listekrow, &QListWidget::itemClicked, this, [this] { Listekrow_Click(*this); });
    brancher(ui->ExitEtalonnage, &QPushButton::clicked, this,
             [this] { ExitEtalonnage_Click(*this); });
    brancher(&Veille.Minuterie(), &QTimer::timeout, this, [this] { Veiller(*this); });
    ui->Listekrow->installEventFilter(this);
}

frmConnect::~frmConnect() = default;

void frmConnect::Charger() {
    Veille.Batir([this] {
        setWindowTitle(poste.ecran.Texte(QStringLiteral("mnuconnect")));
        FixerCaption(*ui->ViewAll, poste.ecran.Texte(QStringLiteral("View All")));
        FixerCaption(*ui->ExitEtalonnage, poste.ecran.Texte(QStringLiteral("Cancel")));
        ui->ViewAll->setChecked(false);
        Veille.RetenirChoix(poste.ecran.etat.UsbID);
        Enumere(*this, false);
    });
    Veille.Commencer();
}

bool frmConnect::eventFilter(QObject* objet, QEvent* evenement) {
    if (objet == ui->Listekrow && EstValidation(*evenement)) {
        garder([this] { Listekrow_Click(*this); });
        return true;
    }
    return QDialog::eventFilter(objet, evenement);
}

}  // namespace bornika
