#pragma once

#include <functional>
#include <vector>

#include "chart/model/chart_model.h"
#include "chart/model/loader_form.h"
#include "platform/fault.h"
#include "support/fake_system.h"

namespace bornika::essai {

/// First line of a recording as the program writes it.
inline const QByteArray entete = "Temps;Date Heure;Valeur;Pression;bar;comptage;M3/sec.\r\n";

/// The form as the loader sees it, without any window: plain fields, and notes of what was done.
struct FicheNotee : FicheChargement {
    FicheNotee() {
        etabli.respiration.ReglerEvenements([this] { Evenements(); });
    }

    ModeleGraphe& Graphe() override { return graphe; }
    Systeme& Machine() override { return etabli.systeme; }
    QString Texte(const QString& cle) override { return QLatin1Char('<') + cle + QLatin1Char('>'); }

    void LitCommentaires() override { ++lecturesCommentaires; }
    QString Commentaires() override { return commentaires; }
    void FixerCommentaires(const QString& texte) override { commentaires = texte; }
    QString NomEvenement() override { return nomEvenement; }

    QString CoefImpulsion() override { return coefficient; }
    void FixerCoefImpulsion(const QString& texte) override { coefficient = texte; }
    QString UniteImpulsion() override { return unite; }
    void FixerUniteImpulsion(const QString& texte) override { unite = texte; }
    int IndexListeTemps() override { return indexTemps; }
    QString TexteListeTemps() override { return textesTemps.at(indexTemps); }
    std::int32_t DonneeListeTemps() override {
        return donneesTemps.at(static_cast<std::size_t>(indexTemps));
    }
    void ChoisirListeTemps(int index) override {
        if (index >= textesTemps.size()) LeverFaute(numero_faute::valeurInvalide);
        indexTemps = index;
        choixTemps.push_back(index);
    }

    void ViderCurseur() override { curseur.clear(); }
    void AjouterCurseur(const QString& texte) override { curseur.append(texte); }
    void FixerLabelPression(const QString& texte) override { labelPression = texte; }
    void MontrerFrameDebit() override { frameDebit = true; }
    void FixerLissage(int periode) override { lissages.push_back(periode); }

    void PreparerBarre(double maximum) override {
        maximumBarre = maximum;
        valeurBarre = 0;
    }
    double MaximumBarre() override { return maximumBarre; }
    double ValeurBarre() override { return valeurBarre; }
    void FixerValeurBarre(double valeur) override { valeurBarre = valeur; }

    void MontrerFleche() override { ++fleches; }
    void FinirChargement() override { chargement = false; }
    bool EnFermeture() override { return fermeture; }

    void Evenements() {
        ++cessions;
        if (pendantCession) pendantCession();
    }

    Etabli etabli;
    ModeleGraphe graphe;
    QString commentaires;
    QString nomEvenement;
    QString coefficient;
    QString unite = QStringLiteral("Imp.");
    int indexTemps = -1;
    QStringList textesTemps{"Sec", "Min", "Hrs", "Day"};
    std::vector<std::int32_t> donneesTemps{1, 60, 3600, 86400};
    std::vector<int> choixTemps;
    QStringList curseur;
    QString labelPression;
    bool frameDebit = false;
    std::vector<int> lissages;
    double maximumBarre = 100;
    double valeurBarre = 0;
    int fleches = 0;
    bool chargement = true;
    bool fermeture = false;
    int lecturesCommentaires = 0;
    int cessions = 0;
    std::function<void()> pendantCession;
};

}  // namespace bornika::essai
