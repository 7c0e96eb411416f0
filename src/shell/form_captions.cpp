#include "shell/form_captions.h"

#include "platform/fault.h"
#include "shell/captions.h"
#include "shell/main_screen.h"

namespace bornika {

void TraduireFiche(QWidget& fiche, MainScreen& ecran, const RegleCaptions& regle) {
    for (QObject* controle : ControlesDe(fiche)) {
        if (!aCaption(*controle) || controle == regle.exclu) continue;
        ignorer([&] {
            const QString texte =
                ecran.TexteEn(regle.langue, CleDe(*controle), CaptionDeDepart(*controle));
            if (!regle.garderSiVide || !texte.isEmpty()) FixerCaption(*controle, texte);
        });
    }
}

void TraduireFiche(QWidget& fiche, MainScreen& ecran) {
    TraduireFiche(fiche, ecran, {.langue = ecran.Langue()});
}

}  // namespace bornika
