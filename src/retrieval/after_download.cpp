#include "retrieval/download_engine.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/comments.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika {

namespace {

/// The recording just made, in the viewer. The form is made at the first reference to it.
SuiteTelechargement SuiteDansTrace(AccesTrace& acces) {
    return {.commenter =
                [&acces](const QString& commentaires, const QString& fichier) {
                    Trace& trace = acces.Fiche();
                    trace.ui->Commentaires->setPlainText(commentaires);
                    EnregistrerCommentaires(trace, fichier);
                },
            .montrer =
                [&acces](const QString& fichier) {
                    Trace& trace = acces.Fiche();
                    trace.show();
                    trace.NomDialogue = fichier;
                    chart_Init(trace);
                }};
}

}  // namespace

void LireValeurs(Poste& poste, AccesTrace& acces) {
    LireValeurs(poste, SuiteDansTrace(acces));
}

void LectureValeurs(Poste& poste, AccesTrace& acces) {
    LectureValeurs(poste, SuiteDansTrace(acces));
}

}  // namespace bornika
