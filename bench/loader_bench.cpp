// Loading of a recording of 20,000,000 bytes into the series model, against a plain loop over the
// same bytes and against a loader of the toolkit's own means. Each pass measures all of them in
// turn.
//
// Started with "--growth <file>" it loads that file once and prints by how many bytes the process
// grew.

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <algorithm>
#include <charconv>
#include <cstring>
#include <vector>

#include "app/viewer_events.h"
#include "bench/bench_main.h"
#include "bench/recording_sample.h"
#include "chart/model/chart_model.h"
#include "chart/model/loader_form.h"
#include "chart/model/trace_loader.h"
#include "chart/view/chart_view.h"
#include "platform/no_loggers.h"
#include "platform/system.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"
#include "viewer/viewer_loading.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

/// The form reduced to its answers.
class SansFenetre : public FicheChargement {
  public:
    explicit SansFenetre(Systeme& systeme) : systeme_(systeme) {}
    ModeleGraphe& Graphe() override { return graphe_; }
    Systeme& Machine() override { return systeme_; }
    QString Texte(const QString& cle) override { return cle; }
    void LitCommentaires() override {}
    QString Commentaires() override { return {}; }
    void FixerCommentaires(const QString&) override {}
    QString NomEvenement() override { return {}; }
    QString CoefImpulsion() override { return QStringLiteral("2.5"); }
    void FixerCoefImpulsion(const QString&) override {}
    QString UniteImpulsion() override { return QStringLiteral("m3"); }
    void FixerUniteImpulsion(const QString&) override {}
    int IndexListeTemps() override { return 1; }
    QString TexteListeTemps() override { return QStringLiteral("Min"); }
    std::int32_t DonneeListeTemps() override { return 60; }
    void ChoisirListeTemps(int) override {}
    void ViderCurseur() override {}
    void AjouterCurseur(const QString&) override {}
    void FixerLabelPression(const QString&) override {}
    void MontrerFrameDebit() override {}
    void FixerLissage(int) override {}
    void PreparerBarre(double maximum) override { maximum_ = maximum; }
    double MaximumBarre() override { return maximum_; }
    double ValeurBarre() override { return valeur_; }
    void FixerValeurBarre(double valeur) override { valeur_ = valeur; }
    void MontrerFleche() override {}
    void FinirChargement() override {}
    bool EnFermeture() override { return false; }

  private:
    ModeleGraphe graphe_;
    Systeme& systeme_;
    double maximum_ = 0;
    double valeur_ = 0;
};

struct Banc {
    QTemporaryDir dossier;
    HorlogeSysteme horloge;
    DialoguesQt dialogues;
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{horloge, dialogues, usb, respiration, Regional{}, dossier.path()};
    QString chemin = dossier.filePath(QStringLiteral("full.txt"));
};

/// The viewer as the program shows it, with the delivered settings and the table of events.
struct Fenetre : Banc {
    Fenetre() {
        for (const char* nom : {"config.xml", "BORNIKA.TEE"}) {
            const QString copie = systeme.Chemin(QString::fromLatin1(nom));
            if (!QFile::copy(
                    QDir(QStringLiteral(BORNIKA_RESOURCES)).filePath(QString::fromLatin1(nom)),
                    copie))
                std::abort();
            QFile::setPermissions(copie, QFile::ReadOwner | QFile::WriteOwner);
        }
        ecran.configuration.RemplitListeLangues(*ecran.ui->ListeLangues, QStringLiteral("English"));
        acces.apresCreation = [](Trace& trace) { BrancherTrace(trace); };
        acces.Fiche().resize(1200, 800);
        acces.Fiche().show();
        QApplication::processEvents();
    }
    /// Into the series model alone, with the chart on the screen.
    int ChargerModele() {
        Trace& trace = acces.Fiche();
        ControlesChargement controles(trace);
        TraceCourbe(controles, chemin, true, false, trace.Mini, trace.Maxi, true);
        return trace.modele.Serie(0).Nombre();
    }
    /// The whole of what the operator waits for: settings read and saved, template, chart finished.
    int Charger() {
        Trace& trace = acces.Fiche();
        trace.NomDialogue = QStringLiteral("full.txt");
        chart_Init(trace);
        return trace.modele.Serie(0).Nombre();
    }
    MainScreen ecran{systeme};
    AccesTrace acces{ecran};
};

