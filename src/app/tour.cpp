#include "app/tour.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <vector>

#include "app/program.h"
#include "calibration/calibration_form.h"
#include "link/connect_form.h"
#include "service/splash_form.h"
#include "ui_calibration_form.h"
#include "ui_connect_form.h"
#include "ui_main_screen.h"
#include "ui_trace_form.h"
#include "viewer/trace_form.h"

namespace bornika {

namespace {

constexpr int pasMs = 20;
constexpr int dureeMaximaleMs = 120'000;

void EnvoyerClic(QWidget& cible, const QPoint& ou) {
    const QPointF global = cible.mapToGlobal(ou);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons boutons =
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent evenement(type, QPointF(ou), global, Qt::LeftButton, boutons, Qt::NoModifier);
        QCoreApplication::sendEvent(&cible, &evenement);
    }
}

/// The technician's hand: looks at the screen every few milliseconds and does the next thing.
class Technicien : public QObject {
  public:
    Technicien(Programme& programme, const Recit& recit) : programme_(programme), recit_(recit) {
        duree_.start();
        Prevoir();
    }

    bool AFini() const { return etape_ == Etape::Fini; }

  private:
    enum class Etape {
        Choisir,
        Ouvrir,
        Lire,
        Telecharger,
        AttendreCourbe,
        Zoomer,
        Etalonner,
        Service,
        Fini
    };

    // The next look is planned before anything is done: a click may return only when a download or
    // a box has ended, and the hand has to go on meanwhile.
    void Prevoir() {
        if (etape_ != Etape::Fini) QTimer::singleShot(pasMs, this, [this] { Regarder(); });
    }

    void Regarder() {
        if (duree_.elapsed() > dureeMaximaleMs) {
            recit_(QStringLiteral("The road took too long; stopped."));
            QCoreApplication::exit(1);
            return;
        }
        Prevoir();
        if (QWidget* modale = QApplication::activeModalWidget()) {
            Repondre(*modale);
            return;
        }
        Avancer();
    }

    // Dialogs and boxes that stand in the way.
    void Repondre(QWidget& modale) {
        if (auto* boite = qobject_cast<QMessageBox*>(&modale)) {
            recit_(QStringLiteral("  the program says: ") + boite->text());
            Photographier(*boite, QStringLiteral("box"));
            EnvoyerClic(*boite->buttons().first(), boite->buttons().first()->rect().center());
        } else if (auto* etalonnage = qobject_cast<Etalonnage*>(&modale)) {
            if (etape_ == Etape::Etalonner) QuitterEtalonnage(*etalonnage);
        } else if (auto* connexion = qobject_cast<frmConnect*>(&modale)) {
            if (etape_ == Etape::Choisir) ChoisirEnregistreur(*connexion);
        }
    }

    void ChoisirEnregistreur(frmConnect& fiche) {
        QListWidget* liste = fiche.ui->Listekrow;
        for (int ligne = 0; ligne < liste->count(); ++ligne)
            recit_(QStringLiteral("  attached: ") + liste->item(ligne)->text());
        Photographier(fiche, QStringLiteral("select"));
        etape_ = Etape::Ouvrir;
        recit_(QStringLiteral("Picking the first logger."));
        EnvoyerClic(*liste->viewport(), liste->visualItemRect(liste->item(0)).center());
    }

    void Avancer() {
        MainScreen& ecran = programme_.ecran;
        switch (etape_) {
            case Etape::Choisir:
                break;
            case Etape::Ouvrir:
                if (!ecran.isVisible()) break;
                if (frmSplash* splash = programme_.activation.Splash())
                    Photographier(*splash, QStringLiteral("splash"));
                etape_ = Etape::Lire;
                Cliquer(ecran.ui->Check_advanced, "Opening the set-up.");
                Cliquer(ecran.ui->Lire, "Reading the logger.");
                break;
            case Etape::Lire:
                Photographier(ecran, QStringLiteral("main"));
                etape_ = Etape::Telecharger;
                Cliquer(ecran.ui->LireValeurs, "Downloading the recording.");
                break;
            case Etape::Telecharger:
                Telecharger(ecran);
                break;
            case Etape::AttendreCourbe:
                MontrerCourbe();
                break;
            case Etape::Zoomer:
                ZoomerCourbe();
                break;
            case Etape::Etalonner:
                break;
            case Etape::Service:
                MontrerService(ecran);
                break;
            case Etape::Fini:
                break;
        }
    }

