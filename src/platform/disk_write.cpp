#include "platform/disk_write.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

namespace bornika {

// The toolkit's own unbuffered write does not tell why it failed.
int EcrireTout(int descripteur, QByteArrayView octets, qsizetype& ecrits) {
    for (qsizetype place = 0; place < octets.size();) {
        const ssize_t n = ::write(descripteur, octets.data() + place,
                                  static_cast<std::size_t>(octets.size() - place));
        if (n < 0 && errno != EINTR) return errno;
        if (n < 0) continue;
        place += n;
        ecrits += n;
    }
    return 0;
}

int Synchroniser(int descripteur) {
    return ::fsync(descripteur) != 0 && errno != EINVAL && errno != EROFS ? errno : 0;
}

void SynchroniserDossierDe(const QByteArray& chemin) {
    const QString dossier = QFileInfo(QFile::decodeName(chemin)).absolutePath();
    const int descripteur =
        ::open(QFile::encodeName(dossier).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descripteur < 0) return;
    ::fsync(descripteur);
    ::close(descripteur);
}

}  // namespace bornika
