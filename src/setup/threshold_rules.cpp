#include "setup/threshold_rules.h"

#include "platform/fault.h"
#include "platform/numbers.h"
#include "setup/entry_focus.h"
#include "setup/pressure_scale.h"
#include "setup/recording_summary.h"
#include "shell/captions.h"
#include "shell/main_screen.h"
#include "shell/threshold_labels.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

double MaximumSeuil(const MainScreen& ecran) {
    const ListeDeroulante& unites = *ecran.ui->ListeUnites;
    const double coefficient = unites.Index() < 0 ? 0 : unites.Donnee(unites.Index());
    return LimiteSeuil(ecran.etat.Maxi, coefficient);
}

/// What a change of `boite` does to itself and to `autre`. `depasse` tells of the two 16-bit
/// numbers, own and other, whether the other box must follow.
template <class Depasse>
void AppliquerSeuil(MainScreen& ecran, QLineEdit& boite, QLineEdit& autre, Depasse depasse) {
    const Regional& regional = ecran.systeme.regional;
    if (!EstNumerique(boite.text(), regional)) {
        // A lone sign stays, so that a negative number can be typed.
        if (boite.text() == QLatin1String("-")) return;
        boite.setText(QStringLiteral("0"));
        DonnerFocus(boite);
        return;
    }
    const double maxi = MaximumSeuil(ecran);
    // The comparison is of a whole number with the limit: 16.4 passes on a scale of 16 bar.
    if (EnEntier16(boite.text(), regional) > maxi) {
        boite.setText(TexteGeneral(maxi, regional));
        DonnerFocus(boite);
    }
    if (ecran.ui->DeuxSeuils->isChecked() && EstNumerique(boite.text(), regional) &&
        EstNumerique(autre.text(), regional) &&
        depasse(EnEntier16(boite.text(), regional), EnEntier16(autre.text(), regional))) {
        autre.setText(boite.text());
        DonnerFocus(boite);
    }
    Donne_Resume(ecran);
}

}  // namespace

void Seuil1_Change(MainScreen& ecran) {
    AppliquerSeuil(ecran, *ecran.ui->Seuil1, *ecran.ui->Seuil2,
                   [](int seuil, int autre) { return seuil > autre; });
}

void Seuil2_Change(MainScreen& ecran) {
    AppliquerSeuil(ecran, *ecran.ui->Seuil2, *ecran.ui->Seuil1,
                   [](int seuil, int autre) { return seuil < autre; });
}

void Seuil_Focus(MainScreen& ecran) {
    for (QLineEdit* boite : {ecran.ui->Seuil1, ecran.ui->Seuil2}) {
        if (boite->hasFocus()) boite->selectAll();
    }
}

void PasDeSeuil_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    // Never so with options that tell of being set only; kept for a click raised by other means.
    if (!ui->PasDeSeuil->isChecked()) ui->PressionAbsolue->setChecked(false);
    ui->Frame1->setVisible(false);
    Donne_Resume(ecran);
}

void UnSeuil_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    ui->Frame1->setVisible(true);
    ui->LabelSeuil2->setVisible(false);
    ui->Seuil2->setVisible(false);
    ecran.textes.TexteSeuil = ecran.Texte(QStringLiteral("Valeur du seuil"));
    MontrerTexteSeuil(ecran);
    FixerCaption(*ui->AuDessous, ecran.textes.TexteAuDessous);
    FixerCaption(*ui->AuDessus, ecran.textes.TexteAuDessus);
    Donne_Resume(ecran);
    DonnerFocus(*ui->Seuil1);
}

void DeuxSeuils_Click(MainScreen& ecran) {
    const auto& ui = ecran.ui;
    ui->Frame1->setVisible(true);
    ui->LabelSeuil2->setVisible(true);
    ui->Seuil2->setVisible(true);
    ignorer([&] { ChercherTexteLimiteBasse(ecran); });
    ignorer([&] { ChercherTexteLimiteHaute(ecran); });
    MontrerTextesLimites(ecran);
    // Above means outside the band here, below inside it: only the captions change.
    FixerCaption(*ui->AuDessous, ecran.textes.TexteEnDedans);
    FixerCaption(*ui->AuDessus, ecran.textes.TexteEnDehors);
    ignorer([&] { Donne_Resume(ecran); });
    DonnerFocus(*ui->Seuil2);
}

void AuDessus_Click(MainScreen& ecran) {
    Donne_Resume(ecran);
}

void AuDessous_Click(MainScreen& ecran) {
    Donne_Resume(ecran);
}

void OneShot_Click(MainScreen& ecran) {
    Donne_Resume(ecran);
}

}  // namespace bornika
