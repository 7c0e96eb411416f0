#pragma once

#include <QString>

namespace bornika {

class Trace;

/// The button `CommandOpen`: asks for one or several recordings and loads them. Cancelled, nothing
/// changes but the dialog's name, which is then empty.
void CommandOpen(Trace& trace);

/// Loads one recording, or several of one folder (folder and names separated by NUL), as if they
/// had been picked in the dialog.
void OuvrirEnregistrements(Trace& trace, const QString& nom);

/// The button `Sortir` of the viewer: closes the form.
void Sortir_Click(Trace& trace);

}  // namespace bornika