int Charger(Systeme& systeme, const QString& chemin) {
    SansFenetre fiche(systeme);
    double Mini = 0;
    double Maxi = 0;
    TraceCourbe(fiche, chemin, true, false, Mini, Maxi, false);
    return fiche.Graphe().Serie(0).Nombre();
}

/// What no loader can do without: ends of lines, separators, three numbers, labels as offsets.
int BoucleNue(const QByteArray& octets) {
    const std::size_t lignes = static_cast<std::size_t>(octets.size()) / 53 + 1;
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> comptage;
    std::vector<std::uint32_t> etiquettes;
    for (auto* nombres : {&x, &y, &comptage})
        nombres->reserve(lignes);
    etiquettes.reserve(lignes);
    const char* debut = octets.data();
    const char* const fin = debut + octets.size();
    bool entete = true;
    while (debut < fin) {
        const char* finLigne = static_cast<const char*>(
            std::memchr(debut, '\n', static_cast<std::size_t>(fin - debut)));
        if (!finLigne) finLigne = fin;
        const char* champs[6];
        const char* place = debut;
        for (const char*& champ : champs) {
            champ = place;
            const char* suivant = static_cast<const char*>(
                std::memchr(place, ';', static_cast<std::size_t>(finLigne - place)));
            place = suivant ? suivant + 1 : finLigne;
        }
        if (!entete) {
            double valeur = 0;
            std::from_chars(champs[0], champs[1], valeur);
            x.push_back(valeur);
            std::from_chars(champs[3], champs[4], valeur);
            y.push_back(valeur);
            std::from_chars(champs[5], finLigne, valeur);
            comptage.push_back(valeur);
            etiquettes.push_back(static_cast<std::uint32_t>(champs[1] - octets.data()));
        }
        entete = false;
        debut = finLigne + 1;
    }
    benchmark::DoNotOptimize(x.data());
    benchmark::DoNotOptimize(y.data());
    benchmark::DoNotOptimize(comptage.data());
    benchmark::DoNotOptimize(etiquettes.data());
    return static_cast<int>(x.size());
}

/// The loader that one writes first.
int FluxEtDecoupe(const QString& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) std::abort();
    QTextStream flux(&fichier);
    flux.setEncoding(QStringConverter::Latin1);
    flux.readLine();
    std::vector<double> x;
    std::vector<double> y;
    std::vector<double> comptage;
    std::vector<QString> etiquettes;
    while (!flux.atEnd()) {
        const QStringList champs = flux.readLine().split(QLatin1Char(';'));
        if (champs.size() < 6) break;
        x.push_back(champs[0].toDouble());
        y.push_back(champs[3].toDouble());
        comptage.push_back(champs[5].toDouble());
        etiquettes.push_back(champs[1]);
    }
    benchmark::DoNotOptimize(etiquettes.data());
    return static_cast<int>(x.size());
}

