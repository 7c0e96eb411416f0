#include "viewer/file_commands.h"

#include "shell/main_screen.h"
#include "viewer/chart_session.h"
#include "viewer/trace_form.h"

namespace bornika {

void CommandOpen(Trace& trace) {
    // The dialog lets the interface run: the form may be closed meanwhile.
    const Trace::Occupation occupation(trace);
    DemandeFichier demande;
    demande.suffixe = QStringLiteral("*.txt");
    demande.filtre = QStringLiteral("txt (*.txt)|*.txt");
    demande.dossier = trace.ecran.systeme.dossier;
    demande.plusieurs = true;
    trace.NomDialogue.clear();
    if (const auto nom = trace.ecran.systeme.dialogues.Ouvrir(demande)) trace.NomDialogue = *nom;
    if (!trace.NomDialogue.isEmpty()) OuvrirEnregistrements(trace, trace.NomDialogue);
}

void OuvrirEnregistrements(Trace& trace, const QString& nom) {
    trace.NomDialogue = nom;
    FixerFichierCourant(trace, trace.NomDialogue);
    ChargeCourbes(trace, trace.NomFichierCourant, false);
}

void Sortir_Click(Trace& trace) {
    trace.close();
}

}  // namespace bornika
