#pragma once

#include <QByteArray>
#include <QString>

namespace bornika {

/// Replaces a file in one step: the bytes are written beside it, brought to the disk and renamed
/// over it, so that a power cut leaves the old file or the new one, never half. The old file's
/// permissions are kept. Fault 70 (or 61, disk full) when that cannot be; the old file then stands
/// untouched.
void RemplacerFichier(const QString& chemin, const QByteArray& contenu);

}  // namespace bornika
