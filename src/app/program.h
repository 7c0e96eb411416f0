#pragma once

#include <QTimer>
#include <functional>

#include "app/activation.h"
#include "link/station.h"
#include "viewer/viewer_access.h"

namespace bornika {

/// The program put together: the main form, the link, the way to the viewer, and the table of
/// events that ties their controls to the operations.
class Programme {
  public:
    /// `sortir` leaves the process after a general failure; tests record instead.
    explicit Programme(Systeme& systeme, std::function<void(int)> sortir = {});
    ~Programme();
    Programme(const Programme&) = delete;
    Programme& operator=(const Programme&) = delete;

    /// Runs the Load and shows the main form. False when a fault ended it.
    bool Demarrer();

    MainScreen ecran;
    MULTIUSB lien;
    Poste poste;
    AccesTrace trace;
    Activation activation;
    SuiviActivation suivi;
    /// The watchdog's timer: interval 0, never started.
    QTimer Timeur;

  private:
    void Brancher();
};

/// The whole life of a program on that system, from its folder's check to its end: what the `main`
/// of each program runs. Returns the exit status.
int Executer(Systeme& systeme);

}  // namespace bornika
