#include "shell/product_box.h"

#include "shell/main_screen.h"

namespace bornika {

Reponse MontrerBoite(MainScreen& ecran, Icone icone, Boutons boutons, const QString& texte) {
    return ecran.systeme.dialogues.Boite(icone, boutons, ecran.etat.NomKpod, texte);
}

void MontrerTexte(MainScreen& ecran, Icone icone, const QString& texte) {
    MontrerBoite(ecran, icone, Boutons::Ok, texte);
}

void MontrerMessage(MainScreen& ecran, Icone icone, const QString& cle) {
    MontrerTexte(ecran, icone, ecran.Texte(cle));
}

}  // namespace bornika
