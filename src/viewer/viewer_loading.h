#pragma once

#include "chart/model/loader_form.h"

namespace bornika {

class Trace;

/// The controls of the viewer form as the loader of recordings sees them.
class ControlesChargement : public FicheChargement {
  public:
    explicit ControlesChargement(Trace& trace) : trace_(trace) {}

    ModeleGraphe& Graphe() override;
    Systeme& Machine() override;
    QString Texte(const QString& cle) override;
    void LitCommentaires() override;
    QString Commentaires() override;
    void FixerCommentaires(const QString& texte) override;
    QString NomEvenement() override;
    QString CoefImpulsion() override;
    void FixerCoefImpulsion(const QString& texte) override;
    QString UniteImpulsion() override;
    void FixerUniteImpulsion(const QString& texte) override;
    int IndexListeTemps() override;
    QString TexteListeTemps() override;
    std::int32_t DonneeListeTemps() override;
    void ChoisirListeTemps(int index) override;
    void ViderCurseur() override;
    void AjouterCurseur(const QString& texte) override;
    void FixerLabelPression(const QString& texte) override;
    void MontrerFrameDebit() override;
    void FixerLissage(int periode) override;
    void PreparerBarre(double maximum) override;
    double MaximumBarre() override;
    double ValeurBarre() override;
    void FixerValeurBarre(double valeur) override;
    void MontrerFleche() override;
    void FinirChargement() override;
    bool EnFermeture() override;

  private:
    Trace& trace_;
};

}  // namespace bornika
