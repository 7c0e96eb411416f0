#include "service/production_block.h"

#include <QStringList>

#include "platform/code_page.h"
#include "platform/numbers.h"
#include "products/products.h"

namespace bornika {

namespace {

constexpr int longueurTrait = 42;

QString LigneRubrique(const Rubrique& rubrique) {
    return rubrique.etiquette + QStringLiteral(" : ") + rubrique.valeur;
}

}  // namespace

QByteArray BlocProduction(const RapportProduction& r) {
    const QString blanc = QStringLiteral(" ");
    QString commentaires = r.commentaires;
    commentaires.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    QStringList lignes = {
        blanc,
        QString(longueurTrait, QLatin1Char('-')),
        r.date,
        blanc,
        r.commande.etiquette + blanc + r.commande.valeur,
        blanc,
        LigneRubrique({r.version.etiquette, TexteProduit(r.version.valeur, r.TypekPod, r.drapeau)}),
        LigneRubrique(r.numeroSerie),
        LigneRubrique(r.dateCourante),
        LigneRubrique(r.tensionPile),
        LigneRubrique(r.capteur),
        blanc};
    for (const QString& resume : r.resumes)
        lignes += resume;
    lignes += {r.commentaire.etiquette, r.commentaire.valeur, blanc, commentaires, blanc};
    return Vers8Bits(lignes.join(QLatin1String("\r\n")) + QLatin1String("\r\n"));
}

QString TexteProduit(const QString& version, std::int32_t TypekPod, bool drapeau) {
    const bool jamaisLu = version == QLatin1String("--");
    const QStringList parties =
        (jamaisLu ? QStringLiteral("(1)--") : version).split(QLatin1Char(')'));
    const QString type = QString(parties[0]).remove(QLatin1Char('('));
    // A logger that was chosen and not read shows "k-Pod = 1 2-110": a report all the same, no
    // fault.
    if (parties.size() < 2 || !EstNumerique(type, Regional{}))
        return NomProduit(TypekPod, drapeau) + QLatin1Char(' ') + version;
    return NomProduit(EnEntier32(type, Regional{}), drapeau) + parties[1];
}

}  // namespace bornika
