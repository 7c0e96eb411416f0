#include "viewer/export_commands.h"

#include <QFile>
#include <QFileInfo>
#include <QPushButton>
#include <algorithm>

#include "platform/atomic_file.h"
#include "platform/code_page.h"
#include "platform/format_pattern.h"
#include "platform/named_fault.h"
#include "platform/numbers.h"
#include "platform/text_file.h"
#include "platform/vector_registers.h"
#include "recording/recording_format.h"
#include "recording/recording_path.h"
#include "shell/main_screen.h"
#include "shell/product_box.h"
#include "ui_trace_form.h"
#include "viewer/comments.h"
#include "viewer/selection_export.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

/// Asks where to write; "" when cancelled. The name of the last file dialog goes in any case.
QString DemanderCible(Trace& trace, const QString& extension) {
    DemandeFichier demande;
    demande.suffixe = QStringLiteral("*.") + extension;
    demande.filtre = QStringLiteral("%1 (*.%1)|*.%1").arg(extension);
    demande.dossier = trace.ecran.systeme.dossier;
    trace.NomDialogue.clear();
    if (const auto nom = trace.ecran.systeme.dialogues.Enregistrer(demande))
        trace.NomDialogue = *nom;
    return trace.NomDialogue;
}

DemandeSelection DemandePour(Trace& trace, FormatSelection format) {
    return {format,
            PorteesVisibles(trace.modele),
            trace.ecran.Texte(QStringLiteral("Temps")),
            trace.ui->CoefImpulsion->text(),
            trace.ui->UniteImpulsion->text(),
            trace.ui->ListeTemps->Texte(),
            trace.ecran.systeme.regional};
}

/// The recordings of the view.
QStringList SourcesVue(const Trace& trace) {
    QStringList sources = CheminsFichiers(trace.NomFichierCourant);
    for (QString& source : sources)
        source = TrouverFichier(source);
    return sources;
}

bool EstUneDe(const QStringList& sources, const QString& chemin) {
    return std::any_of(sources.begin(), sources.end(),
                       [&](const QString& source) { return EstMemeFichier(source, chemin); });
}

/// One recording, read whole, and its lines that go out.
class SourceSelection {
  public:
    SourceSelection(const QString& chemin, const DemandeSelection& demande) : chemin_(chemin) {
        nommer(chemin_, [&] {
            fichier_.emplace(chemin_);
            lecteur_.emplace(fichier_->Contenu(), demande);
        });
    }
    /// Hands header and lines to `ecrire`, one after the other.
    template <class Ecrire>
    void Transmettre(Ecrire&& ecrire) {
        ecrire(lecteur_->Entete());
        std::optional<QByteArrayView> ligne;
        while (nommer(chemin_, [&] { ligne = lecteur_->Suivante(); }), ligne)
            ecrire(*ligne);
    }

  private:
    QString chemin_;
    std::optional<FichierTexteLu> fichier_;
    std::optional<LecteurSelection> lecteur_;
};

void EcrireDans(const QString& cible, ModeEcriture mode, SourceSelection& source) {
    std::optional<FichierTexteEcrit> fichier;
    nommer(cible, [&] { fichier.emplace(cible, mode); });
    source.Transmettre(
        [&](QByteArrayView ligne) { nommer(cible, [&] { fichier->EcrireLigneOctets(ligne); }); });
    nommer(cible, [&] { fichier->Fermer(); });
}

/// The target is read as a source, too: it stays as it is until all is read.
void RemplacerSource(const QString& cible, const QStringList& sources,
                     const DemandeSelection& demande) {
    QByteArray contenu;
    for (const QString& chemin : sources)
        SourceSelection(chemin, demande).Transmettre([&](QByteArrayView ligne) {
            contenu.append(ligne).append("\r\n");
        });
    nommer(cible, [&] { RemplacerFichier(cible, contenu); });
}

/// Writes all sources into the target; `apres` runs with the mode of each source behind it.
template <class Apres>
void EcrireSelection(const QString& cible, const QStringList& sources,
                     const DemandeSelection& demande, Apres&& apres) {
    const bool enUneFois = EstUneDe(sources, cible);
    if (enUneFois) RemplacerSource(cible, sources, demande);
    ModeEcriture mode = ModeEcriture::Remplacer;
    for (const QString& chemin : sources) {
        if (!enUneFois) {
            // Read before the target is made: an unreadable source costs no older file.
            SourceSelection source(chemin, demande);
            EcrireDans(cible, mode, source);
        }
        apres(mode);
        mode = ModeEcriture::Ajouter;
    }
}

