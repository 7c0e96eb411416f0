#include "shell/help_mode.h"

#include "platform/fault.h"
#include "settings/text_catalogue.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

void AfficheAide(MainScreen& ecran, const QString& langue, bool actif) {
    for (QObject* controle : ControlesDe(ecran)) {
        auto* widget = qobject_cast<QWidget*>(controle);
        if (!widget) continue;
        if (!actif) widget->setToolTip({});
        if (!actif || !aBulle(*widget)) continue;
        ignorer([&] {
            const QString cle = CleDe(*widget);
            widget->setToolTip(Message(ecran.configuration, ecran.systeme.dossier, langue,
                                       QLatin1String("AIDE_") + cle, ecran.etat.TypekPod, cle));
        });
    }
}

}  // namespace bornika
