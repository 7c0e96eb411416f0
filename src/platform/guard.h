#pragma once

#include <QObject>
#include <functional>
#include <utility>

#include "platform/fault.h"

namespace bornika {

/// What happens with a fault that reached an entry point (slot, timer, event).
/// The program installs one handler: box, link closed, end with status 1. Tests install one that
/// records. Without a handler the fault is written to the standard error and the program aborts.
using TraitementFaute = std::function<void(const FauteExecution&)>;

void InstallerTraitementFaute(TraitementFaute traitement);

/// Hands a fault to the installed handler.
void SignalerFaute(const FauteExecution& faute);

/// While one lives, faults of raised handlers end that handler and nothing more: for routines that
/// ignore the faults of the controls that they fill, events of those controls included.
class FautesIgnorees {
  public:
    FautesIgnorees() { ++nombre_; }
    ~FautesIgnorees() { --nombre_; }
    FautesIgnorees(const FautesIgnorees&) = delete;
    FautesIgnorees& operator=(const FautesIgnorees&) = delete;

    static bool Actif() { return nombre_ > 0; }

  private:
    static inline int nombre_ = 0;
};

/// The guard of one entry point: no fault crosses the toolkit's event loop.
template <class Entree>
void garder(Entree&& entree) {
    try {
        entree();
    } catch (const FauteExecution& faute) {
        if (!FautesIgnorees::Actif()) SignalerFaute(faute);
    }
}

/// Connects a signal to an operation that runs through the guard. The operation takes no argument:
/// it reads what it needs from the controls. The connection ends with `contexte`.
template <class Emetteur, class Signal, class Operation>
QMetaObject::Connection brancher(Emetteur* emetteur, Signal signal, const QObject* contexte,
                                 Operation operation) {
    return QObject::connect(emetteur, signal, contexte,
                            [operation = std::move(operation)] { garder(operation); });
}

}  // namespace bornika
