#include "viewer/viewer_loading.h"

#include "platform/guard.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/comments.h"
#include "viewer/trace_form.h"
#include "widgets/pointer_shape.h"

namespace bornika {

ModeleGraphe& ControlesChargement::Graphe() {
    return trace_.modele;
}

Systeme& ControlesChargement::Machine() {
    return trace_.ecran.systeme;
}

QString ControlesChargement::Texte(const QString& cle) {
    return trace_.ecran.Texte(cle);
}

void ControlesChargement::LitCommentaires() {
    bornika::LitCommentaires(trace_);
}

QString ControlesChargement::Commentaires() {
    return trace_.ui->Commentaires->toPlainText();
}

void ControlesChargement::FixerCommentaires(const QString& texte) {
    trace_.ui->Commentaires->setPlainText(texte);
}

QString ControlesChargement::NomEvenement() {
    return trace_.ui->NomEvenement->text();
}

QString ControlesChargement::CoefImpulsion() {
    return trace_.ui->CoefImpulsion->text();
}

void ControlesChargement::FixerCoefImpulsion(const QString& texte) {
    const FautesIgnorees ignorees;
    trace_.ui->CoefImpulsion->setText(texte);
}

QString ControlesChargement::UniteImpulsion() {
    return trace_.ui->UniteImpulsion->text();
}

void ControlesChargement::FixerUniteImpulsion(const QString& texte) {
    const FautesIgnorees ignorees;
    trace_.ui->UniteImpulsion->setText(texte);
}

int ControlesChargement::IndexListeTemps() {
    return trace_.ui->ListeTemps->Index();
}

QString ControlesChargement::TexteListeTemps() {
    return trace_.ui->ListeTemps->Texte();
}

std::int32_t ControlesChargement::DonneeListeTemps() {
    return trace_.ui->ListeTemps->Donnee(trace_.ui->ListeTemps->Index());
}

void ControlesChargement::ChoisirListeTemps(int index) {
    const FautesIgnorees ignorees;
    trace_.ui->ListeTemps->Choisir(index);
}

void ControlesChargement::ViderCurseur() {
    trace_.ui->Curseur->Vider();
}

void ControlesChargement::AjouterCurseur(const QString& texte) {
    trace_.ui->Curseur->Ajouter(texte);
}

void ControlesChargement::FixerLabelPression(const QString& texte) {
    trace_.ui->LabelPression->setText(texte);
}

void ControlesChargement::MontrerFrameDebit() {
    trace_.ui->FrameDebit->show();
}

void ControlesChargement::FixerLissage(int periode) {
    trace_.ui->Lissage->setValue(periode);
}

void ControlesChargement::PreparerBarre(double maximum) {
    BarreProgression& barre = *trace_.ui->ProgressBar;
    barre.FixerMinimum(0);
    barre.FixerMaximum(maximum);
    barre.FixerValeur(0);
}

double ControlesChargement::MaximumBarre() {
    return trace_.ui->ProgressBar->Maximum();
}

double ControlesChargement::ValeurBarre() {
    return trace_.ui->ProgressBar->Valeur();
}

void ControlesChargement::FixerValeurBarre(double valeur) {
    trace_.ui->ProgressBar->FixerValeur(valeur);
}

void ControlesChargement::MontrerFleche() {
    FixerPointeurSouris(trace_, pointeur::fleche);
}

void ControlesChargement::FinirChargement() {
    trace_.Chargement = false;
}

bool ControlesChargement::EnFermeture() {
    return trace_.EnFermeture();
}

}  // namespace bornika
