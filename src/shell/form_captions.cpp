#include "shell/form_captions.h"

#include "platform/fault.h"
#include "shell/captions.h"
#include "shell/main_screen.h"

namespace bornika {

void TraduireFiche(QWidget& fiche, MainScreen& ecran) {
    for (QObject* controle : ControlesDe(fiche)) {
        if (!aCaption(*controle)) continue;
        ignorer([&] {
            FixerCaption(*controle, ecran.Texte(CleDe(*controle), CaptionDeDepart(*controle)));
        });
    }
}

}  // namespace bornika
