#pragma once

#include <QString>

#include "link/station.h"

namespace bornika {

class frmConnect;
class FormSelection;

/// Shows the list of loggers and waits. A chosen logger sets `UsbID`, `TypekPod`, `NomKpod` and
/// `Connected`; a cancel leaves the type and the version of the logger that was asked last.
void MontrerConnexion(Poste& poste);
/// Shows the choice of a product and waits. Sets `TypekPod` and `NomKpod` in any case.
void MontrerSelection(Poste& poste);

/// Rebuilds the list: every logger attached is asked who it is. With `voirTout`, those are listed
/// too whose answer makes no sense; silent ones never are, and no message is shown.
void Enumere(frmConnect& fiche, bool voirTout);

/// Rebuilds the list when loggers were plugged in or pulled out since it was built, and keeps the
/// current line if its logger is still there. Otherwise no logger is asked anything. Does nothing
/// while the list is being built, once a logger was chosen, and under another dialog.
void Veiller(frmConnect& fiche);

/// Lists anew, with or without the loggers whose answer makes no sense.
void ViewAll_Click(frmConnect& fiche);
/// Chooses the logger of the current line and closes the form; nothing while everything is viewed.
void Listekrow_Click(frmConnect& fiche);
/// Closes the form; what was chosen before stays chosen.
void ExitEtalonnage_Click(frmConnect& fiche);

/// One of the four options was chosen, `index` 0 to 3: sets `TypekPod` (1 or 20) and `NomKpod`.
/// The option tells the edition, not the folder.
void TypekPod_Click(FormSelection& fiche, int index);
/// Closes the form.
void Selection_Click(FormSelection& fiche);

/// Asks the logger `id` with `CMD_IDENTIFIE`. `texte` is "k-Pod ( 1) 2.1102" for example, `estKpod`
/// true for the logger models proper. A silent logger gives the text of zeros.
void LitVersion(Poste& poste, IdentifiantUsb id, bool& estKpod, QString& texte);

}  // namespace bornika
