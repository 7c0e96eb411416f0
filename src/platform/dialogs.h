#pragma once

#include <QString>
#include <cstdint>
#include <optional>

class QWidget;

namespace bornika {

enum class Icone { Aucune, Information, Exclamation, Question, Critique };
enum class Boutons { Ok, OkAnnuler, OuiNon };
enum class Reponse { Ok, Annuler, Oui, Non };

/// What a file dialog is asked for. `filtre` is in the form "label|*.txt" with several pairs joined
/// by
/// "|"; `suffixe` in the form "*.txt". Both letter cases of an extension are accepted when shown.
struct DemandeFichier {
    QString titre;
    QString nom;
    QString suffixe;
    QString filtre;
    QString dossier;
    bool plusieurs = false;
};

/// The one seam through which message boxes and common dialogs are shown. Texts are plain text.
class Dialogues {
  public:
    virtual ~Dialogues() = default;

    /// Shows a box and waits. Closing it by its frame or Esc answers as Cancel or, with OK alone,
    /// OK; a Yes/No box cannot be closed so.
    virtual Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                          const QString& texte) = 0;

    /// File to open, nothing when cancelled. One file is its full path; several picked files are
    /// one text: the folder, then each name, separated by NUL.
    virtual std::optional<QString> Ouvrir(const DemandeFichier& demande) = 0;

    /// File to save to (the dialog asks before it gives an existing one), nothing when cancelled.
    virtual std::optional<QString> Enregistrer(const DemandeFichier& demande) = 0;

    /// Colour dialog starting at `depart`, both in the form 0xBBGGRR; nothing when cancelled.
    virtual std::optional<std::uint32_t> Couleur(std::uint32_t depart) = 0;
};

/// Translates the filter form of `DemandeFichier` to the toolkit's: "txt (*.txt)|*.txt" becomes
/// "txt (*.txt) (*.txt *.TXT)" with the label shown as it is.
QString FiltrePourDialogue(const QString& filtre);

/// The toolkit's boxes and dialogs. The parent is the program's active window.
class DialoguesQt : public Dialogues {
  public:
    Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                  const QString& texte) override;
    std::optional<QString> Ouvrir(const DemandeFichier& demande) override;
    std::optional<QString> Enregistrer(const DemandeFichier& demande) override;
    std::optional<std::uint32_t> Couleur(std::uint32_t depart) override;
};

}  // namespace bornika
