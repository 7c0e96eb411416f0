#include "recording/decimal_separator.h"

#include "platform/dates.h"

namespace bornika {

QString TraiteSeparateur(const QString& Valeur, const Regional& regional) {
    const QString separateur = SeparateurDecimal(regional);
    QString texte = Valeur;
    if (separateur == QLatin1String(".")) return texte.replace(QLatin1Char(','), QLatin1Char('.'));
    if (separateur == QLatin1String(",")) return texte.replace(QLatin1Char('.'), QLatin1Char(','));
    return {};
}

}  // namespace bornika
