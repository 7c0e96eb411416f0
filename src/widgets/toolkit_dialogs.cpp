#include "widgets/toolkit_dialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>

#include "platform/colour.h"

namespace bornika {

namespace {

// The form below. Right behind another box the window system has not activated it again yet: then
// it is the dialog that waits for both, so that the second box comes up where the first one was.
// A window that deletes itself, such as the splash, would take the box with it.
QWidget* ParentDeDialogue() {
    QWidget* active = QApplication::activeWindow();
    if (active && !active->testAttribute(Qt::WA_DeleteOnClose)) return active;
    return QApplication::activeModalWidget();
}

// A box that is answered by one of its buttons only.
class BoiteSansFuite : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;

  protected:
    void keyPressEvent(QKeyEvent* evenement) override {
        // The toolkit would take Esc for "No".
        if (evenement->matches(QKeySequence::Cancel)) return;
        QMessageBox::keyPressEvent(evenement);
    }
    void closeEvent(QCloseEvent* evenement) override { evenement->ignore(); }
};

QMessageBox::Icon ImageDe(Icone icone) {
    switch (icone) {
        case Icone::Information:
            return QMessageBox::Information;
        case Icone::Exclamation:
            return QMessageBox::Warning;
        case Icone::Question:
            return QMessageBox::Question;
        case Icone::Critique:
            return QMessageBox::Critical;
        case Icone::Aucune:
            break;
    }
    return QMessageBox::NoIcon;
}

void PreparerBoite(QMessageBox& boite, Icone icone, const QString& titre, const QString& texte) {
    QString lignes = texte;
    lignes.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    boite.setIcon(ImageDe(icone));
    boite.setWindowTitle(titre);
    // Names of files may hold what looks like mark-up.
    boite.setTextFormat(Qt::PlainText);
    boite.setText(lignes);
}

QString SuffixeParDefaut(const QString& suffixe) {
    const QString extension = suffixe.mid(suffixe.lastIndexOf(QLatin1Char('.')) + 1);
    return extension.contains(QLatin1Char('*')) ? QString() : extension;
}

// Each pattern in the case told, in small and in capital letters; "*.*" means every file.
QString MotifsDesDeuxCasses(const QString& motifs) {
    QStringList tous;
    for (const QString& motif : motifs.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString net = motif.trimmed();
        if (net == QLatin1String("*.*"))
            tous << QStringLiteral("*");
        else
            tous << net << net.toLower() << net.toUpper();
    }
    tous.removeDuplicates();
    return tous.join(QLatin1Char(' '));
}

// A label may have lost the end of its bracket.
QString EtiquetteFermee(const QString& texte) {
    return texte.count(QLatin1Char('(')) > texte.count(QLatin1Char(')')) ? texte + QLatin1Char(')')
                                                                         : texte;
}

void PreparerDialogue(QFileDialog& dialogue, const DemandeFichier& demande) {
    // The label says already what is shown: the patterns behind it are for the dialog alone.
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    if (!demande.titre.isEmpty()) dialogue.setWindowTitle(demande.titre);
    if (!demande.dossier.isEmpty()) dialogue.setDirectory(demande.dossier);
    const QString filtre = FiltrePourDialogue(demande.filtre);
    if (!filtre.isEmpty()) dialogue.setNameFilter(filtre);
    const QString suffixe = SuffixeParDefaut(demande.suffixe);
    if (!suffixe.isEmpty()) dialogue.setDefaultSuffix(suffixe);
    // A name such as "*.txt" is the pattern of the last dialog, no file.
    if (!demande.nom.isEmpty() && !demande.nom.contains(QLatin1Char('*')))
        dialogue.selectFile(demande.nom);
}

// One file is its path; several are the folder, then each name, separated by NUL.
QString EnUnTexte(const QStringList& fichiers) {
    if (fichiers.size() == 1) return fichiers.front();
    const QDir dossier = QFileInfo(fichiers.front()).absoluteDir();
    QStringList morceaux{dossier.absolutePath()};
    for (const QString& fichier : fichiers)
        morceaux << dossier.relativeFilePath(fichier);
    return morceaux.join(QChar(u'\0'));
}

std::optional<QString> DemanderFichiers(QFileDialog& dialogue) {
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return {};
    return EnUnTexte(dialogue.selectedFiles());
}

Reponse DemanderOuiNon(QMessageBox& boite) {
    boite.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    boite.setWindowFlag(Qt::WindowCloseButtonHint, false);
    return boite.exec() == QMessageBox::Yes ? Reponse::Oui : Reponse::Non;
}

}  // namespace

QString FiltrePourDialogue(const QString& filtre) {
    const QStringList morceaux = filtre.split(QLatin1Char('|'));
    QStringList filtres;
    for (qsizetype i = 0; i + 1 < morceaux.size(); i += 2)
        filtres << EtiquetteFermee(morceaux[i]) + QLatin1String(" (") +
                       MotifsDesDeuxCasses(morceaux[i + 1]) + QLatin1Char(')');
    return filtres.join(QLatin1String(";;"));
}

Reponse DialoguesQt::Boite(Icone icone, Boutons boutons, const QString& titre,
                           const QString& texte) {
    QWidget* parent = ParentDeDialogue();
    if (boutons == Boutons::OuiNon) {
        BoiteSansFuite boite(parent);
        PreparerBoite(boite, icone, titre, texte);
        return DemanderOuiNon(boite);
    }
    QMessageBox boite(parent);
    PreparerBoite(boite, icone, titre, texte);
    if (boutons == Boutons::Ok) {
        boite.setStandardButtons(QMessageBox::Ok);
        boite.exec();
        return Reponse::Ok;
    }
    boite.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
    // What cannot be undone is not agreed to by an Enter that came too early.
    if (icone == Icone::Critique) boite.setDefaultButton(QMessageBox::Cancel);
    return boite.exec() == QMessageBox::Ok ? Reponse::Ok : Reponse::Annuler;
}

std::optional<QString> DialoguesQt::Ouvrir(const DemandeFichier& demande) {
    QFileDialog dialogue(ParentDeDialogue());
    PreparerDialogue(dialogue, demande);
    dialogue.setAcceptMode(QFileDialog::AcceptOpen);
    dialogue.setFileMode(demande.plusieurs ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
    return DemanderFichiers(dialogue);
}

std::optional<QString> DialoguesQt::Enregistrer(const DemandeFichier& demande) {
    QFileDialog dialogue(ParentDeDialogue());
    PreparerDialogue(dialogue, demande);
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setFileMode(QFileDialog::AnyFile);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, demande.ajout);
    return DemanderFichiers(dialogue);
}

std::optional<std::uint32_t> DialoguesQt::Couleur(std::uint32_t depart) {
    const QColor choisie = QColorDialog::getColor(VersQColor(depart), ParentDeDialogue());
    if (!choisie.isValid()) return {};
    return DepuisQColor(choisie);
}

}  // namespace bornika
