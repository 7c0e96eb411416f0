// Export of a recording of 20,000,000 bytes by the operation of the button, against a plain loop
// that reads, splits and writes the same lines. Both bring their file to the disk, as the program
// does with every file that it closes; both run in turn, and both files are compared.

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <limits>
#include <string>

#include "bench/recording_sample.h"
#include "platform/no_loggers.h"
#include "platform/system.h"
#include "shell/main_screen.h"
#include "ui_main_screen.h"
#include "ui_trace_form.h"
#include "viewer/chart_session.h"
#include "viewer/export_commands.h"
#include "viewer/trace_form.h"
#include "viewer/viewer_access.h"
#include "widgets/toolkit_dialogs.h"

namespace {

using namespace bornika;

/// Answers the dialog with a file of its own.
class CibleChoisie : public DialoguesQt {
  public:
    explicit CibleChoisie(QString cible) : cible_(std::move(cible)) {}
    std::optional<QString> Enregistrer(const DemandeFichier&) override { return cible_; }

  private:
    QString cible_;
};

/// The viewer with the recording loaded, as the operator sees it.
struct Banc {
    Banc() {
        for (const char* nom : {"config.xml", "BORNIKA.TEE"}) {
            const QString copie = systeme.Chemin(QString::fromLatin1(nom));
            if (!QFile::copy(
                    QDir(QStringLiteral(BORNIKA_RESOURCES)).filePath(QString::fromLatin1(nom)),
                    copie))
                std::abort();
            QFile::setPermissions(copie, QFile::ReadOwner | QFile::WriteOwner);
        }
        banc::EcrireFichier(source, banc::EnregistrementPlein());
        ecran.configuration.RemplitListeLangues(*ecran.ui->ListeLangues, QStringLiteral("English"));
        Fiche().show();
        Fiche().NomDialogue = QStringLiteral("full.txt");
        chart_Init(Fiche());
        QApplication::processEvents();
    }
    Trace& Fiche() { return acces.Fiche(); }

    QTemporaryDir dossier;
    QString source = dossier.filePath(QStringLiteral("full.txt"));
    QString cible = dossier.filePath(QStringLiteral("export.csv"));
    QString reference = dossier.filePath(QStringLiteral("reference.csv"));
    HorlogeSysteme horloge;
    CibleChoisie dialogues{cible};
    AucunEnregistreur usb;
    Respiration respiration;
    Systeme systeme{horloge, dialogues, usb, respiration, Regional{}, dossier.path()};
    MainScreen ecran{systeme};
    AccesTrace acces{ecran};
};

/// What no export can do without: reading, ends of lines, separators, the time, writing.
void BoucleNue(const Banc& banc, double debutPortee, double finPortee) {
    QFile source(banc.source);
    QFile cible(banc.reference);
    if (!source.open(QIODevice::ReadOnly) || !cible.open(QIODevice::WriteOnly)) std::abort();
    const QByteArray octets = source.readAll();
    const char* debut = octets.data();
    const char* const fin = debut + octets.size();
    constexpr std::size_t tailleMorceau = 64 * 1024;
    std::string lignes = "Time;Pression;M3/sec.\r\n";
    for (bool entete = true; debut < fin; entete = false) {
        const char* finLigne = static_cast<const char*>(
            std::memchr(debut, '\r', static_cast<std::size_t>(fin - debut)));
        if (!finLigne) break;
        std::array<const char*, 8> champs;
        champs.fill(finLigne);
        const char* place = debut;
        for (const char*& champ : champs) {
            champ = place;
            const char* suivant = static_cast<const char*>(
                std::memchr(place, ';', static_cast<std::size_t>(finLigne - place)));
            if (!suivant) break;
            place = suivant + 1;
        }
        double temps = 0;
        std::from_chars(champs[0], champs[1], temps);
        if (!entete && temps >= debutPortee && temps <= finPortee) {
            for (const std::size_t i : {1, 3, 5})
                lignes.append(champs[i], champs[i + 1]);
            lignes.append("\r\n");
        }
        debut = finLigne + 2;
        if (lignes.size() < tailleMorceau) continue;
        cible.write(lignes.data(), static_cast<qint64>(lignes.size()));
        lignes.clear();
    }
    cible.write(lignes.data(), static_cast<qint64>(lignes.size()));
    if (!cible.flush() || ::fsync(cible.handle()) != 0) std::abort();
}

double Secondes(const QElapsedTimer& duree) {
    return static_cast<double>(duree.nsecsElapsed()) * 1e-9;
}

QByteArray Lire(const QString& chemin) {
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) std::abort();
    return fichier.readAll();
}

void Export20Mo(benchmark::State& etat) {
    Banc banc;
    // The fastest of each: what else runs on the machine only ever adds.
    double exportation = std::numeric_limits<double>::max();
    double nue = exportation;
    QElapsedTimer duree;
    for (auto _ : etat) {
        duree.start();
        Export(banc.Fiche());
        const double ecoule = Secondes(duree);
        etat.SetIterationTime(ecoule);
        exportation = std::min(exportation, ecoule);
        duree.start();
        BoucleNue(banc, banc.Fiche().Mini, banc.Fiche().Maxi);
        nue = std::min(nue, Secondes(duree));
    }
    const QByteArray ecrit = Lire(banc.cible);
    if (ecrit != Lire(banc.reference) || ecrit.count('\n') < 300'000) std::abort();
    etat.counters["export_ms"] = 1000 * exportation;
    etat.counters["plain_ms"] = 1000 * nue;
    etat.counters["ratio"] = exportation / nue;
    etat.counters["bar"] = 2;
}
BENCHMARK(Export20Mo)->UseManualTime()->Iterations(40)->Unit(benchmark::kMillisecond);

}  // namespace
