#include "calibration/calibration_form.h"

#include <QKeyEvent>

#include "calibration/calibration.h"
#include "platform/guard.h"
#include "shell/captions.h"
#include "ui_calibration_form.h"
#include "widgets/kept_place.h"

namespace bornika {

namespace {

// The reference that is not typed now is still one to be read.
void GarderLisible(QLineEdit& saisie) {
    QPalette couleurs = saisie.palette();
    couleurs.setColor(QPalette::Disabled, QPalette::Text,
                      couleurs.color(QPalette::Active, QPalette::WindowText));
    saisie.setPalette(couleurs);
}

}  // namespace

std::array<QWidget*, 6> RangeePoint::Controles() const {
    return {Labeltextepressionreelle, ValeurPressionReelle, Labelpressionreelle,
            Labeltextepressionlue,    ValeurPressionLue,    Labelpressionlue};
}

Etalonnage::Etalonnage(Poste& lePoste, QWidget* parent)
    : QDialog(parent),
      ui(std::make_unique<Ui::Etalonnage>()),
      poste(lePoste),
      ecran(lePoste.ecran) {
    ui->setupUi(this);
    RetenirCaptions(*this);
    for (QWidget* controle : Rangee(1).Controles())
        GarderLaPlace(*controle);
    for (const int rang : {0, 1})
        GarderLisible(*Rangee(rang).ValeurPressionReelle);
    const auto lier = [this](QPushButton* bouton, void (*operation)(Etalonnage&)) {
        brancher(bouton, &QPushButton::clicked, this, [this, operation] { operation(*this); });
    };
    lier(ui->EntrerEtalonnage, EntrerEtalonnage);
    lier(ui->SortirEtalonnage, SortirEtalonnage);
    lier(ui->LireEtalonnage, LireEtalonnage);
    brancher(ui->Sortir, &QPushButton::clicked, this, [this] { close(); });
}

Etalonnage::~Etalonnage() = default;

RangeePoint Etalonnage::Rangee(int rang) const {
    if (rang == 0)
        return {ui->Labeltextepressionreelle_0, ui->ValeurPressionReelle_0,
                ui->Labelpressionreelle_0,      ui->Labeltextepressionlue_0,
                ui->ValeurPressionLue_0,        ui->Labelpressionlue_0};
    return {ui->Labeltextepressionreelle_1, ui->ValeurPressionReelle_1, ui->Labelpressionreelle_1,
            ui->Labeltextepressionlue_1,    ui->ValeurPressionLue_1,    ui->Labelpressionlue_1};
}

// Enter presses the button that has the focus and no other: at the end of a typed pressure it must
// not overwrite the logger's calibration.
void Etalonnage::keyPressEvent(QKeyEvent* evenement) {
    if (evenement->key() != Qt::Key_Return && evenement->key() != Qt::Key_Enter)
        return QDialog::keyPressEvent(evenement);
    if (auto* bouton = qobject_cast<QPushButton*>(focusWidget())) bouton->click();
}

}  // namespace bornika
