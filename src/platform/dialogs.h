#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

class QPagedPaintDevice;

namespace bornika {

enum class Icone { Aucune, Information, Exclamation, Question, Critique };
enum class Boutons { Ok, OkAnnuler, OuiNon };
enum class Reponse { Ok, Annuler, Oui, Non };

/// What a file dialog is asked for. `filtre` is in the form "label|*.txt" with several pairs joined
/// by "|"; `suffixe` in the form "*.txt". Both letter cases of an extension are accepted when
/// shown.
struct DemandeFichier {
    QString titre;
    QString nom;
    QString suffixe;
    QString filtre;
    QString dossier;
    bool plusieurs = false;
    /// The file will be added to, so that nobody has to be asked whether it may be replaced.
    bool ajout = false;
};

/// What a print preview is asked for: one page.
struct DemandeApercu {
    QString titre;
    bool paysage = false;
    /// Margins at all four sides, in millimetres.
    double marges = 10;
    /// Paints the page, filling the width and height of what it gets, in pixels of the screen. It
    /// is called anew for each page set-up that the operator tries, and once more to print.
    std::function<void(QPagedPaintDevice&)> peindre;
};

/// The one seam through which message boxes and common dialogs are shown. Texts are plain text.
class Dialogues {
  public:
    virtual ~Dialogues() = default;

    /// Shows a box and waits. Closing it by its frame or Esc answers as Cancel or, with OK alone,
    /// OK; a Yes/No box cannot be closed so. Enter is OK, but Cancel in a critical OK/Cancel box.
    virtual Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                          const QString& texte) = 0;

    /// File to open, nothing when cancelled. One file is its full path; several picked files are
    /// one text: the folder, then each name, separated by NUL.
    virtual std::optional<QString> Ouvrir(const DemandeFichier& demande) = 0;

    /// File to save to, nothing when cancelled. The dialog asks before it gives an existing one
    /// that would be replaced.
    virtual std::optional<QString> Enregistrer(const DemandeFichier& demande) = 0;

    /// Colour dialog starting at `depart`, both in the form 0xBBGGRR; nothing when cancelled.
    virtual std::optional<std::uint32_t> Couleur(std::uint32_t depart) = 0;

    /// Print preview, from which the operator sets the page up, prints or makes a PDF file; comes
    /// back when it is closed. A fault of the painting goes to the guard.
    virtual void Apercu(const DemandeApercu& demande) = 0;
};

}  // namespace bornika
