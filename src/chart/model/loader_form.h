#pragma once

#include <QString>
#include <cstdint>

namespace bornika {

class ModeleGraphe;
struct Systeme;

/// What the loading of a recording asks of the form that shows it, one operation for each control
/// that it touches. The form `Trace` is the real one; tests have one without any window.
///
/// What an operation does to a control raises that control's events, as the operator's hand would:
/// a unit or a time unit taken from a file is saved by the very handlers that save a typed one.
struct FicheChargement {
    virtual ~FicheChargement() = default;

    virtual ModeleGraphe& Graphe() = 0;
    /// Clock, locale and yield.
    virtual Systeme& Machine() = 0;
    /// Text of a key in the language of `ListeLangues`, for the present product.
    virtual QString Texte(const QString& cle) = 0;

    virtual void LitCommentaires() = 0;
    virtual QString Commentaires() = 0;
    virtual void FixerCommentaires(const QString& texte) = 0;
    virtual QString NomEvenement() = 0;

    virtual QString CoefImpulsion() = 0;
    virtual void FixerCoefImpulsion(const QString& texte) = 0;
    virtual QString UniteImpulsion() = 0;
    virtual void FixerUniteImpulsion(const QString& texte) = 0;

    /// Position of the time unit in `ListeTemps`, -1 for none.
    virtual int IndexListeTemps() = 0;
    /// Text and number (seconds in that unit) of the selected time unit.
    virtual QString TexteListeTemps() = 0;
    virtual std::int32_t DonneeListeTemps() = 0;
    /// Selects a time unit, -1 for none. Fault 380 for an entry that is not there.
    virtual void ChoisirListeTemps(int index) = 0;

    virtual void ViderCurseur() = 0;
    virtual void AjouterCurseur(const QString& texte) = 0;

    /// Caption of `LabelPression`.
    virtual void FixerLabelPression(const QString& texte) = 0;
    virtual void MontrerFrameDebit() = 0;
    /// Value of the scroll bar `Lissage`.
    virtual void FixerLissage(int periode) = 0;

    /// `ProgressBar`: minimum 0, that maximum, value 0.
    virtual void PreparerBarre(double maximum) = 0;
    virtual double MaximumBarre() = 0;
    virtual double ValeurBarre() = 0;
    virtual void FixerValeurBarre(double valeur) = 0;

    /// The mouse pointer becomes the arrow.
    virtual void MontrerFleche() = 0;
    /// Clears `Chargement`.
    virtual void FinirChargement() = 0;
    /// The form or the program is being closed: the loading leaves after its next yield.
    virtual bool EnFermeture() = 0;
};

}  // namespace bornika
