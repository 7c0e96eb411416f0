#pragma once

#include <QStringList>
#include <QTemporaryDir>
#include <vector>

#include "platform/fault.h"
#include "platform/no_loggers.h"
#include "platform/system.h"
#include "support/announced_dialogs.h"

namespace bornika::essai {

/// A clock that stands still until a pause moves it; it keeps the list of pauses.
class HorlogeFigee : public Horloge {
  public:
    QDateTime Maintenant() override { return instant; }
    void Pause(int millisecondes) override {
        pauses.push_back(millisecondes);
        instant = instant.addMSecs(millisecondes);
    }
    QDateTime instant{QDate(2026, 3, 5), QTime(14, 7, 9), Qt::UTC};
    std::vector<int> pauses;
};

/// A program's folder of its own with the delivered configuration in it, and a system of fakes.
/// The USB interface is the one given, or none attached; the program's folder is the temporary one,
/// or one within it.
class Etabli {
  public:
    explicit Etabli(InterfaceUsb* usb = nullptr, const QString& sousDossier = {});
    ~Etabli();

    QString Chemin(const QString& nom) const { return systeme.Chemin(nom); }
    QByteArray Lire(const QString& nom) const;
    void Ecrire(const QString& nom, const QByteArray& contenu) const;
    QStringList Fichiers() const;

    QTemporaryDir dossier;
    HorlogeFigee horloge;
    DialoguesNotes dialogues;
    AucunEnregistreur usbVide;
    Respiration respiration;
    Systeme systeme;
    /// Faults that reached a guard since this object was made.
    std::vector<int> fautes;
};

}  // namespace bornika::essai
