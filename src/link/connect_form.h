#pragma once

#include <QDialog>
#include <memory>

#include "link/list_watch.h"
#include "link/station.h"
#include "widgets/own_form.h"

namespace Ui {
class frmConnect;
}

namespace bornika {

/// The list of the loggers attached now. A click on a line, or Enter, chooses that logger. While it
/// stands open it follows what is plugged in and pulled out.
class frmConnect : public QDialog, public FicheDuProgramme {
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
    VeilleListe Veille;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
};

}  // namespace bornika
