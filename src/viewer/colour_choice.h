#pragma once

namespace bornika {

class Trace;

/// Empties `Couleurs` and fills it: mean, minimum, maximum, then the curves in the order of
/// `Curseur` without "no cursor". Its first entry is chosen, without any dialog.
void RemplirCouleurs(Trace& trace);

/// An entry of `Couleurs` was chosen by the operator's hand: the colour dialog, starting at the
/// present colour of that line or curve; the dialog's colour is stored back. Nothing during a load,
/// and nothing for a line that the template did not bring.
void Couleurs_Click(Trace& trace);

}  // namespace bornika
