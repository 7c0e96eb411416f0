#pragma once

#include <QString>

namespace bornika {

/// Folder of the translations that come with the toolkit.
QString DossierTraductions();

/// Gives the toolkit's own texts (buttons of message boxes, file dialogs, print preview) in a
/// language named as in the catalogue: by its own name or its English one, in any case. They stay
/// or become English, without a word, for a language that the toolkit or the folder does not have.
void TraduireOutils(const QString& langue, const QString& dossier = DossierTraductions());

}  // namespace bornika
