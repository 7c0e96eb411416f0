#include "recording/recording_path.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <filesystem>
#include <system_error>

namespace bornika {

QStringList CheminsFichiers(const QString& NomFichier) {
    const QStringList morceaux = NomFichier.split(QChar(u'\0'));
    if (morceaux.size() < 2) return morceaux;
    QStringList chemins;
    for (qsizetype i = 1; i < morceaux.size(); ++i)
        chemins << morceaux[0] + QLatin1Char('/') + morceaux[i];
    return chemins;
}

bool EstMemeFichier(const QString& un, const QString& autre) {
    std::error_code erreur;
    return std::filesystem::equivalent(QFile::encodeName(un).toStdString(),
                                       QFile::encodeName(autre).toStdString(), erreur);
}

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
