#pragma once

#include <QByteArrayView>
#include <QString>

namespace bornika {

/// Adds a block of bytes at the end of a file, which is created when it is not there, and brings it
/// to the disk: the whole block or nothing. When it cannot be written to its end the file is cut
/// back to what it held before, so that no half block stands in front of the next one; what was
/// there is never touched. Fault 76 for a missing folder, 52 for a name that cannot be, 61 for a
/// full disk, else 70; that of a failed write bears the platform's reason as its text.
void AjouterBloc(const QString& chemin, QByteArrayView bloc);

}  // namespace bornika
