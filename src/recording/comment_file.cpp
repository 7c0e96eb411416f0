#include "recording/comment_file.h"

#include <QFileInfo>

#include "platform/code_page.h"
#include "platform/named_fault.h"

namespace bornika {

QString NomCommentaires(const QString& nomEnregistrement) {
    return nomEnregistrement.section(QLatin1Char('.'), 0, 0) + QStringLiteral(".cmt");
}

void EcrireTexteCommentaires(const QString& chemin, const QString& texte, ModeEcriture mode) {
    QString lignes = texte;
    lignes.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    nommer(chemin, [&] {
        FichierTexteEcrit fichier(chemin, mode);
        fichier.EcrireLigne(lignes);
        fichier.Fermer();
    });
}

QString LireTexteCommentaires(const QString& chemin) {
    if (!QFileInfo::exists(chemin)) FichierTexteEcrit(chemin, ModeEcriture::Ajouter).Fermer();
    const FichierTexteLu fichier(chemin);
    // A first line without text stands for no comments, whatever follows it.
    return fichier.EstFinDeLigne() ? QString() : Depuis8Bits(fichier.Contenu());
}

}  // namespace bornika
