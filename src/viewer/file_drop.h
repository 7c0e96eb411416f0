#pragma once

#include <QObject>
#include <QString>
#include <optional>

class QDropEvent;
class QMimeData;

namespace bornika {

class Trace;

/// The recordings among what is dragged, as a file dialog names them: one path, or the folder and
/// the names separated by NUL. Nothing unless all of it is ".txt" files, in any letter case, of one
/// folder of this machine.
std::optional<QString> EnregistrementsDeposes(const QMimeData& donnees);

/// Takes recordings that are dragged from a file manager and dropped anywhere on the viewer form,
/// its text boxes included. Everything else is refused, while it is dragged already; texts still
/// go into text boxes. Nothing is taken while an operation of the form runs or a dialog stands.
class DepotFichiers : public QObject {
    Q_OBJECT
  public:
    /// Belongs to the form.
    explicit DepotFichiers(Trace& trace);

    /// What was dropped last.
    const QString& Nom() const { return nom_; }

  Q_SIGNALS:
    /// Recordings were dropped. Raised after the drop itself: the other program waits for its end.
    void Depose();

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;

  private:
    bool Traiter(QDropEvent& evenement, bool surFiche);
    bool EstLibre() const;
    void Annoncer(const QString& nom);

    Trace& trace_;
    QString nom_;
};

}  // namespace bornika
