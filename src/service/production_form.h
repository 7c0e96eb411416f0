#pragma once

#include <QDialog>
#include <memory>

#include "widgets/own_form.h"

namespace Ui {
class frmProduction;
}

namespace bornika {

class MainScreen;

/// Order number and comment of the production report; its button writes it.
class frmProduction : public QDialog, public FicheDuProgramme {
    Q_OBJECT
  public:
    /// Ties the button to the operation of production_report.h.
    explicit frmProduction(MainScreen& ecran, QWidget* parent = nullptr);
    ~frmProduction() override;

    /// Captions in the language of the main form; the cursor waits in the order number.
    void Preparer();

    std::unique_ptr<Ui::frmProduction> ui;
    MainScreen& ecran;
};

/// The menu entry `mnurapport`: shows the form. It is made once and only hidden afterwards, so that
/// the order number and the comment stand there for the next logger.
void mnurapport_Click(MainScreen& ecran);

}  // namespace bornika
