// Download of a full memory with the window alive, against the same exchanges and the same lines
// without window, bars and yields. Both in turn, on the same simulated logger that answers at once.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "app/form_events.h"
#include "retrieval/download_engine.h"
#include "setup/pressure_scale.h"
#include "shell/language_switch.h"
#include "silent_dialogs.h"
#include "simulator/presets.h"
#include "simulator/recordings.h"
#include "simulator/simulated_bus.h"
#include "ui_main_screen.h"

namespace {

using namespace bornika;

constexpr std::uint32_t debut = 1700000000;
constexpr int nombreMesures = 540606;

/// A logger with a full memory, and the main form as it stands after the start.
struct Banc {
    Banc() {
        const QString ressources = QStringLiteral(BORNIKA_RESOURCES "/config.xml");
        const QString copie = dossier.filePath(QStringLiteral("config.xml"));
        if (!QFile::copy(ressources, copie)) std::abort();
        QFile::setPermissions(copie, QFile::ReadOwner | QFile::WriteOwner);
        enregistreur.Stocker(simulateur::MesuresRegulieres(debut, nombreMesures));
        bus.TaireJournaux();
        BrancherFormulaire(ecran);
        ChangeTextes(ecran, QStringLiteral("English"), true);
        ecran.etat.Connected = true;
        ecran.etat.UsbID = enregistreur.identite.usb;
        ecran.etat.TypekPod = enregistreur.identite.type;
        ecran.show();
        QApplication::processEvents();
    }

    QTemporaryDir dossier;
    BusSimule bus;
    EnregistreurSimule& enregistreur = bus.Brancher(simulateur::KPod2100(debut));
    HorlogeSysteme horloge;
    banc::SansDialogues dialogues;
    Respiration respiration;
    Systeme systeme{horloge, dialogues, bus, respiration, Regional{}, dossier.path()};
    MainScreen ecran{systeme};
    MULTIUSB lien{ecran};
    Poste poste{ecran, lien};
    SuiteTelechargement suite{[](const QString&, const QString&) {}, [](const QString&) {}};
};

/// The lines of the reference go straight to the files.
class Lignes : public SortieMesures {
  public:
    Lignes(Banc& banc, const QString& base)
        : etat_(banc.ecran.etat),
          coefficient_(banc.ecran.ui->ListeUnites->Donnee(banc.ecran.ui->ListeUnites->Index())),
          redacteur_(banc.systeme.regional),
          fichiers_(base, LigneEntete(QStringLiteral("bar"))) {}

    void Compter(std::int32_t) override {}
    void Mesurer(const MesureDatee& mesure) override {
        const double pression = PressionDePoints(CorrigerPoints(mesure.points, etat_.etalonnage),
                                                 {etat_.Mini, etat_.Maxi}, coefficient_, false);
        fichiers_.Ecrire(
            mesure.parite_ok,
            redacteur_.Periodique(mesure.secondes, mesure.millisecondes, mesure.points, pression));
    }
    void Fermer() {
        fichiers_.FermerMesures();
        fichiers_.FermerRejets();
    }

  private:
    const EtatApplication& etat_;
    double coefficient_;
    RedacteurLignes redacteur_;
    PaireEnregistrement fichiers_;
};

void Reference(Banc& banc) {
    const IdentifiantUsb id = banc.enregistreur.identite.usb;
    const PoigneeUsb ecriture = banc.bus.Ouvrir(id);
    const PoigneeUsb lecture = banc.bus.Ouvrir(id);
    Lignes lignes(banc, banc.systeme.Chemin(QStringLiteral("reference")));
    DecodeurMesures decodeur;
    std::array<std::uint8_t, 2> requete{10, 1};
    std::array<std::uint8_t, 10> octets{};
    std::array<int, 10> reponse{};
    while (!decodeur.Fin()) {
        banc.bus.Ecrire(ecriture, requete);
        requete[1] = 0;
        if (banc.bus.Lire(lecture, octets) != 10) std::abort();
        std::copy(octets.begin(), octets.end(), reponse.begin());
        decodeur.Decoder(reponse, lignes);
    }
    lignes.Fermer();
    banc.bus.Fermer(ecriture);
    banc.bus.Fermer(lecture);
}

double Secondes(const QElapsedTimer& duree) {
    return static_cast<double>(duree.nsecsElapsed()) * 1e-9;
}

void Telechargement540606(benchmark::State& etat) {
    Banc banc;
    // The fastest of each: what else runs on the machine only ever adds.
    double telechargement = std::numeric_limits<double>::max();
    double reference = telechargement;
    QElapsedTimer duree;
    for (auto _ : etat) {
        duree.start();
        LectureValeurs(banc.poste, banc.suite);
        const double ecoule = Secondes(duree);
        etat.SetIterationTime(ecoule);
        telechargement = std::min(telechargement, ecoule);
        duree.start();
        Reference(banc);
        reference = std::min(reference, Secondes(duree));
    }
    const QFile fait(banc.systeme.Chemin(banc.ecran.etat.Nom_Fichier + QStringLiteral(".txt")));
    const QFile attendu(banc.systeme.Chemin(QStringLiteral("reference.txt")));
    if (fait.size() != attendu.size() || fait.size() < nombreMesures) std::abort();
    etat.counters["download_s"] = telechargement;
    etat.counters["reference_s"] = reference;
    etat.counters["ratio"] = telechargement / reference;
    etat.counters["bar"] = 1.5;
}
BENCHMARK(Telechargement540606)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

}  // namespace
