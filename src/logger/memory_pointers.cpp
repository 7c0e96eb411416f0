#include "logger/memory_pointers.h"

#include <cmath>

#include "link/command_exchange.h"
#include "link/command_table.h"
#include "link/device_identity.h"
#include "platform/numbers.h"
#include "products/firmware_versions.h"
#include "ui_main_screen.h"

namespace bornika {

namespace {

constexpr double octetsParPage = 526;  // usable bytes of a flash page in this arithmetic
constexpr double octetsParMesure = 8;
constexpr double mesuresAjoutees = 8;  // what firmware before 2.11 holds beyond its pointers

struct Pointeur {
    int page = 0;
    int offset = 0;
    /// Sixth byte of the reply.
    int r5 = 0;

    double Lineaire() const { return page * octetsParPage + offset; }
};

/// False on silence and on a wrong echo.
bool LirePointeur(Poste& poste, int commande, Pointeur& pointeur) {
    Tampon buffer{};
    if (!Envoi_Entete(poste, commande, buffer, longueurReponse, true)) return false;
    const VueReponse reponse(buffer);
    if (reponse.Octet(0) != commande) return false;
    pointeur = {reponse.Mot(1), reponse.Mot(3), reponse.Octet(5)};
    return true;
}

void MontrerPointeur(const Pointeur& pointeur, QLineEdit& page, QLineEdit& offset) {
    page.setText(QString::number(pointeur.page));
    offset.setText(QString::number(pointeur.offset));
}

double Borner(double mesures, const BarreProgression& barre) {
    return barre.Maximum() < mesures ? barre.Maximum() : mesures;
}

/// Firmware before 2.11. Returns the number of measures to download.
double MontrerAncienRemplissage(MainScreen& ecran, double octets) {
    const auto& ui = ecran.ui;
    if (ui->Check_advanced->isChecked()) ui->Frame2->setVisible(true);
    double mesures = octets;
    if (mesures != 0) mesures = ArrondiPair(mesures / octetsParMesure) + mesuresAjoutees;
    mesures = Borner(mesures, *ui->ProgressBar1);
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
    mesures = Borner(mesures, *ui->ProgressBar1);
    ui->ValeurCapacite->setText(TexteGeneral(mesures, ecran.systeme.regional));
    ui->ProgressBar1->FixerValeur(mesures);
    return mesures;
}

void LireRemplissage(Poste& poste) {
    MainScreen& ecran = poste.ecran;
    const auto& ui = ecran.ui;
    Pointeur ecriture;
    if (!LirePointeur(poste, CMD_POINTEUR_ECRITURE, ecriture)) return;
    MontrerPointeur(ecriture, *ui->PageEcriture, *ui->BufferEcriture);
    Pointeur lecture;
    if (!LirePointeur(poste, CMD_POINTEUR_LECTURE, lecture)) return;
    MontrerPointeur(lecture, *ui->PageLecture, *ui->BufferLecture);

    const double octets = OctetsOccupes(ecriture.Lineaire(), lecture.Lineaire(), lecture.r5 != 0,
                                        ecran.etat.CapaciteMemoire, ui->ProgressBar1->Maximum());
    bool ok = false;
    LitVersionKpod(poste, ok);  // refreshes `VersionLogiciel`
    const double mesures = ecran.etat.VersionLogiciel < version::carte
                               ? MontrerAncienRemplissage(ecran, octets)
                               : MontrerRemplissage(ecran, octets);
    ui->ProgressBar2->FixerMinimum(0);
    ui->ProgressBar2->FixerMaximum(mesures);
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
    LireRemplissage(poste);
    poste.lien.FermeUSB();
}

}  // namespace bornika
