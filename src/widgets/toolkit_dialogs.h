#pragma once

#include "platform/dialogs.h"

namespace bornika {

/// Translates the filter form of `DemandeFichier` to the toolkit's: "txt (*.txt)|*.txt" becomes
/// "txt (*.txt) (*.txt *.TXT)", of which the dialog shows the label "txt (*.txt)" alone.
QString FiltrePourDialogue(const QString& filtre);

/// The toolkit's boxes and dialogs. The parent is the program's active window, unless that one
/// deletes itself when it is closed, else its modal dialog.
class DialoguesQt : public Dialogues {
  public:
    Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                  const QString& texte) override;
    std::optional<QString> Ouvrir(const DemandeFichier& demande) override;
    std::optional<QString> Enregistrer(const DemandeFichier& demande) override;
    std::optional<std::uint32_t> Couleur(std::uint32_t depart) override;
    void Apercu(const DemandeApercu& demande) override;
};

}  // namespace bornika
