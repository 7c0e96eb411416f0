#pragma once

#include <QDialog>
#include <memory>

#include "widgets/own_form.h"

namespace Ui {
class GSM;
}

namespace bornika {

class MainScreen;

/// Settings for a logger that sends by GSM. Pulse value and pulse unit are stored; the telephone
/// fields are neither read nor written by anything.
class GSM : public QDialog, public FicheDuProgramme {
    Q_OBJECT
  public:
    explicit GSM(MainScreen& ecran, QWidget* parent = nullptr);
    ~GSM() override;

    /// What happens before the form is shown: the two settings, then the captions. A stored unit
    /// that the list does not have leaves the list without a choice.
    void Charger();

    std::unique_ptr<Ui::GSM> ui;
    MainScreen& ecran;
};

/// The check box `Presence`: enables and shows the period of the presence message, or takes both
/// away and sets the period to "0".
void Presence_Click(GSM& fiche);

/// The button `Valider`: stores pulse value and pulse unit and closes the form. A value that is no
/// number is told, and the form stays.
void Valider_Click(GSM& fiche);

/// The menu entry `mnuGSM`: shows the form until it is closed.
void mnuGSM_Click(MainScreen& ecran);

}  // namespace bornika
