#include "chart/model/flow.h"

#include "platform/numbers.h"

namespace bornika {

std::optional<FacteurDebit> LireFacteurDebit(const QString& CoefImpulsion, int index,
                                             std::int32_t secondes, const Regional& regional) {
    if (index < 0 || !EstNumerique(CoefImpulsion, regional)) return std::nullopt;
    return FacteurDebit{EnDouble(CoefImpulsion, regional), static_cast<double>(secondes)};
}

QString LegendeDebit(const QString& UniteImpulsion, int index, const QString& TexteTemps) {
    if (index < 0) return UniteImpulsion;
    return UniteImpulsion + QLatin1Char('/') + TexteTemps;
}

}  // namespace bornika
