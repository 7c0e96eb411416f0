#pragma once

namespace bornika {

class Etalonnage;
struct Poste;

/// Opens the calibration form, anew each time, and comes back when it is closed.
void MontrerEtalonnage(Poste& poste);

/// The start of the form: captions, one row, units, then what the logger holds. Reading may show
/// the text "k-Pod Absent"; the form comes up all the same.
void ChargerEtalonnage(Etalonnage& fiche);

/// Shows what the logger holds: date, sensor and the pair of each point, and keeps the pairs in the
/// state of the main form. The correction made of them stays as the last reading of the parameters
/// has left it. An exchange that fails ends the reading there, with the text "k-Pod Absent". Does
/// not clear `TimeOut`: while it stands, nothing is read and nothing is said.
void LireEtalonnage(Etalonnage& fiche);

/// Sends the typed pressure of the present point, then tells the operator in two boxes to let the
/// logger measure it. A box that holds no number becomes "0", with no further effect; the second
/// one counts also while it is hidden. A logger that is silent leaves the buttons as they were.
void EntrerEtalonnage(Etalonnage& fiche);

/// Ends the taking of a point: on new firmware the operator may go on to the second one, otherwise
/// the logger leaves calibration and what it holds is read. A logger that does not answer to the
/// version or to the end of calibration leaves the buttons as they were, for another try.
void SortirEtalonnage(Etalonnage& fiche);

}  // namespace bornika
