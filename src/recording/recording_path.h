#pragma once

#include <QString>
#include <QStringList>

namespace bornika {

/// The files behind a name as file dialogs give it: the one path, or folder and names separated by
/// NUL.
QStringList CheminsFichiers(const QString& NomFichier);

/// Both names lead to one file that exists, whatever the links between.
bool EstMemeFichier(const QString& un, const QString& autre);

/// The file itself if it exists, else the file of that folder whose name differs in letter case
/// only, else the name as it is.
QString TrouverFichier(const QString& NomFichier);

/// Name of the file that holds the measures which failed parity: the ".txt" in the name of the
/// file, in any letter case, becomes ".err"; "" for a name without it.
QString NomCompagnon(const QString& NomFichier);

}  // namespace bornika
