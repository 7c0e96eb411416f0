#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "retrieval/download_engine.h"
#include "support/form_stand.h"

namespace bornika::essai {

/// A main form whose button "LireValeurs" downloads. What follows a download in the viewer is noted
/// instead of shown.
class BancTelechargement : public BancFormulaire {
  public:
    /// The form paints and takes events in every `toursParAffichage`-th round.
    BancTelechargement(InterfaceUsb& usb, const QString& langue, int toursParAffichage = 1);

    /// A real click on the button.
    void Telecharger() { Cliquer(ui.LireValeurs); }
    /// Runs `geste` in the yield of that round of the download (1 = the first).
    void AuTour(int tour, std::function<void()> geste) {
        gestes_.emplace_back(tour, std::move(geste));
    }

    /// The two files of the download, by the clock of the stand.
    QByteArray Mesures() const { return etabli.Lire(nom + QStringLiteral(".txt")); }
    QByteArray Rejets() const { return etabli.Lire(nom + QStringLiteral(".err")); }
    /// Measure lines of the ".txt" file.
    int NombreLignes() const { return static_cast<int>(Mesures().count('\n')) - 1; }

    SuiteTelechargement suite;
    QString nom = QStringLiteral("2026-03-05-14-07-09");
    int tours = 0;
    std::vector<QString> commentaires;
    std::vector<QString> montres;
    /// When it is not 0 the comment file cannot be made.
    int fauteCommentaires = 0;

  private:
    std::vector<std::pair<int, std::function<void()>>> gestes_;
};

}  // namespace bornika::essai
