#pragma once

#include <string>
#include <vector>

#include "structure/source_tree.h"

/// The rules of the house about its own files. Each gives the sentences of what breaks it, none
/// when it is kept.
namespace bornika::essai {

using Manquements = std::vector<std::string>;

/// Includes between rooms run down: each room names only those below it.
Manquements PiecesMelees(const Sources& sources);

/// No file includes itself by way of others.
Manquements Cercles(const Sources& sources);

/// The chart library, the XML library, the USB library, boxes and dialogs, calls of the operating
/// system, and files that are opened are named in their one place only.
Manquements BibliothequesHorsDeLeurPlace(const Sources& sources);

/// Every form that a ".ui" file draws is marked as one of this program, in the header beside it.
Manquements FichesSansMarque(const Sources& sources);

/// No header opens a namespace for those who include it.
Manquements EspacesOuverts(const Sources& sources);

/// No file is longer than `lignes`.
Manquements FichiersTropLongs(const Sources& sources, int lignes);

}  // namespace bornika::essai
