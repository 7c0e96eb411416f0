#include "viewer/chart_menu.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>

#include "chart/model/chart_cursor.h"
#include "chart/view/chart_picture.h"
#include "platform/atomic_file.h"
#include "platform/named_fault.h"
#include "recording/recording_path.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

/// Name of the recording, the first of several, without folder and extension; that of the program
/// for curves whose file was deleted.
QString NomEnregistrement(const Trace& trace) {
    const QString nom =
        QFileInfo(CheminsFichiers(trace.NomFichierCourant).first()).completeBaseName();
    return nom.isEmpty() ? QStringLiteral("BORNIKA") : nom;
}

/// Asks for a file and writes into it what `contenu` holds.
void EnregistrerGraphe(Trace& trace, const QString& extension, const QByteArray& contenu) {
    // The dialog lets the interface run: the form may be closed meanwhile.
    const Trace::Occupation occupation(trace);
    Systeme& systeme = trace.ecran.systeme;
    DemandeFichier demande;
    demande.nom = NomEnregistrement(trace) + QLatin1Char('.') + extension;
    demande.suffixe = QStringLiteral("*.") + extension;
    demande.filtre = QStringLiteral("%1 (*.%1)|*.%1").arg(extension);
    demande.dossier = systeme.dossier;
    const auto choisi = systeme.dialogues.Enregistrer(demande);
    if (!choisi || choisi->isEmpty()) return;
    try {
        nommer(*choisi, [&] { RemplacerFichier(*choisi, contenu); });
    } catch (const FauteExecution& faute) {
        MontrerTexte(trace.ecran, Icone::Critique, faute.texte());
    }
}

}  // namespace

void MontrerMenuGraphe(Trace& trace, QPoint place) {
    VueGraphe& graphe = *trace.ui->TChart1;
    auto* menu = new QMenu(&graphe);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // The chart takes the keys itself: these entries only name them, and are none of its actions.
    const auto& ui = *trace.ui;
    menu->addActions({ui.Agrandir, ui.Reduire, ui.VueEntiere});
    if (ui.Curseur->Index() > 0 && CurseurMobile(trace.modele))
        menu->addActions({ui.PointPrecedent, ui.PointSuivant});
    menu->addSeparator();
    menu->addActions(graphe.actions());
    menu->popup(graphe.mapToGlobal(place));
}

void Agrandir_Click(Trace& trace) {
    trace.ui->TChart1->PresserTouche(Qt::Key_Plus);
}

void Reduire_Click(Trace& trace) {
    trace.ui->TChart1->PresserTouche(Qt::Key_Minus);
}

void VueEntiere_Click(Trace& trace) {
    trace.ui->TChart1->PresserTouche(Qt::Key_0);
}

void PointPrecedent_Click(Trace& trace) {
    trace.ui->TChart1->PresserTouche(Qt::Key_Left, Qt::ControlModifier);
}

void PointSuivant_Click(Trace& trace) {
    trace.ui->TChart1->PresserTouche(Qt::Key_Right, Qt::ControlModifier);
}

void CopierImage_Click(Trace& trace) {
    QGuiApplication::clipboard()->setImage(ImageGraphe(*trace.ui->TChart1));
}

void EnregistrerPng_Click(Trace& trace) {
    EnregistrerGraphe(trace, QStringLiteral("png"), PngGraphe(*trace.ui->TChart1));
}

void EnregistrerPdf_Click(Trace& trace) {
    EnregistrerGraphe(trace, QStringLiteral("pdf"),
                      PdfGraphe(*trace.ui->TChart1, NomEnregistrement(trace)));
}

}  // namespace bornika
