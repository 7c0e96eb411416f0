#pragma once

#include "service/production_block.h"

/// The production report in three strokes: what the forms show, the block of it
/// (production_block.h), the log file.
namespace bornika {

class frmProduction;
class MainScreen;

/// Log file of an order: its number as the file's name in `dossier`, ".log" added unless ".log", in
/// any case, occurs anywhere in it.
QString CheminJournal(const QString& dossier, const QString& commande);

/// What the main form shows at this moment. Nothing is read from the logger.
RapportProduction LireRapport(frmProduction& fiche);

/// Adds the block to the log file: whole, or not at all. False, after a box, for an empty path.
/// A file that cannot be opened or written is a fault (52, 61, 70 or 76) that bears its name.
bool EcrireRapport(MainScreen& ecran, const QString& chemin, const RapportProduction& rapport);

/// The button `PrintReport`, whose whole effect is the file: adds the block to the log of the
/// order, or without an order number to the file that a dialog asks for, then hides the form. A
/// cancelled dialog changes nothing and leaves the form shown.
void PrintReport(frmProduction& fiche);

}  // namespace bornika
