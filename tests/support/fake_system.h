#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <map>
#include <vector>

#include "platform/fault.h"
#include "platform/no_loggers.h"
#include "platform/system.h"

namespace bornika::essai {

/// A clock that stands still until a pause moves it; it keeps the list of pauses.
class HorlogeFigee : public Horloge {
  public:
    QDateTime Maintenant() override { return instant; }
    void Pause(int millisecondes) override {
        pauses.push_back(millisecondes);
        instant = instant.addMSecs(millisecondes);
    }
    QDateTime instant{QDate(2026, 3, 5), QTime(14, 7, 9), Qt::UTC};
    std::vector<int> pauses;
};

/// Records every box and answers dialogs from what the test put in; nothing is ever shown.
class DialoguesNotes : public Dialogues {
  public:
    struct Boite_ {
        Icone icone;
        Boutons boutons;
        QString titre;
        QString texte;
    };
    Reponse Boite(Icone icone, Boutons boutons, const QString& titre,
                  const QString& texte) override;
    std::optional<QString> Ouvrir(const DemandeFichier& demande) override;
    std::optional<QString> Enregistrer(const DemandeFichier& demande) override;
    std::optional<std::uint32_t> Couleur(std::uint32_t depart) override;
    void Apercu(const DemandeApercu& demande) override;

    std::vector<Boite_> boites;
    /// Answers of the next boxes; when empty: OK or Yes.
    std::vector<Reponse> reponses;
    /// Runs while a box stands (what is the state during it?).
    std::function<void(const Boite_&)> pendantBoite;

    std::vector<DemandeFichier> demandes;
    /// Runs while a file dialog stands.
    std::function<void(const DemandeFichier&)> pendantDemande;
    /// Answers of the next file dialogs; when empty: cancelled.
    std::vector<std::optional<QString>> fichiers;
    std::vector<std::uint32_t> departsCouleur;
    std::vector<std::optional<std::uint32_t>> couleurs;
    std::vector<DemandeApercu> apercus;
    /// Runs while a print preview stands: what the operator does in it.
    std::function<void(const DemandeApercu&)> pendantApercu;
};

/// A program's folder of its own with the delivered configuration in it, and a system of fakes.
/// The USB interface is the one given, or none attached.
class Etabli {
  public:
    explicit Etabli(InterfaceUsb* usb = nullptr);
    ~Etabli();

    QString Chemin(const QString& nom) const { return systeme.Chemin(nom); }
    QByteArray Lire(const QString& nom) const;
    void Ecrire(const QString& nom, const QByteArray& contenu) const;
    QStringList Fichiers() const;

    QTemporaryDir dossier;
    HorlogeFigee horloge;
    DialoguesNotes dialogues;
    AucunEnregistreur usbVide;
    Respiration respiration;
    Systeme systeme;
    /// Faults that reached a guard since this object was made.
    std::vector<int> fautes;
};

}  // namespace bornika::essai
