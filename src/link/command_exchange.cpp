#include "link/command_exchange.h"

#include "link/frames.h"
#include "platform/fault.h"

namespace bornika {

Octets LireReponse(Poste& poste, int combien, bool erreur) {
    // The catalogue is only asked when the text is to be shown: a download reads too often.
    return poste.lien.UsbRead(
        combien, [&poste] { return poste.ecran.Texte(QStringLiteral("k-Pod Absent")); }, erreur,
        true, QString());
}

bool Envoi_Entete(Poste& poste, int code, Tampon& buffer, int combien, bool erreur, int extracode) {
    if (combien < 0 || static_cast<std::size_t>(combien) >= buffer.size())
        LeverFaute(numero_faute::indice);
    poste.lien.UsbWrite(TrameEntete(code, extracode), longueurTrame);
    const Octets reponse = LireReponse(poste, combien, erreur);
    if (poste.ecran.etat.TimeOut) return false;
    for (std::size_t i = 0; i < reponse.size(); ++i)
        buffer[i + 1] = static_cast<std::uint8_t>(reponse[i]);
    return true;
}

Octets EchangeDirect(Poste& poste, std::span<const int> trame, int longueur, int combien,
                     bool erreur) {
    poste.lien.UsbWrite(trame, longueur);
    return LireReponse(poste, combien, erreur);
}

}  // namespace bornika
