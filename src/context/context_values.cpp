#include "context/context_values.h"

#include <algorithm>

#include "context/addressed_fields.h"
#include "platform/code_page.h"
#include "platform/numbers.h"

namespace bornika {

int OctetFormatHeure(bool vingtQuatre) {
    return vingtQuatre ? 1 : 0;
}

bool EstVingtQuatreHeures(int octet) {
    return octet != 0;
}

std::optional<float> PoidsDuTexte(QStringView texte, const Regional& regional) {
    if (!EstNumerique(texte, regional)) return std::nullopt;
    return EnSimple(EnDouble(texte, regional));
}

Octets OctetsDeUnite(const QString& unite) {
    Octets octets;
    for (const char caractere : Vers8Bits(unite).leftJustified(longueurUniteImpulsion, ' '))
        octets.push_back(static_cast<unsigned char>(caractere));
    return octets;
}

QString UniteDeOctets(const Octets& octets) {
    QByteArray caracteres;
    for (const int octet : octets)
        caracteres.append(static_cast<char>(octet));
    return Depuis8Bits(caracteres);
}

std::optional<float> BaseDePosition(int position) {
    if (position < 0 || position >= static_cast<int>(basesDeTemps.size())) return std::nullopt;
    return basesDeTemps[static_cast<std::size_t>(position)];
}

std::optional<int> PositionDeBase(float base) {
    const auto ou = std::find(basesDeTemps.begin(), basesDeTemps.end(), base);
    if (ou == basesDeTemps.end()) return std::nullopt;
    return static_cast<int>(ou - basesDeTemps.begin());
}

}  // namespace bornika
