#pragma once

#include <QObject>
#include <cstddef>
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
///
/// Between such a routine and the handler stands the toolkit, which calls the handler and takes no
/// argument for it: that faults are ignored has to be known process-wide, to `garder` at the
/// handler's entry. It is the state of one thread, that of the interface, which is the only one
/// that may make one or ask; a debug build asserts it. One lives for a block, never longer.
class FautesIgnorees {
  public:
    [[nodiscard]] FautesIgnorees();
    ~FautesIgnorees();
    FautesIgnorees(const FautesIgnorees&) = delete;
    FautesIgnorees& operator=(const FautesIgnorees&) = delete;
    static void* operator new(std::size_t) = delete;

    static bool Actif();
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
