#include "platform/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

#include "platform/fault.h"

namespace bornika {

namespace {

[[noreturn]] void Echouer(int erreur) {
    LeverFaute(erreur == ENOSPC || erreur == EDQUOT ? numero_faute::disquePlein
                                                    : numero_faute::accesRefuse);
}

// The file that a chain of symbolic links ends at: it is replaced, the links stay.
QString Cible(const QString& chemin) {
    constexpr int maillons = 40;
    QString cible = chemin;
    for (int i = 0; i < maillons && QFileInfo(cible).isSymLink(); ++i)
        cible = QFileInfo(cible).symLinkTarget();
    return cible;
}

// The file written beside the old one: it is gone again unless it took the old one's place.
class FichierVoisin {
  public:
    explicit FichierVoisin(const QString& dossier)
        : chemin_(
              QFile::encodeName(QStringLiteral("%1/.bornika-%2.tmp").arg(dossier).arg(getpid()))) {
        // Left over by a process of this number that was cut off.
        ::unlink(chemin_.constData());
        descripteur_ = ::open(chemin_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descripteur_ < 0) Echouer(errno);
    }
    ~FichierVoisin() {
        if (descripteur_ >= 0) ::close(descripteur_);
        if (!enPlace_) ::unlink(chemin_.constData());
    }
    FichierVoisin(const FichierVoisin&) = delete;
    FichierVoisin& operator=(const FichierVoisin&) = delete;

    void Ecrire(const QByteArray& contenu) const {
        for (qsizetype ecrits = 0; ecrits < contenu.size();) {
            const ssize_t n = ::write(descripteur_, contenu.constData() + ecrits,
                                      static_cast<std::size_t>(contenu.size() - ecrits));
            if (n < 0 && errno != EINTR) Echouer(errno);
            if (n > 0) ecrits += n;
        }
    }

    void PrendrePermissions(const struct stat& ancien) const {
        // A group that this user may not give is no failure: the file stays readable to its user.
        [[maybe_unused]] const int rendu =
            ::fchown(descripteur_, static_cast<uid_t>(-1), ancien.st_gid);
        if (::fchmod(descripteur_, ancien.st_mode & 07777) != 0) Echouer(errno);
    }

    void MettreEnPlace(const QByteArray& cible) {
        if (::fsync(descripteur_) != 0) Echouer(errno);
        const int descripteur = descripteur_;
        descripteur_ = -1;
        if (::close(descripteur) != 0) Echouer(errno);
        if (std::rename(chemin_.constData(), cible.constData()) != 0) Echouer(errno);
        enPlace_ = true;
    }

  private:
    QByteArray chemin_;
    int descripteur_ = -1;
    bool enPlace_ = false;
};

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
    const QString cible = Cible(chemin);
    const QString dossier = QFileInfo(cible).absolutePath();
    const QByteArray nom = QFile::encodeName(cible);
    struct stat ancien {};
    const bool existe = ::stat(nom.constData(), &ancien) == 0;
    // A protected file is not replaced behind its owner's back, even where its folder allows it.
    if (existe && ::access(nom.constData(), W_OK) != 0) Echouer(errno);

    FichierVoisin voisin(dossier);
    voisin.Ecrire(contenu);
    if (existe) voisin.PrendrePermissions(ancien);
    voisin.MettreEnPlace(nom);
    SynchroniserDossier(dossier);
}

}  // namespace bornika
