#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <functional>
#include <vector>

#include "link/command_exchange.h"
#include "support/fault_number.h"
#include "support/form_stand.h"
#include "support/plain_text.h"
#include "widgets/controls.h"

namespace bornika::essai {

/// A carrier of bytes that follows a script and writes down every call in its order.
class UsbDicte : public InterfaceUsb {
  public:
    QStringList appels;
    /// Results of the next opens (then 1, 2, 3...), writes (then true) and reads (then silence).
    std::deque<PoigneeUsb> ouvertures;
    std::deque<bool> ecritures;
    std::deque<std::vector<std::uint8_t>> reponses;
    std::uint32_t erreur = 0;
    QString texteErreur;
    int textesDemandes = 0;
    /// Runs while a read waits.
    std::function<void()> pendantLecture;

    int Compte() override { return 0; }
    IdentifiantUsb Identifiant(int) override { return 0; }
    PoigneeUsb Ouvrir(IdentifiantUsb id) override {
        const PoigneeUsb poignee = Suivant(ouvertures, ++derniere_);
        appels << QStringLiteral("open %1 = %2").arg(id).arg(poignee);
        return poignee;
    }
    bool Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) override {
        QStringList valeurs;
        for (const std::uint8_t octet : octets)
            valeurs << QString::number(octet);
        appels << QStringLiteral("write %1: %2").arg(poignee).arg(valeurs.join(u' '));
        return Suivant(ecritures, poignee > 0);
    }
    int Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) override {
        appels << QStringLiteral("read %1: %2").arg(poignee).arg(octets.size());
        if (pendantLecture) pendantLecture();
        const std::vector<std::uint8_t> reponse = Suivant(reponses, {});
        const std::size_t nombre = std::min(reponse.size(), octets.size());
        std::copy_n(reponse.begin(), nombre, octets.begin());
        return static_cast<int>(nombre);
    }
    void Annuler(PoigneeUsb poignee) override {
        appels << QStringLiteral("cancel %1").arg(poignee);
    }
    void Fermer(PoigneeUsb poignee) override { appels << QStringLiteral("close %1").arg(poignee); }
    std::uint32_t DerniereErreur() const override { return erreur; }
    QString TexteErreur(std::uint32_t) const override {
        ++const_cast<UsbDicte*>(this)->textesDemandes;
        return texteErreur;
    }

  private:
    template <class T>
    static T Suivant(std::deque<T>& file, T sinon) {
        if (file.empty()) return sinon;
        T valeur = file.front();
        file.pop_front();
        return valeur;
    }
    PoigneeUsb derniere_ = 0;
};

/// The few texts that this room asks for, in two languages.
inline QByteArray TextesDuLien() {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<Configuration><Messages>
<Langue NOM="Français">
<Entree><Cle>k-Pod Absent</Cle><Texte>k-Pod absent</Texte></Entree>
<Entree><Cle>View All</Cle><Texte>Tout voir</Texte></Entree>
<Entree><Cle>Cancel</Cle><Texte>Annuler</Texte></Entree>
<Entree><Cle>IndicationChoisir</Cle><Texte>un clic choisit</Texte></Entree>
<Entree><Cle>IndicationToutVoir</Cle><Texte>tout voir</Texte></Entree>
<Entree><Cle>IndicationAucun</Cle><Texte>aucun</Texte></Entree>
<Entree><Cle>IndicationSansReponse</Cle><Texte>sans réponse</Texte></Entree>
<Entree><Cle>IndicationSansReglage</Cle><Texte>numéros USB :</Texte></Entree>
<Entree><Cle>IndicationSansDroits</Cle><Texte>règle udev 60-bornika.rules :</Texte></Entree>
<Entree><Cle>IndicationSansPoints</Cle><Texte>points d'accès :</Texte></Entree>
<Entree><Cle>mnuconnect</Cle><Texte>Connexion</Texte></Entree>
</Langue>
<Langue NOM="English"><Entree><Cle>k-Pod Absent</Cle><Texte>no k-Pod</Texte></Entree>
<Entree><Cle>View All</Cle><Texte>View all</Texte></Entree>
<Entree><Cle>Cancel</Cle><Texte>Cancel</Texte></Entree>
<Entree><Cle>IndicationChoisir</Cle><Texte>one click chooses</Texte></Entree>
<Entree><Cle>IndicationToutVoir</Cle><Texte>all is viewed</Texte></Entree>
<Entree><Cle>IndicationAucun</Cle><Texte>none</Texte></Entree>
<Entree><Cle>IndicationSansReponse</Cle><Texte>no answer</Texte></Entree>
<Entree><Cle>IndicationSansReglage</Cle><Texte>USB numbers:</Texte></Entree>
<Entree><Cle>IndicationSansDroits</Cle><Texte>udev rule 60-bornika.rules:</Texte></Entree>
<Entree><Cle>IndicationSansPoints</Cle><Texte>endpoints:</Texte></Entree>
<Entree><Cle>mnuconnect</Cle><Texte>Select a logger</Texte></Entree>
</Langue>
</Messages></Configuration>
)";
}

/// A main form in French with a link, on the given carrier of bytes, in the given edition.
class Banc : public BancFormulaire {
  public:
    explicit Banc(InterfaceUsb& usb, const QString& sousDossier = {})
        : BancFormulaire(usb, sousDossier) {
        etabli.Ecrire(QStringLiteral("config.xml"), TextesDuLien());
        ui.ListeLangues->Vider();
        ui.ListeLangues->Ajouter(QStringLiteral("Français"));
        ui.ListeLangues->Ajouter(QStringLiteral("English"));
        ui.ListeLangues->Choisir(0);
    }

    QByteArray Configuration() const { return etabli.Lire(QStringLiteral("config.xml")); }

    DialoguesNotes& dialogues = etabli.dialogues;
    HorlogeFigee& horloge = etabli.horloge;
};

}  // namespace bornika::essai
