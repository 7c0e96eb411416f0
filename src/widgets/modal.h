#pragma once

#include <QDialog>
#include <functional>

namespace bornika {

/// Shows a dialog of this room and comes back when it is closed. Tests put a hand of their own in
/// its place, which clicks on the dialog and returns.
using Montreur = std::function<void(QDialog&)>;

/// Replaces how dialogs are shown; an empty function brings the toolkit's own way back.
void ReglerMontreur(Montreur montreur);

/// Shows the dialog and waits until it is closed.
void MontrerModal(QDialog& dialogue);

}  // namespace bornika
