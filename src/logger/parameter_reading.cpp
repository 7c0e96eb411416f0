#include "logger/parameter_reading.h"

#include <array>

#include "link/command_table.h"
#include "link/device_identity.h"
#include "logger/calibration_reading.h"
#include "logger/clock_correction.h"
#include "logger/context_reading.h"
#include "logger/display_statement.h"
#include "logger/identity_reading.h"
#include "logger/memory_pointers.h"
#include "logger/mode_reading.h"
#include "logger/parameter_replies.h"
#include "logger/schedule_reading.h"
#include "platform/code_page.h"
#include "platform/numbers.h"
#include "setup/recording_summary.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "widgets/busy_marks.h"

namespace bornika {

namespace {

Suite CommencerLecture(LectureParametres& lecture) {
    EtatApplication& etat = lecture.ecran.etat;
    etat.TimeOut = false;
    etat.Rapport.clear();
    lecture.poste.lien.OuvreUSB(etat.UsbID);
    return Suite::Continuer;
}

/// A calibration date that was not answered has closed the link. `TimeOut` then still stands, so
/// that the rest of the calibration comes out as zeros and the sequence ends at the next command.
Suite RouvrirLien(LectureParametres& lecture) {
    lecture.poste.lien.OuvreUSB(lecture.ecran.etat.UsbID);
    return Suite::Continuer;
}

Suite LirePointsEtalonnage(LectureParametres& lecture) {
    return LireEtalonnageCapteur(lecture.poste, lecture.AncienFirmware) ? Suite::Continuer
                                                                        : Suite::EtalonnageEnCours;
}

/// Adds seven characters to the comment: blanks stay blanks.
Suite LireMoitieCommentaire(LectureParametres& lecture, int commande) {
    if (!lecture.DemanderReponse(commande)) return Suite::Terminer;
    const QByteArray caracteres = MoitieCommentaireDe(lecture.Reponse());
    QLineEdit& boite = *lecture.ecran.ui->Commentaire;
    afficher([&] { boite.setText(boite.text() + Depuis8Bits(caracteres)); });
    return Suite::Continuer;
}

Suite LireCommentaire(LectureParametres& lecture) {
    afficher([&] { lecture.ecran.ui->Commentaire->setText({}); });
    const Suite suite = LireMoitieCommentaire(lecture, CMD_LIT_COMMENTAIRE_1);
    if (suite != Suite::Continuer) return suite;
    return LireMoitieCommentaire(lecture, CMD_LIT_COMMENTAIRE_2);
}

using Etape = Suite (*)(LectureParametres&);

constexpr std::array etapes = {
    Etape{CommencerLecture},    Etape{LireVersion},
    Etape{LireNumeroSerie},     Etape{LireDateEtalonnage},
    Etape{RouvrirLien},         Etape{LirePointsEtalonnage},
    Etape{LireProchaineMesure}, Etape{NoterPeriode},
    Etape{LireDemarrage},       Etape{LireMode},
    Etape{LireDateCourante},    Etape{NoterPeriodeTrigger},
    Etape{LireCommentaire},     Etape{LireFormatHeure},
    Etape{LirePoidsImpulsion},  Etape{LireUniteImpulsion},
    Etape{LireTempsDebit},
};

void DireEtalonnageEnCours(MainScreen& ecran) {
    MontrerMessage(ecran, Icone::Information, QStringLiteral("Mode étalonnage en cours"));
}

}  // namespace

void Lire_Parametres(Poste& poste) {
    LectureParametres lecture(poste);
    for (const Etape etape : etapes) {
        const Suite suite = etape(lecture);
        if (suite == Suite::EtalonnageEnCours) {
            DireEtalonnageEnCours(poste.ecran);  // the link stays open: the next opening closes it
            return;
        }
        if (suite == Suite::Terminer) {
            poste.lien.FermeUSB();
            return;
        }
    }
    poste.lien.FermeUSB();
    Lecture_Pointeurs(poste);
    Donne_Resume(poste.ecran);
}

void Lire(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const auto& ui = ecran.ui;
    BoutonOccupe bouton(*ui->Lire);
    if (ecran.etat.Connected) {
        bool ok = false;
        ui->Version->setText(LitVersionKpod(poste, ok));
        ecran.etat.TypekPod = EnEntier32(ValeurDebut(LitTypeKpod(poste)));
        Lire_Parametres(poste);
        Lire_Correction_Temps(poste);
    }
    bouton.Rendre();
    ui->Lire->setFocus();
}

}  // namespace bornika
