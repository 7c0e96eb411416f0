#pragma once

#include <QDateTime>

#include "link/command_exchange.h"

namespace bornika {

/// What becomes of the sequence after one of its steps.
enum class Suite { Continuer, Terminer, EtalonnageEnCours };

/// One run of the reading: what its steps hand on to one another.
struct LectureParametres {
    explicit LectureParametres(Poste& lePoste) : poste(lePoste), ecran(lePoste.ecran) {}

    /// Sends a command whose silence ends the sequence. False on silence.
    bool Demander(int commande, int combien = 8) {
        return Envoi_Entete(poste, commande, buffer, combien, true);
    }
    /// Byte of the last reply, counted from 0.
    int Octet(int rang) const { return buffer[static_cast<std::size_t>(rang) + 1]; }
    /// Two and four bytes of it, most significant first.
    int Mot(int rang) const { return Octet(rang) * 256 + Octet(rang + 1); }
    double Quatre(int rang) const { return Mot(rang) * 65536.0 + Mot(rang + 2); }

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
