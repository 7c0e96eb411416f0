#include "simulator/presets.h"

#include "simulator/recordings.h"

namespace bornika::simulateur {

namespace {

constexpr std::uint32_t dureeJour = 86400;
constexpr int echelleBar = 0x01;

/// Identifiers differ from preset to preset, so that any of them can hang on one bus.
IdentifiantUsb IdentifiantDe(std::uint8_t type, std::uint8_t haute, std::uint8_t basse) {
    return 0x10000 + type * 0x1000 + haute * 0x100 + basse;
}

void PoserContexte(EnregistreurSimule& e, std::uint32_t maintenant) {
    MemoireInterne& m = e.memoire;
    m.EcrireMot(adresse::marque, 0xB0A5);
    m.EcrireDoubleMot(adresse::dateBatterie, maintenant - 3600);
    m.EcrireDoubleMot(adresse::demarrage, maintenant - 3 * dureeJour);
    m.EcrireDoubleMot(adresse::prochaineMesure, maintenant + 15);
    m.EcrireOctet(adresse::mode, 0x08);
    m.EcrireMot(adresse::periodeStockage, 120);
    m.EcrireMot(adresse::periodeTrigger, 8);
    m.EcrireOctet(adresse::mesuresAvant, 10);
    m.EcrireMot(adresse::seuil1, 256);
    m.EcrireMot(adresse::seuil2, 384);
    m.EcrireOctet(adresse::echelle, echelleBar);
    m.EcrireOctet(adresse::etat, 1);
    m.EcrireFlottant(adresse::poidsImpulsion, 100.0F);
    m.EcrireOctet(adresse::formatHeure, 1);
    m.EcrireTexte(adresse::uniteImpulsion, 8, "Gallon");
    m.EcrireFlottant(adresse::tempsDebit, 60.0F);
    e.ReglerHorloge(maintenant);
    e.ReglerBatterie(150);
    e.ReglerResets(maintenant - 40 * dureeJour, 3);
    e.ReglerCommentaire("Reseau Est");
}

void DeuxPoints(EnregistreurSimule& e, std::uint32_t maintenant) {
    e.ReglerEtalonnage(maintenant - 200 * dureeJour, echelleBar, 102, 104, 820, 815);
}

void UnPoint(EnregistreurSimule& e, std::uint32_t maintenant) {
    e.ReglerEtalonnage(maintenant - 700 * dureeJour, echelleBar, 320, 317);
}

/// A sensor that has drifted as DeuxPoints has it: worth calibrating.
int CapteurUse(int reference) {
    return reference + 3 - reference / 100;
}

}  // namespace

PtrEnregistreur Simple(std::uint8_t type, std::uint8_t versionHaute, std::uint8_t versionBasse,
                       std::uint32_t maintenant) {
    Identite identite;
    identite.usb = IdentifiantDe(type, versionHaute, versionBasse);
    identite.type = type;
    identite.versionHaute = versionHaute;
    identite.versionBasse = versionBasse;
    auto e = std::make_unique<EnregistreurSimule>(identite);
    e->ReglerNumeroSerie(static_cast<std::uint32_t>(21000 + type * 100 + versionBasse));
    PoserContexte(*e, maintenant);
    return e;
}

PtrEnregistreur KPodAncien(std::uint32_t maintenant) {
    auto e = Simple(1, 2, 89, maintenant);
    e->identite.tailleMemoire = 1;
    e->ReglerCommentaire("Ancien n\xB0 7");
    UnPoint(*e, maintenant);
    return e;
}

PtrEnregistreur KPod2100(std::uint32_t maintenant) {
    auto e = Simple(1, 2, 100, maintenant);
    DeuxPoints(*e, maintenant);
    return e;
}

PtrEnregistreur KPod2089(std::uint32_t maintenant) {
    auto e = Simple(1, 20, 89, maintenant);
    UnPoint(*e, maintenant);
    return e;
}

PtrEnregistreur KPod2098(std::uint32_t maintenant) {
    auto e = Simple(1, 20, 98, maintenant);
    DeuxPoints(*e, maintenant);
    return e;
}

PtrEnregistreur KPod2110(std::uint32_t maintenant) {
    auto e = Simple(1, 2, 110, maintenant);
    DeuxPoints(*e, maintenant);
    return e;
}

PtrEnregistreur KPodType19(std::uint32_t maintenant) {
    auto e = Simple(19, 2, 112, maintenant);
    DeuxPoints(*e, maintenant);
    e->cartePresente = true;
    return e;
}

PtrEnregistreur KPod33(std::uint32_t maintenant, bool carte) {
    auto e = Simple(20, 2, 120, maintenant);
    DeuxPoints(*e, maintenant);
    e->cartePresente = carte;
    e->ReglerCommentaire("Compteur Nord");
    e->memoire.EcrireFlottant(adresse::poidsImpulsion, 0.5F);
    e->memoire.EcrireTexte(adresse::uniteImpulsion, 8, "m3");
    e->memoire.EcrireFlottant(adresse::tempsDebit, 3600.0F);
    return e;
}

PtrEnregistreur KTide(std::uint32_t maintenant) {
    auto e = Simple(5, 2, 100, maintenant);
    e->identite.tailleMemoire = 2;
    e->ReglerCommentaire("Quai 3");
    e->memoire.EcrireMot(adresse::periodeStockage, 480);
    return e;
}

PtrEnregistreur SansNom(std::uint32_t maintenant) {
    return Simple(14, 2, 100, maintenant);
}

PtrEnregistreur Inconnu(std::uint32_t maintenant) {
    return Simple(99, 2, 100, maintenant);
}

PtrEnregistreur AvecNumeroSerie(std::uint32_t numero, std::uint32_t maintenant) {
    auto e = KPod2100(maintenant);
    e->ReglerNumeroSerie(numero);
    return e;
}

PtrEnregistreur MauvaisEchoVersion(std::uint32_t maintenant) {
    auto e = Simple(1, 2, 101, maintenant);
    e->pannes.Ordonner({.code = 9, .genre = GenrePanne::mauvaisEcho, .combien = sansFin});
    return e;
}

PtrEnregistreur Silencieux(std::uint32_t maintenant) {
    auto e = Simple(1, 2, 102, maintenant);
    e->pannes.Ordonner({.genre = GenrePanne::silence, .combien = sansFin});
    return e;
}

PtrEnregistreur KPodReseauEau(std::uint32_t maintenant) {
    auto e = KPod2100(maintenant);
    ReseauEau reseau;
    reseau.debut = maintenant - reseau.duree;
    e->memoire.EcrireDoubleMot(adresse::demarrage, reseau.debut);
    e->Stocker(MesuresReseauEau(reseau));
    return e;
}

std::vector<PtrEnregistreur> FamilleDemo(std::uint32_t maintenant) {
    std::vector<PtrEnregistreur> famille;
    famille.push_back(KPodReseauEau(maintenant));

    auto ancien = KPodAncien(maintenant);
    ReseauEau court;
    court.duree = 6 * 3600;
    court.debut = maintenant - 90 * dureeJour;
    court.grain = 1789;
    ancien->memoire.EcrireDoubleMot(adresse::demarrage, court.debut);
    ancien->Stocker(MesuresReseauEau(court));
    famille.push_back(std::move(ancien));

    famille.push_back(KPod33(maintenant));
    famille.push_back(KTide(maintenant));
    for (const PtrEnregistreur& e : famille)
        e->BrancherReference(CapteurUse);
    return famille;
}

}  // namespace bornika::simulateur