QString CheminCommentairesCible(const QString& cible, const QStringList& sources) {
    const QString chemin = CheminCommentairesSelection(cible);
    // No recording of the view may go under its own comments.
    return EstUneDe(sources, chemin) ? cible + QStringLiteral(".Cmt") : chemin;
}

/// What both buttons do around their writing.
template <class Ecriture>
void EcrireVersCible(Trace& trace, QPushButton& bouton, const QString& extension,
                     Ecriture&& ecriture) {
    // The dialog lets the interface run: the form may be closed meanwhile.
    const Trace::Occupation occupation(trace);
    const QString cible = DemanderCible(trace, extension);
    if (cible.isEmpty()) return;
    bouton.setEnabled(false);
    // The dialog painted.
    LibererRegistresVectoriels();
    ecriture(cible, SourcesVue(trace));
    trace.setWindowTitle(cible);
    bouton.setEnabled(true);
}

void EffacerFichier(const QString& chemin) {
    if (!QFileInfo::exists(chemin)) LeverFaute(numero_faute::fichierIntrouvable);
    // A protected file goes too: the operator has just said so.
    if (!QFile::remove(chemin)) LeverFaute(numero_faute::accesRefuse);
}

/// The line with its pressure worked out anew: all fields but the last, each with its ";".
QString LigneMiseAJour(const QString& ligne, const Regional& regional) {
    constexpr double barParPoint = 16.0 / 1024;
    QStringList champs = ligne.split(QLatin1Char(';'));
    if (champs.size() <= champPression) LeverFaute(numero_faute::indice);
    champs[champPression] =
        Format(EnDouble(champs[champPoints], regional) * barParPoint, "#.###", regional);
    champs.last().clear();
    return champs.join(QLatin1Char(';'));
}

}  // namespace

void Export(Trace& trace) {
    EcrireVersCible(trace, *trace.ui->Export, QStringLiteral("csv"),
                    [&](const QString& cible, const QStringList& sources) {
                        EcrireSelection(cible, sources, DemandePour(trace, FormatSelection::Csv),
                                        [](ModeEcriture) {});
                    });
}

void EnregistrerSelection(Trace& trace) {
    EcrireVersCible(
        trace, *trace.ui->EnregistrerSelection, QStringLiteral("txt"),
        [&](const QString& cible, const QStringList& sources) {
            const QString commentaires = CheminCommentairesCible(cible, sources);
            EcrireSelection(
                cible, sources, DemandePour(trace, FormatSelection::Enregistrement),
                [&](ModeEcriture mode) { EcrireCommentaires(trace, commentaires, mode); });
        });
}

void Detruire(Trace& trace) {
    const Trace::Occupation occupation(trace);
    MainScreen& ecran = trace.ecran;
    const QString nom = trace.NomFichierCourant;
    if (nom.isEmpty() || nom.contains(QChar(u'\0'))) {
        MontrerMessage(ecran, Icone::Exclamation,
                       QStringLiteral("Vous devez sélectionner un fichier"));
        return;
    }
    const QString question = ecran.Texte(QStringLiteral("Voulez Détruire le fichier ")) +
                             QLatin1Char(' ') + nom + QStringLiteral(" ?");
    if (MontrerBoite(ecran, Icone::Question, Boutons::OuiNon, question) != Reponse::Oui) return;
    nommer(nom, [&] { EffacerFichier(nom); });
    // The box let the interface run: another file may have been opened.
    if (trace.NomFichierCourant == nom) trace.NomFichierCourant.clear();
}

void MiseAJourFichier(Trace& trace) {
    const QString nom;
    MettreAJourFichier(trace, nom);
}

void MettreAJourFichier(Trace& trace, const QString& nom) {
    const Systeme& systeme = trace.ecran.systeme;
    FichierTexteLu source(systeme.Chemin(nom));
    FichierTexteEcrit copie(systeme.Chemin(QStringLiteral("MAJ_") + nom), ModeEcriture::Remplacer);
    copie.EcrireLigneOctets(source.LireLigne());
    while (!source.EstFin())
        copie.Ecrire(LigneMiseAJour(Depuis8Bits(source.LireLigne()), systeme.regional) +
                     QLatin1Char('\r'));
    copie.Fermer();
}

}  // namespace bornika
