#include "simulator/recordings.h"

#include "simulator/measure.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace bornika::simulateur {

namespace {

constexpr int secondesParJour = 86400;

/// A small generator of our own: the same recording on every machine.
class Hasard {
  public:
    explicit Hasard(std::uint64_t grain) : etat_(grain | 1U) {}
    /// From 0 (included) to 1 (excluded).
    double Fraction() {
        etat_ ^= etat_ << 13;
        etat_ ^= etat_ >> 7;
        etat_ ^= etat_ << 17;
        return static_cast<double>(etat_ >> 11) / 9007199254740992.0;
    }
    /// About normal, from -1 to 1.
    double Bruit() { return (Fraction() + Fraction() + Fraction()) / 1.5 - 1.0; }

  private:
    std::uint64_t etat_;
};

double Bosse(double heure, double centre, double largeur) {
    const double ecart = (heure - centre) / largeur;
    return std::exp(-ecart * ecart);
}

/// Demand of the district over the day, 0 (dead of night) to about 1 (morning).
double Demande(double heure) {
    return 0.08 + 0.92 * Bosse(heure, 7.5, 1.6) + 0.45 * Bosse(heure, 12.5, 1.8) +
           0.75 * Bosse(heure, 19.5, 2.2);
}

/// A water hammer: a swing that dies out within some minutes.
class Coup {
  public:
    void Frapper(double hauteur) {
        hauteur_ = hauteur;
        age_ = 0;
    }
    /// The swing of now; the next call is `secondes` later.
    double Avancer(double secondes) {
        const double age = age_;
        age_ += secondes;
        return hauteur_ * std::exp(-age / 70.0) * std::cos(2 * std::numbers::pi * age / 47.0);
    }

  private:
    double hauteur_ = 0;
    double age_ = 0;
};

class Reseau {
  public:
    explicit Reseau(const ReseauEau& reseau) : reseau_(reseau), hasard_(reseau.grain) {}

    std::vector<MesureEnFlash> Enregistrer() {
        const std::uint32_t fin = reseau_.debut + reseau_.duree;
        const auto pas = static_cast<std::uint32_t>(reseau_.periode);
        for (std::uint32_t t = reseau_.debut; t < fin; t += pas)
            Periode(t);
        return std::move(mesures_);
    }

  private:
    void Periode(std::uint32_t t) {
        const double heure = (t % secondesParJour) / 3600.0;
        // Each day has its own weight, and the demand wanders a little.
        const double jour = 1.0 + 0.12 * std::sin(1.7 * (t / secondesParJour));
        const double demande =
            std::max(0.02, Demande(heure) * jour * (1.0 + 0.10 * hasard_.Bruit()));
        const int points = Points(Pression(demande));
        mesures_.push_back(MesurePeriodique(t, points));
        Compteur(t, demande, points);
    }

    double Pression(double demande) {
        // About eight hammers a day.
        if (hasard_.Fraction() < 8.0 * reseau_.periode / secondesParJour) {
            const double force = 0.5 + 0.8 * hasard_.Fraction();
            coup_.Frapper(hasard_.Fraction() < 0.5 ? 1.6 * force : -1.4 * force);
        }
        // The pump answers the demand with a step, and hesitates between on and off.
        if (demande > 0.55) pompe_ = true;
        if (demande < 0.35) pompe_ = false;
        const double statique = 5.75 - 1.25 * demande + (pompe_ ? 0.35 : 0.0);
        // The neighbouring districts pull now more, now less.
        derive_ = 0.995 * derive_ + 0.02 * hasard_.Bruit();
        return statique + derive_ + coup_.Avancer(reseau_.periode) + 0.04 * hasard_.Bruit();
    }

    static int Points(double pression) {
        return static_cast<int>(std::lround(std::clamp(pression * pointsParBar, 0.0, 1023.0)));
    }

    /// The meter turns with the demand: a pulse each time it is round.
    void Compteur(std::uint32_t t, double demande, int points) {
        const double parHuitieme = 0.13 * demande / 8.0;
        for (int huitieme = 1; huitieme < reseau_.periode * 8; ++huitieme) {
            tour_ += parHuitieme;
            if (tour_ < 1.0) continue;
            tour_ -= 1.0;
            const auto seconde = t + static_cast<std::uint32_t>(huitieme / 8);
            mesures_.push_back(MesureImpulsion(seconde, huitieme % 8, points));
        }
    }

    ReseauEau reseau_;
    Hasard hasard_;
    Coup coup_;
    bool pompe_ = false;
    double derive_ = 0;
    double tour_ = 0;
    std::vector<MesureEnFlash> mesures_;
};

}  // namespace

std::vector<MesureEnFlash> MesuresReseauEau(const ReseauEau& reseau) {
    return Reseau(reseau).Enregistrer();
}

std::vector<MesureEnFlash> MesuresRegulieres(std::uint32_t debut, int nombre, int periode) {
    std::vector<MesureEnFlash> mesures;
    mesures.reserve(static_cast<std::size_t>(nombre));
    for (int i = 0; i < nombre; ++i) {
        const auto instant = debut + static_cast<std::uint32_t>(i * periode);
        mesures.push_back(MesurePeriodique(instant, 200 + i % 600));
    }
    return mesures;
}

}  // namespace bornika::simulateur
