#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/usb_interface.h"
#include "simulator/simulated_logger.h"

namespace bornika {

namespace simulateur {

enum class GenreAppel : std::uint8_t { compte, identifiant, ouvrir, ecrire, lire, annuler, fermer };

/// One call of the interface: `argument` is the index, the identifier or the length asked for,
/// `resultat` what was returned (a bool as 0 or 1).
struct Appel {
    GenreAppel genre;
    PoigneeUsb poignee;
    std::int32_t argument;
    std::int32_t resultat;
};

}  // namespace simulateur

/// Several simulated loggers behind the interface of the real ones. Nothing ever waits, unless a
/// pace was set. A read gives the oldest reply that was not read yet; what was not asked for of it
/// is lost.
class BusSimule : public InterfaceUsb {
  public:
    /// Attaches a logger and returns it. An identifier that is taken already gives way to a free
    /// one.
    EnregistreurSimule& Brancher(std::unique_ptr<EnregistreurSimule> enregistreur);
    EnregistreurSimule& Brancher(EnregistreurSimule enregistreur);
    /// Pulls a logger out: its handles are dead from then on, also after it came back.
    void Debrancher(IdentifiantUsb id);
    void Rebrancher(IdentifiantUsb id);
    /// The logger at that rank of attachment, whether pulled out or not.
    EnregistreurSimule& Enregistreur(int rang);
    /// The logger of that identifier, or null.
    EnregistreurSimule* Chercher(IdentifiantUsb id);
    int PoigneesOuvertes(IdentifiantUsb id) const;
    int PoigneesOuvertes() const;

    /// Each exchange takes this long, slept in pieces of a millisecond or more by `dormir` (by
    /// default the thread's sleep); 0 answers at once.
    void ReglerCadence(std::chrono::nanoseconds parEchange,
                       std::function<void(std::chrono::nanoseconds)> dormir = {});
    /// The source of the time stamps of the journals, in milliseconds; without it they are 0.
    void ReglerInstants(std::function<std::int64_t()> source) { instants_ = std::move(source); }

    /// The calls of the interface in their order, as many as the limit lets through (0: none).
    const std::vector<simulateur::Appel>& Appels() const { return appels_; }
    void ViderAppels() { appels_.clear(); }
    void ReglerLimiteAppels(std::size_t limite) { limiteAppels_ = limite; }
    /// No journal of frames and no trace of calls, for all loggers attached now.
    void TaireJournaux();

    /// What the bus says about loggers that are missing from its count.
    void ReglerAbsence(AbsenceUsb absence) { absence_ = absence; }

    /// Text of an error number in place of the platform's.
    void ReglerTexteErreur(std::uint32_t code, const QString& texte) { textes_[code] = texte; }

    int Compte() override;
    IdentifiantUsb Identifiant(int index) override;
    AbsenceUsb Absence() override { return absence_; }
    PoigneeUsb Ouvrir(IdentifiantUsb id) override;
    bool Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) override;
    int Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) override;
    void Annuler(PoigneeUsb poignee) override;
    void Fermer(PoigneeUsb poignee) override;
    std::uint32_t DerniereErreur() const override { return erreur_; }
    QString TexteErreur(std::uint32_t code) const override;

  private:
    static constexpr std::size_t repliquesEnAttente = 4;
    struct Prise {
        std::unique_ptr<EnregistreurSimule> enregistreur;
        bool presente = true;
        int ouvertes = 0;
        std::array<simulateur::Reponse, repliquesEnAttente> attente{};
        std::size_t premiere = 0;
        std::size_t nombre = 0;
    };
    struct PoigneeOuverte {
        PoigneeUsb poignee;
        Prise* prise;
        bool morte;
    };

    Prise* Chez(IdentifiantUsb id);
    Prise* Vivante(PoigneeUsb poignee);
    void Retirer(Prise& prise);
    static void Ranger(Prise& prise, const simulateur::Reponse& reponse);
    PoigneeUsb OuvrirPrise(IdentifiantUsb id);
    bool EcrirePrise(PoigneeUsb poignee, std::span<const std::uint8_t> octets);
    int LirePrise(PoigneeUsb poignee, std::span<std::uint8_t> octets);
    void Noter(simulateur::GenreAppel genre, PoigneeUsb poignee, std::int64_t argument,
               std::int64_t resultat);
    void TenirCadence();
    std::int64_t Instant() const { return instants_ ? instants_() : 0; }

    std::vector<std::unique_ptr<Prise>> prises_;
    std::vector<PoigneeOuverte> ouvertes_;
    PoigneeUsb derniere_ = 0;
    std::uint32_t erreur_ = 0;
    AbsenceUsb absence_ = AbsenceUsb::Aucune;
    std::map<std::uint32_t, QString> textes_;
    std::vector<simulateur::Appel> appels_;
    std::size_t limiteAppels_ = 20000;
    std::function<std::int64_t()> instants_;
    std::chrono::nanoseconds parEchange_{0};
    std::chrono::nanoseconds dette_{0};
    std::function<void(std::chrono::nanoseconds)> dormir_;
};

}  // namespace bornika
