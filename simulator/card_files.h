#pragma once

#include <QString>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/measure.h"

/// What a logger of the card family leaves on its card: 8-bit text files, numbers with a point,
/// names in capital letters.
namespace bornika::simulateur {

/// The lines that different firmware versions write.
enum class FormeCarte : std::uint8_t {
    septChamps,
    /// A further column, the battery, behind the seven.
    huitChamps,
    /// Pressure alone: the unit of the flow is missing.
    sixChamps,
    /// The header gives the weight of a pulse and the unit: "comptage (2.5);m3/HRS".
    coefficient
};

struct FichierCarte {
    std::string nom;
    std::string contenu;
};

/// A header line and one line a measure, for a sensor of 0 to 16 bar.
std::string TexteCarte(std::span<const MesureEnFlash> mesures,
                       FormeCarte forme = FormeCarte::septChamps,
                       std::string_view finDeLigne = "\r\n");

/// A card whose logger has recorded a water network for `duree` seconds until `maintenant` (device
/// seconds): the recording in two files that belong together, LOG00001.TXT and LOG00002.TXT, its
/// beginning in each other shape (EIGHT.TXT, SIX.TXT, METER.TXT, and UNIX.TXT with line feeds
/// alone), a file that holds nothing yet, and the log of starts, STARTLOG.TXT.
std::vector<FichierCarte> FichiersCarte(std::uint32_t maintenant, std::uint32_t duree = 2 * 86400);

/// Lays those files into a new folder. A folder that exists already is left as it is; one that
/// cannot be made is no failure.
void PoserCarte(const QString& dossier, std::uint32_t maintenant);

}  // namespace bornika::simulateur
