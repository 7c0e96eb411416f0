#include "viewer/recording_path.h"

#include <QDir>
#include <QFileInfo>

namespace bornika {

QString TrouverFichier(const QString& NomFichier) {
    const QFileInfo fichier(NomFichier);
    if (fichier.exists()) return NomFichier;
    const QDir dossier = fichier.dir();
    const QStringList noms = dossier.entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& nom : noms)
        if (nom.compare(fichier.fileName(), Qt::CaseInsensitive) == 0) return dossier.filePath(nom);
    return NomFichier;
}

QString NomCompagnon(const QString& NomFichier) {
    const qsizetype debutNom = NomFichier.lastIndexOf(QLatin1Char('/')) + 1;
    QString nom = NomFichier.mid(debutNom);
    if (!nom.contains(QLatin1String(".txt"), Qt::CaseInsensitive)) return {};
    nom.replace(QLatin1String(".txt"), QLatin1String(".err"), Qt::CaseInsensitive);
    return NomFichier.left(debutNom) + nom;
}

}  // namespace bornika
