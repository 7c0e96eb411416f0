#include "settings/text_catalogue.h"

#include "products/products.h"
#include "settings/config_store.h"

namespace bornika {

bool DrapeauProduit(const QString& dossier) {
    return dossier.contains(QLatin1String("Z907"), Qt::CaseSensitive);
}

QString Message(Configuration& configuration, const QString& dossier, const QString& langue,
                const QString& cle, std::int32_t type, const QString& defaut) {
    QString texte = configuration.LitMessage(langue, cle, defaut);
    if (EstKpod(type))
        texte.replace(QLatin1String("k-Pod"), NomProduit(type, DrapeauProduit(dossier)));
    return texte;
}

}  // namespace bornika
