#include "app/watchdog.h"

#include <QTimer>

#include "link/station.h"

namespace bornika {

void Timeur(Poste& poste, QTimer& timeur) {
    poste.ecran.etat.TimeOut = true;
    poste.ecran.systeme.usb.Fermer(poste.lien.ReadHandle);
    poste.lien.ReadHandle = 0;
    timeur.stop();
}

}  // namespace bornika
