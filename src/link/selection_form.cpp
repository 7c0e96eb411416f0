#include "link/selection_form.h"

#include "link/device_discovery.h"
#include "platform/guard.h"
#include "settings/text_catalogue.h"
#include "ui_selection_form.h"

namespace bornika {

FormSelection::FormSelection(MainScreen& lEcran, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::FormSelection>()), ecran(lEcran) {
    ui->setupUi(this);
    QRadioButton* const options[] = {ui->TypekPod_0, ui->TypekPod_1, ui->TypekPod_2,
                                     ui->TypekPod_3};
    int index = 0;
    for (QRadioButton* option : options) {
        brancher(option, &QRadioButton::toggled, this, [this, option, index] {
            if (option->isChecked()) TypekPod_Click(*this, index);
        });
        ++index;
    }
    brancher(ui->Selection, &QPushButton::clicked, this, [this] { Selection_Click(*this); });
}

FormSelection::~FormSelection() = default;

void FormSelection::Charger() {
    const bool drapeau = DrapeauProduit(ecran.systeme.dossier);
    ui->TypekPod_0->setVisible(drapeau);
    ui->TypekPod_1->setVisible(drapeau);
    ui->TypekPod_2->setVisible(!drapeau);
    ui->TypekPod_3->setVisible(!drapeau);
    (drapeau ? ui->TypekPod_0 : ui->TypekPod_2)->setChecked(true);
}

}  // namespace bornika
