#pragma once

#include <QTimer>
#include <set>

#include "link/connect_hint.h"
#include "platform/usb_interface.h"

namespace bornika {

/// What the list of loggers knows of itself while it stands open: who is attached, what its hint
/// says, and whether it is being built.
class VeilleListe {
  public:
    VeilleListe();

    /// The form is being loaded: the line of the logger `id`, 0 for none, is preselected.
    void RetenirChoix(IdentifiantUsb id) { choix_ = id; }
    IdentifiantUsb ChoixRetenu() const { return choix_; }

    /// Runs what rebuilds the list: until it comes back a change of the list is no choice. A fault
    /// leaves the list as being built.
    template <class Construction>
    void Batir(Construction&& construction) {
        enConstruction_ = true;
        construction();
        enConstruction_ = false;
    }
    bool EnConstruction() const { return enConstruction_; }

    /// A new listing begins: nobody is known to be attached.
    void OublierBranches() { branches_.clear(); }
    /// So many loggers are going to be asked.
    void FixerNombre(int nombre) { nombre_ = nombre; }
    void NoterBranche(IdentifiantUsb id) { branches_.insert(id); }

    /// Number of loggers attached when the list was built.
    int Nombre() const { return nombre_; }
    /// Their identifiers.
    const std::set<IdentifiantUsb>& Branches() const { return branches_; }

    /// Takes the hint that is to stand below the list; false where it stands there already.
    bool ChangerIndication(Indication indication);

    /// The list is watched from now on, until a logger is chosen.
    void Commencer() { minuterie_.start(); }
    void Arreter() { minuterie_.stop(); }
    bool Active() const { return minuterie_.isActive(); }
    /// Its timeouts, once a second, are the looks at what came and went.
    QTimer& Minuterie() { return minuterie_; }

  private:
    bool enConstruction_ = false;
    int nombre_ = 0;
    std::set<IdentifiantUsb> branches_;
    IdentifiantUsb choix_ = 0;
    Indication indication_ = Indication::AucunBranche;
    QTimer minuterie_;
};

}  // namespace bornika
