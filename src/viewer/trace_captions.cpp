#include "viewer/trace_captions.h"

#include "shell/form_captions.h"
#include "shell/help_mode.h"
#include "shell/main_screen.h"
#include "viewer/trace_form.h"

namespace bornika {

void TraduireControles(Trace& trace) {
    TraduireFiche(trace, trace.ecran, {.langue = trace.ecran.Langue(), .garderSiVide = true});
}

void AfficheAide(Trace& trace, const QString& langue, bool actif) {
    AfficheAide(trace, trace.ecran, langue, actif);
}

}  // namespace bornika
