#include <QPointer>
#include <memory>

#include "retrieval/download_engine.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/comments.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"

namespace bornika {

namespace {

/// The comments of the recording just made, and the form that holds them.
struct CommentairesPoses {
    QString texte;
    QPointer<Trace> fiche;
};

void PoserCommentaires(CommentairesPoses& poses, Trace& trace) {
    if (poses.fiche == &trace) return;
    poses.fiche = &trace;
    trace.ui->Commentaires->setPlainText(poses.texte);
}

/// The recording just made, in the viewer. The form is made at the first reference to it; one that
/// was closed while the last box stood has given way to another, which takes its comments over.
SuiteTelechargement SuiteDansTrace(AccesTrace& acces) {
    const auto poses = std::make_shared<CommentairesPoses>();
    return {.commenter =
                [&acces, poses](const QString& commentaires, const QString& fichier) {
                    *poses = {commentaires, {}};
                    Trace& trace = acces.Fiche();
                    PoserCommentaires(*poses, trace);
                    EnregistrerCommentaires(trace, fichier);
                },
            .montrer =
                [&acces, poses](const QString& fichier) {
                    Trace& trace = acces.Fiche();
                    PoserCommentaires(*poses, trace);
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
