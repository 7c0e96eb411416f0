#include "logger/memory_pointers.h"

#include <cmath>
#include <optional>

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/device_identity.h"
#include "logger/parameter_replies.h"
#include "platform/numbers.h"
#include "products/firmware_versions.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double octetsParPage = 526;  // usable bytes of a flash page in this arithmetic
constexpr double octetsParMesure = 8;
constexpr double mesuresAjoutees = 8;  // what firmware before 2.11 holds beyond its pointers

double PositionLineaire(const PointeurLu& pointeur) {
    return pointeur.page * octetsParPage + pointeur.offset;
}

/// Nothing on silence and on a wrong echo.
std::optional<PointeurLu> DemanderPointeur(Poste& poste, int commande) {
    Tampon buffer{};
    if (!Envoi_Entete(poste, commande, buffer, longueurReponse, true)) return std::nullopt;
    return PointeurLuDe(buffer, commande);
}

void MontrerPointeur(const PointeurLu& pointeur, QLineEdit& page, QLineEdit& offset) {
    page.setText(QString::number(pointeur.page));
    offset.setText(QString::number(pointeur.offset));
}

double BornerParLaBarre(double mesures, const BarreProgression& barre) {
    return barre.Maximum() < mesures ? barre.Maximum() : mesures;
}

/// Firmware before 2.11. Returns the number of measures to download.
double MontrerAncienRemplissage(MainScreen& ecran, double octets) {
    const auto& ui = ecran.ui;
    if (ui->Check_advanced->isChecked()) ui->Frame2->setVisible(true);
    double mesures = octets;
    if (mesures != 0) mesures = ArrondiPair(mesures / octetsParMesure) + mesuresAjoutees;
    mesures = BornerParLaBarre(mesures, *ui->ProgressBar1);
    ui->ProgressBar1->FixerValeur(mesures);
    const Regional& regional = ecran.systeme.regional;
    ui->ValeurCapacite->setText(TexteGeneral(mesures, regional) + QStringLiteral(" / ") +
                                TexteGeneral(ecran.etat.CapaciteMemoire, regional));
    return mesures;
}

/// Firmware 2.11 and later: the number stands alone, without the capacity.
double MontrerRemplissage(MainScreen& ecran, double octets) {
    const auto& ui = ecran.ui;
    ui->Frame2->setVisible(false);
    ui->Capacite->setText(ecran.Texte(QStringLiteral("Records")));
    double mesures = octets;
    if (mesures != 0) mesures = ArrondiPair(mesures / octetsParMesure);
    mesures = BornerParLaBarre(mesures, *ui->ProgressBar1);
    ui->ValeurCapacite->setText(TexteGeneral(mesures, ecran.systeme.regional));
    ui->ProgressBar1->FixerValeur(mesures);
    return mesures;
}

/// The bytes that hold measures, once both places are known and shown.
std::optional<double> LireOctetsOccupes(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const auto& ui = ecran.ui;
    const auto ecriture = DemanderPointeur(poste, CMD_POINTEUR_ECRITURE);
    if (!ecriture) return std::nullopt;
    MontrerPointeur(*ecriture, *ui->PageEcriture, *ui->BufferEcriture);
    const auto lecture = DemanderPointeur(poste, CMD_POINTEUR_LECTURE);
    if (!lecture) return std::nullopt;
    MontrerPointeur(*lecture, *ui->PageLecture, *ui->BufferLecture);
    return OctetsOccupes(PositionLineaire(*ecriture), PositionLineaire(*lecture), lecture->r5 != 0,
                         ecran.etat.CapaciteMemoire, ui->ProgressBar1->Maximum());
}

void MontrerMesures(MainScreen& ecran, double octets) {
    const double mesures = ecran.etat.VersionLogiciel < version::carte
                               ? MontrerAncienRemplissage(ecran, octets)
                               : MontrerRemplissage(ecran, octets);
    ecran.ui->ProgressBar2->FixerMinimum(0);
    ecran.ui->ProgressBar2->FixerMaximum(mesures);
}

}  // namespace

double OctetsOccupes(double ecriture, double lecture, bool vide, double CapaciteMemoire,
                     double maximumBarre) {
    const double taille = CapaciteMemoire * octetsParMesure;
    const double distance = std::abs(ecriture - lecture);
    double libres = 1;
    if (distance != 0) {
        libres = taille - distance;
    } else if (vide) {
        libres = taille;
    }
    // Bytes against a maximum in measures: as the display has always counted.
    if (static_cast<float>(libres) == static_cast<float>(maximumBarre)) libres -= 1;
    return taille - libres;
}

void Lecture_Pointeurs(Poste& poste) {
    poste.lien.OuvreUSB(poste.ecran.etat.UsbID);
    if (const auto octets = LireOctetsOccupes(poste)) {
        bool ok = false;
        LitVersionKpod(poste, ok);  // refreshes `VersionLogiciel`
        MontrerMesures(poste.ecran, *octets);
    }
    poste.lien.FermeUSB();
}

}  // namespace bornika
