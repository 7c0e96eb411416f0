#include "app/menu_events.h"

#include "platform/guard.h"
#include "setup/recording_summary.h"
#include "shell/help_mode.h"
#include "shell/language_switch.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"

namespace bornika {

void ListeLangues_Click(MainScreen& ecran) {
    ChangeTextes(ecran, ecran.Langue(), false);
    ecran.configuration.EcritConfig(ecran.Langue(), QStringLiteral("Langue"));
    Donne_Resume(ecran);
}

void MnuModeAide_Click(MainScreen& ecran) {
    ecran.etat.AideValide = !ecran.etat.AideValide;
    ecran.ui->MnuModeAide->setChecked(ecran.etat.AideValide);
    AfficheAide(ecran, ecran.Langue(), ecran.etat.AideValide);
}

// The toolkit has flipped the check mark of a checkable entry before it tells of the click.
void mnuChargeRapide_Click(MainScreen& ecran) {
    const bool cochee = ecran.ui->mnuChargeRapide->isChecked();
    ecran.configuration.EcritConfig(cochee ? QStringLiteral("1") : QStringLiteral("0"),
                                    QStringLiteral("Charge_Rapide"));
}

void MnuSplash_Click(MainScreen& ecran) {
    ecran.configuration.EcritSplash(ecran.ui->MnuSplash->isChecked());
}

void BrancherMenus(MainScreen& ecran) {
    auto& ui = *ecran.ui;
    brancher(ui.ListeLangues, &ListeDeroulante::Clic, &ecran, [&] { ListeLangues_Click(ecran); });
    brancher(ui.MnuModeAide, &QAction::triggered, &ecran, [&] { MnuModeAide_Click(ecran); });
    brancher(ui.mnuChargeRapide, &QAction::triggered, &ecran,
             [&] { mnuChargeRapide_Click(ecran); });
    brancher(ui.MnuSplash, &QAction::triggered, &ecran, [&] { MnuSplash_Click(ecran); });
}

}  // namespace bornika
