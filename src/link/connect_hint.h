#pragma once

#include <QString>

#include "platform/usb_interface.h"

namespace bornika {

class frmConnect;

/// The one thing that leads on from the list of loggers as it stands.
enum class Indication {
    Choisir,
    ToutVoir,
    AucunBranche,
    SansReponse,
    SansReglage,
    SansDroits,
    SansPoints,
};

/// What a hint is made from.
struct EtatListe {
    /// Loggers attached, and how many of them are listed.
    int branches = 0;
    int lignes = 0;
    bool voirTout = false;
    AbsenceUsb absence = AbsenceUsb::Aucune;
};

/// Which hint fits: a logger that cannot be opened counts for more than those that are listed,
/// since nothing else tells of it.
Indication IndicationPour(const EtatListe& etat);

/// Key of its text in the catalogue.
QString CleIndication(Indication indication);

/// Shows the hint that fits the form now, with the file that it is about where there is one. A hint
/// that stands already is left alone unless `toujours`.
void AfficherIndication(frmConnect& fiche, bool toujours);

}  // namespace bornika