template <class Travail>
double Mesurer(std::vector<double>& durees, Travail&& travail) {
    QElapsedTimer duree;
    duree.start();
    if (travail() < 300'000) std::abort();
    durees.push_back(static_cast<double>(duree.nsecsElapsed()) / 1e9);
    return durees.back();
}

double Mediane(std::vector<double> durees) {
    std::nth_element(durees.begin(), durees.begin() + static_cast<long>(durees.size() / 2),
                     durees.end());
    return durees[durees.size() / 2];
}

void Chargement20Mo(benchmark::State& etat) {
    Banc banc;
    const QByteArray octets = banc::EnregistrementPlein();
    banc::EcrireFichier(banc.chemin, octets);
    std::vector<double> chargement;
    std::vector<double> nue;
    std::vector<double> flux;
    for (auto _ : etat) {
        Mesurer(nue, [&] { return BoucleNue(octets); });
        etat.SetIterationTime(
            Mesurer(chargement, [&] { return Charger(banc.systeme, banc.chemin); }));
        Mesurer(flux, [&] { return FluxEtDecoupe(banc.chemin); });
    }
    etat.counters["loader_ms"] = 1000 * Mediane(chargement);
    etat.counters["plain_ms"] = 1000 * Mediane(nue);
    etat.counters["stream_ms"] = 1000 * Mediane(flux);
    etat.counters["ratio_plain"] = Mediane(chargement) / Mediane(nue);
    etat.counters["bar_plain"] = 1.5;
    etat.counters["ratio_stream"] = Mediane(chargement) / Mediane(flux);
    etat.counters["bar_stream"] = 0.1;
}
BENCHMARK(Chargement20Mo)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

/// The same with the window alive: bar, yields, and refresh calls on a chart that stands visible.
void ChargementFenetre20Mo(benchmark::State& etat) {
    Fenetre fenetre;
    const QByteArray octets = banc::EnregistrementPlein();
    banc::EcrireFichier(fenetre.chemin, octets);
    fenetre.Charger();
    std::vector<double> modele;
    std::vector<double> entier;
    std::vector<double> nue;
    for (auto _ : etat) {
        Mesurer(nue, [&] { return BoucleNue(octets); });
        etat.SetIterationTime(Mesurer(modele, [&] { return fenetre.ChargerModele(); }));
        QApplication::processEvents();
        Mesurer(entier, [&] { return fenetre.Charger(); });
        QApplication::processEvents();
    }
    etat.counters["loader_ms"] = 1000 * Mediane(modele);
    etat.counters["plain_ms"] = 1000 * Mediane(nue);
    etat.counters["ratio_plain"] = Mediane(modele) / Mediane(nue);
    etat.counters["bar_plain"] = 3;
    etat.counters["whole_ms"] = 1000 * Mediane(entier);
    etat.counters["ratio_whole"] = Mediane(entier) / Mediane(nue);
}
BENCHMARK(ChargementFenetre20Mo)->UseManualTime()->Iterations(15)->Unit(benchmark::kMillisecond);

/// Growth of a process of its own at its peak, in sizes of the file.
void Memoire20Mo(benchmark::State& etat) {
    Banc banc;
    const QByteArray octets = banc::EnregistrementPlein();
    banc::EcrireFichier(banc.chemin, octets);
    double croissance = 0;
    for (auto _ : etat) {
        QProcess processus;
        processus.start(QCoreApplication::applicationFilePath(),
                        {QStringLiteral("--growth"), banc.chemin});
        processus.waitForFinished(-1);
        croissance = processus.readAllStandardOutput().trimmed().toDouble();
    }
    etat.counters["growth_MB"] = croissance / 1e6;
    etat.counters["ratio"] = croissance / static_cast<double>(octets.size());
    etat.counters["bar"] = 6;
}
BENCHMARK(Memoire20Mo)->Iterations(1)->Unit(benchmark::kMillisecond);

int MontrerCroissance(const QString& chemin) {
    Fenetre fenetre;
    if (!QFile::copy(chemin, fenetre.chemin)) return 1;
    const double avant = banc::MemoireProcessus("VmRSS");
    if (fenetre.Charger() < 300'000) return 1;
    QApplication::processEvents();
    std::printf("%.0f\n", banc::MemoireProcessus("VmHWM") - avant);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    banc::AllerHorsEcran();
    QApplication application(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], "--growth") == 0)
        return MontrerCroissance(QString::fromLocal8Bit(argv[2]));
    return banc::Mesurer(argc, argv);
}
