#include "platform/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <utility>

#include "platform/disk_write.h"
#include "platform/fault.h"
#include "platform/file_faults.h"

namespace bornika {

namespace {

[[noreturn]] void EchouerOuverture(int erreur) {
    LeverFaute(NumeroOuverture(erreur));
}

// The file that a chain of symbolic links ends at: it is replaced, the links stay.
QString CibleDesLiens(const QString& chemin) {
    constexpr int maillons = 40;
    QString cible = chemin;
    for (int i = 0; i < maillons && QFileInfo(cible).isSymLink(); ++i)
        cible = QFileInfo(cible).symLinkTarget();
    return cible;
}

// Two programs may save in one folder at the same time, and one may prepare several files. A long
// name is shortened to its digest: whatever the folder takes as a name can be waited for.
QByteArray NomAttente(const QFileInfo& place) {
    constexpr qsizetype nomLong = 200;
    QByteArray nom = QFile::encodeName(place.fileName());
    if (nom.size() > nomLong) nom = QCryptographicHash::hash(nom, QCryptographicHash::Md5).toHex();
    return QFile::encodeName(place.absolutePath()) + "/.bornika-" + QByteArray::number(getpid()) +
           '-' + nom + ".tmp";
}

// A device or a pipe.
bool EstPeripherique(const QString& chemin) {
    struct stat infos {};
    return ::stat(QFile::encodeName(chemin).constData(), &infos) == 0 && !S_ISREG(infos.st_mode) &&
           !S_ISDIR(infos.st_mode);
}

// It can be written to, never replaced; a pipe without a reader must not hold the program up.
void EcrireDansPeripherique(const QString& chemin, QByteArrayView octets) {
    const int descripteur =
        ::open(QFile::encodeName(chemin).constData(), O_WRONLY | O_CLOEXEC | O_NONBLOCK);
    if (descripteur < 0) EchouerOuverture(errno);
    qsizetype ecrits = 0;
    const int erreur = EcrireTout(descripteur, octets, ecrits);
    ::close(descripteur);
    if (erreur != 0) EchouerOuverture(erreur);
}

}  // namespace

FichierPrepare::FichierPrepare(const QString& chemin)
    : place_(QFile::encodeName(chemin)), attente_(NomAttente(QFileInfo(chemin))) {
    // Left over by a process of this number that was cut off.
    ::unlink(attente_.constData());
    descripteur_ = ::open(attente_.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descripteur_ < 0) EchouerOuverture(errno);
}

FichierPrepare::~FichierPrepare() {
    if (descripteur_ >= 0) ::close(descripteur_);
    if (!enPlace_) ::unlink(attente_.constData());
}

void FichierPrepare::Ecrire(QByteArrayView octets) {
    qsizetype ecrits = 0;
    if (const int erreur = EcrireTout(descripteur_, octets, ecrits); erreur != 0)
        EchouerOuverture(erreur);
}

void FichierPrepare::GarderPermissions() {
    struct stat ancien {};
    if (::stat(place_.constData(), &ancien) != 0) return;
    if (::access(place_.constData(), W_OK) != 0) EchouerOuverture(errno);
    // A group that this user may not give is no failure: the file stays readable to its user.
    [[maybe_unused]] const int rendu =
        ::fchown(descripteur_, static_cast<uid_t>(-1), ancien.st_gid);
    if (::fchmod(descripteur_, ancien.st_mode & 07777) != 0) EchouerOuverture(errno);
}

void FichierPrepare::MettreEnPlace() {
    if (const int erreur = Synchroniser(descripteur_); erreur != 0) EchouerOuverture(erreur);
    if (::close(std::exchange(descripteur_, -1)) != 0) EchouerOuverture(errno);
    if (std::rename(attente_.constData(), place_.constData()) != 0) EchouerOuverture(errno);
    enPlace_ = true;
    SynchroniserDossierDe(place_);
}

void RemplacerFichier(const QString& chemin, const QByteArray& contenu) {
    const QString cible = CibleDesLiens(chemin);
    if (EstPeripherique(cible)) {
        EcrireDansPeripherique(cible, contenu);
        return;
    }
    FichierPrepare prepare(cible);
    prepare.GarderPermissions();
    prepare.Ecrire(contenu);
    prepare.MettreEnPlace();
}

}  // namespace bornika
