#pragma once

#include <QStringList>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "platform/dialogs.h"

namespace bornika::essai {

/// Answers dialogs as the test announced them, and records them; nothing is ever shown. A dialog
/// that nobody announced fails the test and gets the harmless answer (Cancel or No); one that was
/// announced and never came fails it when this object ends. Boxes with OK alone destroy nothing: a
/// test that reads them out with `Boites` has accounted for those that came until then.
class DialoguesNotes : public Dialogues {
  public:
    struct Boite_ {
        Icone icone;
        Boutons boutons;
        QString titre;
        QString texte;
    };
    DialoguesNotes() = default;
    ~DialoguesNotes() override;

    /// The next question (OK/Cancel or Yes/No) is answered so; its text contains `texte`.
    void AnnoncerQuestion(Reponse reponse, const QString& texte = {}) {
        questions_.push_back({reponse, texte});
    }
    /// The next box with OK alone contains `texte`.
    void AnnoncerInformation(const QString& texte) { informations_.push_back(texte); }
    /// Any number of boxes with OK alone may come.
    void TolererInformations() { tolere_ = true; }
    /// The next file dialog opens, or saves, and gives that file; nothing: it is cancelled.
    void AnnoncerOuverture(std::optional<QString> fichier) {
        fichiers_.push_back({Genre::Ouverture, std::move(fichier)});
    }
    void AnnoncerEnregistrement(std::optional<QString> fichier) {
        fichiers_.push_back({Genre::Enregistrement, std::move(fichier)});
    }
    /// The next colour dialog gives that colour; nothing: it is cancelled.
    void AnnoncerCouleur(std::optional<std::uint32_t> couleur) { couleurs_.push_back(couleur); }
    /// A print preview comes, and `geste` is what the operator does in it.
    void AnnoncerApercu(std::function<void(const DemandeApercu&)> geste = {}) {
        gestesApercu_.push_back(std::move(geste));
    }

    /// The boxes so far, for a test that checks them.
    const std::vector<Boite_>& Boites() const {
        lues_ = boites_.size();
        return boites_;
    }
    /// Their texts.
    QStringList TextesDesBoites() const;
    /// Forgets the boxes; one with OK alone that nobody accounted for fails here.
    void OublierBoites();

    Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                  const QString& texte) override;
    std::optional<QString> Ouvrir(const DemandeFichier& demande) override;
    std::optional<QString> Enregistrer(const DemandeFichier& demande) override;
    std::optional<std::uint32_t> Couleur(std::uint32_t depart) override;
    void Apercu(const DemandeApercu& demande) override;

    /// Runs while a box stands (what is the state during it?).
    std::function<void(const Boite_&)> pendantBoite;
    /// Runs while a file dialog stands.
    std::function<void(const DemandeFichier&)> pendantDemande;
    std::vector<DemandeFichier> demandes;
    std::vector<std::uint32_t> departsCouleur;
    std::vector<DemandeApercu> apercus;

  private:
    enum class Genre { Ouverture, Enregistrement };
    struct Question {
        Reponse reponse;
        QString texte;
    };
    struct Fichier {
        Genre genre;
        std::optional<QString> nom;
    };
    Reponse Demander(const Boite_& boite);
    void Informer(const Boite_& boite);
    std::optional<QString> Choisir(Genre genre, const DemandeFichier& demande);
    void JugerInformations();

    std::vector<Boite_> boites_;
    /// Places of the boxes with OK alone that no announcement covers.
    std::vector<std::size_t> imprevues_;
    /// How many boxes were read out.
    mutable std::size_t lues_ = 0;
    bool tolere_ = false;
    std::deque<Question> questions_;
    std::deque<QString> informations_;
    std::deque<Fichier> fichiers_;
    std::deque<std::optional<std::uint32_t>> couleurs_;
    std::deque<std::function<void(const DemandeApercu&)>> gestesApercu_;
};

}  // namespace bornika::essai
