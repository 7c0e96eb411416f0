#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cstdio>

#include "platform/atomic_file.h"
#include "platform/fault.h"
#include "settings/config_store_merge.h"

// Build step: puts the delivered files beside the programs. A "config.xml" that a program has used
// is never overwritten: what it lacks is added. Arguments: the folder of the delivered files, the
// folder of the programs.

namespace {

QByteArray Contenu(const QString& chemin) {
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Livrer(const QDir& source, const QDir& cible) {
    const QString configuration = QStringLiteral("config.xml");
    const QString chemin = cible.filePath(configuration);
    const QByteArray livree = Contenu(source.filePath(configuration));
    if (!QFile::exists(chemin)) {
        bornika::RemplacerFichier(chemin, livree);
    } else {
        const QByteArray utilisee = Contenu(chemin);
        const QByteArray fusion = bornika::FusionnerConfiguration(utilisee, livree);
        if (fusion != utilisee) bornika::RemplacerFichier(chemin, fusion);
    }
    // The template is only ever read: one that a person has changed stays as it is.
    const QString modele = QStringLiteral("BORNIKA.TEE");
    if (!QFile::exists(cible.filePath(modele)))
        bornika::RemplacerFichier(cible.filePath(modele), Contenu(source.filePath(modele)));
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: bornika-deliver SOURCE-FOLDER PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    try {
        Livrer(QDir(QString::fromLocal8Bit(argv[1])), QDir(QString::fromLocal8Bit(argv[2])));
    } catch (const bornika::FauteExecution& faute) {
        std::fprintf(stderr, "bornika-deliver: %s\n", faute.what());
        return 1;
    }
    return 0;
}
