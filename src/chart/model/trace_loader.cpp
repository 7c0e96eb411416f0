#include "chart/model/trace_loader.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>

#include "chart/model/chart_model.h"
#include "chart/model/flow.h"
#include "chart/model/loader_form.h"
#include "chart/model/trace_header.h"
#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/system.h"
#include "recording/recording_path.h"
#include "recording/recording_reader.h"

namespace bornika {

namespace {

/// Longer files are thinned.
constexpr qint64 tailleEntiere = 20'000'000;
constexpr int lignesPassees = 10;

/// After a yield that was not due, so many of them are passed over before the clock is asked again:
/// far less than a millisecond of reading.
constexpr int cessionsSansHorloge = 64;
/// Bounds the memory set aside before the first point is known.
constexpr qint64 pointsReserves = 1'000'000;

/// Opens a recording. Fault 53 for a missing file, 70 for one that cannot be read.
void OuvrirEnregistrement(QFile& fichier) {
    if (!fichier.exists()) LeverFaute(numero_faute::fichierIntrouvable);
    if (!fichier.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        LeverFaute(numero_faute::accesRefuse);
}

/// Touches the companion of parity errors: an existing one stays as it is, a missing one is made
/// empty. Nothing is ever written to it, so that one that cannot be made (a read-only medium) is no
/// failure.
void OuvrirCompagnon(QFile& compagnon, const QString& NomFichier) {
    const QString nom = NomCompagnon(NomFichier);
    if (nom.isEmpty()) return;
    compagnon.setFileName(TrouverFichier(nom));
    if (!compagnon.open(QIODevice::Append)) compagnon.setFileName(QString());
}

/// The loop over the lines of one file, with what it keeps from one line to the next.
class Remplissage {
  public:
    Remplissage(FicheChargement& fiche, LecteurEnregistrement& lecteur, double& Mini, double& Maxi)
        : fiche_(fiche), graphe_(fiche.Graphe()), lecteur_(lecteur), mini_(Mini), maxi_(Maxi) {}
    ~Remplissage() {
        ignorer([this] { MontrerAvance(); });
    }
    Remplissage(const Remplissage&) = delete;
    Remplissage& operator=(const Remplissage&) = delete;

    /// Sets the bar to the file's length and memory aside for its points.
    void Preparer(qint64 taille, int pas);
    /// Reads to the end of the file.
    void Lire();
    /// Some line had seven fields or more.
    bool AvecDebit() const { return avecDebit_; }

  private:
    void Ceder();
    void MontrerAvance();
    void RelireFiche();
    void RelireSeries();
    void ReserverPour(const LigneMesure& ligne);
    void Placer(const LigneMesure& ligne);
    void PlacerAvecDebit(const LigneMesure& ligne);
    void PlacerSansDebit(const LigneMesure& ligne);
    void AjouterPression(const LigneMesure& ligne);
    SerieGraphe& Visee(SerieGraphe* serie) const;

    FicheChargement& fiche_;
    ModeleGraphe& graphe_;
    LecteurEnregistrement& lecteur_;
    double& mini_;
    double& maxi_;
    std::shared_ptr<MagasinEtiquettes> etiquettes_ = std::make_shared<MagasinEtiquettes>();
    MagasinEtiquettes::Place etiquette_ = MagasinEtiquettes::vide;

    SerieGraphe* pression_ = nullptr;
    SerieGraphe* debit_ = nullptr;
    std::uint64_t revisionSeries_ = UINT64_MAX;

    std::optional<FacteurDebit> facteur_;
    bool avecDebit_ = false;

    qint64 taille_ = 0;
    int pas_ = 1;
    bool reserve_ = false;

    double avance_ = 0;
    double avanceMontree_ = 0;
    double maximum_ = 0;
    int cessionsPassees_ = 0;
    bool fermeture_ = false;
    std::chrono::steady_clock::time_point dernierDessin_{};
};

void Remplissage::Preparer(qint64 taille, int pas) {
    taille_ = taille;
    pas_ = pas;
    fiche_.PreparerBarre(static_cast<double>(taille));
    RelireSeries();
    for (SerieGraphe* serie : {pression_, debit_})
        if (serie) serie->FixerEtiquettes(etiquettes_);
    RelireFiche();
}

/// What the operator can change while the interface runs counts from the next line on.
void Remplissage::RelireFiche() {
    avance_ = avanceMontree_ = fiche_.ValeurBarre();
    maximum_ = fiche_.MaximumBarre();
    const int index = fiche_.IndexListeTemps();
    facteur_ =
        LireFacteurDebit(fiche_.CoefImpulsion(), index, index < 0 ? 0 : fiche_.DonneeListeTemps(),
                         fiche_.Machine().regional);
    fermeture_ = fiche_.EnFermeture();
}

/// The file's series are the last two of the chart, whatever stands there.
void Remplissage::RelireSeries() {
    revisionSeries_ = graphe_.RevisionSeries();
    const int nombre = graphe_.NombreSeries();
    pression_ = nombre >= 2 ? &graphe_.Serie(nombre - 2) : nullptr;
    debit_ = nombre >= 1 ? &graphe_.Serie(nombre - 1) : nullptr;
}

SerieGraphe& Remplissage::Visee(SerieGraphe* serie) const {
    if (!serie) LeverFaute(numero_faute::indice);
    return *serie;
}

void Remplissage::MontrerAvance() {
    if (avance_ == avanceMontree_) return;
    avanceMontree_ = avance_;
    fiche_.FixerValeurBarre(avance_);
}

/// Lets the interface run when that is due; the displays are brought up to date for it.
void Remplissage::Ceder() {
    if (cessionsPassees_ > 0) {
        --cessionsPassees_;
        return;
    }
    Respiration& respiration = fiche_.Machine().respiration;
    if (!respiration.EstDue()) {
        cessionsPassees_ = cessionsSansHorloge;
        return;
    }
    MontrerAvance();
    const auto maintenant = std::chrono::steady_clock::now();
    if (maintenant - dernierDessin_ >= graphe_.pasRedessin) {
        dernierDessin_ = maintenant;
        graphe_.Redessiner();
    }
    respiration.Ceder();
    RelireFiche();
    if (revisionSeries_ != graphe_.RevisionSeries()) RelireSeries();
}

/// Guesses from the first line how many points follow, so that long curves are not moved as they
/// grow.
void Remplissage::ReserverPour(const LigneMesure& ligne) {
    reserve_ = true;
    const qint64 ligneEntiere = ligne.longueur + 2;
    const qint64 lignes = taille_ / ligneEntiere / (pas_ > 1 ? pas_ + 1 : 1) + 1;
    const auto points = static_cast<std::size_t>(std::min(lignes, pointsReserves));
    if (pression_) pression_->Reserver(points);
    if (debit_ && ligne.debit) debit_->Reserver(points);
    etiquettes_->Reserver(points * static_cast<std::size_t>(ligne.etiquette.size() + 2));
}

void Remplissage::Lire() {
    LigneMesure ligne;
    while (!lecteur_.EstFin()) {
        Ceder();
        if (fermeture_) return;
        if (!lecteur_.Suivante(ligne)) {
            if (lecteur_.Issue().raison == IssueLecture::Raison::ChampsManquants)
                LeverFaute(numero_faute::indice);
            return;
        }
        const double suivante = avance_ + static_cast<double>(ligne.longueur);
        if (suivante < maximum_) avance_ = suivante;
        Ceder();
        if (fermeture_) return;
        if (!reserve_) ReserverPour(ligne);
        Placer(ligne);
    }
}

void Remplissage::Placer(const LigneMesure& ligne) {
    if (ligne.debit) {
        avecDebit_ = true;
        PlacerAvecDebit(ligne);
    } else {
        PlacerSansDebit(ligne);
    }
    if (!ligne.temps.numerique) LeverFaute(numero_faute::typeIncompatible);
    maxi_ = std::max(maxi_, ligne.temps.valeur);
    mini_ = std::min(mini_, ligne.temps.valeur);
}

void Remplissage::AjouterPression(const LigneMesure& ligne) {
    SerieGraphe& serie = Visee(pression_);
    if (!ligne.temps.numerique) LeverFaute(numero_faute::typeIncompatible);
    etiquette_ = etiquettes_->Ajouter(ligne.etiquette);
    serie.AjouterPoint(ligne.temps.valeur, ligne.pression.arrondie, etiquette_);
}

void Remplissage::PlacerAvecDebit(const LigneMesure& ligne) {
    if (!ligne.pression.numerique) return;
    AjouterPression(ligne);
    // A count of 0 leaves a gap in the flow, not a point at 0.
    if (!ligne.comptage.numerique || ligne.comptage.valeur == 0) return;
    Visee(debit_).AjouterPoint(ligne.temps.valeur, CalculeDebit(ligne.comptage.valeur, facteur_),
                               etiquette_);
}

void Remplissage::PlacerSansDebit(const LigneMesure& ligne) {
    if (ligne.pression.numerique) {
        AjouterPression(ligne);
    } else if (graphe_.NombreSeries() == 2) {
        graphe_.RetirerSerie(1);
        RelireSeries();
    }
}

/// Empties chart, cursors and limits. `Mini` starts above any time stamp.
void RemettreAZero(FicheChargement& fiche, double& Mini, double& Maxi) {
    fiche.ViderCurseur();
    fiche.AjouterCurseur(fiche.Texte(QStringLiteral("Pas de curseur")));
    fiche.Graphe().RetirerTout();
    Maxi = 0;
    const DateOrdinateur maintenant = VersDateOrdinateur(fiche.Machine().horloge.Maintenant());
    Mini = 1000.0 * DateVersEpoch(maintenant);
}

}  // namespace

void TraceCourbe(FicheChargement& fiche, const QString& NomFichier, bool init, bool Multi,
                 double& Mini, double& Maxi, bool Reload) {
    fiche.LitCommentaires();
    if (fiche.Commentaires().isEmpty()) fiche.FixerCommentaires(fiche.NomEvenement());

    const QString chemin = TrouverFichier(NomFichier);
    QFile fichier(chemin);
    OuvrirEnregistrement(fichier);
    const qint64 taille = fichier.size();
    const int pas = taille <= tailleEntiere ? 1 : lignesPassees;
    QFile compagnon;
    OuvrirCompagnon(compagnon, chemin);

    LecteurEnregistrement lecteur(fichier, fiche.Machine().regional, pas);
    if (lecteur.EstVide()) {
        fiche.MontrerFleche();
        fiche.FinirChargement();
        return;
    }
    const QStringList entete = lecteur.LireEntete();
    if (!Reload) ReprendreReglagesDebit(fiche, entete);
    if (init) RemettreAZero(fiche, Mini, Maxi);
    AjouterSeriesBrutes(fiche, entete);

    bool avecDebit = false;
    {
        Remplissage remplissage(fiche, lecteur, Mini, Maxi);
        remplissage.Preparer(taille, pas);
        remplissage.Lire();
        avecDebit = remplissage.AvecDebit();
    }
    if (fiche.EnFermeture()) return;
    if (!Multi) AjouterSeriesLissees(fiche, avecDebit);
}

}  // namespace bornika
