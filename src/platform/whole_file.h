#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <optional>

/// Files as wholes: whether there is one, all of its bytes, a copy of it, its end. Only the rooms
/// of files open any; what they raise is told here.
namespace bornika {

/// Whether a file or a folder stands at that path; of a link, what it leads to.
bool FichierExiste(const QString& chemin);

/// All bytes of a file; nothing when it cannot be opened. One whose reading fails on the way gives
/// what came before.
std::optional<QByteArray> LireTout(const QString& chemin);

/// Copies a file with its permissions. False when that failed, and where there is one of that name
/// already.
bool CopierFichier(const QString& source, const QString& cible);

/// Removes a file, a protected one too. Fault 53 when there is none, 70 when the folder does not
/// allow it.
void EffacerFichier(const QString& chemin);

/// A file being read in pieces, for those that may be longer than memory.
class FichierParMorceaux {
  public:
    /// Opens. Fault 53 when the file is missing, 70 when it cannot be read.
    explicit FichierParMorceaux(const QString& chemin);

    /// The next bytes, at most `taille`; none at the end. Fault 70 when they cannot be read.
    QByteArray Lire(qint64 taille);

  private:
    QFile fichier_;
};

}  // namespace bornika
