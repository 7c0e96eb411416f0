#include "platform/block_append.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

#include "platform/disk_write.h"
#include "platform/fault.h"
#include "platform/file_faults.h"

namespace bornika {

namespace {

/// The end of a file while a block is being added there.
class FinDeFichier {
  public:
    // A pipe that nobody reads must not hold the program up; a file of a disk never does.
    explicit FinDeFichier(const QByteArray& chemin)
        : descripteur_(::open(chemin.constData(),
                              O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK, 0666)) {
        if (descripteur_ < 0) LeverFaute(NumeroOuverture(errno));
        avant_ = ::lseek(descripteur_, 0, SEEK_END);
    }
    ~FinDeFichier() { ::close(descripteur_); }
    FinDeFichier(const FinDeFichier&) = delete;
    FinDeFichier& operator=(const FinDeFichier&) = delete;

    // 0, or the error that kept the rest from being written.
    int Ecrire(QByteArrayView octets) {
        const int erreur = EcrireTout(descripteur_, octets, ecrits_);
        return erreur != 0 ? erreur : Synchroniser(descripteur_);
    }

    bool EtaitVide() const { return avant_ == 0; }

    // What another program has put behind it meanwhile is not ours to cut.
    void Retirer() {
        struct stat infos {};
        if (::fstat(descripteur_, &infos) != 0 || infos.st_size != avant_ + ecrits_) return;
        [[maybe_unused]] const int coupe = ::ftruncate(descripteur_, avant_);
    }

  private:
    int descripteur_;
    off_t avant_ = 0;
    qsizetype ecrits_ = 0;
};

}  // namespace

void AjouterBloc(const QString& chemin, QByteArrayView bloc) {
    if (chemin.isEmpty() || chemin.contains(QChar(u'\0'))) LeverFaute(numero_faute::nomDeFichier);
    const QByteArray nom = QFile::encodeName(chemin);
    FinDeFichier fin(nom);
    if (const int erreur = fin.Ecrire(bloc); erreur != 0) {
        fin.Retirer();
        throw FauteExecution(NumeroEcriture(erreur), qt_error_string(erreur));
    }
    if (fin.EtaitVide()) SynchroniserDossierDe(nom);
}

}  // namespace bornika
