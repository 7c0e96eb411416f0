#include "simulator/simulated_bus.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <thread>
#include <utility>

namespace bornika {

using namespace simulateur;

namespace {
constexpr std::size_t limiteLien = 20000;
constexpr std::chrono::nanoseconds plusPetitSommeil = std::chrono::milliseconds(1);
}  // namespace

EnregistreurSimule& BusSimule::Brancher(std::unique_ptr<EnregistreurSimule> enregistreur) {
    IdentifiantUsb& id = enregistreur->identite.usb;
    id = std::max(id, 1);
    while (Chez(id))
        ++id;
    auto prise = std::make_unique<Prise>();
    prise->enregistreur = std::move(enregistreur);
    prises_.push_back(std::move(prise));
    return *prises_.back()->enregistreur;
}

EnregistreurSimule& BusSimule::Brancher(EnregistreurSimule enregistreur) {
    return Brancher(std::make_unique<EnregistreurSimule>(std::move(enregistreur)));
}

void BusSimule::Debrancher(IdentifiantUsb id) {
    if (Prise* prise = Chez(id)) Retirer(*prise);
}

void BusSimule::Rebrancher(IdentifiantUsb id) {
    if (Prise* prise = Chez(id)) prise->presente = true;
}

EnregistreurSimule& BusSimule::Enregistreur(int rang) {
    return *prises_.at(static_cast<std::size_t>(rang))->enregistreur;
}

EnregistreurSimule* BusSimule::Chercher(IdentifiantUsb id) {
    Prise* prise = Chez(id);
    return prise ? prise->enregistreur.get() : nullptr;
}

int BusSimule::PoigneesOuvertes(IdentifiantUsb id) const {
    return static_cast<int>(
        std::count_if(ouvertes_.begin(), ouvertes_.end(), [id](const PoigneeOuverte& ouverte) {
            return ouverte.prise->enregistreur->identite.usb == id;
        }));
}

int BusSimule::PoigneesOuvertes() const {
    return static_cast<int>(ouvertes_.size());
}

void BusSimule::ReglerCadence(std::chrono::nanoseconds parEchange,
                              std::function<void(std::chrono::nanoseconds)> dormir) {
    parEchange_ = parEchange;
    dette_ = {};
    dormir_ = std::move(dormir);
    if (!dormir_)
        dormir_ = [](std::chrono::nanoseconds duree) { std::this_thread::sleep_for(duree); };
}

void BusSimule::TaireJournaux() {
    limiteAppels_ = 0;
    for (const auto& prise : prises_)
        prise->enregistreur->journal.ReglerLimite(0);
}

BusSimule::Prise* BusSimule::Chez(IdentifiantUsb id) {
    for (const auto& prise : prises_) {
        if (prise->enregistreur->identite.usb == id) return prise.get();
    }
    return nullptr;
}

BusSimule::Prise* BusSimule::Vivante(PoigneeUsb poignee) {
    if (poignee <= 0) return nullptr;
    for (const PoigneeOuverte& ouverte : ouvertes_) {
        if (ouverte.poignee == poignee) return ouverte.morte ? nullptr : ouverte.prise;
    }
    return nullptr;
}

void BusSimule::Retirer(Prise& prise) {
    prise.presente = false;
    prise.nombre = 0;
    for (PoigneeOuverte& ouverte : ouvertes_) {
        if (ouverte.prise == &prise) ouverte.morte = true;
    }
    prise.ouvertes = 0;
}

void BusSimule::Ranger(Prise& prise, const Reponse& reponse) {
    if (reponse.nombre == 0) return;
    // Nobody reads: the oldest reply is pushed out.
    if (prise.nombre == repliquesEnAttente) {
        prise.premiere = (prise.premiere + 1) % repliquesEnAttente;
        --prise.nombre;
    }
    prise.attente[(prise.premiere + prise.nombre) % repliquesEnAttente] = reponse;
    ++prise.nombre;
}

void BusSimule::Noter(GenreAppel genre, PoigneeUsb poignee, std::int64_t argument,
                      std::int64_t resultat) {
    if (appels_.size() >= limiteAppels_) return;
    appels_.push_back(
        {genre, poignee, static_cast<std::int32_t>(argument), static_cast<std::int32_t>(resultat)});
}

void BusSimule::TenirCadence() {
    if (parEchange_.count() == 0) return;
    dette_ += parEchange_;
    if (dette_ < plusPetitSommeil) return;
    dormir_(dette_);
    dette_ = {};
}

int BusSimule::Compte() {
    erreur_ = 0;
    const auto nombre = std::count_if(prises_.begin(), prises_.end(),
                                      [](const auto& prise) { return prise->presente; });
    Noter(GenreAppel::compte, 0, 0, nombre);
    return static_cast<int>(nombre);
}

IdentifiantUsb BusSimule::Identifiant(int index) {
    erreur_ = 0;
    IdentifiantUsb id = 0;
    int rang = 0;
    for (const auto& prise : prises_) {
        if (prise->presente && rang++ == index) id = prise->enregistreur->identite.usb;
    }
    Noter(GenreAppel::identifiant, 0, index, id);
    return id;
}

PoigneeUsb BusSimule::OuvrirPrise(IdentifiantUsb id) {
    Prise* prise = Chez(id);
    if (!prise || !prise->presente) {
        erreur_ = ENODEV;
        return -1;
    }
    if (prise->enregistreur->pannes.OuvertureEchoue(prise->ouvertes + 1)) {
        erreur_ = EACCES;
        return -1;
    }
    ++prise->ouvertes;
    ouvertes_.push_back({++derniere_, prise, false});
    auto& lien = prise->enregistreur->lien;
    if (lien.size() < limiteLien) lien.push_back({Instant(), true, derniere_});
    return derniere_;
}

PoigneeUsb BusSimule::Ouvrir(IdentifiantUsb id) {
    erreur_ = 0;
    const PoigneeUsb poignee = OuvrirPrise(id);
    Noter(GenreAppel::ouvrir, poignee, id, poignee);
    return poignee;
}

bool BusSimule::EcrirePrise(PoigneeUsb poignee, std::span<const std::uint8_t> octets) {
    Prise* prise = Vivante(poignee);
    if (!prise) {
        erreur_ = poignee > 0 ? ENODEV : EBADF;
        return false;
    }
    EnregistreurSimule& enregistreur = *prise->enregistreur;
    if (enregistreur.pannes.EcritureEchoue()) {
        erreur_ = EIO;
        return false;
    }
    bool debranche = false;
    Ranger(*prise, enregistreur.Recevoir(octets, Instant(), debranche));
    if (debranche) Retirer(*prise);
    return true;
}

bool BusSimule::Ecrire(PoigneeUsb poignee, std::span<const std::uint8_t> octets) {
    erreur_ = 0;
    const bool reussi = EcrirePrise(poignee, octets);
    Noter(GenreAppel::ecrire, poignee, static_cast<std::int64_t>(octets.size()), reussi ? 1 : 0);
    return reussi;
}

int BusSimule::LirePrise(PoigneeUsb poignee, std::span<std::uint8_t> octets) {
    Prise* prise = Vivante(poignee);
    if (!prise) {
        erreur_ = poignee > 0 ? ENODEV : EBADF;
        return 0;
    }
    TenirCadence();
    if (prise->nombre == 0) {
        erreur_ = ETIMEDOUT;
        return 0;
    }
    const Reponse& reponse = prise->attente[prise->premiere];
    const int nombre = std::min(reponse.nombre, static_cast<int>(octets.size()));
    std::copy_n(reponse.octets.begin(), nombre, octets.begin());
    prise->premiere = (prise->premiere + 1) % repliquesEnAttente;
    --prise->nombre;
    return nombre;
}

int BusSimule::Lire(PoigneeUsb poignee, std::span<std::uint8_t> octets) {
    erreur_ = 0;
    const int nombre = LirePrise(poignee, octets);
    Noter(GenreAppel::lire, poignee, static_cast<std::int64_t>(octets.size()), nombre);
    return nombre;
}

void BusSimule::Annuler(PoigneeUsb poignee) {
    erreur_ = 0;
    Noter(GenreAppel::annuler, poignee, 0, 0);
}

void BusSimule::Fermer(PoigneeUsb poignee) {
    erreur_ = 0;
    Noter(GenreAppel::fermer, poignee, 0, 0);
    const auto ou = std::find_if(
        ouvertes_.begin(), ouvertes_.end(),
        [poignee](const PoigneeOuverte& ouverte) { return ouverte.poignee == poignee; });
    if (ou == ouvertes_.end()) return;
    Prise& prise = *ou->prise;
    if (!ou->morte) {
        --prise.ouvertes;
        // The last handle takes what nobody has read with it.
        if (prise.ouvertes == 0) prise.nombre = 0;
    }
    auto& lien = prise.enregistreur->lien;
    if (lien.size() < limiteLien) lien.push_back({Instant(), false, poignee});
    ouvertes_.erase(ou);
}

QString BusSimule::TexteErreur(std::uint32_t code) const {
    const auto propre = textes_.find(code);
    if (propre != textes_.end()) return propre->second;
    return QString::fromLocal8Bit(std::strerror(static_cast<int>(code))) + QStringLiteral("\r\n");
}

}  // namespace bornika
