#include "viewer/statistics_display.h"

#include "chart/model/curve_statistics.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/readout_box.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

using Ligne = OutilGraphe;

/// The colour lines, counted from the end: the cursor tool stands behind them.
struct Lignes {
    explicit Lignes(ModeleGraphe& modele)
        : maximum(modele.Outil(modele.NombreOutils() - 2)),
          minimum(modele.Outil(modele.NombreOutils() - 3)),
          moyenne(modele.Outil(modele.NombreOutils() - 4)) {}

    void Montrer(bool visibles) const {
        for (Ligne* ligne : {&maximum, &minimum, &moyenne})
            ligne->crayonVisible = visibles;
    }
    void Attacher(Ligne::AxeLigne axe) const {
        for (Ligne* ligne : {&maximum, &minimum, &moyenne})
            ligne->axe = axe;
    }

    Ligne& maximum;
    Ligne& minimum;
    Ligne& moyenne;
};

Ligne::AxeLigne AxeDesLignes(const ModeleGraphe& modele, int choisie) {
    return choisie < 0 || modele.Serie(choisie).axe == SerieGraphe::Axe::Gauche
               ? Ligne::AxeLigne::Gauche
               : Ligne::AxeLigne::Droite;
}

void CalculerLignesStatistiques(Trace& trace) {
    auto& ui = *trace.ui;
    if (!ui.MinMaxMoy->isChecked()) {
        Lignes(trace.modele).Montrer(false);
        return;
    }
    ui.Marques->setChecked(false);
    const int choisie = ui.Curseur->Index() - 1;
    if (choisie >= 0) ui.Marques->setEnabled(true);
    const Lignes lignes(trace.modele);
    lignes.Montrer(true);

    const StatistiquesCourbes statistiques = CalculerStatistiques(trace.modele, choisie);
    const double moyenne = statistiques.Moyenne();
    lignes.Attacher(AxeDesLignes(trace.modele, choisie));
    lignes.maximum.valeur = statistiques.maximum;
    lignes.minimum.valeur = statistiques.minimum;
    lignes.moyenne.valeur = moyenne;

    const auto ecrire = [&](QLineEdit& boite, const Ligne& ligne) {
        MontrerLecture(boite, Format(ligne.valeur, "0.00", trace.ecran.systeme.regional),
                       ligne.crayon);
    };
    ecrire(*ui.Min, lignes.minimum);
    ecrire(*ui.Max, lignes.maximum);
    ecrire(*ui.Moy, lignes.moyenne);
}

}  // namespace

void CalculeMinMaxMoy(Trace& trace) {
    ignorer([&] { CalculerLignesStatistiques(trace); });
}

void MinMaxMoy_Click(Trace& trace) {
    auto& ui = *trace.ui;
    const bool cochee = ui.MinMaxMoy->isChecked();
    QWidget* const controles[] = {ui.Min,      ui.Max,      ui.Moy,
                                  ui.LabelMin, ui.LabelMax, ui.LabelMoyenne};
    for (QWidget* controle : controles)
        controle->setVisible(cochee);
    CalculeMinMaxMoy(trace);
    ui.TChart1->Repaint();
}

}  // namespace bornika
