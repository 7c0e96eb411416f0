#include "chart/model/smoothing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bornika {

namespace {

using Paire = double __attribute__((vector_size(2 * sizeof(double))));

/// One value of each of four stretches of a curve that are smoothed side by side: every stretch is
/// a chain of additions that wait for one another, and the processor has room for several.
struct Voies {
    static constexpr std::size_t nombre = 4;

    Voies& operator+=(const Voies& autres) {
        premieres += autres.premieres;
        dernieres += autres.dernieres;
        return *this;
    }
    friend Voies operator+(Voies unes, const Voies& autres) { return unes += autres; }
    /// The stretches begin `ecart` values one after the other.
    static Voies Lire(const double* ou, std::size_t ecart) {
        return {Paire{ou[0], ou[ecart]}, Paire{ou[2 * ecart], ou[3 * ecart]}};
    }
    void Ecrire(double* ou, std::size_t ecart, double diviseur) const {
        const Paire unes = premieres / diviseur;
        const Paire autres = dernieres / diviseur;
        ou[0] = unes[0];
        ou[ecart] = unes[1];
        ou[2 * ecart] = autres[0];
        ou[3 * ecart] = autres[1];
    }
    double Somme() const { return premieres[0] + premieres[1] + dernieres[0] + dernieres[1]; }

    Paire premieres{};
    Paire dernieres{};
};

/// Two box sums, one of the other, divided by the weight of the kernel. The sum of a window is the
/// end of one block of `largeur` values plus the start of the next: additions only, so that a spike
/// leaves no rest behind once the window has passed it, which a running sum would.
class LisseurBlocs {
  public:
    explicit LisseurBlocs(std::size_t largeur)
        : largeur_(largeur), fins_(largeur), boites_(largeur), finsBoites_(largeur) {}

    /// Blocks of each stretch that `nombre` values are enough for.
    static std::size_t Blocs(std::size_t nombre, std::size_t largeur) {
        return nombre < 2 * largeur ? 0 : (nombre - 2 * largeur) / (Voies::nombre * largeur);
    }
    /// Smooths stretches of `blocs` blocks; `lissees` takes the middle of the first window and all
    /// behind it. Returns 0, or no number when one of the values is no finite number.
    double Lisser(const double* valeurs, std::size_t blocs, double* lissees) {
        const std::size_t ecart = blocs * largeur_;
        // The boxes of the first block are needed before anything can be written.
        double temoin =
            SommerFins(valeurs, ecart) + SommerDebuts(valeurs + largeur_, ecart, nullptr);
        for (std::size_t place = 0; place < ecart; place += largeur_) {
            temoin += SommerFins(valeurs + place + largeur_, ecart);
            temoin += SommerDebuts(valeurs + place + 2 * largeur_, ecart, lissees + place);
        }
        return temoin;
    }

  private:
    double SommerFins(const double* bloc, std::size_t ecart) {
        Voies fin;
        Voies finBoites;
        for (std::size_t k = largeur_; k-- > 0;) {
            fins_[k] = fin += Voies::Lire(bloc + k, ecart);
            finsBoites_[k] = finBoites += boites_[k];
        }
        return 0 * fin.Somme();
    }
    double SommerDebuts(const double* suivant, std::size_t ecart, double* lissees) {
        const double poids = static_cast<double>(largeur_) * static_cast<double>(largeur_);
        Voies debut;
        Voies debutBoites;
        for (std::size_t k = 0; k < largeur_; ++k) {
            const Voies boite = fins_[k] + debut;
            debut += Voies::Lire(suivant + k, ecart);
            boites_[k] = boite;
            if (lissees) (finsBoites_[k] + debutBoites).Ecrire(lissees + k, ecart, poids);
            debutBoites += boite;
        }
        return 0 * debut.Somme();
    }

    std::size_t largeur_;
    /// Sums from each value of a block to the end of the block.
    std::vector<Voies> fins_;
    /// First box: sums of the `largeur_` values from each value of a block on.
    std::vector<Voies> boites_;
    /// Sums from each of these to the end of the block.
    std::vector<Voies> finsBoites_;
};

/// The kernel of `demi` points around `centre`, term by term.
double PoserNoyau(std::span<const double> valeurs, std::size_t centre, std::size_t demi) {
    if (demi == 1) return valeurs[centre];
    double somme = static_cast<double>(demi) * valeurs[centre];
    for (std::size_t j = 1; j < demi; ++j)
        somme += static_cast<double>(demi - j) * (valeurs[centre - j] + valeurs[centre + j]);
    return somme / (static_cast<double>(demi) * static_cast<double>(demi));
}

/// Smooths values as one run. False when one of them is no finite number: then nothing of the
/// result holds.
bool LisserSuite(std::span<const double> valeurs, std::size_t periode, std::span<double> lissees) {
    const std::size_t nombre = valeurs.size();
    double temoin = 0;
    const auto poser = [&](std::size_t i) {
        lissees[i] = PoserNoyau(valeurs, i, std::min({periode, i + 1, nombre - i}));
        temoin += 0 * valeurs[i];
    };
    const std::size_t blocs = LisseurBlocs::Blocs(nombre, periode);
    const std::size_t debut = std::min(periode - 1, nombre);
    const std::size_t fin = debut + Voies::nombre * blocs * periode;
    for (std::size_t i = 0; i < debut; ++i)
        poser(i);
    if (blocs > 0)
        temoin += LisseurBlocs(periode).Lisser(valeurs.data(), blocs, lissees.data() + debut);
    for (std::size_t i = fin; i < nombre; ++i)
        poser(i);
    return std::isfinite(temoin);
}

}  // namespace

void Lisser(std::span<const double> valeurs, int periode, std::vector<double>& lissees) {
    if (periode <= 1) {
        lissees.assign(valeurs.begin(), valeurs.end());
        return;
    }
    const auto largeur = static_cast<std::size_t>(periode);
    lissees.resize(valeurs.size());
    if (LisserSuite(valeurs, largeur, lissees)) return;

    lissees.assign(valeurs.begin(), valeurs.end());
    const auto fini = [](double valeur) { return std::isfinite(valeur); };
    auto debut = std::find_if(valeurs.begin(), valeurs.end(), fini);
    while (debut != valeurs.end()) {
        const auto fin = std::find_if_not(debut, valeurs.end(), fini);
        const auto place = static_cast<std::size_t>(debut - valeurs.begin());
        const auto nombre = static_cast<std::size_t>(fin - debut);
        LisserSuite(valeurs.subspan(place, nombre), largeur,
                    std::span<double>(lissees).subspan(place, nombre));
        debut = std::find_if(fin, valeurs.end(), fini);
    }
}

}  // namespace bornika
