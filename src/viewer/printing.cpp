#include "viewer/printing.h"

#include "chart/model/trace_header.h"
#include "chart/view/chart_picture.h"
#include "platform/fault.h"
#include "shell/main_screen.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

constexpr double margesMillimetres = 10;

/// The annotation tool, counted from the end.
OutilGraphe& OutilAnnotation(ModeleGraphe& modele) {
    return modele.Outil(modele.NombreOutils() - 5);
}

void RangerAnnotation(Trace& trace) {
    OutilAnnotation(trace.modele).actif = false;
    trace.modele.Redessiner();
}

void MontrerStatistiques(Trace& trace) {
    OutilGraphe& annotation = OutilAnnotation(trace.modele);
    annotation.actif = true;
    annotation.texte = TexteStatistiques(trace);
}

void MontrerApercu(Trace& trace) {
    DemandeApercu demande;
    demande.titre = QStringLiteral("BORNIKA ") + trace.ecran.etat.NomKpod;
    demande.paysage = true;
    demande.marges = margesMillimetres;
    demande.peindre = [&trace](QPagedPaintDevice& page) {
        PeindreGraphe(*trace.ui->TChart1, page);
    };
    trace.ecran.systeme.dialogues.Apercu(demande);
}

}  // namespace

QString TexteStatistiques(const Trace& trace) {
    const auto& ui = *trace.ui;
    const QString courbe = ui.Curseur->Index() == 0 ? ui.Curseur->TexteA(1) : ui.Curseur->Texte();
    return courbe + QStringLiteral(" : ") + ui.LabelMin->text() + QStringLiteral("= ") +
           ui.Min->text() + QStringLiteral(" < ") + ui.LabelMoyenne->text() + QStringLiteral("= ") +
           ui.Moy->text() + QStringLiteral(" < ") + ui.LabelMax->text() + QStringLiteral("= ") +
           ui.Max->text();
}

void Imprimer_Click(Trace& trace) {
    // The preview lets the interface run: the form may be closed meanwhile.
    const Trace::Occupation occupation(trace);
    trace.modele.titre = LignesTitre(trace.ui->Commentaires->toPlainText());
    trace.modele.Redessiner();
    if (trace.ui->MinMaxMoy->isChecked()) MontrerStatistiques(trace);
    try {
        MontrerApercu(trace);
    } catch (...) {
        ignorer([&] { RangerAnnotation(trace); });
        throw;
    }
    RangerAnnotation(trace);
}

}  // namespace bornika
