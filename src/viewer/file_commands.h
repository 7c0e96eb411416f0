#pragma once

namespace bornika {

class Trace;

/// The button `CommandOpen`: asks for one or several recordings and loads them. Cancelled, nothing
/// changes but the dialog's name, which is then empty.
void CommandOpen(Trace& trace);

/// The button `Sortir` of the viewer: closes the form.
void Sortir_Click(Trace& trace);

}  // namespace bornika
