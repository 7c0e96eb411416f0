#pragma once

namespace bornika {

class Trace;

/// The flow settings of the configuration into the viewer's controls: `CoefImpulsion`,
/// `UniteImpulsion`, and `ListeTemps` at `IndexListeTemps`. A missing setting is an empty text or
/// no selection.
void LireReglagesDebit(Trace& trace);
/// The same at the Load of the form, with `ListeTemps` filled before.
void ChargerReglagesDebit(Trace& trace);

// Events of the controls in `FrameDebit`.

/// Each change of the text is saved.
void CoefImpulsion_Change(Trace& trace);
void UniteImpulsion_Change(Trace& trace);
/// The list index is saved, -1 included.
void ListeTemps_Click(Trace& trace);
/// `Frame_advanced` is visible exactly when the box is checked.
void Check_advanced_Click(Trace& trace);
/// Rebuilds the curves from the file with the settings of the form; nothing without a file.
void Command_Refresh_Click(Trace& trace);

}  // namespace bornika
