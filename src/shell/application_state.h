#pragma once

#include <QString>
#include <cstdint>

#include "platform/usb_interface.h"

namespace bornika {

/// Title of the application: in the about box, and on the standard box of a fault.
inline constexpr char titreApplication[] = "k-Pod";

/// Seven figures of the sensor's calibration, in points. A high pair of zeros means that the logger
/// has one point only.
struct Etalonnage7 {
    double valeur_etalonnage_bas = 0;
    double mesure_etalonnage_bas = 0;
    double valeur_etalonnage_haut = 0;
    double mesure_etalonnage_haut = 0;
    double correction_etalonnage = 0;
    double pente_etalonnage = 0;
    double offset_etalonnage = 0;
};

/// The state of the program that is not on a control of the main form.
struct EtatApplication {
    /// Help mode: tool tips from the catalogue are shown.
    bool AideValide = false;
    /// The last device read brought nothing. While it stands, no further read reaches the device.
    bool TimeOut = false;
    /// Base name of the current recording file, without extension.
    QString Nom_Fichier;
    /// Product type code; 0 until a product was chosen.
    std::int32_t TypekPod = 0;
    /// Display name of the product.
    QString NomKpod;
    /// Country code; 3 or more makes the first unit the default one.
    std::int32_t CodePays = 0;
    /// A device was chosen in the device list. A later failure of the link does not clear it.
    bool Connected = false;
    /// Unique identifier of the chosen device, 0 for none.
    IdentifiantUsb UsbID = 0;

    Etalonnage7 etalonnage;

    /// Number of measures that the device's memory holds.
    double CapaciteMemoire = 540606;
    bool SplashAffiche = false;
    /// Advanced mode of the menu. Nothing sets it.
    bool ModeAvance = false;
    /// Firmware version as a number, 2.11 for example.
    double VersionLogiciel = 0;

    /// Limits of the selected sensor scale, in its base unit.
    double Mini = 0;
    double Maxi = 0;

    /// A download runs.
    bool EnLecture = false;
    /// The set-up of the logger in readable lines, rebuilt by each reading of the parameters.
    QString Rapport;

    /// The main form is being closed: long loops leave after their next yield.
    bool EnFermeture = false;
};

/// Applies the memory size code of the configuration or of the device: 1, 2 and 4 set the capacity,
/// any other code leaves it as it stands.
void AppliquerTaille(EtatApplication& etat, int code);

}  // namespace bornika
