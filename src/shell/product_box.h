#pragma once

#include "platform/dialogs.h"

/// Boxes that carry the name of the product as their title, as nearly all of the program's do.
namespace bornika {

class MainScreen;

/// Shows a text and waits for the answer.
Reponse MontrerBoite(MainScreen& ecran, Icone icone, Boutons boutons, const QString& texte);

/// Tells a text and waits for OK.
void MontrerTexte(MainScreen& ecran, Icone icone, const QString& texte);

/// Tells the text of the catalogue that belongs to `cle`.
void MontrerMessage(MainScreen& ecran, Icone icone, const QString& cle);

}  // namespace bornika
