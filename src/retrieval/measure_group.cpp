#include "retrieval/measure_group.h"

#include <limits>

#include "platform/fault.h"
#include "retrieval/stored_measure.h"
#include "retrieval/time_spreading.h"

namespace bornika {

void DecodeurMesures::Decoder(std::span<const int, 10> reponse, SortieMesures& sortie) {
    const bool derniere = reponse[1] == 1;
    const int fraction = Fraction(reponse[2], reponse[3]);
    DecoderHorodatage(reponse.subspan<4, 4>(), t_);
    bool parite_ok = true;
    ControleParite(0, reponse, parite_ok);
    const int valeur = ValeurPoints(reponse[8], reponse[9]);
    if (fraction == 0)
        DecoderPeriodique(valeur, derniere, parite_ok, sortie);
    else
        DecoderImpulsion(fraction, valeur, derniere, parite_ok, sortie);
}

void DecodeurMesures::DecoderPeriodique(int valeur, bool derniere, bool parite_ok,
                                        SortieMesures& sortie) {
    if (t_ != tempsPrecedent_ && tempsPrecedent_ != -1) {
        Ranger(valeur);
        if (derniere)
            fin_ = true;
        else
            FermerGroupe(parite_ok, sortie);
        nbGroupe_ = 0;
        tempsPrecedent_ = t_;
        return;
    }
    if (tempsPrecedent_ == -1) tempsPrecedent_ = t_;
    if (derniere) {
        nbGroupe_ = 0;
        fin_ = true;
        return;
    }
    Ranger(valeur);
    if (nbGroupe_ < std::numeric_limits<std::int16_t>::max()) ++nbGroupe_;
}

void DecodeurMesures::FermerGroupe(bool parite_ok, SortieMesures& sortie) {
    for (int i = 0; i <= nbGroupe_; ++i) {
        sortie.Compter(compteur_);
        ++compteur_;
        // A group has room for nine: the lines beyond are missing, though they are counted and take
        // their share of the second.
        if (i >= placesGroupe) continue;
        sortie.Mesurer({.impulsion = false,
                        .secondes = t_,
                        .millisecondes = MillisecondesGroupe(i, nbGroupe_),
                        .points = mesures_[static_cast<std::size_t>(i)],
                        .taux = 0,
                        .parite_ok = parite_ok});
    }
}

void DecodeurMesures::DecoderImpulsion(int fraction, int valeur, bool derniere, bool parite_ok,
                                       SortieMesures& sortie) {
    const int millisecondes = MillisecondesImpulsion(fraction);
    const double instant = t_ * 1000.0 + millisecondes;
    const double intervalle = (instant - instantPrecedent_) / 1000;
    ignorer([&] { taux_ = TauxImpulsions(intervalle); });
    instantPrecedent_ = instant;
    mesures_[0] = valeur;
    sortie.Compter(compteur_);
    if (derniere) {
        fin_ = true;
        return;
    }
    ++compteur_;
    sortie.Mesurer({.impulsion = true,
                    .secondes = t_,
                    .millisecondes = millisecondes,
                    .points = static_cast<double>(valeur),
                    .taux = taux_,
                    .parite_ok = parite_ok});
}

/// A group that is full keeps its nine values.
void DecodeurMesures::Ranger(int valeur) {
    if (nbGroupe_ < placesGroupe) mesures_[static_cast<std::size_t>(nbGroupe_)] = valeur;
}

}  // namespace bornika
