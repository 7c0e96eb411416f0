#pragma once

#include "platform/dialogs.h"

namespace bornika::banc {

/// Answers each box at once and leaves each dialog: what is measured waits for nobody.
class SansDialogues : public Dialogues {
  public:
    Reponse Boite(Icone, Boutons, const QString&, const QString&) override { return Reponse::Ok; }
    std::optional<QString> Ouvrir(const DemandeFichier&) override { return {}; }
    std::optional<QString> Enregistrer(const DemandeFichier&) override { return {}; }
    std::optional<std::uint32_t> Couleur(std::uint32_t) override { return {}; }
    void Apercu(const DemandeApercu&) override {}
};

}  // namespace bornika::banc
