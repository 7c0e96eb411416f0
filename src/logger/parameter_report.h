#pragma once

#include <QString>

namespace bornika {

class MainScreen;

/// Adds a line to the report of the parameters: the catalogue text of `cle`, then " : " and
/// `valeur` when that is not empty.
void AjouteRapport(MainScreen& ecran, const QString& cle, const QString& valeur);

}  // namespace bornika
