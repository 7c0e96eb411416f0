#pragma once

#include <QDialog>
#include <memory>

#include "widgets/own_form.h"

namespace Ui {
class frmAbout;
}

namespace bornika {

class MainScreen;
class RegistreMachine;
struct Systeme;

/// What this program is, and in which version. Its texts are the same in every language.
class frmAbout : public QDialog, public FicheDuProgramme {
    Q_OBJECT
  public:
    frmAbout(Systeme& systeme, RegistreMachine& registre, QWidget* parent = nullptr);
    ~frmAbout() override;

    std::unique_ptr<Ui::frmAbout> ui;
};

/// The menu entry `mnuApropos`: shows the form until it is closed.
void mnuApropos_Click(MainScreen& ecran);

}  // namespace bornika
