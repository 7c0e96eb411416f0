#pragma once

#include <QString>

#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/external_program.h"
#include "platform/regional.h"
#include "platform/usb_interface.h"
#include "platform/yield.h"

namespace bornika {

/// Everything that the program takes from the machine, made once by `main` (or by a test).
struct Systeme {
    Horloge& horloge;
    Dialogues& dialogues;
    InterfaceUsb& usb;
    Respiration& respiration;
    Regional regional;
    /// The program's folder: configuration, recordings, comments and template live in it.
    QString dossier;
    /// How programs beside this one are started.
    Lanceur lancer = LancerProgramme;

    /// Path of a file in the program's folder.
    QString Chemin(const QString& nom) const { return dossier + QLatin1Char('/') + nom; }
};

}  // namespace bornika
