#pragma once

#include <QDialog>
#include <QTimer>
#include <memory>
#include <set>

#include "link/connect_hint.h"
#include "link/station.h"

namespace Ui {
class frmConnect;
}

namespace bornika {

/// The list of the loggers attached now. A click on a line, or Enter, chooses that logger. While it
/// stands open it follows what is plugged in and pulled out.
class frmConnect : public QDialog {
    Q_OBJECT
  public:
    /// Ties the controls to the operations of device_discovery.h; `Charger` fills the form.
    explicit frmConnect(Poste& poste, QWidget* parent = nullptr);
    ~frmConnect() override;

    /// What happens before the form is shown: captions, then the list, which is watched from then
    /// on.
    void Charger();

    std::unique_ptr<Ui::frmConnect> ui;
    Poste& poste;
    /// The list is being rebuilt: a change of it is no choice.
    bool Chargement = false;
    /// Number of loggers attached when the list was built.
    int NbDevices = 0;
    /// Their identifiers.
    std::set<IdentifiantUsb> Branches;
    /// Identifier that was current when the form was loaded, 0 for none: its line is preselected.
    IdentifiantUsb AncienID = 0;
    /// The hint below the list.
    Indication Indiquee = Indication::AucunBranche;
    /// Looks once a second whether loggers came or went.
    QTimer Veille;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
};

}  // namespace bornika
