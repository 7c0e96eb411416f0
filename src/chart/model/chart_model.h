#pragma once

#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include "chart/model/chart_series.h"
#include "chart/model/visible_range.h"

namespace bornika {

/// A tool of the chart. The logic knows tools by position: the template gives them in a fixed
/// order.
struct OutilGraphe {
    enum class Genre { Reserve, Annotation, LigneCouleur, Curseur };
    /// Axis of a colour line; its codes are not those of a series.
    enum class AxeLigne { Gauche = 0, Droite = 2 };

    Genre genre = Genre::Reserve;
    bool actif = true;

    Couleur crayon = 0;
    bool crayonVisible = true;

    /// Annotation.
    QString texte;

    /// Colour line.
    AxeLigne axe = AxeLigne::Gauche;
    double valeur = 0;

    /// Cursor: position of its series (-1 for none) and the place where it stands, in axis values.
    int serie = -1;
    bool suitSouris = false;
    double x = 0;
    double y = 0;
    /// Cursor: the point of its series that it stands on, -1 before it was moved.
    int point = -1;
};

/// A vertical axis.
struct AxeGraphe {
    QString titre;
    double angleTitre = 0;
    double increment = 0;
    bool maximumAutomatique = true;
};

/// The time axis. Its labels are the texts of the points.
struct AxeTemps {
    Plage plage;
    bool etiquettesTexte = false;
};

/// Labels of the axes.
struct CouleursEtiquettes {
    std::optional<Couleur> bas;
    std::optional<Couleur> gauche;
};

/// The chart as the program's logic knows it: series, axes, tools, pages. It draws nothing and
/// knows no widget; a view looks at it whenever `Redessiner` is called.
class ModeleGraphe {
  public:
    ModeleGraphe() = default;
    ModeleGraphe(const ModeleGraphe&) = delete;
    ModeleGraphe& operator=(const ModeleGraphe&) = delete;

    // Series, by position from 0. Fault 9 for a position that is not there.
    SerieGraphe& AjouterSerie();
    void RetirerSerie(int position);
    void RetirerTout();
    int NombreSeries() const { return static_cast<int>(series_.size()); }
    SerieGraphe& Serie(int position) { return *Partagee(position); }
    const SerieGraphe& Serie(int position) const { return *Partagee(position); }
    /// Makes the series at `position` a function of the one at `source`.
    void FixerFonction(int position, int type, int source);
    QString Etiquette(int serie, int point) const { return Serie(serie).Etiquette(point); }

    /// First and last visible point of a series, switched off ones included; -1 for none. They
    /// follow the time axis (zoom, scrolling) and the page.
    int FirstValueIndex(int serie) const { return Visibles(serie).premier; }
    int LastValueIndex(int serie) const { return Visibles(serie).dernier; }
    PointsVisibles Visibles(int serie) const;

    // Tools, by position from 0. Fault 9 for a position that is not there.
    int NombreOutils() const { return static_cast<int>(outils_.size()); }
    OutilGraphe& Outil(int position);
    const OutilGraphe& Outil(int position) const;
    OutilGraphe& AjouterOutil(OutilGraphe outil);
    void RetirerOutil(int position);
    /// Loading a template puts its tools in the place of all others.
    void RemplacerOutils(std::vector<OutilGraphe> outils) { outils_ = std::move(outils); }

    /// Sets the whole time range; the first page, when there are pages, is shown of it. `min` may
    /// be above `max`: the chart then draws nothing.
    void FixerPlage(double min, double max);
    const Plage& PlageEntiere() const { return plageEntiere_; }
    /// Zoom and scrolling: the part of the time axis that is shown.
    void MontrerPlage(const Plage& plage) { bas.plage = plage; }
    /// Back to the whole page, or the whole range without pages.
    void MontrerTout() { bas.plage = PlageMontrable(); }
    /// What `MontrerTout` shows.
    Plage PlageMontrable() const;

    // Pages: page k holds the points [k n, (k + 1) n) of the longest series; 0 points means no
    // pages.
    int MaxPointsPerPage() const { return pointsParPage_; }
    void FixerMaxPointsPerPage(int points);
    int NombrePages() const;
    int Page() const { return page_; }
    /// A page beyond the last or the first shows that one.
    void FixerPage(int page);

    /// Brings the view up to date.
    void Redessiner() const {
        if (quandRedessiner) quandRedessiner();
    }
    std::function<void()> quandRedessiner;
    /// Least time between two redraws of one load, which asks for one at each line.
    std::chrono::milliseconds pasRedessin{50};

    AxeTemps bas;
    AxeGraphe gauche;
    AxeGraphe droite;
    CouleursEtiquettes couleursEtiquettes;
    /// Lines of the title.
    QStringList titre;

    bool visible = false;
    bool troisDimensions = true;
    bool legendeVisible = true;
    bool legendeCases = false;
    /// The legend lists series, not points.
    bool legendeSeries = true;
    bool zoomPermis = true;
    /// 0 none, 1 horizontal, 2 vertical, 3 both directions.
    int defilement = 3;

    /// Grows whenever a series came or went.
    std::uint64_t RevisionSeries() const { return revisionSeries_; }

  private:
    const std::shared_ptr<SerieGraphe>& Partagee(int position) const;
    /// The longest series, nothing without series.
    const SerieGraphe* PlusLongue() const;
    /// Time range of the present page; without limits when there are no pages.
    Plage PlagePage() const;

    std::vector<std::shared_ptr<SerieGraphe>> series_;
    std::vector<OutilGraphe> outils_;
    Plage plageEntiere_;
    int pointsParPage_ = 0;
    int page_ = 0;
    std::uint64_t revisionSeries_ = 0;
};

}  // namespace bornika
