#pragma once

#include <QByteArray>

namespace bornika {

/// Writes all of the bytes to an open file. `ecrits` grows by what got there, so that the caller
/// knows how far a write came that failed. 0, or the system's number of the error.
int EcrireTout(int descripteur, QByteArrayView octets, qsizetype& ecrits);

/// Brings an open file to the disk: some file systems tell of a full disk only here. What is no
/// disk file cannot be asked, and that is no failure. 0, or the system's number of the error.
int Synchroniser(int descripteur);

/// Brings the name of a new file to the disk, so that it survives a power cut too. A folder that
/// cannot be synchronised is no failure.
void SynchroniserDossierDe(const QByteArray& chemin);

}  // namespace bornika
