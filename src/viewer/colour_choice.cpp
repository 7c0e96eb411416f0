#include "viewer/colour_choice.h"

#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

constexpr int nombreLignes = 3;           // colour lines at the head of the list
constexpr int positionPremiereLigne = 2;  // tool position of the first of them

/// Where a colour is kept: a colour line or a curve.
struct PorteCouleur {
    bool ligne;
    int position;
};

PorteCouleur PorteDe(int index) {
    if (index < nombreLignes) return {true, index + positionPremiereLigne};
    return {false, index - nombreLignes};
}

bool PorteExiste(const Trace& trace, PorteCouleur porte) {
    const int nombre = porte.ligne ? trace.modele.NombreOutils() : trace.modele.NombreSeries();
    return porte.position < nombre;
}

}  // namespace

void RemplirCouleurs(Trace& trace) {
    ListeDeroulante& liste = *trace.ui->Couleurs;
    liste.Vider();
    for (const QLabel* etiquette : {trace.ui->LabelMoyenne, trace.ui->LabelMin, trace.ui->LabelMax})
        liste.Ajouter(etiquette->text());
    for (int i = 1; i < trace.ui->Curseur->Nombre(); ++i)
        liste.Ajouter(trace.ui->Curseur->TexteA(i));
    liste.Choisir(0);
}

void Couleurs_Click(Trace& trace) {
    const int index = trace.ui->Couleurs->Index();
    if (trace.Chargement || index < 0) return;
    const PorteCouleur porte = PorteDe(index);
    if (!PorteExiste(trace, porte)) return;

    // The dialog lets the interface run: the chart may have changed when it comes back.
    const Trace::Occupation occupation(trace);
    const Couleur depart = porte.ligne ? trace.modele.Outil(porte.position).crayon
                                       : trace.ui->TChart1->CouleurSerie(porte.position);
    const auto choisie = trace.ecran.systeme.dialogues.Couleur(depart);
    if (!choisie || !PorteExiste(trace, porte)) return;
    if (porte.ligne)
        trace.modele.Outil(porte.position).crayon = *choisie;
    else
        trace.modele.Serie(porte.position).couleur = *choisie;
    trace.ui->TChart1->Repaint();
}

}  // namespace bornika
