#pragma once

namespace bornika {

class AccesTrace;
struct Poste;

/// Ties the buttons and menu entries of the main form that talk to the logger, open the viewer or
/// leave the program.
void BrancherAppareil(Poste& poste, AccesTrace& trace);

}  // namespace bornika
