#pragma once

#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "platform/colour.h"

namespace bornika {

/// Texts of points, kept one behind the other as bytes of the code page: the curves of one file
/// share one store, and a point holds no more than the place of its text in it.
class MagasinEtiquettes {
  public:
    using Place = std::uint32_t;

    MagasinEtiquettes() : octets_(1, fin) {}
    void Reserver(std::size_t octets) { octets_.reserve(octets + 1); }
    /// Keeps a text that holds no line feed and returns its place. Beyond what a place can tell,
    /// the empty text stands for it.
    Place Ajouter(QByteArrayView texte) {
        const auto place = octets_.size();
        if (place + static_cast<std::size_t>(texte.size()) >= UINT32_MAX) return vide;
        octets_.insert(octets_.end(), texte.begin(), texte.end());
        octets_.push_back(fin);
        return static_cast<Place>(place);
    }
    /// The bytes of the text at a place; valid until the next `Ajouter`.
    QByteArrayView Lire(Place place) const;
    std::size_t Taille() const { return octets_.size(); }

    /// Place of the empty text.
    static constexpr Place vide = 0;

  private:
    static constexpr char fin = '\n';
    std::vector<char> octets_;
};

/// One curve: its looks and its points. A function series has no points of its own: it derives them
/// from another one each time that one, or the period, has changed.
class SerieGraphe {
  public:
    enum class Axe { Gauche = 0, Droite = 1 };
    /// Number of the smoothing function.
    static constexpr int fonctionLissage = 18;

    QString titre;
    Axe axe = Axe::Gauche;
    /// Nothing: the colour that the template gives by the position of the series.
    std::optional<Couleur> couleur;
    bool active = true;
    /// Point value marks are shown.
    bool marques = false;

    /// Makes it a function series. `source` is held weakly: without it there are no points.
    void FixerFonction(int type, const std::shared_ptr<SerieGraphe>& source);
    int TypeFonction() const { return typeFonction_; }
    /// Points of the smoothing period, 1 at least.
    int Periode() const { return periode_; }
    void FixerPeriode(int periode);

    /// Labels added from here on go to this store.
    void FixerEtiquettes(std::shared_ptr<MagasinEtiquettes> magasin) {
        etiquettes_ = std::move(magasin);
    }
    void Reserver(std::size_t points);
    void AjouterPoint(double x, double y, MagasinEtiquettes::Place etiquette) {
        if (x_.empty() || x < x_.back()) CommencerSuite();
        x_.push_back(x);
        y_.push_back(y);
        places_.push_back(etiquette);
        ++revision_;
    }
    /// The same with a text of its own.
    void AjouterPoint(double x, double y, const QString& etiquette);

    /// Number of points.
    int Nombre() const { return static_cast<int>(X().size()); }
    std::span<const double> X() const;
    /// Values; those of a function series are computed now if they are out of date.
    std::span<const double> Y() const;
    /// Positions at which runs of x in order begin; a joined recording has a few.
    std::span<const int> Suites() const;
    /// True when no x is below the one before it.
    bool EstTriee() const { return Suites().size() <= 1; }
    /// Text of a point, "" for a function without source. Fault 9 beyond the points.
    QString Etiquette(int point) const;
    /// Grows with every change of the points: a view that has drawn this number is up to date.
    std::uint64_t Revision() const;

  private:
    /// A new run of x in order begins with the next point. Out of line: it is rare, and the loop of
    /// the loader is not.
    void CommencerSuite();
    std::shared_ptr<SerieGraphe> Source() const { return sourceFaible_.lock(); }
    bool EstFonction() const { return typeFonction_ != 0; }

    std::vector<double> x_;
    std::vector<double> y_;
    std::vector<MagasinEtiquettes::Place> places_;
    std::shared_ptr<MagasinEtiquettes> etiquettes_;
    std::vector<int> suites_;
    std::uint64_t revision_ = 0;

    int typeFonction_ = 0;
    int periode_ = 1;
    std::weak_ptr<SerieGraphe> sourceFaible_;
    mutable std::vector<double> deduites_;
    mutable std::uint64_t revisionDeduite_ = UINT64_MAX;
};

}  // namespace bornika
