#include "usb_mock/mock/usb_device.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include "usb_mock/mock/usb_descriptors.h"

namespace bornika::essai {

namespace {

// A device has little room: the oldest packet that nobody fetches is lost.
constexpr std::size_t placePaquets = 8;
constexpr std::uint8_t sansSens = 0xEE;

}  // namespace

AppareilMaquette::AppareilMaquette(FicheUsb qui, std::unique_ptr<EnregistreurSimule> quel)
    : fiche(std::move(qui)), enregistreur(std::move(quel)) {}

void AppareilMaquette::Ordonner(PanneUsb panne, int nombre) {
    pannes_.insert(pannes_.end(), static_cast<std::size_t>(nombre), panne);
}

void AppareilMaquette::Liberer() {
    for (auto& reponse : std::exchange(retenues_, {}))
        Emettre(std::move(reponse));
}

bool AppareilMaquette::Prendre(PanneUsb panne) {
    const auto ou = std::find(pannes_.begin(), pannes_.end(), panne);
    if (ou == pannes_.end()) return false;
    pannes_.erase(ou);
    return true;
}

FinTransfert AppareilMaquette::Recevoir(std::span<const std::uint8_t> trame, bool& debranche) {
    debranche = false;
    if (Prendre(PanneUsb::calageSortie)) sortieCalee_ = true;
    if (sortieCalee_) return {-EPIPE, {}};
    std::vector<std::uint8_t> reponse = enregistreur->Recevoir(trame, 0, debranche).Liste();
    if (debranche) return {};
    if (Prendre(PanneUsb::bavardage)) bavarde_ = true;
    if (Prendre(PanneUsb::calageEntree))
        entreeCalee_ = true;
    else if (Prendre(PanneUsb::paquetVide))
        Ranger({});
    else if (Prendre(PanneUsb::debordement))
        Ranger(std::vector<std::uint8_t>(fiche.paquet + 1U, sansSens));
    else if (Prendre(PanneUsb::retard))
        retenues_.push_back(std::move(reponse));
    else if (!reponse.empty())
        Emettre(std::move(reponse));
    return {};
}

void AppareilMaquette::Emettre(std::vector<std::uint8_t> reponse) {
    for (std::size_t debut = 0; debut < reponse.size(); debut += fiche.paquet) {
        const std::size_t fin = std::min(debut + fiche.paquet, reponse.size());
        Ranger({reponse.begin() + static_cast<std::ptrdiff_t>(debut),
                reponse.begin() + static_cast<std::ptrdiff_t>(fin)});
    }
    if (fiche.paquetVideFinal && reponse.size() % fiche.paquet == 0) Ranger({});
}

void AppareilMaquette::Ranger(std::vector<std::uint8_t> paquet) {
    if (paquets_.size() == placePaquets) paquets_.pop_front();
    paquets_.push_back(std::move(paquet));
}

FinTransfert AppareilMaquette::Controle(std::span<const std::uint8_t> demande) const {
    if (demande.size() < 8 || demande[0] != versHote || demande[1] != lireDescripteur ||
        demande[3] != descripteurTexte)
        return {-EPIPE, {}};
    std::vector<std::uint8_t> texte = DescripteurTexte(fiche, demande[2]);
    if (texte.empty()) return {-EPIPE, {}};
    const std::size_t place = demande[6] + 256U * demande[7];
    if (texte.size() > place) texte.resize(place);
    return {0, std::move(texte)};
}

void AppareilMaquette::Demander(std::uint64_t cle, std::size_t longueur) {
    lectures_.push_back({cle, longueur, {}});
}

bool AppareilMaquette::Reprendre(std::uint64_t cle, FinTransfert& fin) {
    const auto ou = std::find_if(lectures_.begin(), lectures_.end(),
                                 [cle](const LectureUsb& lecture) { return lecture.cle == cle; });
    if (ou == lectures_.end()) return false;
    fin.octets = std::move(ou->recus);
    lectures_.erase(ou);
    return true;
}

// A transfer ends with a short packet, when it is full, or with an error: also when a packet is
// longer than the place that is left.
bool AppareilMaquette::Servir(std::uint64_t& cle, FinTransfert& fin) {
    if (lectures_.empty()) return false;
    LectureUsb& lecture = lectures_.front();
    bool finie = false;
    int etat = 0;
    while (!finie) {
        if (bavarde_ && paquets_.empty()) Ranger({sansSens});
        if (entreeCalee_) {
            etat = -EPIPE;
            finie = true;
        } else if (!paquets_.empty()) {
            const std::vector<std::uint8_t> paquet = std::move(paquets_.front());
            paquets_.pop_front();
            const std::size_t place = lecture.longueur - lecture.recus.size();
            const std::size_t pris = std::min(place, paquet.size());
            lecture.recus.insert(lecture.recus.end(), paquet.begin(),
                                 paquet.begin() + static_cast<std::ptrdiff_t>(pris));
            if (paquet.size() > place || paquet.size() > fiche.paquet) etat = -EOVERFLOW;
            finie = etat != 0 || paquet.size() < fiche.paquet ||
                    lecture.recus.size() == lecture.longueur;
        } else {
            return false;
        }
    }
    cle = lecture.cle;
    fin = {etat, std::move(lecture.recus)};
    lectures_.pop_front();
    return true;
}

void AppareilMaquette::LeverCalage(std::uint8_t adresse) {
    if (adresse == fiche.entree) entreeCalee_ = false;
    if (adresse == fiche.sortie) sortieCalee_ = false;
}

}  // namespace bornika::essai
