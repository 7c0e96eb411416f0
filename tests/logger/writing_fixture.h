#pragma once

#include <string>
#include <vector>

#include "logger/logger_fixture.h"

namespace bornika::essai {

/// How the main form and the link stand at one moment.
struct Vue {
    bool boutonValide = true;
    int pointeur = 0;
    int poignees = 0;
    bool operator==(const Vue&) const = default;
};

/// A box as the operator met it, with what stood behind it.
struct BoiteVue {
    Icone icone;
    Boutons boutons;
    std::string titre;
    std::string texte;
    Vue vue;
};

/// A logger that was read, and a form filled with a set-up that differs from the logger's in every
/// field. Journal, boxes and pauses are empty; the time stamps count milliseconds from here.
class BancEcriture : public BancEnregistreur {
  public:
    explicit BancEcriture(std::uint8_t type = 1, std::uint8_t versionBasse = 110);

    /// Writes, and answers OK to the question whether the old values may be overwritten.
    void EcrireEnConfirmant();
    Vue Maintenant() const;
    /// The texts of the boxes, in their order.
    std::vector<std::string> Boites() const;
    /// Codes of the frames received, as one text.
    std::string Codes() const;
    /// The frames of one command, as bytes.
    std::vector<std::vector<std::uint8_t>> Trames(int code) const {
        return enregistreur.journal.DeCode(code);
    }
    /// Bytes of the internal memory.
    std::vector<int> Octets(int ou, int nombre) const;

    /// Filled by the boxes, and by each frame, opening and closing.
    std::vector<BoiteVue> boites;
    std::vector<Vue> pendantLien;
    /// The internal memory as it stood before the write.
    simulateur::MemoireInterne avant;

  private:
    void RemplirFormulaire();
};

/// All frames of the write of that set-up to a logger with a card and the newest firmware: card
/// check, sensor check, the set-up, the internal memory, the forced context.
const std::vector<std::vector<std::uint8_t>>& TramesCompletes();

/// The codes of a whole reading, as one text.
inline const std::string codesLecture = "9 6 28 26 26 2 17 4 8 13 14 29 29 29 29 21 22 9 ";

/// What stands on the form and in the link after an end that restores everything.
inline constexpr Vue rendue{true, 0, 0};
/// The same with the link left open.
inline constexpr Vue rendueOuverte{true, 0, 2};

/// Type of a logger with a card, and the second part of the last version.
inline constexpr std::uint8_t avecCarte = 20;
inline constexpr std::uint8_t derniereVersion = 120;

/// Texts of two boxes: the question before a writing, and what is told behind it.
inline const std::string ecrasees = " Les anciennes valeurs seront écrasées";
inline const std::string terminee = "Ecriture des paramètres terminée";

}  // namespace bornika::essai
