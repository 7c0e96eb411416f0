#include "viewer/comments.h"

#include <QFile>

#include "platform/code_page.h"
#include "platform/named_fault.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

QString CheminCommentaires(const Trace& trace, const QString& repertoire) {
    const QString base = repertoire.section(QLatin1Char('.'), 0, 0);
    return trace.ecran.systeme.Chemin(base + QStringLiteral(".cmt"));
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
    QString texte = trace.ui->Commentaires->toPlainText();
    texte.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    nommer(chemin, [&] {
        FichierTexteEcrit fichier(chemin, mode);
        fichier.EcrireLigne(texte);
        fichier.Fermer();
    });
}

void LitCommentaires(Trace& trace) {
    // Nothing fills this name, so that a load never replaces what the box holds.
    const QString repertoire;
    if (!repertoire.isEmpty()) LireFichierCommentaires(trace, repertoire);
}

void LireFichierCommentaires(Trace& trace, const QString& repertoire) {
    const QString chemin = CheminCommentaires(trace, repertoire);
    if (!QFile::exists(chemin)) FichierTexteEcrit(chemin, ModeEcriture::Ajouter).Fermer();
    const FichierTexteLu fichier(chemin);
    if (fichier.EstFinDeLigne()) {
        trace.ui->Commentaires->clear();
        return;
    }
    QFile entier(chemin);
    if (entier.open(QIODevice::ReadOnly))
        trace.ui->Commentaires->setPlainText(Depuis8Bits(entier.readAll()));
}

}  // namespace bornika
