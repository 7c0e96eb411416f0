#pragma once

#include <QStringList>

namespace bornika {

struct FicheChargement;

/// Flow settings out of the first line of a recording. Fields of the form "label(coefficient)" and
/// "unit/time unit" give coefficient, unit and time unit; any other pair, that of a file straight
/// from the device among them, clears the time unit and takes the seventh field as the unit. A line
/// of fewer than seven fields changes nothing.
void ReprendreReglagesDebit(FicheChargement& fiche, const QStringList& entete);

/// Adds the raw pair of series and gives titles, axes and captions their texts from the first line.
/// Fault 9 for a line of fewer than four fields; the series are then there without a title.
void AjouterSeriesBrutes(FicheChargement& fiche, const QStringList& entete);

/// Adds the two smoothing series above the raw pair and chooses which ones show. `debit` tells that
/// the file had lines with a flow.
void AjouterSeriesLissees(FicheChargement& fiche, bool debit);

/// The comment as lines of the title: the whole of it as one line when it has fewer than three
/// lines, the first one alone otherwise.
QStringList LignesTitre(const QString& Commentaires);

}  // namespace bornika
