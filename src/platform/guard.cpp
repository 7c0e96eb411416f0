#include "platform/guard.h"

#include <cstdio>
#include <cstdlib>

namespace bornika {

namespace {

TraitementFaute& Traitement() {
    static TraitementFaute traitement;
    return traitement;
}

}  // namespace

void InstallerTraitementFaute(TraitementFaute traitement) {
    Traitement() = std::move(traitement);
}

void SignalerFaute(const FauteExecution& faute) {
    // A copy, so that a handler may install another one.
    const TraitementFaute traitement = Traitement();
    if (traitement) {
        traitement(faute);
        return;
    }
    std::fprintf(stderr, "Run-time error '%d': %s\n", faute.numero(), faute.what());
    std::abort();
}

}  // namespace bornika