    // The click of the button that downloads returns only when all is done: this runs inside it.
    void Telecharger(MainScreen& ecran) {
        const BarreProgression& barre = *ecran.ui->ProgressBar2;
        if (!photoTelechargement_ && ecran.etat.EnLecture &&
            barre.Valeur() > 0.4 * barre.Maximum()) {
            photoTelechargement_ = true;
            Photographier(ecran, QStringLiteral("download"));
        }
        Trace* trace = programme_.trace.Presente();
        if (!ecran.etat.EnLecture && trace && trace->isVisible() && !trace->Chargement)
            etape_ = Etape::AttendreCourbe;
    }

    void MontrerCourbe() {
        Trace& trace = *programme_.trace.Presente();
        recit_(QStringLiteral("The curve of ") + trace.NomFichierCourant);
        Photographier(trace, QStringLiteral("curve"));
        etape_ = Etape::Zoomer;
        recit_(QStringLiteral("Zooming into it with the mouse."));
        QWidget& vue = *trace.ui->TChart1;
        const QPoint depart(vue.width() / 3, vue.height() / 4);
        const QPoint arrivee(vue.width() / 2, vue.height() * 3 / 4);
        // Into what lies there, as a hand does.
        Glisser(*vue.childAt(depart), depart, arrivee);
    }

    void ZoomerCourbe() {
        // The zoom is animated: some looks later it stands.
        if (++attente_ < 30) return;
        Photographier(*programme_.trace.Presente(), QStringLiteral("zoom"));
        etape_ = Etape::Etalonner;
        // The main form looks at this whenever it comes to the front.
        recit_(QStringLiteral("Switching to maintenance mode in config.xml."));
        programme_.ecran.configuration.EcritConfig(QStringLiteral("True"),
                                                   QStringLiteral("Maintenance"));
        recit_(QStringLiteral("Opening the calibration."));
        programme_.ecran.ui->mnuEtalonnage->trigger();
    }

    void QuitterEtalonnage(Etalonnage& fiche) {
        Photographier(fiche, QStringLiteral("calibration"));
        etape_ = Etape::Service;
        Cliquer(fiche.ui->Sortir, "Leaving the calibration.");
    }

    void MontrerService(MainScreen& ecran) {
        if (!ecran.ui->PanneauService->isVisible()) return ecran.activateWindow();
        Photographier(ecran, QStringLiteral("service"));
        recit_(QStringLiteral("Done."));
        etape_ = Etape::Fini;
        Cliquer(ecran.ui->Sortir, "Leaving the program.");
    }

    void Cliquer(QWidget* bouton, const char* pourquoi) {
        recit_(QString::fromLatin1(pourquoi));
        EnvoyerClic(*bouton, QPoint(std::min(12, bouton->width() / 2), bouton->height() / 2));
    }

    static void Glisser(QWidget& vue, const QPoint& depart, const QPoint& arrivee) {
        const auto envoyer = [&](QEvent::Type type, const QPoint& ou, Qt::MouseButton bouton,
                                 Qt::MouseButtons tenus) {
            QMouseEvent evenement(type, QPointF(ou), vue.mapToGlobal(QPointF(ou)), bouton, tenus,
                                  Qt::NoModifier);
            QCoreApplication::sendEvent(&vue, &evenement);
        };
        envoyer(QEvent::MouseButtonPress, depart, Qt::LeftButton, Qt::LeftButton);
        envoyer(QEvent::MouseMove, (depart + arrivee) / 2, Qt::NoButton, Qt::LeftButton);
        envoyer(QEvent::MouseMove, arrivee, Qt::NoButton, Qt::LeftButton);
        envoyer(QEvent::MouseButtonRelease, arrivee, Qt::LeftButton, Qt::NoButton);
    }

    void Photographier(QWidget& fiche, const QString& nom) {
        const QString fichier =
            QStringLiteral("%1-%2.png").arg(++photos_, 2, 10, QLatin1Char('0')).arg(nom);
        const QString chemin = programme_.ecran.systeme.Chemin(fichier);
        if (!fiche.grab().save(chemin)) recit_(QStringLiteral("Cannot save ") + chemin);
    }

    Programme& programme_;
    const Recit& recit_;
    QElapsedTimer duree_;
    Etape etape_ = Etape::Choisir;
    bool photoTelechargement_ = false;
    int attente_ = 0;
    int photos_ = 0;
};

}  // namespace

bool FaireVisite(Systeme& systeme, const Recit& recit) {
    Programme programme(systeme);
    Technicien technicien(programme, recit);
    recit(QStringLiteral("Starting the program; it shows the attached loggers."));
    if (!programme.Demarrer()) return false;
    return QApplication::exec() == 0 && technicien.AFini();
}

}  // namespace bornika
