#pragma once

#include <QDialog>
#include <memory>

#include "link/station.h"

namespace Ui {
class frmConnect;
}

namespace bornika {

/// The list of the loggers attached now. A click on a line, or Enter, chooses that logger.
class frmConnect : public QDialog {
    Q_OBJECT
  public:
    /// Ties the controls to the operations of device_discovery.h; `Charger` fills the form.
    explicit frmConnect(Poste& poste, QWidget* parent = nullptr);
    ~frmConnect() override;

    /// What happens before the form is shown: captions, then the list.
    void Charger();

    std::unique_ptr<Ui::frmConnect> ui;
    Poste& poste;
    /// The list is being rebuilt: a change of it is no choice.
    bool Chargement = false;
    /// Number of loggers attached when the list was built.
    int NbDevices = 0;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
};

}  // namespace bornika
