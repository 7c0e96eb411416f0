#include "link/list_watch.h"

#include <utility>

namespace bornika {

namespace {

constexpr int periodeVeille = 1000;  // milliseconds

}  // namespace

VeilleListe::VeilleListe() {
    minuterie_.setInterval(periodeVeille);
}

bool VeilleListe::ChangerIndication(Indication indication) {
    return std::exchange(indication_, indication) != indication;
}

}  // namespace bornika
