#pragma once

#include <QString>

namespace bornika {

/// Folder of the program's file, links followed: configuration, recordings and templates live in
/// it.
QString DossierProgramme();

/// True when a file can be created in the folder; it is tried, and the file removed again.
bool DossierInscriptible(const QString& dossier);

}  // namespace bornika
