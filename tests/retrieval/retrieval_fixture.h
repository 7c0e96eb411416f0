#pragma once

#include <span>
#include <string>
#include <vector>

#include "retrieval/download_stand.h"
#include "simulator/presets.h"
#include "support/plain_text.h"

namespace bornika::essai {

/// 14 November 2023, 22:13:20.
inline constexpr std::uint32_t t0 = 1700000000;

/// That form with one chosen simulated logger.
class BancLecture : public BusDEssai, public BancTelechargement {
  public:
    /// Without a logger: a k-Pod 2.100 on 0 - 16 bar in bar, never calibrated, so that 64 points
    /// are 1 bar.
    explicit BancLecture(simulateur::PtrEnregistreur prepare = {},
                         const QString& langue = QStringLiteral("English"));

    void Stocker(std::initializer_list<simulateur::MesureEnFlash> mesures) {
        enregistreur.Stocker(std::span(mesures.begin(), mesures.size()));
    }
    /// A fault for the answers to the download command.
    void Panne(simulateur::GenrePanne genre, int occurrence, int combien = 1, int parametre = 0);

    std::string Bouton() const { return Clair(ui.LireValeurs->text()); }
    /// The requests for measures that the logger saw, flag bytes in order.
    std::vector<int> Drapeaux() const;
    int PoigneesOuvertes() const { return bus.PoigneesOuvertes(); }

    EnregistreurSimule& enregistreur;
};

/// A header line of the recordings of this stand.
inline const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";

}  // namespace bornika::essai
