#include "simulator/simulated_logger.h"

#include <algorithm>
#include <utility>

namespace bornika {

using namespace simulateur;

namespace {

/// Periods are counted in eighths of a second.
constexpr std::uint64_t huitiemes = 8;

}  // namespace

EnregistreurSimule::EnregistreurSimule(const Identite& qui) : identite(qui) {
    memoire.EcrireTexte(adresse::commentaire, 14, "");
    memoire.EcrireTexte(adresse::uniteImpulsion, 8, "");
    memoire.EcrireFlottant(adresse::poidsImpulsion, 1.0F);
    memoire.EcrireFlottant(adresse::tempsDebit, 1.0F);
    ReglerBatterie(150);
    ViderMesures();
}

EnregistreurSimule::Reponse EnregistreurSimule::Recevoir(std::span<const std::uint8_t> trame,
                                                         std::int64_t instant, bool& debranche) {
    journal.Noter(instant, trame);
    const OrdrePanne panne = pannes.PourTrame(trame.empty() ? toutesCommandes : trame[0]);
    if (panne.genre == GenrePanne::aucune) return Repondre(trame);
    if (panne.genre == GenrePanne::silence) return {};
    Reponse reponse = Repondre(trame);
    switch (panne.genre) {
        case GenrePanne::reponseCourte:
            reponse.nombre = std::min(reponse.nombre, std::max(panne.parametre, 0));
            break;
        case GenrePanne::mauvaisEcho:
            reponse.octets[0] ^= 0x55;
            break;
        case GenrePanne::bruit:
            for (int i = 0; i < reponse.nombre; ++i) {
                reponse.octets[static_cast<std::size_t>(i)] ^=
                    static_cast<std::uint8_t>(0xA5 + 37 * i);
            }
            break;
        case GenrePanne::debranchement:
            debranche = true;
            reponse.nombre = 0;
            break;
        default:
            reponse.nombre = 0;
            break;
    }
    return reponse;
}

void EnregistreurSimule::ReglerNumeroSerie(std::uint32_t numero) {
    memoire.EcrireDoubleMot(adresse::numeroSerie, numero);
}

void EnregistreurSimule::ReglerBatterie(int lecture) {
    memoire.EcrireMot(adresse::batterie, lecture);
}

void EnregistreurSimule::ReglerHorloge(std::uint32_t secondes) {
    if (source_) dernierInstant_ = source_();
    memoire.EcrireDoubleMot(adresse::dateCourante, secondes);
}

void EnregistreurSimule::BrancherHorloge(std::function<std::int64_t()> source) {
    source_ = std::move(source);
    if (source_) dernierInstant_ = source_();
}

std::uint32_t EnregistreurSimule::Horloge() {
    TenirHorloge();
    return memoire.DoubleMot(adresse::dateCourante);
}

void EnregistreurSimule::TenirHorloge() {
    if (!source_) return;
    const std::int64_t instant = source_();
    const auto ecart = static_cast<std::uint32_t>(instant - dernierInstant_);
    dernierInstant_ = instant;
    memoire.EcrireDoubleMot(adresse::dateCourante,
                            memoire.DoubleMot(adresse::dateCourante) + ecart);
    TenirProchaineMesure();
}

/// The next measure is the first one of the row of periods that is still to come.
void EnregistreurSimule::TenirProchaineMesure() {
    const std::uint64_t maintenant = memoire.DoubleMot(adresse::dateCourante);
    const std::uint64_t prochaine = memoire.DoubleMot(adresse::prochaineMesure);
    const std::uint64_t periode = memoire.Mot(adresse::periodeStockage);
    if (prochaine > maintenant || periode == 0) return;
    const std::uint64_t passees = (maintenant - prochaine) * huitiemes / periode + 1;
    const std::uint64_t ecart = (passees * periode + huitiemes - 1) / huitiemes;
    memoire.EcrireDoubleMot(adresse::prochaineMesure,
                            static_cast<std::uint32_t>(prochaine + ecart));
}

void EnregistreurSimule::ReglerResets(std::uint32_t date, int nombre) {
    memoire.EcrireDoubleMot(adresse::dateReset, date);
    memoire.EcrireMot(adresse::nombreResets, nombre);
    std::array<std::uint8_t, 6> trace{};
    for (int i = 0; i < 6; ++i) {
        trace[static_cast<std::size_t>(i)] = memoire.Octet(adresse::dateReset + i);
    }
    flash.Ecrire(0, 0, trace);
}

void EnregistreurSimule::ReglerCommentaire(std::string_view texte) {
    memoire.EcrireTexte(adresse::commentaire, 14, texte);
}

void EnregistreurSimule::ReglerEtalonnage(std::uint32_t date, int echelle, int referenceBas,
                                          int mesureBas, int referenceHaut, int mesureHaut) {
    memoire.EcrireOctet(adresse::modeEtalonnage, 0);
    memoire.EcrireMot(adresse::referenceBas, referenceBas);
    memoire.EcrireMot(adresse::mesureBas, mesureBas);
    memoire.EcrireMot(adresse::referenceHaut, referenceHaut);
    memoire.EcrireMot(adresse::mesureHaut, mesureHaut);
    memoire.EcrireDoubleMot(adresse::dateEtalonnage, date);
    memoire.EcrireOctet(adresse::echelleEtalonnage, echelle);
}

void EnregistreurSimule::MettreSurCapteur(int points) {
    pointsCapteur = points;
    PrendreMesureEtalonnage();
}

void EnregistreurSimule::BrancherReference(std::function<int(int)> capteur) {
    capteur_ = std::move(capteur);
}

void EnregistreurSimule::PrendreMesureEtalonnage() {
    if (!mesureAttendue_) return;
    mesureAttendue_ = false;
    const bool haut = memoire.Octet(adresse::modeEtalonnage) == 2;
    if (capteur_)
        pointsCapteur =
            capteur_(memoire.Mot(haut ? adresse::referenceHaut : adresse::referenceBas));
    memoire.EcrireMot(haut ? adresse::mesureHaut : adresse::mesureBas, pointsCapteur);
}

int EnregistreurSimule::DernierePage() const {
    switch (identite.tailleMemoire) {
        case 1:
            return 2047;
        case 2:
            return 4095;
        default:
            return FlashPaginee::nombrePages - 1;
    }
}

// Page 0 holds the record of resets; measures stand on the pages behind it.
int EnregistreurSimule::Capacite() const {
    return DernierePage() * FlashPaginee::mesuresParPage;
}

int EnregistreurSimule::Rang(const Pointeur& ou) const {
    const int page = std::clamp(ou.page, 1, DernierePage());
    const int place =
        std::clamp(ou.offset / FlashPaginee::tailleMesure, 0, FlashPaginee::mesuresParPage - 1);
    return (page - 1) * FlashPaginee::mesuresParPage + place;
}

EnregistreurSimule::Pointeur EnregistreurSimule::Place(int rang) const {
    const int dedans = rang % Capacite();
    return {1 + dedans / FlashPaginee::mesuresParPage,
            dedans % FlashPaginee::mesuresParPage * FlashPaginee::tailleMesure};
}

void EnregistreurSimule::Avancer(Pointeur& ou) const {
    ou.offset += FlashPaginee::tailleMesure;
    if (ou.offset < FlashPaginee::mesuresParPage * FlashPaginee::tailleMesure) return;
    ou.offset = 0;
    ou.page = ou.page >= DernierePage() ? 1 : ou.page + 1;
}

EnregistreurSimule::Pointeur EnregistreurSimule::Ecriture() const {
    return {memoire.Mot(adresse::pageEcriture), memoire.Mot(adresse::offsetEcriture)};
}

EnregistreurSimule::Pointeur EnregistreurSimule::Lecture() const {
    return {memoire.Mot(adresse::pageLecture), memoire.Mot(adresse::offsetLecture)};
}

void EnregistreurSimule::ReglerEcriture(const Pointeur& ou) {
    memoire.EcrireMot(adresse::pageEcriture, ou.page);
    memoire.EcrireMot(adresse::offsetEcriture, ou.offset);
}

void EnregistreurSimule::ReglerLecture(const Pointeur& ou) {
    memoire.EcrireMot(adresse::pageLecture, ou.page);
    memoire.EcrireMot(adresse::offsetLecture, ou.offset);
    memoire.EcrireMot(adresse::pageDepart, ou.page);
    memoire.EcrireMot(adresse::offsetDepart, ou.offset);
}

int EnregistreurSimule::NombreMesures() const {
    const int ecart = Rang(Ecriture()) - Rang(Lecture());
    if (ecart == 0) return octetVide != 0 ? 0 : Capacite();
    return ecart > 0 ? ecart : ecart + Capacite();
}

void EnregistreurSimule::Stocker(const MesureEnFlash& mesure) {
    Pointeur ecriture = Ecriture();
    const bool pleine = octetVide == 0 && ecriture == Lecture();
    const bool tournant = (memoire.Octet(adresse::mode) & 0x08) != 0;
    if (pleine && !tournant) return;
    flash.Ecrire(ecriture.page, ecriture.offset, mesure);
    Avancer(ecriture);
    ReglerEcriture(ecriture);
    if (pleine) ReglerLecture(ecriture);
    octetVide = 0;
}

void EnregistreurSimule::Stocker(std::span<const MesureEnFlash> mesures) {
    for (const MesureEnFlash& mesure : mesures)
        Stocker(mesure);
}

void EnregistreurSimule::Remplacer(int rang, const MesureEnFlash& mesure) {
    const Pointeur ou = Place(Rang(Lecture()) + rang);
    flash.Ecrire(ou.page, ou.offset, mesure);
}

MesureEnFlash EnregistreurSimule::Stockee(int rang) const {
    const Pointeur ou = Place(Rang(Lecture()) + rang);
    MesureEnFlash mesure{};
    flash.Lire(ou.page, ou.offset, mesure);
    return mesure;
}

void EnregistreurSimule::ViderMesures() {
    ReglerEcriture({});
    ReglerLecture({});
    octetVide = 1;
    enTransfert_ = false;
    reste_ = 0;
}

void EnregistreurSimule::Rembobiner() {
    curseur_ = Place(Rang(Lecture()));
    reste_ = NombreMesures();
    enTransfert_ = true;
}

}  // namespace bornika
