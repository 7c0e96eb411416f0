#include "service/production_form.h"

#include "platform/guard.h"
#include "service/production_report.h"
#include "shell/captions.h"
#include "shell/form_captions.h"
#include "shell/main_screen.h"
#include "ui_production_form.h"
#include "widgets/modal.h"

namespace bornika {

frmProduction::frmProduction(MainScreen& lEcran, QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::frmProduction>()), ecran(lEcran) {
    ui->setupUi(this);
    RetenirCaptions(*this);
    brancher(ui->PrintReport, &QPushButton::clicked, this, [this] { PrintReport(*this); });
}

frmProduction::~frmProduction() = default;

void frmProduction::Preparer() {
    ignorer([this] { setWindowTitle(ecran.Texte(QStringLiteral("mnurapport"))); });
    TraduireFiche(*this, ecran);
    ui->Commande->setFocus();
    ui->Commande->selectAll();
}

void mnurapport_Click(MainScreen& ecran) {
    auto* fiche = ecran.findChild<frmProduction*>();
    if (fiche == nullptr) fiche = new frmProduction(ecran, &ecran);
    // At each show: the report's captions are those of the main form's present language.
    fiche->Preparer();
    MontrerModal(*fiche);
}

}  // namespace bornika
