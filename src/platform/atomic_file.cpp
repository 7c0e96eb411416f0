#include "platform/atomic_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "platform/fault.h"

namespace bornika {

namespace {

[[noreturn]] void LeverEchec(const QFileDevice& fichier) {
    const int numero =
        fichier.error() == QFileDevice::ResourceError ? 61 : numero_faute::accesRefuse;
    throw FauteExecution(numero, fichier.errorString());
}

// The rename itself is on the disk only when the folder is.
void DeposerDossier(const QString& dossier) {
    const int descripteur =
        ::open(QFile::encodeName(dossier).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descripteur < 0) return;
    ::fsync(descripteur);
    ::close(descripteur);
}

}  // namespace

void RemplacerFichier(const QString& chemin, const QByteArray& contenu) {
    const QFileInfo ancien(chemin);
    // A link is followed: the file that it names is replaced, not the link.
    const QString cible = ancien.isSymLink() ? ancien.symLinkTarget() : chemin;
    const bool existait = QFile::exists(cible);
    if (existait && !QFileInfo(cible).isWritable()) throw FauteExecution(numero_faute::accesRefuse);
    QSaveFile fichier(cible);
    if (!fichier.open(QIODevice::WriteOnly)) LeverEchec(fichier);
    if (existait) fichier.setPermissions(QFile::permissions(cible));
    if (fichier.write(contenu) != contenu.size() || !fichier.flush()) LeverEchec(fichier);
    if (!fichier.commit()) LeverEchec(fichier);
    DeposerDossier(QFileInfo(cible).absolutePath());
}

}  // namespace bornika
