#include "platform/guard.h"

#include <cstdio>
#include <cstdlib>
#include <thread>

namespace bornika {

namespace {

TraitementFaute& TraitementInstalle() {
    static TraitementFaute traitement;
    return traitement;
}

// The thread of the interface is the first that asks.
[[maybe_unused]] bool EstFilDeLInterface() {
    static const std::thread::id fil = std::this_thread::get_id();
    return std::this_thread::get_id() == fil;
}

// Blocks that ignore faults now, one within the other.
int& BlocsQuiIgnorent() {
    Q_ASSERT_X(EstFilDeLInterface(), "FautesIgnorees", "used outside the thread of the interface");
    static int blocs = 0;
    return blocs;
}

}  // namespace

void InstallerTraitementFaute(TraitementFaute traitement) {
    TraitementInstalle() = std::move(traitement);
}

void SignalerFaute(const FauteExecution& faute) {
    // A copy, so that a handler may install another one.
    const TraitementFaute traitement = TraitementInstalle();
    if (traitement) {
        traitement(faute);
        return;
    }
    std::fprintf(stderr, "Run-time error '%d': %s\n", faute.numero(), faute.what());
    std::abort();
}

FautesIgnorees::FautesIgnorees() {
    ++BlocsQuiIgnorent();
}

FautesIgnorees::~FautesIgnorees() {
    --BlocsQuiIgnorent();
}

bool FautesIgnorees::Actif() {
    return BlocsQuiIgnorent() > 0;
}

}  // namespace bornika
