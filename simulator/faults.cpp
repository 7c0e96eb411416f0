#include "simulator/faults.h"

namespace bornika::simulateur {

void Pannes::OrdonnerEchecsEcriture(int combien, int apres) {
    ecritures_.push_back({0, apres, combien});
}

void Pannes::OrdonnerEchecOuverture(int rang, int combien, int apres) {
    ouvertures_.push_back({rang, apres, combien});
}

void Pannes::Annuler() {
    echanges_.clear();
    ecritures_.clear();
    ouvertures_.clear();
}

OrdrePanne Pannes::PourTrame(int code) {
    OrdrePanne choisi{.genre = GenrePanne::aucune};
    for (OrdrePanne& ordre : echanges_) {
        if (ordre.code != toutesCommandes && ordre.code != code) continue;
        ++ordre.vues;
        const int rang = ordre.vues - ordre.occurrence;
        const bool agit = rang >= 0 && (ordre.combien == sansFin || rang < ordre.combien);
        if (agit && choisi.genre == GenrePanne::aucune) choisi = ordre;
    }
    return choisi;
}

bool Pannes::Consommer(std::vector<Echec>& echecs, int rang) {
    for (Echec& echec : echecs) {
        if (echec.rang != rang || echec.combien == 0) continue;
        if (echec.apres > 0) {
            --echec.apres;
            return false;
        }
        if (echec.combien != sansFin) --echec.combien;
        return true;
    }
    return false;
}

}  // namespace bornika::simulateur
