#include "support/announced_dialogs.h"

#include <gtest/gtest.h>

#include <string>

namespace bornika::essai {

namespace {

constexpr const char* nomsIcones[] = {"no icon", "Information", "Exclamation", "Question",
                                      "Critical"};
constexpr const char* nomsBoutons[] = {"OK", "OK/Cancel", "Yes/No"};
constexpr const char* nomsReponses[] = {"OK", "Cancel", "Yes", "No"};
constexpr const char* nomsGenres[] = {"opens", "saves"};

std::string Decrire(const DialoguesNotes::Boite_& boite) {
    return std::string("a box (") + nomsIcones[static_cast<int>(boite.icone)] + ", " +
           nomsBoutons[static_cast<int>(boite.boutons)] + ") \"" + boite.titre.toStdString() +
           "\": \"" + boite.texte.toStdString() + "\"";
}

std::string Decrire(const DemandeFichier& demande) {
    return "\"" + demande.titre.toStdString() + "\" for \"" + demande.nom.toStdString() + "\"";
}

// The first of the queue, taken out of it; nothing when there is none.
template <class T>
std::optional<T> Premier(std::deque<T>& file) {
    if (file.empty()) return std::nullopt;
    T valeur = std::move(file.front());
    file.pop_front();
    return valeur;
}

template <class T>
void JugerReste(const std::deque<T>& file, const char* quoi) {
    if (!file.empty()) ADD_FAILURE() << file.size() << " announced, but never came: " << quoi;
}

Reponse SansDegat(Boutons boutons) {
    return boutons == Boutons::OuiNon ? Reponse::Non : Reponse::Annuler;
}

bool Offre(Boutons boutons, Reponse reponse) {
    const bool ouiNon = reponse == Reponse::Oui || reponse == Reponse::Non;
    return ouiNon == (boutons == Boutons::OuiNon);
}

}  // namespace

DialoguesNotes::~DialoguesNotes() {
    JugerInformations();
    for (const Question& question : questions_)
        ADD_FAILURE() << "announced, but never came: a question to answer with "
                      << nomsReponses[static_cast<int>(question.reponse)] << " \""
                      << question.texte.toStdString() << "\"";
    for (const QString& texte : informations_)
        ADD_FAILURE() << "announced, but never came: a box with \"" << texte.toStdString() << "\"";
    for (const Fichier& fichier : fichiers_)
        ADD_FAILURE() << "announced, but never came: a file dialog that "
                      << nomsGenres[static_cast<int>(fichier.genre)];
    JugerReste(couleurs_, "a colour dialog");
    JugerReste(gestesApercu_, "a print preview");
}

void DialoguesNotes::JugerInformations() {
    for (const std::size_t place : imprevues_)
        if (place >= lues_)
            ADD_FAILURE() << "nobody announced or checked " << Decrire(boites_[place]);
    imprevues_.clear();
}

QStringList DialoguesNotes::TextesDesBoites() const {
    QStringList textes;
    for (const Boite_& boite : Boites())
        textes << boite.texte;
    return textes;
}

void DialoguesNotes::OublierBoites() {
    JugerInformations();
    boites_.clear();
    lues_ = 0;
}

Reponse DialoguesNotes::Boite(Icone icone, Boutons boutons, const QString& titre,
                              const QString& texte) {
    const Boite_ boite{icone, boutons, titre, texte};
    boites_.push_back(boite);
    Reponse reponse = Reponse::Ok;
    if (boutons == Boutons::Ok)
        Informer(boite);
    else
        reponse = Demander(boite);
    if (pendantBoite) pendantBoite(boite);
    return reponse;
}

Reponse DialoguesNotes::Demander(const Boite_& boite) {
    const auto annoncee = Premier(questions_);
    if (!annoncee) {
        ADD_FAILURE() << "nobody announced " << Decrire(boite);
        return SansDegat(boite.boutons);
    }
    if (Offre(boite.boutons, annoncee->reponse) && boite.texte.contains(annoncee->texte))
        return annoncee->reponse;
    ADD_FAILURE() << "announced was a question to answer with "
                  << nomsReponses[static_cast<int>(annoncee->reponse)] << " \""
                  << annoncee->texte.toStdString() << "\", there came " << Decrire(boite);
    return SansDegat(boite.boutons);
}

void DialoguesNotes::Informer(const Boite_& boite) {
    if (const auto annoncee = Premier(informations_)) {
        if (!boite.texte.contains(*annoncee))
            ADD_FAILURE() << "announced was a box with \"" << annoncee->toStdString()
                          << "\", there came " << Decrire(boite);
    } else if (!tolere_) {
        imprevues_.push_back(boites_.size() - 1);
    }
}

std::optional<QString> DialoguesNotes::Ouvrir(const DemandeFichier& demande) {
    return Choisir(Genre::Ouverture, demande);
}

std::optional<QString> DialoguesNotes::Enregistrer(const DemandeFichier& demande) {
    return Choisir(Genre::Enregistrement, demande);
}

std::optional<QString> DialoguesNotes::Choisir(Genre genre, const DemandeFichier& demande) {
    const char* nom = nomsGenres[static_cast<int>(genre)];
    demandes.push_back(demande);
    const auto annonce = Premier(fichiers_);
    if (!annonce)
        ADD_FAILURE() << "nobody announced a file dialog that " << nom << ", " << Decrire(demande);
    else if (annonce->genre != genre)
        ADD_FAILURE() << "announced was a file dialog that "
                      << nomsGenres[static_cast<int>(annonce->genre)] << ", there came one that "
                      << nom << ", " << Decrire(demande);
    if (pendantDemande) pendantDemande(demande);
    return annonce && annonce->genre == genre ? annonce->nom : std::nullopt;
}

std::optional<std::uint32_t> DialoguesNotes::Couleur(std::uint32_t depart) {
    departsCouleur.push_back(depart);
    const auto annoncee = Premier(couleurs_);
    if (!annoncee) ADD_FAILURE() << "nobody announced a colour dialog starting at " << depart;
    return annoncee.value_or(std::nullopt);
}

void DialoguesNotes::Apercu(const DemandeApercu& demande) {
    apercus.push_back(demande);
    const auto annonce = Premier(gestesApercu_);
    if (!annonce)
        ADD_FAILURE() << "nobody announced a print preview \"" << demande.titre.toStdString()
                      << "\"";
    else if (*annonce)
        (*annonce)(demande);
}

}  // namespace bornika::essai
