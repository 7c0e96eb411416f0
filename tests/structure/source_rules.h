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

/// The chart library, the XML library, the USB library, boxes and dialogs, and calls of the
/// operating system are named in their one place only.
Manquements BibliothequesHorsDeLeurPlace(const Sources& sources);

/// No file outside the room of the plot reads the chart library, neither itself nor by way of the
/// headers and forms that it includes: that takes longer to compile than the file itself.
///
/// That nobody reaches into the plot from outside its room (an axis of `TChart1`, say) needs no
/// rule: without that library the control has no such members, and it does not compile.
Manquements EntrainentLaBibliothequeDuGraphe(const Sources& sources);

/// No header opens a namespace for those who include it.
Manquements EspacesOuverts(const Sources& sources);

/// No file is longer than `lignes`.
Manquements FichiersTropLongs(const Sources& sources, int lignes);

}  // namespace bornika::essai
