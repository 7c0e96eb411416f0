#pragma once

#include <QByteArray>
#include <QString>

namespace bornika {

/// Replaces a file in one step: the bytes are written beside it, brought to the disk and renamed
/// over it, so that a power cut leaves the old file or the new one, never half. The old file's
/// permissions are kept. Fault 76 for a missing folder, 52 for a name that is too long, 61 for a
/// full disk, else 70; the old file then stands untouched. A device or a pipe is written to, and
/// stays.
void RemplacerFichier(const QString& chemin, const QByteArray& contenu);

/// A file that appears whole or not at all: what is written waits beside its place under a hidden
/// name. An object that goes away before its file was put in place leaves nothing behind.
class FichierPrepare {
  public:
    /// Fault 76 for a missing folder, 61 for a full disk, 70 when nothing may be written there.
    explicit FichierPrepare(const QString& chemin);
    ~FichierPrepare();
    FichierPrepare(const FichierPrepare&) = delete;
    FichierPrepare& operator=(const FichierPrepare&) = delete;

    /// Appends. Fault 61 for a full disk, else 70.
    void Ecrire(QByteArrayView octets);
    /// Takes over group and permissions of the file that has the name now, if there is one. Fault
    /// 70 when that one is protected: it is not replaced behind its owner's back.
    void GarderPermissions();
    /// Brings all of it to the disk and gives it its name. The same faults, and 52 for a name that
    /// is too long.
    void MettreEnPlace();

  private:
    QByteArray place_;
    QByteArray attente_;
    int descripteur_ = -1;
    bool enPlace_ = false;
};

}  // namespace bornika
