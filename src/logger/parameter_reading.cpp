#include "logger/parameter_reading.h"

#include <array>

#include "link/command_table.h"
#include "link/device_identity.h"
#include "logger/calibration_reading.h"
#include "logger/clock_correction.h"
#include "logger/context_reading.h"
#include "logger/display_statement.h"
#include "logger/duration_rules.h"
#include "logger/identity_reading.h"
#include "logger/memory_pointers.h"
#include "logger/mode_reading.h"
#include "logger/parameter_report.h"
#include "logger/recording_summary.h"
#include "platform/code_page.h"
#include "platform/colour.h"
#include "platform/numbers.h"
#include "shell/dates.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr int caracteresParCommande = 7;
constexpr Couleur noir = 0;
constexpr Couleur rouge = 255;

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

/// Index of the first entry that carries this number, -1 for none.
int Chercher(const ListeDeroulante& liste, int donnee) {
    for (int i = 0; i < liste.Nombre(); ++i) {
        if (liste.Donnee(i) == donnee) return i;
    }
    return -1;
}

Suite LireProchaineMesure(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.Demander(CMD_LIT_PROCHAINE_MESURE)) return Suite::Terminer;
    if (lecture.Octet(0) != CMD_LIT_PROCHAINE_MESURE) return Suite::Continuer;
    ui->ProchaineMesure->setText(EpochVersTexte(lecture.Quatre(1), ecran.systeme.regional));
    const int periode = lecture.Mot(5);
    const int index = Chercher(*ui->ListePeriodeEchantillonage, periode);
    if (index >= 0) afficher([&] { ui->ListePeriodeEchantillonage->Choisir(index); });
    if (index == 0) afficher([&] { ui->DureeSaisie->setText(QString::number(periode)); });
    afficher([&] { ui->NbMesures->setText(QString::number(lecture.Octet(7))); });
    return Suite::Continuer;
}

Suite NoterPeriode(LectureParametres& lecture) {
    AjouteRapport(lecture.ecran, QStringLiteral("LabelPeriodeEchantillonnage"),
                  lecture.ecran.ui->ListePeriodeEchantillonage->Texte());
    return Suite::Continuer;
}

Suite LireDemarrage(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    if (!lecture.Demander(CMD_LIT_DEMARRAGE)) return Suite::Terminer;
    if (lecture.Octet(0) != CMD_LIT_DEMARRAGE) return Suite::Continuer;
    lecture.DateDemarrageLue = lecture.Quatre(1);
    const QDateTime instant = EpochVersInstant(lecture.DateDemarrageLue);
    afficher([&] { ecran.ui->DTPicker1->setDateTime(instant); });
    afficher([&] { ecran.ui->DTPicker2->setDateTime(instant); });
    afficher([&] {
        MontrerFin(ecran, DateVersEpoch(VersDateOrdinateur(ecran.ui->DTPicker1->dateTime())));
    });
    return Suite::Continuer;
}

void MontrerCarte(MainScreen& ecran, bool presente) {
    QLabel& etiquette = *ecran.ui->SDCardState;
    etiquette.setText(ecran.Texte(presente ? QStringLiteral("SD CARD Present")
                                           : QStringLiteral("SD CARD Absent")));
    QPalette palette = etiquette.palette();
    palette.setColor(QPalette::WindowText, VersQColor(presente ? noir : rouge));
    etiquette.setPalette(palette);
}

Suite LireDateCourante(LectureParametres& lecture) {
    MainScreen& ecran = lecture.ecran;
    const auto& ui = ecran.ui;
    if (!lecture.Demander(CMD_LIT_DATE_COURANTE)) return Suite::Terminer;
    if (lecture.Octet(0) != CMD_LIT_DATE_COURANTE) return Suite::Continuer;
    lecture.DateLectureLocale = ecran.systeme.horloge.Maintenant();
    ui->DateCourante->setText(EpochVersTexte(lecture.Quatre(1), ecran.systeme.regional));
    const int index = Chercher(*ui->PeriodeTrigger, lecture.Mot(5));
    if (index >= 0) afficher([&] { ui->PeriodeTrigger->Choisir(index); });
    MontrerCarte(ecran, lecture.Octet(7) == 1);
    return Suite::Continuer;
}

Suite NoterPeriodeTrigger(LectureParametres& lecture) {
    const auto& ui = lecture.ecran.ui;
    if (ui->PeriodeTrigger->Texte() != ui->ListePeriodeEchantillonage->Texte()) {
        AjouteRapport(lecture.ecran, QStringLiteral("Label10"), ui->PeriodeTrigger->Texte());
    }
    return Suite::Continuer;
}

/// Adds seven characters to the comment, whatever the reply's first byte: blanks stay blanks.
Suite LireMoitieCommentaire(LectureParametres& lecture, int commande) {
    if (!lecture.Demander(commande)) return Suite::Terminer;
    QByteArray caracteres;
    for (int rang = 1; rang <= caracteresParCommande; ++rang) {
        caracteres.append(static_cast<char>(lecture.Octet(rang)));
    }
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
    ecran.systeme.dialogues.Boite(Icone::Information, Boutons::Ok, ecran.etat.NomKpod,
                                  ecran.Texte(QStringLiteral("Mode étalonnage en cours")));
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
    ui->Lire->setEnabled(false);
    if (ecran.etat.Connected) {
        bool ok = false;
        ui->Version->setText(LitVersionKpod(poste, ok));
        ecran.etat.TypekPod = EnEntier32(ValeurDebut(LitTypeKpod(poste)));
        Lire_Parametres(poste);
        Lire_Correction_Temps(poste);
    }
    ui->Lire->setEnabled(true);
    ui->Lire->setFocus();
}

}  // namespace bornika
