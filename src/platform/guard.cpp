#include "platform/guard.h"

#include <cstdio>
#include <cstdlib>

namespace bornika {

namespace {

TraitementFaute traitementInstalle;

}  // namespace

void InstallerTraitementFaute(TraitementFaute traitement) {
    traitementInstalle = std::move(traitement);
}

void SignalerFaute(const FauteExecution& faute) {
    if (traitementInstalle) {
        traitementInstalle(faute);
        return;
    }
    std::fprintf(stderr, "Run-time error '%d': %s\n", faute.numero(), faute.what());
    std::abort();
}

}  // namespace bornika
