#pragma once

#include <QString>
#include <cstdint>

#include "platform/usb_interface.h"

/// Firmware files and the external tool that puts them on a logger. `drapeau` tells the Z907
/// edition, which has file names of its own.
namespace bornika {

/// Form of the file names for a product type, as it is shown to the operator.
QString FormeNomFirmware(std::int32_t type, bool drapeau);

/// Version that a path tells: what follows its first "_V", in any case of letters and folder names
/// included, less the last four characters, with a point for every "_". A path without "_V" gives
/// all of it but its end.
QString TexteVersionFirmware(const QString& chemin);

/// True for the types with a rule for the files that they take.
bool AUneRegleFirmware(std::int32_t type);

/// True when that file may be put on a logger of that type, by its name and its version. Types
/// without a rule take any file.
bool EstFirmwarePour(const QString& chemin, std::int32_t type, bool drapeau);

/// A call of the external tool.
struct AppelChargeur {
    QString programme;
    /// All that follows the program and a blank: the tool takes it apart by itself.
    QString argument;
};

/// What the tool is told for that file. `dossier` is the program's folder, where the tool lives
/// too.
AppelChargeur CommandeChargeur(const QString& dossier, const QString& langue, IdentifiantUsb usb,
                               const QString& chemin, std::int32_t type);

}  // namespace bornika
