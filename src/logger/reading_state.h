#pragma once

#include <QDateTime>

#include "link/command_exchange.h"
#include "link/command_table.h"

namespace bornika {

/// What becomes of the sequence after one of its steps.
enum class Suite { Continuer, Terminer, EtalonnageEnCours };

/// One run of the reading: what its steps hand on to one another.
struct LectureParametres {
    explicit LectureParametres(Poste& lePoste) : poste(lePoste), ecran(lePoste.ecran) {}

    /// Sends a command whose silence ends the sequence. False on silence.
    bool DemanderReponse(int commande, int combien = longueurReponse) {
        return Envoi_Entete(poste, commande, buffer, combien, true);
    }
    /// The last reply.
    VueReponse Reponse() const { return buffer; }

    Poste& poste;
    MainScreen& ecran;
    Tampon buffer{};
    /// Firmware that knows one calibration point only.
    bool AncienFirmware = false;
    /// Start of the recording in device time.
    double DateDemarrageLue = 0;
    /// The computer's date and time when the logger's was read.
    QDateTime DateLectureLocale;
};

}  // namespace bornika
