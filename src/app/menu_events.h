#pragma once

namespace bornika {

class MainScreen;

/// Ties the menu switches that keep a setting, the help mode and the language list to their
/// operations.
void BrancherMenus(MainScreen& ecran);

/// A choice in `ListeLangues`: all texts, the setting, the summary.
void ListeLangues_Click(MainScreen& ecran);

/// `MnuModeAide`: help mode on or off, check mark and tool tips with it.
void MnuModeAide_Click(MainScreen& ecran);

/// `mnuChargeRapide` and `MnuSplash`: flip the check mark and store the setting.
void mnuChargeRapide_Click(MainScreen& ecran);
void MnuSplash_Click(MainScreen& ecran);

}  // namespace bornika
