#include "retrieval/raw_dump.h"

#include <algorithm>
#include <span>

#include "link/memory_access.h"
#include "logger/parameter_reading.h"
#include "platform/code_page.h"
#include "platform/dates.h"
#include "platform/named_fault.h"
#include "platform/numbers.h"
#include "platform/text_file.h"
#include "retrieval/download_progress.h"
#include "retrieval/pressure_settings.h"
#include "retrieval/write_failure.h"
#include "shell/product_box.h"
#include "ui_main_screen.h"
#include "widgets/pointer_shape.h"

namespace bornika {

namespace {

constexpr int finDePage = 526;
/// Half of the cells of a page: the bar is full half way, and stays so.
constexpr double pasParPage = 33;

/// One dump, from its file to its box.
class DumpFlash {
  public:
    /// `nom` is the bare name of the file, which is made here.
    DumpFlash(MainScreen& ecran, const QString& nom)
        : ecran_(ecran),
          avancement_(ecran),
          reglages_(LireReglagesPression(ecran)),
          nom_(nom),
          // Each cell costs an exchange over a link of its own: its line can go out at once.
          fichier_(ecran.systeme.Chemin(nom), ModeEcriture::Remplacer,
                   std::chrono::milliseconds(0)) {
        Garder([&] { fichier_.EcrireLigne(u"page;buffer;Date Heure;Valeur;Pression;unité"); });
    }

    void LirePages(Poste& poste, int PageDebut, int PageFin) {
        for (int page = PageDebut; page <= PageFin && !Fini(); ++page)
            LirePage(poste, page);
    }

    void Fermer() {
        Garder([this] { fichier_.Fermer(); });
    }

    void Annoncer() {
        if (echec_.Texte()) return MontrerTexte(ecran_, Icone::Critique, *echec_.Texte());
        MontrerTexte(ecran_, Icone::Information,
                     ecran_.Texte(QStringLiteral("Valeurs stockées dans le fichier")) +
                         QLatin1Char(' ') + nom_);
    }

  private:
    bool Fini() const { return ecran_.etat.EnFermeture || echec_.EstSurvenu(); }

    void LirePage(Poste& poste, int page) {
        for (int offset = 0; offset < finDePage; offset += longueurCellule) {
            Respirer();
            if (Fini()) return;
            LireCellule(poste, page, offset);
        }
    }

    void Respirer() {
        Respiration& respiration = ecran_.systeme.respiration;
        if (!respiration.EstDue()) return;
        avancement_.Montrer();
        if (respiration.Ceder()) RelireFiche();
    }

    /// What the operator can change while the interface runs counts from the next cell on.
    void RelireFiche() { reglages_ = LireReglagesPression(ecran_); }

    /// Each statement keeps what it had where it fails: the line of a cell that cannot be read is
    /// the one of the last good cell.
    void LireCellule(Poste& poste, int page, int offset) {
        const bool muet = ecran_.etat.TimeOut;
        ignorer([&] { octets_ = Memoire_Flash(poste, true, page, offset); });
        // The box of a logger that has fallen silent let the interface run.
        if (!muet && ecran_.etat.TimeOut) RelireFiche();
        if (octets_.size() == longueurCellule)
            DecoderEnregistrement(std::span(octets_).first<longueurCellule>(), cellule_);
        ignorer([&] { pression_ = PressionCorrigee(cellule_.points, reglages_, false); });
        Garder([&] {
            fichier_.EcrireLigneOctets(LigneDump(cellule_, pression_, ecran_.systeme.regional));
        });
        avancement_.Avancer();
    }

    /// One statement that works on the file.
    template <class Instruction>
    void Garder(Instruction&& instruction) {
        echec_.Garder([&] { nommer(nom_, instruction); });
    }

    MainScreen& ecran_;
    Avancement avancement_;
    ReglagesPression reglages_;
    /// Kept here: a download begun meanwhile gives the program another name.
    QString nom_;
    FichierTexteEcrit fichier_;
    Octets octets_;
    Enregistrement cellule_;
    double pression_ = 0;
    EchecEcriture echec_;
};

void OuvrirBarre(MainScreen& ecran, int PageDebut, int PageFin) {
    BarreProgression& barre = *ecran.ui->ProgressBar2;
    const double maximum = (PageFin - PageDebut) * pasParPage + 1;
    barre.FixerMaximum(std::max(barre.Minimum(), maximum));
    Avancement(ecran).Ouvrir();
}

}  // namespace

QString NomDeDump(const QDateTime& instant) {
    const QDate date = instant.date();
    const QTime heure = instant.time();
    QString nom = QString::number(date.year());
    for (const int partie :
         {date.month(), date.day(), heure.hour(), heure.minute(), heure.second()})
        nom += QLatin1Char('-') + QString::number(partie);
    return nom;
}

QByteArray LigneDump(const Enregistrement& cellule, double pression, const Regional& regional) {
    return QByteArray::number(cellule.horodatage) + "; " +
           Vers8Bits(EpochVersTexte(cellule.horodatage, regional)) + ';' +
           QByteArray::number(cellule.points) + ';' + Vers8Bits(TexteGeneral(pression, regional)) +
           ";;" + QByteArray::number(cellule.fraction) + ';';
}

void LectureValeursPage(Poste& poste, int PageDebut, int PageFin) {
    MainScreen& ecran = poste.ecran;
    const auto& ui = ecran.ui;
    // By hand, without guards: a file that cannot be made leaves pointer and button so.
    const int pointeurSauve = PointeurSouris(ecran);
    FixerPointeurSouris(ecran, pointeur::fleche);
    ui->LireValeursPage->setEnabled(false);
    Lire_Parametres(poste);
    if (ecran.etat.TimeOut) {
        // The dump's own button stays disabled: without a logger that answers there is no dump.
        ui->LireValeurs->setEnabled(true);
        FixerPointeurSouris(ecran, pointeurSauve);
        return;
    }
    OuvrirBarre(ecran, PageDebut, PageFin);
    ecran.etat.Nom_Fichier = NomDeDump(ecran.systeme.horloge.Maintenant());
    DumpFlash dump(ecran, ecran.etat.Nom_Fichier + QStringLiteral(".dmp"));
    dump.LirePages(poste, PageDebut, PageFin);
    dump.Fermer();
    FixerPointeurSouris(ecran, pointeurSauve);
    Avancement(ecran).Fermer();
    if (!ecran.etat.EnFermeture) ignorer([&] { dump.Annoncer(); });
    ui->LireValeursPage->setEnabled(true);
    poste.lien.FermeUSB();
}

}  // namespace bornika
