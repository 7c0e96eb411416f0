#include "viewer/file_drop.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "viewer/trace_form.h"

namespace bornika {

namespace {

bool EstEnregistrement(const QUrl& adresse) {
    if (!adresse.isLocalFile()) return false;
    const QFileInfo fichier(adresse.toLocalFile());
    return fichier.isFile() &&
           fichier.suffix().compare(QLatin1String("txt"), Qt::CaseInsensitive) == 0;
}

/// The recordings stay where they are, whatever the file manager offers first.
bool GarderOriginal(QDropEvent& evenement) {
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::LinkAction}) {
        if (!evenement.possibleActions().testFlag(action)) continue;
        evenement.setDropAction(action);
        return true;
    }
    return false;
}

bool TientFichier(const QMimeData& donnees) {
    const QList<QUrl> adresses = donnees.urls();
    return std::any_of(adresses.begin(), adresses.end(),
                       [](const QUrl& adresse) { return adresse.isLocalFile(); });
}

bool EstDepot(const QEvent& evenement) {
    return evenement.type() == QEvent::DragEnter || evenement.type() == QEvent::DragMove ||
           evenement.type() == QEvent::Drop;
}

}  // namespace

std::optional<QString> EnregistrementsDeposes(const QMimeData& donnees) {
    const QList<QUrl> adresses = donnees.urls();
    if (adresses.isEmpty()) return {};
    QString dossier;
    QStringList noms;
    for (const QUrl& adresse : adresses) {
        if (!EstEnregistrement(adresse)) return {};
        const QFileInfo fichier(adresse.toLocalFile());
        if (noms.isEmpty()) dossier = fichier.absolutePath();
        if (fichier.absolutePath() != dossier) return {};
        noms << fichier.fileName();
    }
    if (noms.size() == 1) return QFileInfo(adresses.front().toLocalFile()).absoluteFilePath();
    return dossier + QChar(u'\0') + noms.join(QChar(u'\0'));
}

DepotFichiers::DepotFichiers(Trace& trace) : QObject(&trace), trace_(trace) {
    trace.setAcceptDrops(true);
    trace.installEventFilter(this);
    // A text box would take the address of the file as a text.
    for (QWidget* controle : trace.findChildren<QWidget*>())
        if (controle->acceptDrops()) controle->installEventFilter(this);
}

bool DepotFichiers::eventFilter(QObject* objet, QEvent* evenement) {
    if (!EstDepot(*evenement)) return false;
    return Traiter(static_cast<QDropEvent&>(*evenement), objet == &trace_);
}

bool DepotFichiers::Traiter(QDropEvent& evenement, bool surFiche) {
    const QMimeData& donnees = *evenement.mimeData();
    if (!surFiche && !TientFichier(donnees)) return false;
    const auto nom = EnregistrementsDeposes(donnees);
    if (!nom || !EstLibre() || !GarderOriginal(evenement)) {
        evenement.ignore();
        return true;
    }
    evenement.accept();
    if (evenement.type() == QEvent::Drop) Annoncer(*nom);
    return true;
}

bool DepotFichiers::EstLibre() const {
    return !trace_.EstOccupee() && !trace_.EnFermeture() && !QApplication::activeModalWidget();
}

void DepotFichiers::Annoncer(const QString& nom) {
    QMetaObject::invokeMethod(
        this,
        [this, nom] {
            if (!EstLibre()) return;
            nom_ = nom;
            Q_EMIT Depose();
        },
        Qt::QueuedConnection);
}

}  // namespace bornika
