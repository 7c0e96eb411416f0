#include "viewer/chart_session.h"

#include "chart/model/trace_loader.h"
#include "platform/guard.h"
#include "platform/numbers.h"
#include "recording/recording_path.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_pages.h"
#include "viewer/colour_choice.h"
#include "viewer/readout_box.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_loading.h"
#include "viewer/viewer_settings.h"
#include "widgets/pointer_shape.h"

namespace bornika {

namespace {

constexpr Couleur vertEtiquettes = 0xFF00;
constexpr int defilementLesDeux = 3;

void MontrerControles(Trace& trace) {
    auto& ui = *trace.ui;
    QWidget* const montres[] = {ui.pression,
                                ui.MinMaxMoy,
                                ui.date,
                                ui.ProgressBar,
                                ui.LabelCommentaires,
                                ui.Commentaires,
                                ui.Imprimer,
                                ui.Detruire,
                                ui.EnregistrerSelection,
                                ui.Export,
                                ui.LabelPression,
                                ui.LabelTemps,
                                ui.LabelCurseur,
                                ui.Curseur,
                                ui.PicturePalette,
                                ui.Couleurs,
                                ui.Pages,
                                ui.ChartPageNavigator,
                                ui.Lissage,
                                ui.LabelLissage,
                                ui.Marques};
    QWidget* const caches[] = {ui.TeeCommander1, ui.Enregistrer, ui.NomEvenement,
                               ui.LabelNomFichier};
    for (QWidget* controle : montres)
        controle->show();
    for (QWidget* controle : caches)
        controle->hide();
}

/// The tools go with each load: without a template the chart has none.
void ChargerGabarit(Trace& trace) {
    trace.modele.RemplacerOutils({});
    Gabarit gabarit = LireGabarit(trace.ecran.systeme.Chemin(QStringLiteral("BORNIKA.TEE")));
    trace.modele.RemplacerOutils(std::move(gabarit.outils));
    trace.ui->TChart1->FixerApparence(gabarit.apparence);
}

void PreparerGraphe(Trace& trace) {
    ignorer([&] { ChargerGabarit(trace); });
    FixerFondLectures(trace);
    trace.modele.visible = false;
    trace.ui->TChart1->hide();
    trace.modele.troisDimensions = false;
    trace.modele.couleursEtiquettes.bas = vertEtiquettes;
    trace.modele.bas.etiquettesTexte = true;
    trace.modele.couleursEtiquettes.gauche = vertEtiquettes;
}

void LireFichiers(Trace& trace, const QString& NomFichier, bool Reload) {
    ControlesChargement controles(trace);
    const bool Multi = NomFichier.contains(QChar(u'\0'));
    bool init = true;
    for (const QString& chemin : CheminsFichiers(NomFichier)) {
        if (trace.EnFermeture()) return;
        ignorer(
            [&] { TraceCourbe(controles, chemin, init, Multi, trace.Mini, trace.Maxi, Reload); });
        init = false;
    }
}

/// `Pages` has just been unchecked, so that the navigator is always hidden here.
void FinirPages(Trace& trace) {
    trace.ui->Pages->setEnabled(true);
    ignorer([&] { trace.ui->Pages->setChecked(false); });
    if (trace.ui->Pages->isChecked()) {
        trace.ui->ChartPageNavigator->show();
        FixerPages(trace, pointsParPageChargement);
    } else {
        trace.ui->ChartPageNavigator->hide();
    }
}

void FinirGraphe(Trace& trace) {
    trace.modele.legendeVisible = true;
    trace.modele.legendeCases = true;
    trace.modele.legendeSeries = true;
    trace.modele.zoomPermis = true;
    trace.modele.defilement = defilementLesDeux;
    FinirPages(trace);
    trace.modele.visible = true;
    trace.modele.FixerPlage(trace.Mini, trace.Maxi);
    trace.ui->TChart1->RemettreEchelles();
    trace.ui->TChart1->show();
    trace.ui->ChartPageNavigator->Montrer(trace.modele.Page(), trace.modele.NombrePages());
}

// Faults are ignored in what raised events do, too: a setting that cannot be saved is no reason to
// show no curve. Between these two the interface runs, and its events are guarded as ever.

void PreparerChargement(Trace& trace) {
    const FautesIgnorees ignorees;
    LireReglagesDebit(trace);
    MontrerControles(trace);
    PreparerGraphe(trace);
}

void AcheverChargement(Trace& trace) {
    const FautesIgnorees ignorees;
    FinirGraphe(trace);
    ignorer([&] { trace.ui->Curseur->Choisir(0); });
    ignorer([&] { RemplirCouleurs(trace); });
}

}  // namespace

void FixerFichierCourant(Trace& trace, const QString& nom) {
    trace.setWindowTitle(nom.section(QChar(u'\0'), 0, 0));
    trace.NomFichierCourant = nom;
}

void chart_Init(Trace& trace) {
    FixerFichierCourant(trace, trace.ecran.systeme.Chemin(trace.NomDialogue));
    ChargeCourbes(trace, trace.NomFichierCourant, false);
}

void ChargeCourbes(Trace& trace, const QString& NomFichier, bool Reload) {
    if (trace.Chargement) return;
    trace.Chargement = true;
    const Trace::Occupation occupation(trace);
    PreparerChargement(trace);
    FixerPointeurSouris(trace, pointeur::sablier);
    // The name may be the form's own, which the operator can change while the load yields.
    const QString nom = NomFichier;  // NOLINT(performance-unnecessary-copy-initialization)
    LireFichiers(trace, nom, Reload);
    FixerPointeurSouris(trace, pointeur::fleche);
    if (!trace.EnFermeture()) AcheverChargement(trace);
    trace.Chargement = false;
}

void Chart_Add_Serie(Trace& trace) {
    trace.modele.AjouterSerie();
}

void Chart_Add_Point(Trace& trace, const QString& X, const QString& Y, int PointsParPage) {
    const Regional& regional = trace.ecran.systeme.regional;
    const double x = EnDouble(X, regional);
    trace.modele.Serie(0).AjouterPoint(x, EnDouble(Y, regional), MagasinEtiquettes::vide);
    trace.modele.FixerMaxPointsPerPage(PointsParPage);
}

void Chart_Refresh(Trace& trace) {
    trace.ui->TChart1->Repaint();
}

}  // namespace bornika
