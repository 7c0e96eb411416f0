#pragma once

namespace bornika {

struct Poste;

/// The Load of the main form, run before it is first painted: settings, texts, form defaults, then
/// the choice of a logger (or of a product where none was chosen). It sends no device command
/// beyond what the device list needs.
void Charger(Poste& poste);

/// The menu entry `mnuconnect`: the device choice again, then, unless the link was just lost, a
/// reading of the parameters. It reads also when the list was cancelled: what counts is `TimeOut`
/// alone.
void mnuconnect_Click(Poste& poste);

}  // namespace bornika
