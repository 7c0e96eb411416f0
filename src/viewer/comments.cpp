#include "viewer/comments.h"

#include "recording/comment_file.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

QString CheminCommentaires(const Trace& trace, const QString& repertoire) {
    return trace.ecran.systeme.Chemin(NomCommentaires(repertoire));
}

}  // namespace

void EnregistrerCommentaires(Trace& trace, const QString& repertoire) {
    if (repertoire.isEmpty()) {
        // This text does not go through the catalogue.
        MontrerTexte(trace.ecran, Icone::Exclamation,
                     QStringLiteral("Vous devez saisir un fichier"));
        return;
    }
    EcrireCommentaires(trace, CheminCommentaires(trace, repertoire), ModeEcriture::Remplacer);
}

void EcrireCommentaires(Trace& trace, const QString& chemin, ModeEcriture mode) {
    EcrireTexteCommentaires(chemin, trace.ui->Commentaires->toPlainText(), mode);
}

void LitCommentaires(Trace& trace) {
    // Nothing fills this name, so that a load never replaces what the box holds.
    const QString repertoire;
    if (!repertoire.isEmpty()) LireFichierCommentaires(trace, repertoire);
}

void LireFichierCommentaires(Trace& trace, const QString& repertoire) {
    const QString texte = LireTexteCommentaires(CheminCommentaires(trace, repertoire));
    if (texte.isEmpty())
        trace.ui->Commentaires->clear();
    else
        trace.ui->Commentaires->setPlainText(texte);
}

}  // namespace bornika
