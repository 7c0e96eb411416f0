#include "shell/help_mode.h"

#include "platform/fault.h"
#include "shell/captions.h"
#include "shell/main_screen.h"

namespace bornika {

void AfficheAide(QWidget& fiche, MainScreen& ecran, const QString& langue, bool actif) {
    for (QObject* controle : ControlesDe(fiche)) {
        auto* widget = qobject_cast<QWidget*>(controle);
        if (!widget) continue;
        if (!actif) widget->setToolTip({});
        if (!actif || !aBulle(*widget)) continue;
        ignorer([&] {
            const QString cle = CleDe(*widget);
            widget->setToolTip(ecran.TexteEn(langue, QLatin1String("AIDE_") + cle, cle));
        });
    }
}

void AfficheAide(MainScreen& ecran, const QString& langue, bool actif) {
    AfficheAide(ecran, ecran, langue, actif);
}

}  // namespace bornika
