#include "viewer/trace_captions.h"

#include "platform/fault.h"
#include "settings/text_catalogue.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

void TraduireControle(Trace& trace, QObject& controle) {
    const QString texte = trace.ecran.Texte(CleDe(controle), CaptionDeDepart(controle));
    if (!texte.isEmpty()) FixerCaption(controle, texte);
}

QString AideControle(Trace& trace, const QString& langue, const QString& cle) {
    return Message(trace.ecran.configuration, trace.ecran.systeme.dossier, langue,
                   QStringLiteral("AIDE_") + cle, trace.ecran.etat.TypekPod, cle);
}

}  // namespace

void TraduireControles(Trace& trace) {
    for (QObject* controle : ControlesDe(trace))
        if (aCaption(*controle)) ignorer([&] { TraduireControle(trace, *controle); });
}

void AfficheAide(Trace& trace, const QString& langue, bool actif) {
    for (QObject* controle : ControlesDe(trace)) {
        auto* widget = qobject_cast<QWidget*>(controle);
        if (!widget) continue;
        if (!actif)
            widget->setToolTip({});
        else if (aBulle(*widget))
            ignorer([&] { widget->setToolTip(AideControle(trace, langue, CleDe(*widget))); });
    }
}

}  // namespace bornika
