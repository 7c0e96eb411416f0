#pragma once

#include <QDialog>
#include <memory>

#include "shell/main_screen.h"
#include "widgets/own_form.h"

namespace Ui {
class FormSelection;
}

namespace bornika {

/// Names the product by hand when no logger was chosen.
class FormSelection : public QDialog, public FicheDuProgramme {
    Q_OBJECT
  public:
    /// Ties the controls to the operations of device_discovery.h; `Charger` fills the form.
    explicit FormSelection(MainScreen& ecran, QWidget* parent = nullptr);
    ~FormSelection() override;

    /// Shows the two products of this edition and chooses the first, which counts as a choice.
    void Charger();

    std::unique_ptr<Ui::FormSelection> ui;
    MainScreen& ecran;
};

}  // namespace bornika
