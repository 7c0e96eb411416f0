#include "platform/dialogs.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMessageBox>

#include "platform/colour.h"

namespace bornika {

namespace {

QMessageBox::Icon IconeQt(Icone icone) {
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

QMessageBox::StandardButtons BoutonsQt(Boutons boutons) {
    switch (boutons) {
        case Boutons::OkAnnuler:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case Boutons::OuiNon:
            return QMessageBox::Yes | QMessageBox::No;
        case Boutons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

/// A Yes/No question has to be answered: neither Esc nor the frame closes it.
class BoiteQuestion : public QMessageBox {
  public:
    using QMessageBox::QMessageBox;
    bool sansFuite = false;

    void reject() override {
        if (!sansFuite) QMessageBox::reject();
    }

  protected:
    void keyPressEvent(QKeyEvent* evenement) override {
        if (sansFuite && evenement->key() == Qt::Key_Escape) return;
        QMessageBox::keyPressEvent(evenement);
    }
    void closeEvent(QCloseEvent* evenement) override {
        if (sansFuite && result() == 0 && isVisible() && clickedButton() == nullptr)
            evenement->ignore();
        else
            QMessageBox::closeEvent(evenement);
    }
};

// "*.txt" names the file ending "txt".
QString Terminaison(const QString& suffixe) {
    const QString fin = QFileInfo(suffixe).suffix();
    return fin;
}

void Preparer(QFileDialog& dialogue, const DemandeFichier& demande) {
    if (!demande.titre.isEmpty()) dialogue.setWindowTitle(demande.titre);
    dialogue.setDirectory(demande.dossier);
    const QString filtre = FiltrePourDialogue(demande.filtre);
    if (!filtre.isEmpty()) dialogue.setNameFilter(filtre);
    dialogue.setDefaultSuffix(Terminaison(demande.suffixe));
    if (!demande.nom.isEmpty() && !demande.nom.contains(QLatin1Char('*')))
        dialogue.selectFile(demande.nom);
}

// Several files travel as one text: the folder, then each name, separated by NUL.
QString EnUnTexte(const QStringList& fichiers) {
    if (fichiers.size() == 1) return fichiers.first();
    QString texte = QFileInfo(fichiers.first()).absolutePath();
    for (const QString& fichier : fichiers)
        texte += QChar(0) + QFileInfo(fichier).fileName();
    return texte;
}

}  // namespace

QString FiltrePourDialogue(const QString& filtre) {
    const QStringList parties = filtre.split(QLatin1Char('|'));
    QStringList filtres;
    for (qsizetype i = 0; i + 1 < parties.size(); i += 2) {
        QStringList motifs;
        for (const QString& motif : parties[i + 1].split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
            for (const QString& forme :
                 {motif.trimmed(), motif.trimmed().toLower(), motif.trimmed().toUpper()})
                if (!motifs.contains(forme)) motifs << forme;
        }
        filtres << parties[i] + QStringLiteral(" (") + motifs.join(QLatin1Char(' ')) +
                       QLatin1Char(')');
    }
    return filtres.join(QStringLiteral(";;"));
}

Reponse DialoguesQt::Boite(Icone icone, Boutons boutons, const QString& titre,
                           const QString& texte) {
    BoiteQuestion boite(QApplication::activeWindow());
    boite.sansFuite = boutons == Boutons::OuiNon;
    boite.setIcon(IconeQt(icone));
    boite.setWindowTitle(titre);
    boite.setTextFormat(Qt::PlainText);
    boite.setText(texte);
    boite.setStandardButtons(BoutonsQt(boutons));
    switch (boite.exec()) {
        case QMessageBox::Yes:
            return Reponse::Oui;
        case QMessageBox::No:
            return Reponse::Non;
        case QMessageBox::Ok:
            return Reponse::Ok;
        default:
            return boutons == Boutons::OkAnnuler ? Reponse::Annuler : Reponse::Ok;
    }
}

std::optional<QString> DialoguesQt::Ouvrir(const DemandeFichier& demande) {
    QFileDialog dialogue(QApplication::activeWindow());
    dialogue.setAcceptMode(QFileDialog::AcceptOpen);
    dialogue.setFileMode(demande.plusieurs ? QFileDialog::ExistingFiles
                                           : QFileDialog::ExistingFile);
    Preparer(dialogue, demande);
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return {};
    return EnUnTexte(dialogue.selectedFiles());
}

std::optional<QString> DialoguesQt::Enregistrer(const DemandeFichier& demande) {
    QFileDialog dialogue(QApplication::activeWindow());
    dialogue.setAcceptMode(QFileDialog::AcceptSave);
    dialogue.setFileMode(QFileDialog::AnyFile);
    Preparer(dialogue, demande);
    if (dialogue.exec() != QDialog::Accepted || dialogue.selectedFiles().isEmpty()) return {};
    return dialogue.selectedFiles().first();
}

std::optional<std::uint32_t> DialoguesQt::Couleur(std::uint32_t depart) {
    QColorDialog dialogue(VersQColor(depart), QApplication::activeWindow());
    if (dialogue.exec() != QDialog::Accepted) return {};
    return DepuisQColor(dialogue.currentColor());
}

}  // namespace bornika
