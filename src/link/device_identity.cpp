#include "link/device_identity.h"

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "platform/numbers.h"
#include "products/products.h"
#include "settings/text_catalogue.h"

namespace bornika {

namespace {

/// One command in a conversation of its own. A silent logger leaves the reply all zero.
Tampon InterrogerEnregistreur(Poste& poste, int code, int combien) {
    Tampon buffer{};
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    Envoi_Entete(poste, code, buffer, combien, false);
    poste.lien.FermeUSB();
    return buffer;
}

}  // namespace

double NumeroVersion(int haut, int bas) {
    const QString texte = QString::number(haut) + QString::number(bas);
    return ArrondiTroisDecimales(ValeurDebut(texte) / 1000);
}

QString LitNumeroSerieKpod(Poste& poste) {
    const Tampon buffer = InterrogerEnregistreur(poste, CMD_LIT_NUMERO_SERIE, longueurReponse);
    const VueReponse reponse(buffer);
    QString numero;
    if (reponse.Octet(0) != CMD_LIT_NUMERO_SERIE) return numero;
    ignorer([&] { numero = QString::number(EnEntier32(reponse.Quatre(3))); });
    return numero;
}

QString LitVersionKpod(Poste& poste, bool& ok) {
    EtatApplication& etat = poste.ecran.etat;
    etat.TimeOut = false;
    const Tampon buffer = InterrogerEnregistreur(poste, CMD_LIT_VERSION, longueurReponseVersion);
    const VueReponse reponse(buffer);
    if (reponse.Octet(0) != CMD_LIT_VERSION) return {};
    const int type = reponse.Octet(1);
    const int haut = reponse.Octet(2);
    const int bas = reponse.Octet(4);
    ok = true;
    etat.VersionLogiciel = NumeroVersion(haut, bas);
    return QStringLiteral("%1 = %2 %3-%4")
        .arg(NomProduit(type, DrapeauProduit(poste.ecran.systeme.dossier)))
        .arg(type)
        .arg(haut)
        .arg(bas);
}

QString LitTypeKpod(Poste& poste, bool /*sansEffet*/) {
    poste.ecran.etat.TimeOut = false;
    const Tampon buffer = InterrogerEnregistreur(poste, CMD_LIT_VERSION, longueurReponseVersion);
    const VueReponse reponse(buffer);
    return reponse.Octet(0) == CMD_LIT_VERSION ? QString::number(reponse.Octet(1)) : QString();
}

}  // namespace bornika
