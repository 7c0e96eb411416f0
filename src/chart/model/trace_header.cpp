#include "chart/model/trace_header.h"

#include <array>

#include "chart/model/chart_model.h"
#include "chart/model/flow.h"
#include "chart/model/loader_form.h"
#include "platform/colour.h"
#include "platform/fault.h"
#include "recording/recording_format.h"

namespace bornika {

namespace {

constexpr Couleur vertDebit = 0x00FF80;
constexpr Couleur jaune = 65535;
constexpr Couleur bleu = 0xFF0000;
constexpr int periodeInitiale = 10;

/// Position of a time unit in `ListeTemps` by its name in a file, -1 for an unknown one.
int PositionUniteTemps(const QString& nom) {
    constexpr std::array<const char*, 4> noms = {"SEC", "MIN", "HRS", "DAY"};
    for (std::size_t position = 0; position < noms.size(); ++position)
        if (nom == QLatin1String(noms[position])) return static_cast<int>(position);
    return -1;
}

void PreparerAxe(AxeGraphe& axe) {
    axe.angleTitre = 0;
    axe.increment = 0;
    axe.maximumAutomatique = true;
}

/// One smoothing series over the series at `source`, titled after the one two places before it.
void AjouterLissee(FicheChargement& fiche, int source, SerieGraphe::Axe axe, Couleur couleur) {
    ModeleGraphe& graphe = fiche.Graphe();
    SerieGraphe& serie = graphe.AjouterSerie();
    const int position = graphe.NombreSeries() - 1;
    serie.axe = axe;
    graphe.FixerFonction(position, SerieGraphe::fonctionLissage, source);
    serie.FixerPeriode(periodeInitiale);
    serie.couleur = couleur;
    fiche.FixerLissage(periodeInitiale);
    serie.titre = fiche.Texte(QStringLiteral("(Lissée)")) + QLatin1Char(' ') +
                  graphe.Serie(position - 2).titre;
    fiche.AjouterCurseur(serie.titre);
}

}  // namespace

void ReprendreReglagesDebit(FicheChargement& fiche, const QStringList& entete) {
    if (entete.size() <= champDebit) return;
    const QStringList coefficient = entete[champComptage].split(QLatin1Char('('));
    const QStringList unites = entete[champDebit].split(QLatin1Char('/'));
    if (coefficient.size() != 2 || unites.size() != 2) {
        fiche.ChoisirListeTemps(-1);
        fiche.FixerUniteImpulsion(entete[champDebit]);
        return;
    }
    QString valeur = coefficient[1];
    fiche.FixerCoefImpulsion(valeur.remove(QLatin1Char('(')).remove(QLatin1Char(')')));
    fiche.FixerUniteImpulsion(unites[0].trimmed());
    const int position = PositionUniteTemps(unites[1].trimmed().toUpper());
    if (position >= 0) fiche.ChoisirListeTemps(position);
}

QStringList LignesTitre(const QString& Commentaires) {
    QString texte = Commentaires;
    texte.remove(QLatin1Char('\r'));
    const QStringList lignes = texte.split(QLatin1Char('\n'));
    if (lignes.size() >= 3) return {lignes.first()};
    return {texte.remove(QLatin1Char('\n'))};
}

void AjouterSeriesBrutes(FicheChargement& fiche, const QStringList& entete) {
    ModeleGraphe& graphe = fiche.Graphe();
    SerieGraphe& pression = graphe.AjouterSerie();
    SerieGraphe& debit = graphe.AjouterSerie();
    graphe.titre = LignesTitre(fiche.Commentaires());
    PreparerAxe(graphe.gauche);
    PreparerAxe(graphe.droite);
    pression.axe = SerieGraphe::Axe::Gauche;
    debit.axe = SerieGraphe::Axe::Droite;
    debit.couleur = vertDebit;

    if (entete.size() <= champPression) LeverFaute(numero_faute::indice);
    graphe.gauche.titre = entete[champPression];
    pression.titre = entete[champPression];
    fiche.FixerLabelPression(graphe.gauche.titre);
    fiche.AjouterCurseur(entete[champPression]);
    fiche.MontrerFrameDebit();
    const int index = fiche.IndexListeTemps();
    const QString legende = LegendeDebit(fiche.UniteImpulsion(), index,
                                         index < 0 ? QString() : fiche.TexteListeTemps());
    graphe.droite.titre = legende;
    debit.titre = legende;
    fiche.AjouterCurseur(legende);
}

void AjouterSeriesLissees(FicheChargement& fiche, bool debit) {
    AjouterLissee(fiche, 0, SerieGraphe::Axe::Gauche, jaune);
    AjouterLissee(fiche, 1, SerieGraphe::Axe::Droite, bleu);
    ModeleGraphe& graphe = fiche.Graphe();
    graphe.Serie(1).active = false;
    graphe.Serie(2).active = false;
    graphe.Serie(3).active = debit;
}

}  // namespace bornika
