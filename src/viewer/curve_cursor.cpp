#include "viewer/curve_cursor.h"

#include <QPointF>
#include <optional>
#include <string_view>
#include <utility>

#include "platform/dates.h"
#include "platform/fault.h"
#include "platform/format_pattern.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/readout_box.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

constexpr Couleur noir = 0;
constexpr Couleur blanc = 0xFFFFFF;
/// Times above this are milliseconds.
constexpr double secondesMaximum = 9'999'999'999;

/// How the value under an entry of `Curseur` is shown. The third curve is named and coloured as
/// here although it belongs to the left axis, and the fourth has no readout: both are deliberate.
struct Lecture {
    std::string_view motif;
    AxeGraphe ModeleGraphe::*axe;
    int serieCouleur;
};
constexpr Lecture lectures[] = {{"#.##", &ModeleGraphe::gauche, 0},
                                {"#.##", &ModeleGraphe::gauche, 0},
                                {"#.####", &ModeleGraphe::droite, 1},
                                {"#.####", &ModeleGraphe::droite, 2}};

bool SerieExiste(const Trace& trace, int serie) {
    return serie >= 0 && serie < trace.modele.NombreSeries();
}

OutilGraphe& DernierOutil(ModeleGraphe& modele) {
    return modele.Outil(modele.NombreOutils() - 1);
}

void RemplacerCurseur(ModeleGraphe& modele, int serie) {
    while (modele.NombreOutils() > 0 && DernierOutil(modele).genre == OutilGraphe::Genre::Curseur)
        modele.RetirerOutil(modele.NombreOutils() - 1);
    OutilGraphe curseur;
    curseur.genre = OutilGraphe::Genre::Curseur;
    curseur.serie = serie;
    curseur.crayon = blanc;
    curseur.suitSouris = true;
    modele.AjouterOutil(std::move(curseur));
}

std::optional<QPointF> PointLu(Trace& trace, int index) {
    if (index == 0) return trace.ui->TChart1->PositionSouris(0);
    const OutilGraphe& curseur = DernierOutil(trace.modele);
    if (curseur.point < 0) return {};  // not moved yet
    return QPointF(curseur.x, curseur.y);
}

void AfficherLecture(Trace& trace) {
    const int index = trace.ui->Curseur->Index();
    if (index < 0 || index >= static_cast<int>(std::size(lectures))) return;
    const Lecture& lecture = lectures[index];
    const std::optional<QPointF> point = PointLu(trace, index);
    if (!point) return;
    const Couleur couleur = trace.ui->TChart1->CouleurSerie(lecture.serieCouleur);
    const double secondes = point->x() > secondesMaximum ? point->x() / 1000 : point->x();
    const Regional& regional = trace.ecran.systeme.regional;

    MontrerLecture(*trace.ui->pression, Format(point->y(), lecture.motif, regional), couleur);
    trace.ui->LabelPression->setText((trace.modele.*lecture.axe).titre);
    trace.ui->date->setText(EpochVersTexte(secondes, regional));
}

}  // namespace

void Curseur_Click(Trace& trace) {
    ModeleGraphe& modele = trace.modele;
    for (int s = 0; s < modele.NombreSeries(); ++s)
        modele.Serie(s).marques = false;
    trace.ui->Marques->setChecked(false);
    const int serie = trace.ui->Curseur->Index() - 1;
    trace.ui->Marques->setEnabled(serie >= 0);
    if (modele.NombreOutils() > 0) {
        if (serie < 0)
            DernierOutil(modele).crayon = noir;
        else if (SerieExiste(trace, serie))
            RemplacerCurseur(modele, serie);
    }
    trace.ui->TChart1->Repaint();
}

void Marques_Click(Trace& trace) {
    const int serie = trace.ui->Curseur->Index() - 1;
    if (!SerieExiste(trace, serie)) return;
    const bool cochee = trace.ui->Marques->isChecked();
    if (std::exchange(trace.modele.Serie(serie).marques, cochee) != cochee)
        trace.ui->TChart1->Repaint();
}

void AfficheCurseur(Trace& trace) {
    ignorer([&] { AfficherLecture(trace); });
}

}  // namespace bornika
