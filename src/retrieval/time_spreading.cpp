#include "retrieval/time_spreading.h"

#include "platform/format_pattern.h"
#include "platform/numbers.h"

namespace bornika {

int MillisecondesGroupe(int position, int dernier) {
    return EnEntier32(position * 1000.0 / (dernier + 1));
}

double TauxImpulsions(double intervalle) {
    const Regional point{QStringLiteral("."), {}};
    return EnDouble(Format(Diviser(1.0, intervalle), "0#.0###", point), point);
}

}  // namespace bornika
