#include "platform/atomic_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFileInfo>
#include <QSaveFile>

#include "platform/fault.h"

namespace bornika {

namespace {

// The file that a chain of symbolic links ends at: it is replaced, the links stay.
QString Cible(const QString& chemin) {
    constexpr int maillons = 40;
    QString cible = chemin;
    for (int i = 0; i < maillons && QFileInfo(cible).isSymLink(); ++i)
        cible = QFileInfo(cible).symLinkTarget();
    return cible;
}

// The new name itself must survive a power cut. A folder that cannot be synchronised is no failure:
// the file is whole in any case.
void SynchroniserDossier(const QString& dossier) {
    const int descripteur =
        ::open(QFile::encodeName(dossier).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descripteur < 0) return;
    ::fsync(descripteur);
    ::close(descripteur);
}

}  // namespace

void RemplacerFichier(const QString& chemin, const QByteArray& contenu) {
    QSaveFile fichier(Cible(chemin));
    // Closing the object without a commit removes what was written beside the old file.
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(contenu) != contenu.size() ||
        !fichier.commit()) {
        const bool plein = fichier.error() == QFileDevice::ResourceError;
        throw FauteExecution(plein ? numero_faute::disquePlein : numero_faute::accesRefuse);
    }
    SynchroniserDossier(QFileInfo(fichier.fileName()).absolutePath());
}

}  // namespace bornika
