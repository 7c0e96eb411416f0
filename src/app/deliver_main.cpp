#include <QCoreApplication>
#include <QDir>
#include <cstdio>

#include "platform/atomic_file.h"
#include "platform/fault.h"
#include "platform/whole_file.h"
#include "settings/config_store_merge.h"

// Build step: puts the delivered files beside the programs. A "config.xml" that a program has used
// is never overwritten: what it lacks is added. Arguments: the folder of the delivered files, the
// folder of the programs.

namespace {

QByteArray ContenuOuRien(const QString& chemin) {
    return bornika::LireTout(chemin).value_or(QByteArray());
}

void LivrerFichiers(const QDir& source, const QDir& cible) {
    const QString configuration = QStringLiteral("config.xml");
    const QString chemin = cible.filePath(configuration);
    const QByteArray livree = ContenuOuRien(source.filePath(configuration));
    if (!bornika::FichierExiste(chemin)) {
        bornika::RemplacerFichier(chemin, livree);
    } else {
        const QByteArray utilisee = ContenuOuRien(chemin);
        const QByteArray fusion = bornika::FusionnerConfiguration(utilisee, livree);
        if (fusion != utilisee) bornika::RemplacerFichier(chemin, fusion);
    }
    // The template is only ever read: one that a person has changed stays as it is.
    const QString modele = QStringLiteral("BORNIKA.TEE");
    if (!bornika::FichierExiste(cible.filePath(modele)))
        bornika::RemplacerFichier(cible.filePath(modele), ContenuOuRien(source.filePath(modele)));
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: bornika-deliver SOURCE-FOLDER PROGRAM-FOLDER\n", stderr);
        return 2;
    }
    try {
        LivrerFichiers(QDir(QString::fromLocal8Bit(argv[1])),
                       QDir(QString::fromLocal8Bit(argv[2])));
    } catch (const bornika::FauteExecution& faute) {
        std::fprintf(stderr, "bornika-deliver: %s\n", faute.what());
        return 1;
    }
    return 0;
}
